// Random numbers, and the puzzles dug out with them.
#include "tools/dig.h"

#include <algorithm>
#include <set>
#include <utility>

#include <gtest/gtest.h>

#include "solver/brute_force.h"

namespace vemo {
namespace {

TEST(Random, TheNumbersOfASeedAreTheSameOnEveryMachine) {
    // The sequence that is published for checking implementations of SplitMix64.
    Random random(1234567);
    for (std::uint64_t expected :
         {6457827717110365317u, 3203168211198807973u, 9817491932198370423u, 4593380528125082431u}) {
        EXPECT_EQ(random.Next(), expected);
    }
    std::set<int> seen;
    for (int k = 0; k < 1000; ++k) {
        seen.insert(random.Between(3, 9));
    }
    EXPECT_EQ(seen, (std::set<int>{3, 4, 5, 6, 7, 8, 9}));
}

class EachSymmetry : public testing::TestWithParam<int> {};

TEST_P(EachSymmetry, IsKeptByADigThatStopsAtTheWantedNumberOrWhenEachOrbitIsNeeded) {
    const SymmetryRow& row = Symmetries()[static_cast<std::size_t>(GetParam())];
    const Symmetry symmetry = row.symmetry;
    EXPECT_EQ(SymmetryNamed(row.word), symmetry);
    Random random(7);
    const PuzzleRecord friendly = DigPuzzle({36, 39}, symmetry, random);
    ASSERT_FALSE(HasClash(friendly.solution));
    EXPECT_EQ(std::ranges::count(friendly.solution, 0), 0);
    EXPECT_TRUE(HasSymmetry(friendly.clues, symmetry));
    // An orbit has up to four cells.
    EXPECT_TRUE((ClueRange{36, 42}).Holds(ClueCount(friendly.clues)));
    if (symmetry != Symmetry::None) {
        EXPECT_EQ(SymmetryOf(friendly.clues), symmetry);
        EXPECT_FALSE(HasSymmetry(DigPuzzle({}, Symmetry::None, random).clues, symmetry));
    }

    const PuzzleRecord dug = DigPuzzle({}, symmetry, random);
    EXPECT_EQ(UniqueSud(dug.clues).solution, dug.solution);
    bool isMinimal = true;
    for (int cell = 0; cell < kCells; ++cell) {
        Digits fewer = dug.clues;
        if (std::exchange(fewer[static_cast<std::size_t>(cell)], std::uint8_t{0}) == 0) {
            continue;
        }
        isMinimal = isMinimal && !UniqueSud(fewer).IsUnique();
        for (int other : OrbitOf(cell, symmetry)) {
            fewer[static_cast<std::size_t>(other)] = 0;
        }
        EXPECT_FALSE(UniqueSud(fewer).IsUnique()) << cell;
    }
    EXPECT_EQ(IsMinimal(dug.clues), isMinimal);
    EXPECT_TRUE(isMinimal || symmetry != Symmetry::None);
}

INSTANTIATE_TEST_SUITE_P(All, EachSymmetry, testing::Range(0, 7));

}  // namespace
}  // namespace vemo
