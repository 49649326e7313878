// The walk to the rare levels.
#include "tools/hard_walk.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "solver/fast_count.h"
#include "tools/hardness.h"

namespace vemo {
namespace {

// Few, and it runs into a dead end; many, and it takes long to get anywhere.
constexpr std::size_t kKept = 60;
constexpr std::size_t kBeginnings = 20;
constexpr int kPatience = 20'000;  // tries without a harder puzzle than the least hard one kept
constexpr int kMostOutlaws = 20;   // of one neighbourhood
constexpr int kMostExchanged = 3;  // orbits

}  // namespace

std::optional<RatedPuzzle> HardWalk::Next(LevelSet open, const std::stop_token& stop) {
    if (triesSinceHarder_ == kPatience || outlaws_ >= kMostOutlaws) {
        kept_.clear();
        tried_.clear();
        triesSinceHarder_ = 0;
        outlaws_ = 0;
    }
    const bool isBeginning =
        kept_.size() < kBeginnings || (kept_.size() < kKept && random_.Below(2) == 0);
    const PuzzleRecord puzzle =
        isBeginning ? DigPuzzle(clues_, symmetry_, random_) : NeighborOfAKeptOne();
    ++triesSinceHarder_;
    if (!tried_.insert(puzzle.clues).second || ClueCount(puzzle.clues) > clues_.most) {
        return std::nullopt;
    }
    const std::optional<Hardness> hardness = HardnessFrom(puzzle.clues, LeastHardness(), stop);
    if (!hardness) {
        return std::nullopt;
    }
    Keep({puzzle, hardness->value});
    outlaws_ += hardness->level == kOutlaw ? 1 : 0;
    if (hardness->level < kFirstWalkedLevel || !open[static_cast<std::size_t>(hardness->level)]) {
        return std::nullopt;
    }
    const auto rated = RateUpTo(puzzle, kOutlaw, stop);
    return rated && open[static_cast<std::size_t>(rated->rating)] ? rated : std::nullopt;
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

// Some clues go, others of the same solution come until it is the only one again, and those that
// are not needed any more go as well. The better of two kept ones is changed.
PuzzleRecord HardWalk::NeighborOfAKeptOne() {
    const int count = static_cast<int>(kept_.size());
    const int chosen = std::min(random_.Below(count), random_.Below(count));
    PuzzleRecord neighbor = kept_[static_cast<std::size_t>(chosen)].puzzle;
    const auto set = [&](const Orbit& orbit, const Digits& from) {
        for (int cell : orbit) {
            neighbor.clues[static_cast<std::size_t>(cell)] = from[static_cast<std::size_t>(cell)];
        }
    };
    std::array<int, kCells> order;
    std::iota(order.begin(), order.end(), 0);
    random_.Shuffle(order);
    int goingLeft = random_.Between(1, kMostExchanged);
    for (int cell : order) {
        if (neighbor.clues[static_cast<std::size_t>(cell)] != 0 && goingLeft > 0) {
            set(OrbitOf(cell, symmetry_), Digits{});
            --goingLeft;
        }
    }
    random_.Shuffle(order);
    for (int cell : order) {
        if (FastCount(neighbor.clues).IsUnique()) {
            break;
        }
        set(OrbitOf(cell, symmetry_), neighbor.solution);
    }
    neighbor.clues = DigClues(neighbor.clues, symmetry_, clues_.fewest, random_);
    return neighbor;
}

}  // namespace vemo
