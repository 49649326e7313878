// What every step must do on every grid, also on those that no puzzle leads to.
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

TEST(AnyGrid, WildOrContradictoryHasProperFindsOnly) {
    std::mt19937 random(31);
    WildPositions wild;
    const std::vector<Step> steps = StepsThatSearch();
    std::vector<std::size_t> finds(steps.size());
    for (int made = 0; made < 15; ++made) {
        Grid crossed = wild.Next();
        DiscardSomeMarks(crossed, random);
        for (const Grid& grid : {wild.Next(), crossed, GridWithoutSolution(random, 1),
                                 GridWithoutSolution(random, 3)}) {
            for (std::size_t at = 0; at < steps.size(); ++at) {
                SomeFinds some;
                Solver(grid).Search(steps[at], some);
                for (const Find& find : some.finds) {
                    SCOPED_TRACE(LogLine(find));
                    ExpectProper(find, grid);
                    ASSERT_FALSE(HasFailure());
                }
                finds[at] += some.finds.size();
            }
        }
    }
    for (std::size_t at = 0; at < steps.size(); ++at) {
        // The grave asks for two candidates in nearly every cell, which does not come up.
        EXPECT_TRUE(finds[at] > 0 || steps[at].kinds[0] == HintKind::BivalueGrave) << at;
    }
}

}  // namespace
}  // namespace vemo
