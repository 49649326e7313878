// What every step must do on every grid, also on those that no puzzle leads to.
#include <algorithm>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "solver/patterns.h"
#include "solver/positions.h"
#include "solver/text.h"

namespace vemo {
namespace {

using namespace test;

// All steps but the trials, which take the others' finds.
std::vector<Step> StepsThatSearch() {
    std::vector<Step> steps(Steps().begin(), Steps().end());
    std::erase_if(steps, [](const Step& step) { return step.trial != nullptr; });
    const auto outside = StepsOutsideTheLadder();
    steps.insert(steps.end(), outside.begin(), outside.end());
    return steps;
}

// Ends the search when it holds so many: a grid full of candidates has a hundred thousand.
class SomeFinds final : public FindSink {
  public:
    bool Offer(const Find& find) override {
        finds.push_back(find);
        return finds.size() < kMost;
    }
    std::vector<Find> finds;

  private:
    static constexpr std::size_t kMost = 100;
};

// Its finds take what is there, and can be told.
void ExpectProperFinds(const Step& step, const Grid& grid) {
    SomeFinds some;
    Solver(grid).Search(step, some);
    const auto isThere = [&](CellDigit at) { return grid.KnopAan(at.cell, at.digit); };
    for (const Find& find : some.finds) {
        ASSERT_TRUE(find.ChangesSomething());
        ASSERT_TRUE(std::ranges::all_of(find.placements, isThere)) << LogLine(find);
        ASSERT_TRUE(std::ranges::all_of(find.removals, isThere)) << LogLine(find);
        ASSERT_FALSE(LogLine(find).empty() || HintText(find).empty());
    }
}

TEST(AnyGrid, WildOrContradictoryHasProperFindsOnly) {
    std::mt19937 random(31);
    WildPositions wild;
    const std::vector<Step> steps = StepsThatSearch();
    for (int made = 0; made < 15; ++made) {
        Grid crossed = wild.Next();  // right candidates are gone, too
        for (int cell : crossed.EmptyCells()) {
            Discard(crossed, cell, static_cast<Marks>(random() & random() & kAllMarks));
        }
        for (const Grid& grid : {wild.Next(), crossed, GridWithoutSolution(random, 1),
                                 GridWithoutSolution(random, 3)}) {
            for (const Step& step : steps) {
                ASSERT_NO_FATAL_FAILURE(ExpectProperFinds(step, grid));
            }
        }
    }
}

}  // namespace
}  // namespace vemo
