// A search among the neighbours of hard puzzles: what is too rare to be met at random is met here.
#pragma once

#include <bitset>
#include <optional>
#include <set>
#include <stop_token>
#include <vector>

#include "tools/dig.h"
#include "tools/rated_puzzle.h"

namespace vemo {

using LevelSet = std::bitset<kLevels + 1>;

// The first level whose puzzles are walked to: at random they are too rare.
inline constexpr int kFirstWalkedLevel = 8;

class HardWalk {
  public:
    HardWalk(std::uint64_t seed, ClueRange clues, Symmetry symmetry)
        : clues_(clues), symmetry_(symmetry), random_(seed) {}

    // Tries the next puzzle; answers it where its level is one of those that are open. The hardest
    // ones so far are kept, and neighbours of them tried. Where nothing harder turns up for long,
    // and where enough of the hardest level was found in one neighbourhood, the walk begins anew
    // elsewhere. The same seed makes the same walk, whatever levels are open. A stop ends it.
    std::optional<RatedPuzzle> Next(LevelSet open, const std::stop_token& stop);

  private:
    struct Kept {
        PuzzleRecord puzzle;
        int hardness = 0;
    };

    PuzzleRecord NeighborOfAKeptOne();
    int LeastHardness() const;
    void Keep(const Kept& kept);

    ClueRange clues_;
    Symmetry symmetry_;
    Random random_;
    std::vector<Kept> kept_;  // from the hardest to the least hard
    std::set<Digits> tried_;
    int triesSinceHarder_ = 0;
    int outlaws_ = 0;
};

}  // namespace vemo
