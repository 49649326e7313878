// The window "Check and Import": the puzzles of a file of any format, or of a level, as a table
// that is checked, rated, sifted, exported, and imported into the level files.
#pragma once

#include <array>
#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "game/collection_log.h"
#include "game/print_pages.h"
#include "model/files.h"
#include "solver/brute_force.h"
#include "solver/settings.h"
#include "tools/record_layout.h"
#include "tools/table_view.h"

namespace vemo {

struct CollectionRuns;
enum class ExportFormat : std::uint8_t;
enum class Sameness : std::uint8_t;
struct TableResult;

// What the window is busy with.
enum class CollectionJob : std::uint8_t {
    None,
    Read,
    BruteCheck,  // how many solutions?
    Rate,
    Check,     // solutions, rating and twins in one go
    FindNeed,  // which need the technique of the filter?
    FindTwins,
    Import,  // into the level files
    Export,
    Solve,   // the selected one, step by step
    Report,  // the selected one by brute force, for a box
};

// Neighbouring places of the list of shown rows.
struct ShownRange {
    std::size_t first = 0;
    std::size_t count = 0;
};

class CollectionWindow {
  public:
    static constexpr std::uint32_t kNoRow = ~std::uint32_t{0};

    // Both outlive the window.
    CollectionWindow(RecordFiles& files, const TechniqueSettings& techniques);
    ~CollectionWindow();

    // What is open: "puzzles.sdm", "Level Easy"; empty: nothing. A level's rows are its records.
    const std::string& Name() const { return name_; }
    int Level() const { return level_; }  // 0: a file, or nothing
    bool IsOpen() const { return !name_.empty(); }
    // Counts what has been opened: another number, another table and log.
    int Opened() const { return opened_; }
    // How the file was read: by its own format where there is none.
    const std::optional<RecordLayout>& Layout() const { return layout_; }
    // What the beginning of the open file, the first of several, would be by a layout.
    std::vector<ReadPiece> PreviewOf(const RecordLayout& layout) const;
    bool MayReadByLayout() const { return !paths_.empty() && !IsBusy(); }

    const PuzzleTable& Table() const { return *table_; }
    const TableOrder& Order() const { return order_; }
    // The rows shown. While the version stays, rows are at most added at the end.
    const RowList& Shown() const { return shown_; }
    int ShownVersion() const { return shownVersion_; }
    // The last column: "one solution", "same as 12", "stored as number 1001"...
    std::string StateOf(std::uint32_t row) const;
    // The rows that are on the way out, and may be put back.
    std::size_t RemovedCount() const { return removed_; }

    // The row that is looked at, and what the buttons are for: the selected rows where there are
    // several, else all that are shown.
    std::uint32_t Current() const { return current_; }
    std::optional<std::size_t> CurrentPlace() const { return currentPlace_; }  // in the list
    RowList Chosen() const;
    std::size_t ChosenCount() const { return IsForSelected() ? selectedCount_ : shown_.Size(); }
    bool IsForSelected() const { return selectedCount_ > 1; }
    // They stay selected in another order, as far as they are shown.
    const std::vector<ShownRange>& Selected() const { return selected_; }

    CollectionJob Job() const { return job_; }
    bool IsBusy() const { return job_ != CollectionJob::None; }
    // 0..1 of the job, the puzzles done a second, and the time left; nothing where it is not known.
    double Progress() const;
    double PerSecond() const;
    std::optional<std::chrono::seconds> TimeLeft() const;
    // What the job is at: "Solving Sudoku : Rated Hard or higher - Scanning for X-Wing".
    std::string Status() const;
    // How things stand, what went wrong, what to do: for the player.
    std::string Message() const;
    bool IsWarning() const { return isWarning_ || !refusal_.empty(); }

    // The selected puzzle, or as far as it is solved.
    const Grid& Board() const { return board_; }
    // The report of what was read and imported, and the steps of solved puzzles; it only grows
    // until another collection is opened.
    const CollectionLog& Log() const { return log_; }

    // Reads these files, one after the other, in place of what was open; or a level.
    void OpenFiles(std::vector<std::filesystem::path> paths,
                   std::optional<RecordLayout> layout = std::nullopt);
    void OpenLevel(int level);
    // Reads the open files again.
    void ReadBy(std::optional<RecordLayout> layout) { OpenFiles(paths_, layout); }

    // Which rows need the technique of a filter is found out at once, or after the job that runs.
    void Show(const TableOrder& order);
    void FindNeedIfDue();
    // `current` is a place of the list; nothing: no row is looked at.
    void Select(std::vector<ShownRange> ranges, std::optional<std::size_t> current);

    // Each of the chosen rows that is not done yet: a job that was cancelled goes on.
    void Start(CollectionJob job);
    // The one that is looked at alone.
    void ImportCurrent();
    // To the format's file.
    void Export(ExportFormat format, const std::filesystem::path& path);
    // Ends the job; what is done stays.
    void Cancel();
    // Takes over what the job has done meanwhile: some twenty times a second while it runs.
    void Tick();

    // Of the rows that are chosen: takes those out of sight that occur in an earlier row, exactly
    // or under any look. Nothing is changed in a file.
    void RemoveTwins(Sameness sameness);
    void PutBack();

    // The chosen puzzles, one a line; no more than fit the clipboard well.
    static constexpr std::size_t kMostCopied = 100'000;
    std::string CopyText() const;
    // A row as it is printed; nothing where its clues cannot be read.
    std::optional<PrintedSudoku> PrintedOf(std::uint32_t row) const;

    // What the last job leaves to be told in a box, once.
    struct Ended {
        CollectionJob job = CollectionJob::None;
        std::size_t discarded = 0;                 // an import's puzzles without a single solution
        std::optional<BruteForceResult> report{};  // of Report, where it was not cancelled
        std::uint32_t row = kNoRow;                // that it was for
    };
    std::optional<Ended> TakeEnded();
    // Where a row stands in a level file.
    std::optional<StoredPlace> PlaceOf(std::uint32_t row) const;
    // The solution of the solve report is on the board.
    void ShowSolution(const Digits& solution);

    // The message says why what was asked for is not done.
    void Refuse(std::string why) { refusal_ = std::move(why); }

  private:
    using Clock = std::chrono::steady_clock;

    // collection_window.cpp
    void Close();
    void ReadNext();
    void LookAtFirst();
    void Rebuild();
    void ShowCurrent();
    // collection_jobs.cpp
    void Begin(CollectionJob job, std::size_t total);
    void StartOne(CollectionJob job);
    void BeginWork(CollectionJob job, RowList rows);
    RowList RowsToDo(CollectionJob job) const;
    bool IsToDo(std::uint32_t row, CollectionJob job) const;
    bool ForgetOldRatings();
    void ForgetTwins(const RowList& rows);
    void TakeRead();
    void EndOfFile();
    void TakeWork();
    void TakeOver(const TableResult& result);
    void EndOfWork();
    void NoteTwins();
    void TakeSolved();
    void TakeExport();
    void End(const std::string& message);
    void Fail(const std::string& message);
    // collection_import.cpp
    void BeginImport();
    void Store(const TableResult& result);
    // collection_texts.cpp
    std::string NumberOf(std::uint32_t row) const;
    std::size_t UnratedCount() const;
    std::string EndOfWorkText() const;

    RecordFiles& files_;
    const TechniqueSettings& techniques_;

    std::string name_;
    int opened_ = 0;
    int level_ = 0;
    std::vector<std::filesystem::path> paths_;
    std::size_t pathsRead_ = 0;
    std::optional<RecordLayout> layout_;
    std::unique_ptr<PuzzleTable> table_;

    TableOrder order_;
    RowList shown_;
    int shownVersion_ = 0;
    std::size_t removed_ = 0;
    std::vector<ShownRange> selected_;
    std::size_t selectedCount_ = 0;
    std::uint32_t current_ = kNoRow;
    std::optional<std::size_t> currentPlace_;
    Grid board_;

    CollectionJob job_ = CollectionJob::None;
    std::optional<RowList> checked_;  // whose twins are looked for after the rating
    bool isCancelled_ = false;
    bool isNeedDue_ = false;  // to be found out after the job
    Clock::time_point begin_;
    std::size_t done_ = 0;
    std::size_t total_ = 0;
    std::unique_ptr<CollectionRuns> runs_;  // never null
    int stepStands_ = 0;                    // ticks
    int solveLevel_ = 0;
    std::uint32_t jobRow_ = kNoRow;
    std::optional<TechniqueSettings> ratedBy_;

    // Of the job that runs, or ran last.
    struct Counts {
        std::size_t rejected = 0;
        std::array<std::size_t, 4> solutions{};         // by Solutions
        std::array<std::size_t, kLevels + 1> levels{};  // of those that were rated
        std::size_t exact = 0;
        std::size_t equivalent = 0;
        std::size_t stored = 0;
        std::size_t known = 0;
        std::size_t discarded = 0;
    };
    Counts counts_;
    std::optional<Ended> ended_;
    CollectionLog log_;
    std::string message_;
    bool isWarning_ = false;
    std::string refusal_;
};

}  // namespace vemo
