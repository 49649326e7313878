// The search among the neighbours of hard puzzles.
#include "tools/hard_walk.h"

#include <algorithm>
#include <numeric>

#include "model/levels.h"
#include "solver/fast_count.h"
#include "tools/hardness.h"
#include "tools/level_maker.h"

namespace vemo {
namespace {

// Few, and it runs into a dead end; many, and it takes long to get anywhere.
constexpr std::size_t kKept = 60;
constexpr std::size_t kBeginnings = 20;
constexpr int kPatience = 20'000;  // tries without a harder puzzle than the least hard one kept
constexpr int kMostOutlaws = 20;   // of one neighbourhood
constexpr int kMostExchanged = 3;  // clues

}  // namespace

std::optional<RatedPuzzle> HardWalk::Next() {
    if (triesSinceHarder_ == kPatience || outlaws_ >= kMostOutlaws) {
        kept_.clear();
        tried_.clear();
        triesSinceHarder_ = 0;
        outlaws_ = 0;
    }
    const bool isBeginning =
        kept_.size() < kBeginnings || (kept_.size() < kKept && random_.Below(2) == 0);
    const PuzzleRecord puzzle = isBeginning ? Beginning() : NeighborOfAKeptOne();
    ++triesSinceHarder_;
    if (!tried_.insert(puzzle.clues).second) {
        return std::nullopt;
    }
    const std::optional<int> hardness = HardnessFrom(puzzle.clues, LeastHardness());
    if (!hardness) {
        return std::nullopt;
    }
    Keep({puzzle, *hardness});
    const RatedPuzzle rated = Rate(puzzle);
    outlaws_ += rated.rating == kOutlaw ? 1 : 0;
    return rated;
}

int HardWalk::LeastHardness() const {
    return kept_.size() < kKept ? 0 : kept_.back().hardness;
}

void HardWalk::Keep(const Kept& kept) {
    if (kept_.size() == kKept) {
        triesSinceHarder_ = kept.hardness > kept_.back().hardness ? 0 : triesSinceHarder_;
        kept_.pop_back();
    }
    const auto place = std::ranges::find_if(
        kept_, [&](const Kept& other) { return other.hardness <= kept.hardness; });
    kept_.insert(place, kept);
}

PuzzleRecord HardWalk::Beginning() {
    PuzzleRecord puzzle;
    puzzle.solution = RandomSolution(random_);
    puzzle.clues = DigClues(puzzle.solution, Symmetry::None, 0, random_);
    return puzzle;
}

// Some clues go, others of the same solution come until it is the only one again, and those that
// are not needed any more go as well. The better of two kept ones is changed.
PuzzleRecord HardWalk::NeighborOfAKeptOne() {
    const int count = static_cast<int>(kept_.size());
    const int chosen = std::min(random_.Below(count), random_.Below(count));
    PuzzleRecord neighbor = kept_[static_cast<std::size_t>(chosen)].puzzle;
    std::array<std::size_t, kCells> order;
    std::iota(order.begin(), order.end(), std::size_t{0});
    random_.Shuffle(order);
    int goingLeft = random_.Between(1, kMostExchanged);
    for (std::size_t cell : order) {
        if (neighbor.clues[cell] != 0 && goingLeft > 0) {
            neighbor.clues[cell] = 0;
            --goingLeft;
        }
    }
    random_.Shuffle(order);
    for (std::size_t cell : order) {
        if (FastCount(neighbor.clues).IsUnique()) {
            break;
        }
        neighbor.clues[cell] = neighbor.solution[cell];
    }
    neighbor.clues = DigClues(neighbor.clues, Symmetry::None, 0, random_);
    return neighbor;
}

}  // namespace vemo
