// The level files that the game is shipped with.
#include <set>

#include <gtest/gtest.h>

#include "model/files.h"
#include "model/levels.h"
#include "platform/plain_files.h"
#include "solver/brute_force.h"
#include "solver/solver.h"

namespace vemo {
namespace {

class ShippedLevel : public testing::TestWithParam<int> {};

TEST_P(ShippedLevel, HoldsUniqueDifferentPuzzlesRatedAsFiled) {
    constexpr int kFewestPuzzles = 50;
    constexpr int kLastLevelOfSlot7 = 3;
    const int level = GetParam();
    PlainFiles files;
    RecordFiles records(files, VEMO_ASSETS);
    EXPECT_EQ(files.Size(records.PuzzlePath(level)).value_or(1) % kPuzzleRecordSize, 0u);
    const int count = records.PuzzleCount(level);
    EXPECT_GE(count, kFewestPuzzles);
    std::set<Digits> different;
    int steps = 0;
    for (int number = 1; number <= count; ++number) {
        SCOPED_TRACE(number);
        const auto puzzle = records.ReadPuzzle(level, number);
        ASSERT_TRUE(puzzle.has_value() && IsWhole(*puzzle));
        EXPECT_TRUE(puzzle->best.IsNone());
        different.insert(puzzle->clues);
        const BruteForceResult search = UniqueSud(puzzle->clues);
        EXPECT_TRUE(search.IsUnique());
        EXPECT_EQ(search.solution, puzzle->solution);
        if (level <= kLastLevelOfSlot7) {
            Solver solver(Grid::FromClues(puzzle->clues));
            EXPECT_EQ(RatingOf(solver, RunToTheEnd(solver, FixedLadder())), level);
            EXPECT_GE(solver.StepCount(), steps) << "harder than the puzzle before";
            steps = solver.StepCount();
        } else {
            EXPECT_FALSE(PreSolve(Grid::FromClues(puzzle->clues)).solved);
        }
    }
    EXPECT_EQ(different.size(), static_cast<std::size_t>(count));
}

INSTANTIATE_TEST_SUITE_P(AllLevels, ShippedLevel, testing::Range(1, kLevels + 1),
                         [](const auto& level) { return std::string(LevelName(level.param)); });

}  // namespace
}  // namespace vemo
