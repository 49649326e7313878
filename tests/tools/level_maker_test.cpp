// The maker of random puzzles.
#include "tools/level_maker.h"

#include <algorithm>
#include <set>
#include <utility>

#include <gtest/gtest.h>

#include "solver/brute_force.h"
#include "solver/solver.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

TEST(Random, TheNumbersOfASeedAreTheSameOnEveryMachine) {
    // The sequence that is published for checking implementations of SplitMix64.
    Random random(1234567);
    for (std::uint64_t expected :
         {6457827717110365317u, 3203168211198807973u, 9817491932198370423u, 4593380528125082431u}) {
        EXPECT_EQ(random.Next(), expected);
    }
}

TEST(Random, EveryNumberWithinTheBoundsOccurs) {
    Random random(1);
    std::set<int> seen;
    for (int k = 0; k < 1000; ++k) {
        seen.insert(random.Between(3, 9));
    }
    EXPECT_EQ(seen, (std::set<int>{3, 4, 5, 6, 7, 8, 9}));
}

TEST(LevelMaker, DiggingStopsAtTheWantedNumberOfCluesOrWhenEachIsNeeded) {
    Random random(7);
    const Digits solution = RandomSolution(random);
    ASSERT_FALSE(HasClash(solution));
    EXPECT_EQ(std::ranges::count(solution, 0), 0);

    const Digits friendly = DigClues(solution, Symmetry::HalfTurn, 36, random);
    EXPECT_EQ(std::ranges::count(friendly, 0), 81 - 36);
    for (std::size_t cell = 0; cell < 81; ++cell) {
        EXPECT_EQ(friendly[cell] == 0, friendly[80 - cell] == 0);
    }

    Digits minimal = DigClues(solution, Symmetry::None, 0, random);
    EXPECT_EQ(UniqueSud(minimal).solution, solution);
    for (std::uint8_t& clue : minimal) {
        const std::uint8_t digit = std::exchange(clue, std::uint8_t{0});
        EXPECT_TRUE(digit == 0 || UniqueSud(minimal).solutionCount == 2);
        clue = digit;
    }
}

TEST(LevelMaker, ASeedMakesTheSameDifferentUniquePuzzlesRatedAsFiled) {
    constexpr int kCount = 2;
    const LevelPuzzles levels = MakeLevels({5, kCount, 50});
    EXPECT_EQ(levels, MakeLevels({5, kCount, 50}));
    EXPECT_NE(levels, MakeLevels({6, kCount, 50}));
    std::set<Digits> different;
    std::size_t made = 0;
    for (int level = 1; level <= kLevels; ++level) {
        const auto& puzzles = levels[static_cast<std::size_t>(level) - 1];
        EXPECT_LE(puzzles.size(), static_cast<std::size_t>(kCount)) << level;
        // Those above may be too rare for so few tries.
        EXPECT_TRUE(level > 7 || puzzles.size() == static_cast<std::size_t>(kCount)) << level;
        made += puzzles.size();
        for (const PuzzleRecord& puzzle : puzzles) {
            different.insert(puzzle.clues);
            EXPECT_EQ(UniqueSud(puzzle.clues).solution, puzzle.solution);
            Solver solver(Grid::FromClues(puzzle.clues));
            EXPECT_EQ(RatingOf(solver, RunToTheEnd(solver, FixedLadder())), level);
        }
    }
    EXPECT_EQ(different.size(), made);
}

TEST(LevelMaker, ACorpusHoldsEasyAndHardPuzzlesInTurn) {
    const std::vector<Digits> corpus = MakeCorpus(5, 8);
    ASSERT_EQ(corpus.size(), 8u);
    EXPECT_EQ(std::set<Digits>(corpus.begin(), corpus.end()).size(), 8u);
    for (std::size_t at = 0; at < corpus.size(); ++at) {
        EXPECT_TRUE(UniqueSud(corpus[at]).IsUnique());
        EXPECT_EQ(PreSolve(Grid::FromClues(corpus[at])).solved, at % 4 != 3) << at;
    }
}

}  // namespace
}  // namespace vemo
