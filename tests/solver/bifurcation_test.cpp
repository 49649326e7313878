// Bifurcation: its trials, its log, and what it leaves alone.
#include <gtest/gtest.h>

#include "solver/patterns.h"
#include "solver/positions.h"

namespace vemo {
namespace {

using namespace test;

constexpr int kTrialSlot = 39;
const std::string kAttempt = "Bifurcation attempt: placed candidate ";
const std::string kEmptyCell = "Current Bifurcation attempt failed due to empty cell";
const std::string kStalled = "Current Bifurcation attempt failed: more than one Bifurcation needed";
const std::string kPlaced = "Bifurcation placed candidate ";

Ladder TrialAlone(Mode mode) {
    return {{&StepOfSlot(kTrialSlot), mode}};
}

Grid StuckWith(const Digits& puzzle, const Ladder& ladder) {
    Solver solver(Grid::FromClues(puzzle));
    RunToTheEnd(solver, ladder);
    return solver.State().Cells();
}

// Where nothing but a trial is left, and where nothing but a trial or a chain is.
std::vector<Grid> StuckStates() {
    std::vector<Grid> states;
    for (const char* puzzle : {kNeedsTrials, kOutlawed}) {
        states.push_back(StuckWith(ParseDigits(puzzle), TrialLadder()));
    }
    for (const Digits& puzzle : Corpus()) {
        const Grid grid = StuckWith(puzzle, QuickLadder());
        if (grid.EmptyCount() > 0 && states.size() < 40) {
            states.push_back(grid);
        }
    }
    return states;
}

struct TrialRun {
    std::vector<std::string> log;
    PassResult result;
    Grid after;
    Find find;
};
TrialRun RunTrials(const Grid& grid, Mode mode) {
    TrialRun run;
    Solver solver(grid);
    solver.SetLog([&](std::string_view line) { run.log.emplace_back(line); });
    run.result = solver.Pass(TrialAlone(mode));
    run.after = solver.State().Cells();
    run.find = solver.LastFind();
    return run;
}

bool Holds(const std::vector<std::string>& log, const std::string& line) {
    return std::ranges::find(log, line) != log.end();
}

TEST(Bifurcation, ATrialFailsStallsOrWinsAndSaysSo) {
    bool hasFailed = false;
    bool hasStalled = false;
    bool hasWon = false;
    for (const Grid& grid : StuckStates()) {
        const TrialRun run = RunTrials(grid, Mode::Apply);
        hasFailed |= Holds(run.log, kEmptyCell);
        hasStalled |= Holds(run.log, kStalled);
        // An attempt stands behind a blank line.
        for (std::size_t at = 0; at < run.log.size(); ++at) {
            if (run.log[at].starts_with(kAttempt)) {
                ASSERT_GT(at, 0u);
                EXPECT_EQ(run.log[at - 1], "");
            }
        }
        if (run.result != PassResult::Changed) {
            EXPECT_EQ(run.after, grid) << "a failed trial removes nothing";
            continue;
        }
        hasWon = true;
        // The last attempt is the one that is placed, and it alone.
        const auto last =
            std::find_if(run.log.rbegin(), run.log.rend(),
                         [](const std::string& line) { return line.starts_with(kAttempt); });
        ASSERT_NE(last, run.log.rend());
        EXPECT_EQ(run.log.back(), kPlaced + last->substr(kAttempt.size()));
        Grid expected = grid;
        expected.Zet(run.find.placements[0].digit, run.find.placements[0].cell);
        EXPECT_EQ(run.after, expected);
    }
    EXPECT_TRUE(hasFailed);
    EXPECT_TRUE(hasStalled);
    EXPECT_TRUE(hasWon);
}

TEST(Bifurcation, AHintLogsItsTrialsButPlacesNothing) {
    for (const Grid& grid : StuckStates()) {
        const TrialRun run = RunTrials(grid, Mode::Hint);
        if (run.result != PassResult::Hint) {
            continue;
        }
        EXPECT_EQ(run.after, grid);
        EXPECT_TRUE(std::ranges::none_of(
            run.log, [](const std::string& line) { return line.starts_with(kPlaced); }));
        const auto [cell, digit] = run.find.placements[0];
        EXPECT_EQ(HintText(run.find), "BIFURCATION: Since placing number " + std::to_string(digit) +
                                          " at cell " + CellName(cell) +
                                          " leads to the solution, it must be there");
        return;
    }
    FAIL() << "no hint was found";
}

TEST(Bifurcation, OnlyBivalueCellsAreTriedByDigitThenCell) {
    EXPECT_TRUE(RunTrials(Grid(), Mode::Apply).log.empty());
    const Grid grid = GridWith({Only("89", "A2"), Only("38", "J9")});
    const TrialRun run = RunTrials(grid, Mode::Apply);
    std::vector<std::string> attempts;
    std::ranges::copy_if(run.log, std::back_inserter(attempts),
                         [](const std::string& line) { return line.starts_with(kAttempt); });
    const std::vector<std::string> expected = {kAttempt + "3 at cell J9", kAttempt + "8 at cell A2",
                                               kAttempt + "8 at cell J9",
                                               kAttempt + "9 at cell A2"};
    EXPECT_EQ(attempts, expected);
}

TEST(Bifurcation, ItCanBeStoppedInTheMiddleOfATrial) {
    const Grid grid = StuckStates().front();
    Solver solver(grid);
    int calls = 0;
    solver.SetStepWatcher([&](const Step& step) {
        EXPECT_EQ(step.slot, kTrialSlot) << "the status stays that of the trial";
        return ++calls < 20;
    });
    EXPECT_EQ(solver.Pass(TrialAlone(Mode::Apply)), PassResult::Stopped);
    EXPECT_EQ(calls, 20);
    EXPECT_EQ(solver.State().Cells(), grid);
}

TEST(Bifurcation, ACellWithOneCandidateStaysAsTheTrialLeftItAndItsPeersAsTheyWere) {
    const Grid grid = GridWith({Only("5", "E5"), Only("12", "A1")});
    const TrialRun run = RunTrials(grid, Mode::Apply);
    EXPECT_EQ(run.result, PassResult::Nothing);
    EXPECT_EQ(run.after.Digit(CellNamed("E5")), 5);
    EXPECT_TRUE(run.after.KnopAan(CellNamed("E6"), 5));
    EXPECT_EQ(run.after.Digit(CellNamed("A1")), 0);
}

}  // namespace
}  // namespace vemo
