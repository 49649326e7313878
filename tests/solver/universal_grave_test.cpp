// The Bivalue Universal Grave with its kept rule.
#include <gtest/gtest.h>

#include "solver/patterns.h"

namespace vemo {
namespace {

using namespace test;

constexpr int kGraveSlot = 27;

// Every cell holds 1 and 2, the odd one these digits.
Grid GraveAt(std::string_view odd, std::string_view digits) {
    Grid grid;
    for (int cell = 0; cell < kCells; ++cell) {
        const bool isOdd = cell == CellNamed(odd);
        Discard(
            grid, cell,
            static_cast<Marks>(kAllMarks & ~DigitsNamed(isOdd ? digits : std::string_view("12"))));
    }
    return grid;
}

TEST(UniversalGrave, HoldsOnlyWhereTheOddCellsIndexHasThreeBits) {
    struct Case {
        const char* odd;
        const char* digits;
        bool fires;
    };
    const Case cases[] = {
        {"A8", "123", true},    // 7
        {"B3", "123", true},    // 11
        {"A8", "12345", true},  // the number of its candidates plays no part
        {"A9", "123", false},   // 8
        {"A1", "123", false},   // 0
        {"B7", "123", false},   // 15
    };
    for (const auto& [odd, digits, fires] : cases) {
        SCOPED_TRACE(odd);
        EXPECT_EQ(SearchFirst(StepOfSlot(kGraveSlot), GraveAt(odd, digits)).any, fires);
    }
    Grid two = GraveAt("A8", "123");
    two.GiveBack(CellNamed("C1"), 5);
    EXPECT_FALSE(SearchFirst(StepOfSlot(kGraveSlot), two).any);
    Grid none = GraveAt("A8", "12");
    EXPECT_FALSE(SearchFirst(StepOfSlot(kGraveSlot), none).any);
}

TEST(UniversalGrave, TakesWhatStandsTwiceInAnyOneUnit) {
    Grid grid = GraveAt("A8", "13456");
    for (const auto& [cell, marks] : {std::pair{"A1", "13"}, {"J8", "14"}, {"C9", "15"}}) {
        Discard(grid, CellNamed(cell), kAllMarks);
        grid.GiveBack(CellNamed(cell), marks[0] - '0');
        grid.GiveBack(CellNamed(cell), marks[1] - '0');
    }
    const FirstFind first = SearchFirst(StepOfSlot(kGraveSlot), grid);
    ASSERT_TRUE(first.any);
    EXPECT_EQ(LogLine(first.found), "BUG: Removed candidates from cell A8 : 3 4 5");
    EXPECT_EQ(HintText(first.found),
              "BIVALUE UNIVERSAL GRAVE: The only unsolved cell that is not a bi-value cell cannot "
              "contain candidates that only occurs twice in the row, column and box this cell "
              "belongs to.");
    EXPECT_EQ(HintTitle(first.found), "Bivalue Universal Grave");
}

TEST(UniversalGrave, FiresWithNothingToTakeAndTheLadderGoesOn) {
    Solver solver(GraveAt("A8", "123"));
    std::vector<std::string> log;
    solver.SetLog([&](std::string_view line) { log.emplace_back(line); });
    Ladder grave = {{&StepOfSlot(kGraveSlot), Mode::Apply}};
    EXPECT_EQ(solver.Pass(grave), PassResult::Nothing);
    EXPECT_EQ(log, std::vector<std::string>{"BUG: Removed candidates from cell A8 :"});
    EXPECT_EQ(solver.ReachedLevel(), 6);
    grave[0].mode = Mode::Hint;
    EXPECT_EQ(solver.Pass(grave), PassResult::Nothing) << "a hint must lead on";
}

// A known position where the rule is wrong: the solution has 7 at B3.
TEST(UniversalGrave, CanTakeTheRightDigit) {
    const Grid grid = GraveThatIsWrong();
    const FirstFind first = SearchFirst(StepOfSlot(kGraveSlot), grid);
    ASSERT_TRUE(first.any);
    EXPECT_EQ(LogLine(first.found), "BUG: Removed candidates from cell B3 : 5 6 7");
}

}  // namespace
}  // namespace vemo
