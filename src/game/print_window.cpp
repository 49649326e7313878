// The window "Print".
#include "game/print_window.h"

#include <algorithm>
#include <utility>

#include "game/play_levels.h"
#include "game/stage.h"

namespace vemo {
namespace {

constexpr std::size_t kMostNamed = 12;  // damaged sudokus that are named one by one
constexpr int kFirstRun = 4;            // sudokus in the run that is proposed

// The sudoku in the main window as it stands there.
std::optional<PrintedSudoku> CurrentSudoku(const Stage& stage) {
    const Session& session = stage.session;
    if (session.phase == PlayPhase::NoPuzzle || session.IsCovered()) {
        return std::nullopt;
    }
    const bool isMaking = session.IsMaking();
    // A finished one may already be of another level than the one that is chosen.
    const int level = isMaking || session.number == 0 ? 0 : session.level;
    PrintedSudoku sudoku = PrintedFrom(session.puzzle, level, level == 0 ? 0 : session.number);
    sudoku.digits = session.grid.AllDigits();
    if (isMaking) {
        sudoku.clues = sudoku.digits;
        sudoku.solution = {};
        sudoku.best = {};
    } else if (MarksOn(stage.options, session.level) == SavedMarks::Shown) {
        for (int cell : session.grid.EmptyCells()) {
            sudoku.marks[static_cast<std::size_t>(cell)] = session.grid.MarksAt(cell);
        }
    }
    return sudoku;
}

std::string WithoutSolutionText(const PrintJob& job) {
    const PageStyle& style = job.style;
    const bool wantsSolution =
        style.solutions != SolutionPlace::None || style.content == PrintContent::Solution;
    const auto count = std::ranges::count_if(
        job.sudokus, [](const auto& sudoku) { return !sudoku.HasSolution(); });
    if (!wantsSolution || count == 0) {
        return "";
    }
    return "Sudokus without a known solution: " + std::to_string(count) +
           ". They are printed without one.";
}

}  // namespace

SavedMarks MarksOn(const Options& options, int level) {
    return options.pencilmarks && !IsSimpleLevel(options, level) ? SavedMarks::Shown
                                                                 : SavedMarks::Hidden;
}

PrintRunContent ReadPrintRun(RecordFiles& files, int level, int first, int last) {
    PrintRunContent content;
    const std::vector<PuzzleRecord> records = files.ReadRun(level, first, last);
    for (int number = first; number <= last; ++number) {
        const auto at = static_cast<std::size_t>(number - first);
        if (at < records.size() && IsWhole(records[at])) {
            content.sudokus.push_back(PrintedFrom(records[at], level, number));
        } else {
            content.damaged.push_back(number);
        }
    }
    return content;
}

void PutSavedPlay(RecordFiles& files, SavedMarks marks, PrintedSudoku& sudoku) {
    const PlayState state = files.ReadPlayState(sudoku.level, sudoku.number);
    if (!BelongsTo(state, {sudoku.clues, sudoku.solution, sudoku.best})) {
        return;
    }
    sudoku.digits = state.digits;
    if (marks == SavedMarks::Shown) {
        sudoku.marks = state.pencilMarks;
    }
}

std::string DamagedText(int level, const std::vector<int>& damaged) {
    if (damaged.empty()) {
        return "";
    }
    std::string text = "Left out, because damaged: " + std::string(LevelName(level));
    for (std::size_t at = 0; at < std::min(damaged.size(), kMostNamed); ++at) {
        text += (at == 0 ? " " : ", ") + std::to_string(damaged[at]);
    }
    if (damaged.size() > kMostNamed) {
        text += " and " + std::to_string(damaged.size() - kMostNamed) + " more";
    }
    return text + ".";
}

std::string PrintWindow::Name() const {
    switch (order_.source) {
    case PrintSource::Current:
        return current_ ? CaptionOf(*current_) : "Sudoku";
    case PrintSource::Run:
        return std::string(LevelName(order_.level)) + " " + std::to_string(order_.first) +
               (order_.first == order_.last ? "" : "-" + std::to_string(order_.last));
    case PrintSource::Selection:
        break;
    }
    return selectionName_;
}

void PrintWindow::Change(Stage& stage, const PrintOrder& order) {
    if (order.style != order_.style) {
        WritePageStyle(stage.settings, order.style);
    }
    const bool isOtherLevel = order.level != order_.level;
    order_ = order;
    if (isOtherLevel) {
        order_.first = 1;
        order_.last = std::clamp(stage.files.PuzzleCount(order.level), 1, kFirstRun);
    }
    Make(stage);
}

void PrintWindow::Begin(Stage& stage) {
    current_ = CurrentSudoku(stage);
    isCovered_ = stage.session.IsCovered();
    isOpen_ = true;
    PrintOrder order = order_;
    order.style = ReadPageStyle(stage.settings);
    order.source = current_ || isCovered_ ? PrintSource::Current : PrintSource::Run;
    if (const int level = TargetLevel(stage.session);
        !std::exchange(hasBegun_, true) && level != 0) {
        order.level = level;
    }
    Change(stage, order);
}

void PrintWindow::Give(Stage& stage, std::vector<PrintedSudoku> sudokus, const std::string& name) {
    Begin(stage);
    selection_ = std::move(sudokus);
    selectionName_ = name;
    order_.source = PrintSource::Selection;
    Make(stage);
}

void PrintWindow::ChoosePaper(Stage& stage, Paper paper) {
    PrintOrder order = order_;
    order.style = ReadPageStyle(stage.settings);
    order.style.paper = paper;
    WritePageStyle(stage.settings, order.style);
    Change(stage, order);
}

void PrintWindow::Follow(Stage& stage) {
    if (!isOpen_) {
        return;
    }
    std::optional<PrintedSudoku> current = CurrentSudoku(stage);
    const bool isCovered = stage.session.IsCovered();
    if (current == current_ && isCovered == isCovered_) {
        return;
    }
    const bool wasInRun = IsInRun(current_);
    current_ = std::move(current);
    isCovered_ = isCovered;
    if (order_.source == PrintSource::Current || wasInRun || IsInRun(current_)) {
        Make(stage);
    }
}

bool PrintWindow::IsInRun(const std::optional<PrintedSudoku>& sudoku) const {
    return order_.source == PrintSource::Run &&
           order_.style.content == PrintContent::CurrentState && sudoku &&
           sudoku->level == order_.level && sudoku->number >= order_.first &&
           sudoku->number <= order_.last;
}

void PrintWindow::Make(Stage& stage) {
    ++version_;
    job_ = {order_.style, {}};
    error_.clear();
    notice_.clear();
    levelCount_ = stage.files.PuzzleCount(order_.level);
    switch (order_.source) {
    case PrintSource::Current:
        if (current_) {
            job_.sudokus = {*current_};
        } else {
            error_ = isCovered_ ? "The clock is stopped and the sudoku is covered: press Pause in "
                                  "the main window to go on."
                                : "No sudoku is open in the main window: open one there, or choose "
                                  "numbers of a level.";
        }
        break;
    case PrintSource::Run:
        MakeRun(stage);
        break;
    case PrintSource::Selection:
        job_.sudokus = selection_;
        error_ = selection_.empty() ? "Nothing is selected." : "";
        break;
    }
    if (notice_.empty()) {
        notice_ = WithoutSolutionText(job_);
    }
}

void PrintWindow::MakeRun(Stage& stage) {
    const int level = order_.level;
    error_ = RunError(level, order_.first, order_.last, levelCount_);
    if (!error_.empty()) {
        return;
    }
    PrintRunContent content = ReadPrintRun(stage.files, level, order_.first, order_.last);
    notice_ = DamagedText(level, content.damaged);
    job_.sudokus = std::move(content.sudokus);
    if (job_.sudokus.empty()) {
        error_ = std::exchange(notice_, "");
    }
    if (order_.style.content != PrintContent::CurrentState) {
        return;
    }
    for (PrintedSudoku& sudoku : job_.sudokus) {
        if (current_ && current_->level == level && current_->number == sudoku.number) {
            sudoku = *current_;
        } else {
            PutSavedPlay(stage.files, MarksOn(stage.options, level), sudoku);
        }
    }
}

void OpenPrint(Stage& stage) {
    stage.print.Begin(stage);
    stage.view.OpenForm(Form::FormPrint, Keyboard::Follows);
}

void PrintSelection(Stage& stage, std::vector<PrintedSudoku> sudokus, const std::string& name) {
    stage.print.Give(stage, std::move(sudokus), name);
    stage.view.OpenForm(Form::FormPrint, Keyboard::Follows);
}

std::optional<std::filesystem::path> AskPdfFile(Stage& stage, const std::string& name) {
    return stage.view.AskSaveFile({"Save as PDF", name + ".pdf", "PDF files (*.pdf)"});
}

bool StorePdf(Stage& stage, const std::filesystem::path& path,
              std::span<const std::uint8_t> bytes) {
    const std::optional<FileError> error = stage.anyFiles.Replace(path, bytes);
    if (error) {
        TellFileError(stage, *error);
    }
    return !error;
}

}  // namespace vemo
