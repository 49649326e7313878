// How hard a puzzle is, and how far from being harder.
#include "tools/hardness.h"

#include <algorithm>
#include <initializer_list>

#include "model/levels.h"
#include "solver/solver.h"

namespace vemo {
namespace {

// A ladder, and the weight of a mark that is left where it stops.
struct Part {
    Ladder ladder;
    int weight;
};

constexpr int kShortChainSlot = 29;
constexpr int kForcingSlot = 36;
constexpr int kTrialsCounted = 5;
constexpr int kWeightOfATrial = 60;
constexpr int kWeightOfOutlaw = 1000;

// Slots 3 to 7 and these alone.
Ladder QuickLadderAnd(std::initializer_list<int> slots) {
    Ladder ladder = FixedLadder();
    std::erase_if(ladder, [&](const LadderStep& at) {
        const int slot = at.step->slot;
        return slot >= kFirstMovableSlot && std::ranges::find(slots, slot) == slots.end();
    });
    return ladder;
}

int MarkCount(const Grid& grid) {
    int count = 0;
    for (int digit = 1; digit <= kDigits; ++digit) {
        count += grid.Candidates(digit).Count();
    }
    return count;
}

// The trials that lead to the solution; of many, only the first.
int CountTrials(Solver& solver) {
    class Counter final : public FindSink {
      public:
        bool Offer(const Find&) override { return ++count < kTrialsCounted; }
        int count = 0;
    } counter;
    static const Ladder kWhole = FixedLadder();
    solver.Search(*kWhole.back().step, counter);
    return counter.count;
}

}  // namespace

std::optional<Hardness> HardnessFrom(const Digits& clues, int least, const std::stop_token& stop) {
    // The two kinds of chains do most of what the whole ladder can, in a fraction of its time.
    static const Part kParts[] = {{QuickLadder(), 0},
                                  {QuickLadderAnd({kShortChainSlot}), 1},
                                  {QuickLadderAnd({kShortChainSlot, kForcingSlot}), 2},
                                  {TrialLadder(), 4}};
    int weightLeft = 0;
    for (const Part& part : kParts) {
        weightLeft += part.weight;
    }
    Solver solver(Grid::FromClues(clues));
    solver.SetStepWatcher([&](const Step&) { return !stop.stop_requested(); });
    Hardness hardness;
    bool isSolved = false;
    for (const auto& [ladder, weight] : kParts) {
        isSolved = isSolved || RunToTheEnd(solver, ladder);
        const int marks = isSolved ? 0 : MarkCount(solver.State().Cells());
        // There will be no more marks later on.
        if (hardness.value + weightLeft * marks < least) {
            return std::nullopt;
        }
        hardness.value += weight * marks;
        weightLeft -= weight;
    }
    hardness.level = solver.ReachedLevel();
    if (!isSolved) {
        const int trials = CountTrials(solver);
        hardness.value += trials == 0 ? kWeightOfOutlaw : -kWeightOfATrial * trials;
        hardness.level = trials == 0 ? kOutlaw : kOutlaw - 1;
    }
    return stop.stop_requested() ? std::nullopt : std::optional(hardness);
}

}  // namespace vemo
