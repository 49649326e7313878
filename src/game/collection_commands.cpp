// The events of the collection window.
#include "game/collection_commands.h"

#include <algorithm>
#include <utility>

#include "game/collection_texts.h"
#include "game/play_levels.h"
#include "game/print_window.h"
#include "tools/puzzle_export.h"
#include "tools/puzzle_table.h"

namespace vemo {
namespace {

constexpr const char* kPuzzleFiles =
    "Sudoku files (*.txt *.sdk *.sdx *.sdm *.ss *.opensudoku *.csv *.tsv *.sud);;All files (*)";

}  // namespace

void CollectionCommands::mnuSudokuCheck() {
    stage_.view.OpenForm(Form::FormCollection, Keyboard::Follows);
}

void CollectionCommands::Read(std::vector<std::filesystem::path> paths,
                              const std::optional<RecordLayout>& layout) {
    playsNext_ = CollectionWindow::kNoRow;
    stage_.collection.OpenFiles(std::move(paths), layout);
    stage_.show();
}

void CollectionCommands::CommandOpenFile() {
    if (!Window().IsBusy()) {
        Read(stage_.view.AskOpenFiles({"Open sudokus", kPuzzleFiles}), std::nullopt);
    }
}

void CollectionCommands::Drop(const std::vector<std::filesystem::path>& paths) {
    Read(paths, std::nullopt);
}

void CollectionCommands::CommandOpenLevel(int level) {
    stage_.collection.OpenLevel(level);
    stage_.show();
}

void CollectionCommands::CommandReadBy(const std::optional<RecordLayout>& layout) {
    if (Window().MayReadByLayout()) {
        stage_.collection.ReadBy(layout);
        stage_.show();
    }
}

void CollectionCommands::Show(const TableOrder& order) {
    stage_.collection.Show(order);
    stage_.show();
}

void CollectionCommands::Select(std::vector<ShownRange> ranges,
                                std::optional<std::size_t> current) {
    stage_.collection.Select(std::move(ranges), current);
    stage_.show();
}

void CollectionCommands::CommandStart(CollectionJob job) {
    stage_.collection.Start(job);
    stage_.show();
}

void CollectionCommands::CommandRemoveTwins(Sameness sameness) {
    stage_.collection.RemoveTwins(sameness);
    stage_.show();
}

void CollectionCommands::CommandPutBack() {
    stage_.collection.PutBack();
    stage_.show();
}

void CollectionCommands::CommandExport(ExportFormat format) {
    const ExportFormatRow& row = vemo::RowOf(format);
    if (Window().IsBusy() || Window().ChosenCount() == 0) {
        return;
    }
    const std::string ending(row.ending);
    const auto path = stage_.view.AskSaveFile(
        {"Export sudokus", "Sudokus" + ending, std::string(row.caption) + " (*" + ending + ")"});
    if (path) {
        stage_.collection.Export(format, *path);
    }
    stage_.show();
}

void CollectionCommands::CommandPrint() {
    const CollectionWindow& window = Window();
    const RowList rows = window.Chosen();
    const std::size_t count = std::min(rows.Size(), std::size_t{kMostPrinted});
    std::vector<PrintedSudoku> sudokus;
    for (std::size_t at = 0; at < count; ++at) {
        if (const auto sudoku = window.PrintedOf(rows[at])) {
            sudokus.push_back(*sudoku);
        }
    }
    if (sudokus.empty()) {
        return;
    }
    if (count < rows.Size()) {
        Tell(stage_, "Print",
             "The first " + Grouped(count) + " of " + Grouped(rows.Size()) +
                 " sudokus are printed. Select others to print them.");
    }
    PrintSelection(stage_, std::move(sudokus), window.Name());
    stage_.show();
}

void CollectionCommands::CommandCancel() {
    playsNext_ = CollectionWindow::kNoRow;
    stage_.collection.Cancel();
    stage_.show();
}

void CollectionCommands::Tick() {
    stage_.collection.Tick();
    stage_.show();
    if (!Window().IsBusy()) {
        TellEnded();
        stage_.collection.FindNeedIfDue();
        stage_.show();
    }
}

void CollectionCommands::TellEnded() {
    const std::uint32_t played = std::exchange(playsNext_, CollectionWindow::kNoRow);
    const auto ended = stage_.collection.TakeEnded();
    if (!ended) {
        return;
    }
    if (ended->discarded > 0) {
        Tell(stage_, "Invalid Sudoku", kDiscardedText);
    }
    if (ended->report) {
        TellReport(*ended->report, ended->row);
    } else if (const auto place = Window().PlaceOf(played)) {
        Play(*place);
    }
}

void CollectionCommands::TellReport(const BruteForceResult& result, std::uint32_t row) {
    if (result.IsUnique() && row == Window().Current()) {
        stage_.collection.ShowSolution(result.solution);
    }
    const SolveReport report = ReportOf(result);
    Tell(stage_, std::string(report.title), std::string(report.text));
    if (result.IsUnique()) {
        WriteBruteForceSolution(row, result.solution);
    }
}

// Only a level's puzzles have a file where it belongs.
void CollectionCommands::WriteBruteForceSolution(std::uint32_t row, const Digits& solution) {
    const int level = Window().Level();
    const int number = static_cast<int>(row) + 1;
    auto record = level == 0 ? std::nullopt : stage_.files.ReadPuzzle(level, number);
    if (!record || record->solution == solution) {
        return;
    }
    record->solution = solution;
    if (const auto error = stage_.files.WritePuzzle(level, number, *record)) {
        TellFileError(stage_, *error);
    }
}

void CollectionCommands::CommandSolveMouseUp(MouseButton button, Released released) {
    if (released == Released::Inside) {
        CommandStart(button == MouseButton::Left ? CollectionJob::Solve : CollectionJob::Report);
    }
}

std::string CollectionCommands::WhyNotPlay() const {
    const CollectionWindow& window = Window();
    if (window.Current() == CollectionWindow::kNoRow) {
        return "Select a sudoku in the list first.";
    }
    if (const std::string why = WhyNoPuzzleCanBeLoaded(stage_.session); !why.empty()) {
        return why;
    }
    const Solutions solutions = window.Table().Row(window.Current()).HasSolutions();
    if (solutions == Solutions::None || solutions == Solutions::Several) {
        return "This sudoku has no unique solution.";
    }
    return window.PlaceOf(window.Current()) || !window.IsBusy()
               ? ""
               : "To be played it is imported first: press Cancel, or wait for the end.";
}

void CollectionCommands::CommandPlay() {
    const std::uint32_t row = Window().Current();
    if (std::string why = WhyNotPlay(); !why.empty()) {
        stage_.collection.Refuse(std::move(why));
    } else if (const auto place = Window().PlaceOf(row)) {
        Play(*place);
    } else {
        playsNext_ = row;
        stage_.collection.ImportCurrent();
    }
    stage_.show();
}

void CollectionCommands::Play(const StoredPlace& place) {
    if (std::string why = WhyNoPuzzleCanBeLoaded(stage_.session); !why.empty()) {
        stage_.collection.Refuse(std::move(why));
    } else if (LoadSudoku(stage_, place.level, place.number)) {
        stage_.view.GiveWay(Form::FormCollection);
    } else {
        const bool isThere = stage_.files.ReadPuzzle(place.level, place.number).has_value();
        Tell(stage_, "Can't open sudoku",
             "Sudoku number " + std::to_string(place.number) +
                 (isThere ? " is damaged in " : " is no longer in ") +
                 Utf8(stage_.files.PuzzlePath(place.level)),
             BoxIcon::Warning);
    }
}

bool RefuseQuitWhileCollecting(Stage& stage) {
    if (!stage.collection.IsBusy()) {
        return false;
    }
    stage.collection.Refuse(
        "The game cannot end meanwhile: press Cancel first. What is done stays.");
    stage.view.OpenForm(Form::FormCollection, Keyboard::Follows);
    return true;
}

}  // namespace vemo
