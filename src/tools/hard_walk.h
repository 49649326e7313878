// A search among the neighbours of hard puzzles: what is too rare to be met at random is met here.
#pragma once

#include <optional>
#include <set>
#include <vector>

#include "tools/random.h"
#include "tools/rated_puzzle.h"

namespace vemo {

class HardWalk {
  public:
    explicit HardWalk(std::uint64_t seed) : random_(seed) {}

    // The next puzzle tried, with one solution and no clue too many; nothing where it was tried
    // before or is less hard than those kept. The hardest ones so far are kept, and neighbours of
    // them tried. Where nothing harder turns up for long, and where enough of the hardest level was
    // found in one neighbourhood, the walk begins anew elsewhere. The same seed makes the same
    // walk.
    std::optional<RatedPuzzle> Next();

  private:
    struct Kept {
        PuzzleRecord puzzle;
        int hardness = 0;
    };

    PuzzleRecord Beginning();
    PuzzleRecord NeighborOfAKeptOne();
    int LeastHardness() const;
    void Keep(const Kept& kept);

    Random random_;
    std::vector<Kept> kept_;  // from the hardest to the least hard
    std::set<Digits> tried_;
    int triesSinceHarder_ = 0;
    int outlaws_ = 0;
};

}  // namespace vemo
