// Autosolve and Scan.
#include "game/autosolve.h"

#include <algorithm>
#include <vector>

#include "game/hints.h"
#include "game/play_levels.h"
#include "solver/solver.h"

namespace vemo {
namespace {

constexpr int kStepStands = 100;  // milliseconds

constexpr const char* kShowMarksQuestion =
    "All pencilmarks must be visible to start the Autosolver, shall I make them visible ?";

enum class RunEnd : std::uint8_t { Reported, Solved, NotSolved, Halted, Stopped };

void SpeelUnlessScanning(Stage& stage, Sound sound) {
    if (!stage.session.isScanBusy) {
        Speel(stage, sound);
    }
}

// The step just applied, on the screen: the placements as `ZetAuto` makes them, without an undo
// step.
void ShowStep(Stage& stage, const Solver& solver) {
    Session& session = stage.session;
    session.history.CutRedo();
    session.grid = solver.State().Cells();
    if (session.isScanBusy) {
        return;
    }
    Speel(stage, Sound::Hint);
    stage.show();
    stage.view.Pause(kStepStands, [&session] { return session.isStopRequested; });
}

// Steps, each shown, until the grid is full or a pass ends in anything but a step.
PassResult RunPasses(Stage& stage, Solver& solver) {
    const LongFunction busy(stage.session);
    const Ladder ladder = AutosolveLadder(stage.techniques);
    while (!stage.session.IsFull()) {
        const PassResult result = solver.Pass(ladder);
        if (result != PassResult::Changed && result != PassResult::Solved) {
            return result;
        }
        ShowStep(stage, solver);
    }
    return PassResult::Solved;
}

void ShowAsHint(Stage& stage, const Solver& solver) {
    SpeelUnlessScanning(stage, Sound::Hint);
    ShowLastFind(stage, solver);
}

// The step that Stop kept from being taken. Trials are left out: Stop acts at once.
void ShowNextStep(Stage& stage) {
    const Ladder ladder = WithoutTrials(HintLadder(stage.techniques));
    Solver solver = BoardSolver(stage);
    PassResult result = PassResult::Nothing;
    {
        const LongFunction busy(stage.session);
        result = solver.Pass(ladder);
    }
    if (result == PassResult::Hint) {
        ShowAsHint(stage, solver);
    } else {
        stage.session.textHint = "Autosolve stopped";
    }
}

RunEnd EndSolved(Stage& stage) {
    stage.log.AddLine("SUDOKU SOLVED");
    stage.session.textHint = "Autosolve completed, sudoku solved !!!";
    ZetOpgelost(stage);
    return RunEnd::Solved;
}

RunEnd EndNotSolved(Stage& stage) {
    stage.log.AddLine("SUDOKU NOT SOLVED");
    SpeelUnlessScanning(stage, Sound::Giggle);
    stage.session.textHint =
        "Autosolve completed, no more logical hints, you'll have to enable more techniques or "
        "guess more than once...";
    return RunEnd::NotSolved;
}

RunEnd EndOf(Stage& stage, const Solver& solver, PassResult result) {
    switch (result) {
    case PassResult::Stopped:
        ShowNextStep(stage);
        return RunEnd::Stopped;
    case PassResult::Hint:
        ShowAsHint(stage, solver);
        return RunEnd::Halted;
    case PassResult::Solved:
        // A puzzle with several solutions can end in another one than its own.
        return stage.session.grid.AllDigits() == stage.session.puzzle.solution
                   ? EndSolved(stage)
                   : EndNotSolved(stage);
    case PassResult::DeadEnd:
    case PassResult::Nothing:
    case PassResult::Changed:
        break;
    }
    return EndNotSolved(stage);
}

RunEnd RunOnPuzzle(Stage& stage) {
    if (ReportEntries(stage, Reporter::Autosolve)) {
        return RunEnd::Reported;
    }
    stage.session.DropHint();
    stage.session.isAutosolved = true;
    stage.log.AddText("\r\nStart Solving\r\n");
    Solver solver = BoardSolver(stage);
    return EndOf(stage, solver, RunPasses(stage, solver));
}

struct Range {
    int from;
    int to;
};

// Asks again until the number lies in the range; nothing where the player cancels.
std::optional<int> InsistOnNumber(Stage& stage, const char* title, Range range,
                                  const char* suggestion) {
    const Question question = {
        title,
        "Enter a value between " + std::to_string(range.from) + " and " + std::to_string(range.to),
        suggestion};
    std::optional<int> number = 0;
    while (number == 0) {
        number = AskNumber(stage, question, range.from, range.to);
    }
    return number;
}

std::optional<Range> AskRange(Stage& stage, int level) {
    if (!stage.files.HasPuzzleFile(level)) {
        Tell(stage, "File error",
             "Source file: " + Utf8(stage.files.PuzzlePath(level)) + " not found!");
        return std::nullopt;
    }
    const int count = stage.files.PuzzleCount(level);
    if (count == 0) {
        TellNoSudokus(stage, level);
        return std::nullopt;
    }
    const std::optional<int> from = InsistOnNumber(stage, "Scan 'from' number", {1, count}, "1");
    if (!from) {
        return std::nullopt;
    }
    const std::optional<int> to = InsistOnNumber(stage, "Scan 'to' number", {*from, count}, "");
    return to ? std::optional<Range>({*from, *to}) : std::nullopt;
}

// What became of the puzzles of a scan.
struct ScanTally {
    int ended = 0;
    int solved = 0;
    std::vector<int> unsolved;
    std::vector<int> damaged;
    bool isStopped = false;

    void Count(int number, RunEnd end);
    std::string Text() const;
};

void ScanTally::Count(int number, RunEnd end) {
    isStopped |= end == RunEnd::Stopped;
    if (isStopped) {
        return;
    }
    ++ended;
    if (end == RunEnd::Solved) {
        ++solved;
    } else {
        unsolved.push_back(number);
    }
}

// ", not solved: 3, 17", cut off where there are many; empty where there is none.
std::string NumberList(const char* what, const std::vector<int>& numbers) {
    constexpr std::size_t kMost = 20;
    std::string text;
    for (std::size_t k = 0; k < std::min(numbers.size(), kMost); ++k) {
        text += (k == 0 ? std::string(what) : ", ") + std::to_string(numbers[k]);
    }
    return numbers.size() > kMost ? text + ", ..." : text;
}

std::string ScanTally::Text() const {
    return (isStopped ? "Scan stopped: " : "Scan completed: ") + std::to_string(solved) + " of " +
           std::to_string(ended) + " sudokus solved" + NumberList(", not solved: ", unsolved) +
           NumberList(", damaged: ", damaged);
}

ScanTally ScanRange(Stage& stage, int level, Range range) {
    Session& session = stage.session;
    ScanTally tally;
    session.isScanBusy = true;
    session.isStopRequested = false;
    for (int number = range.from; number <= range.to && !tally.isStopped; ++number) {
        if (LoadSudoku(stage, level, number)) {
            tally.Count(number, RunOnPuzzle(stage));
        } else {
            tally.damaged.push_back(number);
            stage.show();
            stage.view.Yield();
            tally.isStopped = session.isStopRequested;
        }
    }
    session.isScanBusy = false;
    session.isStopRequested = false;
    return tally;
}

}  // namespace

bool MayAutosolve(const Stage& stage) {
    const Session& session = stage.session;
    return session.IsBoardOn() && !session.IsBrushOrLinkMode() && !IsSimpleMode(stage);
}

bool MayScan(const Stage& stage) {
    const Session& session = stage.session;
    const int level = TargetLevel(session);
    return level != 0 && !session.IsMaking() && !session.IsBrushOrLinkMode() &&
           !IsSimpleLevel(stage.options, level);
}

void AutoSolve(Stage& stage) {
    if (!MayAutosolve(stage) || !ShowHiddenMarks(stage, kShowMarksQuestion)) {
        return;
    }
    RunOnPuzzle(stage);
    stage.session.isStopRequested = false;
}

void Scan(Stage& stage) {
    if (!MayScan(stage)) {
        return;
    }
    const int level = TargetLevel(stage.session);
    const std::optional<Range> range = AskRange(stage, level);
    if (!range || !ShowHiddenMarks(stage, kShowMarksQuestion)) {
        return;
    }
    const ScanTally tally = ScanRange(stage, level, *range);
    stage.session.textHint += "\n" + tally.Text();
}

}  // namespace vemo
