// No step contradicts the solution, whichever of its finds is taken.
#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "solver/patterns.h"
#include "solver/positions.h"
#include "solver/text.h"

namespace vemo {
namespace {

using namespace test;

void ExpectSound(const Grid& grid, const Digits& solution) {
    const auto isTrue = [&](CellDigit at) { return solution[at.cell] == at.digit; };
    for (const Step& step : Steps()) {
        // The universal grave's rule can be wrong and is counted elsewhere; trials cost too much
        // here.
        if (step.kinds[0] == HintKind::BivalueGrave || step.trial != nullptr) {
            continue;
        }
        for (const Find& find : SearchAll(step, grid)) {
            SCOPED_TRACE(LogLine(find));
            ExpectProper(find, grid);
            EXPECT_TRUE(std::ranges::all_of(find.placements, isTrue));
            EXPECT_TRUE(std::ranges::none_of(find.removals, isTrue));
        }
    }
}

// A state of each puzzle, half of them with further marks gone; the soundness run judges more.
TEST(Corpus, EveryFindOfEveryStepIsSound) {
    std::mt19937 random(11);
    for (const auto& [states, solution] : SolvesOfCorpus()) {
        Grid grid = states[random() % states.size()];
        if (random() % 2 == 0) {
            DiscardSomeFalseMarks(grid, solution, random);
        }
        ExpectSound(grid, solution);
        ASSERT_FALSE(testing::Test::HasFailure());
    }
}

}  // namespace
}  // namespace vemo
