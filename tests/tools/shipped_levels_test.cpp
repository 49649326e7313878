// The level files that the game is shipped with.
#include <set>

#include <gtest/gtest.h>

#include "model/files.h"
#include "model/levels.h"
#include "platform/plain_files.h"
#include "solver/brute_force.h"
#include "tools/rated_puzzle.h"

namespace vemo {
namespace {

class ShippedLevel : public testing::TestWithParam<int> {};

TEST_P(ShippedLevel, HoldsUniqueDifferentPuzzlesRatedAsFiled) {
    const int level = GetParam();
    const int fewestPuzzles = level == kOutlaw ? 10 : 50;
    PlainFiles files;
    RecordFiles records(files, VEMO_ASSETS);
    EXPECT_EQ(files.Size(records.PuzzlePath(level)).value_or(1) % kPuzzleRecordSize, 0u);
    const int count = records.PuzzleCount(level);
    EXPECT_GE(count, fewestPuzzles);
    std::set<Digits> different;
    RatedPuzzle before;
    for (int number = 1; number <= count; ++number) {
        SCOPED_TRACE(number);
        const auto puzzle = records.ReadPuzzle(level, number);
        ASSERT_TRUE(puzzle.has_value() && IsWhole(*puzzle));
        EXPECT_TRUE(puzzle->best.IsNone());
        different.insert(puzzle->clues);
        const BruteForceResult search = UniqueSud(puzzle->clues);
        EXPECT_TRUE(search.IsUnique());
        EXPECT_EQ(search.solution, puzzle->solution);
        const RatedPuzzle rated = Rate(*puzzle);
        EXPECT_EQ(rated.rating, level);
        EXPECT_FALSE(IsGentler(rated, before)) << "from gentle to hard";
        before = rated;
    }
    EXPECT_EQ(different.size(), static_cast<std::size_t>(count));
}

INSTANTIATE_TEST_SUITE_P(AllLevels, ShippedLevel, testing::Range(1, kLevels + 1),
                         [](const auto& level) { return std::string(LevelName(level.param)); });

}  // namespace
}  // namespace vemo
