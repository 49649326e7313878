// The ladders, the walk down a ladder, and the change of the grid.
#include "solver/solver.h"

#include <numeric>

#include <gtest/gtest.h>

#include "model/levels.h"
#include "solver/patterns.h"

namespace vemo {
namespace {

using namespace test;

// Searches for ladders of the tests' own.
void Nothing(const Position&, const Args&, FindSink&) {}

// A find that changes nothing.
void Idle(const Position&, const Args&, FindSink& sink) {
    Find find;
    find.kind = HintKind::NakedSingle;
    find.AddCell(0);
    find.AddDigit(1);
    sink.Offer(find);
}

// Places the first candidate of the first empty cell.
void Place(const Position& position, const Args&, FindSink& sink) {
    if (position.Cells().EmptyCells().Any()) {
        const int cell = position.Cells().EmptyCells().First();
        Find find;
        find.placements.Add(At(cell, FirstDigit(position.Cells().MarksAt(cell))));
        sink.Offer(find);
    }
}

Step StepOf(Search search, int slot, int level) {
    return {slot, search, {}, level, {HintKind::NakedSingle}, "", "", 0};
}

std::vector<int> SlotsOf(const Ladder& ladder) {
    std::vector<int> slots;
    for (const LadderStep& at : ladder) {
        slots.push_back(at.step->slot);
    }
    return slots;
}
std::vector<int> SlotsInHintMode(const Ladder& ladder) {
    std::vector<int> slots;
    for (const LadderStep& at : ladder) {
        if (at.mode == Mode::Hint) {
            slots.push_back(at.step->slot);
        }
    }
    return slots;
}

// 3..6, six times 7, then 8..39.
std::vector<int> CatalogueOrder() {
    std::vector<int> slots = {3, 4, 5, 6, 7, 7, 7, 7, 7, 7};
    slots.resize(42);
    std::iota(slots.begin() + 10, slots.end(), 8);
    return slots;
}

TEST(Ladders, FollowTheCatalogueUntilThePlayerChangesThem) {
    const TechniqueSettings settings;
    EXPECT_EQ(SlotsOf(FixedLadder()), CatalogueOrder());
    EXPECT_EQ(SlotsInHintMode(FixedLadder()), std::vector<int>());
    EXPECT_EQ(SlotsOf(HintLadder(settings)), CatalogueOrder());
    EXPECT_EQ(SlotsInHintMode(HintLadder(settings)), CatalogueOrder());
    EXPECT_EQ(SlotsOf(BatchLadder(settings)), CatalogueOrder());
    EXPECT_EQ(SlotsInHintMode(BatchLadder(settings)), std::vector<int>());
    EXPECT_EQ(SlotsInHintMode(AutosolveLadder(settings)), std::vector<int>());
}

TEST(Ladders, HonourOrderOnOffAndHalt) {
    TechniqueSettings settings;
    std::swap(settings.order[8], settings.order[38]);
    settings.onOff[9] = settings.onOff[39] = false;
    settings.halt[7] = settings.halt[9] = settings.halt[12] = true;
    std::vector<int> expected = CatalogueOrder();
    std::swap(expected[10], expected[40]);
    std::erase(expected, 9);
    std::erase(expected, 39);
    EXPECT_EQ(SlotsOf(HintLadder(settings)), expected);
    EXPECT_EQ(SlotsInHintMode(HintLadder(settings)), expected);
    EXPECT_EQ(SlotsOf(BatchLadder(settings)), expected);
    EXPECT_EQ(SlotsInHintMode(BatchLadder(settings)), std::vector<int>());
    EXPECT_EQ(SlotsOf(AutosolveLadder(settings)), expected);
    EXPECT_EQ(SlotsInHintMode(AutosolveLadder(settings)), (std::vector{7, 7, 7, 7, 7, 7, 12}));
}

TEST(Pass, EndsAtADeadEndBeforeAnyStep) {
    Solver solver(GridWith({Only("5", "A1"), Only("", "J9")}));
    int watched = 0;
    solver.SetStepWatcher([&](const Step&) { return ++watched > 0; });
    EXPECT_EQ(solver.Pass(FixedLadder()), PassResult::DeadEnd);
    EXPECT_EQ(watched, 0);
    EXPECT_FALSE(RunToTheEnd(solver, FixedLadder()));
    EXPECT_EQ(RatingOf(solver, false), kOutlaw);
}

TEST(Pass, AsksBeforeEachStepWhetherToGoOn) {
    Solver solver(GridWith({Only("12", "A1 A5")}));
    std::vector<int> watched;
    std::size_t last = 4;
    solver.SetStepWatcher([&](const Step& step) {
        watched.push_back(step.slot);
        return watched.size() < last;
    });
    EXPECT_EQ(solver.Pass(FixedLadder()), PassResult::Stopped);
    EXPECT_EQ(watched, (std::vector{3, 4, 5, 6}));
    last = 100;
    EXPECT_EQ(solver.Pass(FixedLadder()), PassResult::Changed);
    EXPECT_EQ(watched, (std::vector{3, 4, 5, 6, 3, 4, 5, 6, 7}));
    EXPECT_EQ(solver.LastStep(), &StepAt(kNakedPair));
}

TEST(Pass, InHintModeKeepsTheFindAndNotesItsRemovals) {
    const Grid grid = GridWith({{Box(0), "1", "A1 A2"}});
    Solver solver(grid);
    int logged = 0;
    solver.SetLog([&](std::string_view) { ++logged; });
    EXPECT_EQ(solver.Pass(HintLadder({})), PassResult::Hint);
    EXPECT_EQ(solver.LastFind().kind, HintKind::PointingPair);
    EXPECT_EQ(solver.LastStep()->slot, 5);
    EXPECT_EQ(logged, 0);
    EXPECT_EQ(solver.ReachedLevel(), 0);
    EXPECT_EQ(solver.StepCount(), 0);
    EXPECT_EQ(solver.HardestSlot(), kNoSlot);
    Grid noted = solver.State().Cells();
    for (int cell = 0; cell < kCells; ++cell) {
        EXPECT_EQ(noted.MarksAt(cell), grid.MarksAt(cell));
        EXPECT_EQ(noted.CandidateRemoved(1, cell), CellsNamed("A4 A5 A6 A7 A8 A9").Has(cell));
    }
}

TEST(Pass, AHintForgetsWhatTheHintBeforeItNoted) {
    Solver solver(GridWith({{Box(0), "1", "A1 A2"}, {Row('J'), "9", "J7 J8"}}));
    EXPECT_EQ(solver.Pass({{&StepAt(kPointingPair), Mode::Hint}}), PassResult::Hint);
    EXPECT_EQ(solver.Pass({{&StepAt(kBoxLine), Mode::Hint}}), PassResult::Hint);
    Grid noted = solver.State().Cells();
    EXPECT_FALSE(noted.CandidateRemoved(1, CellNamed("A4")));
    EXPECT_TRUE(noted.CandidateRemoved(9, CellNamed("G9")));
}

TEST(Pass, PassesOverAFindThatChangesNothing) {
    const Step idle = StepOf(Idle, 27, 6);
    Solver solver(GridWith({Only("5", "C3")}));
    std::vector<std::string> log;
    solver.SetLog([&](std::string_view line) { log.emplace_back(line); });
    EXPECT_EQ(solver.Pass({{&idle, Mode::Apply}, {&StepAt(kNakedSingle), Mode::Apply}}),
              PassResult::Changed);
    EXPECT_EQ(log,
              (std::vector<std::string>{"Naked Single 1 at cell A1", "Naked Single 5 at cell C3"}));
    // It counts as found all the same.
    EXPECT_EQ(solver.ReachedLevel(), 6);
    EXPECT_EQ(solver.HardestSlot(), 27);
    EXPECT_EQ(solver.StepCount(), 1);
    EXPECT_EQ(solver.Pass({{&idle, Mode::Apply}}), PassResult::Nothing);
}

TEST(Pass, OnlyTheSinglesTestWhetherTheGridIsFull) {
    Digits clues = PlainSolution();
    clues[80] = 0;
    const Step place = StepOf(Place, 19, 6);
    Solver byPlace(Grid::FromClues(clues));
    EXPECT_EQ(byPlace.Pass({{&place, Mode::Apply}}), PassResult::Changed);
    EXPECT_EQ(byPlace.EmptyCount(), 0);
    EXPECT_EQ(byPlace.Pass({{&place, Mode::Apply}}), PassResult::Nothing);
    EXPECT_TRUE(RunToTheEnd(byPlace, {{&place, Mode::Apply}}));

    for (StepRow single : {kHiddenSingle, kNakedSingle}) {
        Solver solver(Grid::FromClues(clues));
        EXPECT_EQ(solver.Pass({{&StepAt(single), Mode::Apply}}), PassResult::Solved);
    }
}

TEST(Apply, LeavesOutWhatTheGridDoesNotAllow) {
    Grid grid = GridWith({Only("12", "A1")});
    grid.Zet(9, CellNamed("J9"));
    Solver solver(grid);
    Find find;
    find.kind = HintKind::NakedSingle;
    find.placements.Add(At(CellNamed("A1"), 3));
    find.placements.Add(At(CellNamed("J9"), 9));
    find.removals.Add(At(CellNamed("A1"), 4));
    EXPECT_FALSE(solver.Apply(StepAt(kNakedSingle), find));
    EXPECT_EQ(solver.State().Cells(), grid);
    EXPECT_EQ(solver.EmptyCount(), 80);
    EXPECT_EQ(solver.StepCount(), 0);
}

TEST(Apply, CountsAFindThatContradictsTheSolution) {
    Solver solver{Grid()};
    solver.SetSolution(PlainSolution());
    Find find;
    find.kind = HintKind::BivalueGrave;  // the one kind that may be wrong
    find.removals.Add(At(0, 2));
    const Step grave = StepOf(Nothing, 27, 6);
    solver.Apply(grave, find);
    EXPECT_EQ(solver.UnsoundFinds(), 0);
    find.removals.Add(At(1, 2));
    solver.Apply(grave, find);
    EXPECT_EQ(solver.UnsoundFinds(), 1);
    Find wrong;
    wrong.kind = HintKind::BivalueGrave;
    wrong.placements.Add(At(3, 9));
    solver.Apply(grave, wrong);
    EXPECT_EQ(solver.UnsoundFinds(), 2);
}

TEST(Rating, IsTheHighestLevelUsedAndOutlawWhereLogicStops) {
    Digits clues = PlainSolution();
    clues[0] = clues[80] = 0;
    const Step place = StepOf(Place, 19, 6);
    Solver solver(Grid::FromClues(clues));
    EXPECT_EQ(solver.Pass({{&place, Mode::Apply}}), PassResult::Changed);
    EXPECT_TRUE(RunToTheEnd(solver, FixedLadder()));
    EXPECT_EQ(solver.StepCount(), 2);
    EXPECT_EQ(solver.HardestSlot(), 19);
    EXPECT_EQ(RatingOf(solver, true), 6);

    Solver easy(Grid::FromClues(clues));
    EXPECT_TRUE(RunToTheEnd(easy, FixedLadder()));
    EXPECT_EQ(RatingOf(easy, true), 1);

    Solver stuck{Grid()};
    EXPECT_FALSE(RunToTheEnd(stuck, FixedLadder()));
    EXPECT_EQ(RatingOf(stuck, false), kOutlaw);
}

TEST(RunToTheEnd, AsksBeforeEachPassWhetherToGoOn) {
    Digits clues = PlainSolution();
    clues[0] = clues[40] = clues[80] = 0;
    Solver solver(Grid::FromClues(clues));
    int asked = 0;
    EXPECT_FALSE(RunToTheEnd(solver, FixedLadder(), [&] { return ++asked < 3; }));
    EXPECT_EQ(asked, 3);
    EXPECT_EQ(solver.EmptyCount(), 1);
}

}  // namespace
}  // namespace vemo
