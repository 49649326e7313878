// The window "Print": what the player orders, and the sudokus that the order stands for.
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "game/print_order.h"

namespace vemo {

class RecordFiles;
struct Options;
struct Stage;

// The sudokus of a run, and what the player has to know of them.
struct PrintRunContent {
    std::vector<PrintedSudoku> sudokus;
    std::vector<int> damaged;  // the numbers that are left out
};
// All of `first` to `last` that can be printed; without an error in RunError.
PrintRunContent ReadPrintRun(RecordFiles& files, int level, int first, int last);
// Whether a sudoku in play shows its pencil marks on the board, and so on paper.
enum class SavedMarks : std::uint8_t { Shown, Hidden };
SavedMarks MarksOn(const Options& options, int level);
// The saved play of a sudoku of a level takes the place of its untouched clues, where there is any.
void PutSavedPlay(RecordFiles& files, SavedMarks marks, PrintedSudoku& sudoku);
// "Left out, because damaged: Easy 3, 17."; empty where nothing is.
std::string DamagedText(int level, const std::vector<int>& damaged);

class PrintWindow {
  public:
    const PrintOrder& Order() const { return order_; }
    // What is printed; without sudokus where there is an error.
    const PrintJob& Job() const { return job_; }
    // Grows whenever the job changes.
    int Version() const { return version_; }
    // Of the document and, with its ending, of its file: "Easy 1-4".
    std::string Name() const;
    const std::string& Error() const { return error_; }    // why nothing can be printed
    const std::string& Notice() const { return notice_; }  // what is left out
    bool HasSelection() const { return !selection_.empty(); }
    const std::string& SelectionName() const { return selectionName_; }
    // How many sudokus the order's level has.
    int LevelCount() const { return levelCount_; }

    // The player has changed the order.
    void Change(Stage& stage, const PrintOrder& order);
    // Shows the sudoku in play, or numbers of its level where none is open.
    void Begin(Stage& stage);
    // Shows these; `name` is the document's.
    void Give(Stage& stage, std::vector<PrintedSudoku> sudokus, const std::string& name);
    // For this window and all others that print.
    void ChoosePaper(Stage& stage, Paper paper);
    // The sudoku in play may have changed.
    void Follow(Stage& stage);
    void End() { isOpen_ = false; }

  private:
    // Whether it is printed as it stands in the main window, among others.
    bool IsInRun(const std::optional<PrintedSudoku>& sudoku) const;
    void Make(Stage& stage);
    void MakeRun(Stage& stage);

    PrintOrder order_;
    bool hasBegun_ = false;  // the order has been before the player
    bool isOpen_ = false;
    std::optional<PrintedSudoku> current_;
    bool isCovered_ = false;
    std::vector<PrintedSudoku> selection_;
    std::string selectionName_;
    int levelCount_ = 0;
    PrintJob job_;
    int version_ = 0;
    std::string error_;
    std::string notice_;
};

// The menu's command.
void OpenPrint(Stage& stage);
// Prints what another window has selected: opens the window with these.
void PrintSelection(Stage& stage, std::vector<PrintedSudoku> sudokus, const std::string& name);
// Asks where to save the window's pages; nothing where the player cancels.
std::optional<std::filesystem::path> AskPdfFile(Stage& stage, const std::string& name);
// Puts a finished file there at once and answers whether it could: a failure is told, and what
// stood there stays.
bool StorePdf(Stage& stage, const std::filesystem::path& path, std::span<const std::uint8_t> bytes);

}  // namespace vemo
