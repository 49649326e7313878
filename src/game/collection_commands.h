// The events of the collection window, named after its controls.
//
// The window lives beside the game's long functions: only what would load a puzzle waits for their
// end.
#pragma once

#include "game/stage.h"

namespace vemo {

class CollectionCommands {
  public:
    explicit CollectionCommands(Stage& stage) : stage_(stage) {}

    const CollectionWindow& Window() const { return stage_.collection; }

    // The menu entry "Check and Import...".
    void mnuSudokuCheck();

    // What to look at: a file that is asked for, files that were dropped, a level, the open file
    // with records of a layout or, with none, again by its own format.
    void CommandOpenFile();
    void Drop(const std::vector<std::filesystem::path>& paths);
    void CommandOpenLevel(int level);
    void CommandReadBy(const std::optional<RecordLayout>& layout);

    void Show(const TableOrder& order);
    void Select(std::vector<ShownRange> ranges, std::optional<std::size_t> current);

    // Check, rate, brute check, find twins of the chosen rows; import them into the level files.
    void CommandStart(CollectionJob job);
    void CommandRemoveTwins(Sameness sameness);
    void CommandPutBack();
    void CommandExport(ExportFormat format);
    // Opens the window that prints, with the chosen ones; with the first of very many.
    void CommandPrint();
    void CommandCancel();
    void Tick();

    // The selected sudoku. The Solve command: the left button solves it step by step, the right
    // one, released inside, asks for the report; a click by keyboard is one with the left button.
    void CommandSolveMouseUp(MouseButton button, Released released);
    // Loads it, like Open: one that stands in no level file is imported first. Why it cannot be
    // played now, as a sentence; empty where it can.
    std::string WhyNotPlay() const;
    void CommandPlay();

  private:
    void Read(std::vector<std::filesystem::path> paths, const std::optional<RecordLayout>& layout);
    void TellEnded();
    void TellReport(const BruteForceResult& result, std::uint32_t row);
    void WriteBruteForceSolution(std::uint32_t row, const Digits& solution);
    void Play(const StoredPlace& place);

    Stage& stage_;
    std::uint32_t playsNext_ = CollectionWindow::kNoRow;  // when its import has ended
};

// A job keeps the game from ending: the window comes to the front and says so.
bool RefuseQuitWhileCollecting(Stage& stage);

}  // namespace vemo
