// Rating a puzzle, and how far it is from being harder.
#include "tools/rated_puzzle.h"

#include <limits>
#include <tuple>

#include "solver/solver.h"

namespace vemo {
namespace {

// The ladder as far as it goes without the steps of this slot and behind it.
struct Part {
    Ladder ladder;
    int weight;  // of a mark that is left where it stops
};

constexpr int kFirstChainSlot = 28;
constexpr int kFirstForcingSlot = 36;
constexpr int kTrialSlot = 39;
constexpr int kWeightOfATrial = 10;
constexpr int kWeightOfOutlaw = 1000;

Ladder LadderBefore(int slot) {
    Ladder ladder = FixedLadder();
    std::erase_if(ladder, [&](const LadderStep& at) { return at.step->slot >= slot; });
    return ladder;
}

int MarkCount(const Grid& grid) {
    int count = 0;
    for (int digit = 1; digit <= kDigits; ++digit) {
        count += grid.Candidates(digit).Count();
    }
    return count;
}

// The finds of the step at this state.
int CountFinds(Solver& solver, const Step& step) {
    class Counter final : public FindSink {
      public:
        bool Offer(const Find&) override {
            ++count;
            return true;
        }
        int count = 0;
    } counter;
    solver.Search(step, counter);
    return counter.count;
}

}  // namespace

std::optional<RatedPuzzle> RateIfAsHardAs(const PuzzleRecord& puzzle, int hardness) {
    static const Part kParts[] = {{LadderBefore(kFirstMovableSlot), 0},
                                  {LadderBefore(kFirstChainSlot), 1},
                                  {LadderBefore(kFirstForcingSlot), 2},
                                  {LadderBefore(kTrialSlot), 4}};
    static const Ladder kWhole = FixedLadder();
    RatedPuzzle rated{puzzle};
    Solver solver(Grid::FromClues(puzzle.clues));
    bool isSolved = false;
    int weightLeft = 0;
    for (const Part& part : kParts) {
        weightLeft += part.weight;
    }
    for (const auto& [ladder, weight] : kParts) {
        isSolved = isSolved || RunToTheEnd(solver, ladder);
        const int marks = isSolved ? 0 : MarkCount(solver.State().Cells());
        // There will be no more marks later on.
        if (rated.hardness + weightLeft * marks < hardness) {
            return std::nullopt;
        }
        rated.hardness += weight * marks;
        weightLeft -= weight;
    }
    if (!isSolved) {
        // The fewer trials lead to the solution, the harder.
        const int trials = CountFinds(solver, *kWhole.back().step);
        rated.hardness += trials == 0 ? kWeightOfOutlaw : -kWeightOfATrial * trials;
        isSolved = RunToTheEnd(solver, kWhole);
    }
    rated.rating = RatingOf(solver, isSolved);
    rated.hardestSlot = solver.HardestSlot();
    rated.steps = solver.StepCount();
    return rated;
}

RatedPuzzle Rate(const PuzzleRecord& puzzle) {
    return *RateIfAsHardAs(puzzle, std::numeric_limits<int>::min());
}

bool IsGentler(const RatedPuzzle& a, const RatedPuzzle& b) {
    return std::tie(a.rating, a.hardestSlot, a.steps) < std::tie(b.rating, b.hardestSlot, b.steps);
}

}  // namespace vemo
