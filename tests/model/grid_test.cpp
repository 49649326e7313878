// The grid operations.
#include "model/grid.h"

#include <gtest/gtest.h>

#include "support/puzzles.h"

namespace vemo {
namespace {

using test::CellNamed;

// Both views of the candidates say the same, and a filled cell has none.
void ExpectWhole(const Grid& grid) {
    for (int cell = 0; cell < kCells; ++cell) {
        EXPECT_EQ(grid.EmptyCells().Has(cell), grid.Digit(cell) == 0);
        EXPECT_TRUE(grid.Digit(cell) == 0 || grid.MarksAt(cell) == 0);
        for (int digit = 1; digit <= kDigits; ++digit) {
            EXPECT_EQ(grid.Candidates(digit).Has(cell), grid.KnopAan(cell, digit));
        }
    }
}

TEST(Grid, ZetTakesTheDigitFromThePeersAndAllMarksFromTheCell) {
    Grid grid;
    ExpectWhole(grid);
    const int cell = CellNamed("E5");
    grid.Zet(7, cell);
    EXPECT_EQ(grid.Digit(cell), 7);
    EXPECT_EQ(grid.EmptyCount(), 80);
    for (int other = 0; other < kCells; ++other) {
        const Marks expected = other == cell            ? Marks{0}
                               : Peers(cell).Has(other) ? Marks{1022 - 128}
                                                        : Marks{1022};
        EXPECT_EQ(grid.MarksAt(other), expected) << CellName(other);
        EXPECT_EQ(grid.IsLegal(other, 7), !Peers(cell).Has(other));
    }
    ExpectWhole(grid);
}

TEST(Grid, CluesAreGivensAndAPlacedDigitIsNone) {
    Grid grid = Grid::FromClues(test::ParseDigits("1........2"));
    grid.Zet(3, 80);
    EXPECT_EQ(grid.Givens(), test::CellsNamed("A1 B1"));
    EXPECT_FALSE(grid.IsGiven(80));
    EXPECT_FALSE(grid.IsLegal(CellNamed("A9"), 1));
    grid.TakeOff(CellNamed("A1"));
    EXPECT_TRUE(grid.IsLegal(CellNamed("A9"), 1));
}

TEST(Grid, MarksGoAndComeBackButNotToAFilledCell) {
    Grid grid;
    const int cell = CellNamed("J9");
    grid.VerwijderKnop(cell, 3);
    EXPECT_FALSE(grid.KnopAan(cell, 3));
    ExpectWhole(grid);
    grid.GiveBack(cell, 3);
    EXPECT_TRUE(grid.KnopAan(cell, 3));
    grid.Zet(8, cell);
    grid.GiveBack(cell, 3);
    EXPECT_EQ(grid.MarksAt(cell), 0);
    grid.TakeOff(cell);
    EXPECT_EQ(grid.MarksAt(cell), 0);
    EXPECT_TRUE(grid.EmptyCell()) << "an empty cell without a candidate is a dead end";
    grid.GiveBack(cell, 9);
    EXPECT_EQ(grid.MarksAt(cell), 512);
    EXPECT_FALSE(grid.EmptyCell());
    ExpectWhole(grid);
    grid.WisKnop(0);
    EXPECT_TRUE(grid.EmptyCell());
    ExpectWhole(grid);
    EXPECT_FALSE(Grid::FromClues(test::PlainSolution()).EmptyCell());
}

TEST(Grid, ANotedRemovalIsAnsweredOnceAndLeavesTheCandidate) {
    Grid grid;
    grid.MarkRemoved(12, 5);
    EXPECT_FALSE(grid.CandidateRemoved(6, 12));
    EXPECT_TRUE(grid.CandidateRemoved(5, 12));
    EXPECT_FALSE(grid.CandidateRemoved(5, 12));
    EXPECT_TRUE(grid.KnopAan(12, 5));
    grid.MarkRemoved(12, 5);
    grid.ClearRemovedMarks();
    EXPECT_FALSE(grid.CandidateRemoved(5, 12));
}

TEST(Grid, TwoEqualDigitsClashInARowAColumnAndABox) {
    for (const char* other : {"E9", "A5", "F6"}) {
        Digits digits{};
        digits[static_cast<std::size_t>(CellNamed("E5"))] = 6;
        digits[static_cast<std::size_t>(CellNamed(other))] = 6;
        EXPECT_TRUE(HasClash(digits)) << other;
    }
    EXPECT_FALSE(HasClash(Digits{}));
    EXPECT_FALSE(HasClash(test::PlainSolution()));
}

}  // namespace
}  // namespace vemo
