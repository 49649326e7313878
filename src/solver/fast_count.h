// Counting solutions in bulk: for making, importing and checking many puzzles at a time.
#pragma once

#include "model/grid.h"

namespace vemo {

struct SolutionCount {
    int count = 0;   // never more than the limit
    Digits first{};  // the first solution found, all 0 where there is none

    bool IsUnique() const { return count == 1; }
};

// Enough to tell none, one and more apart.
inline constexpr int kUniqueLimit = 2;

// How many solutions the clues have, counted up to the limit, which is 1 or more. Clues that clash
// have none. One count is proof of uniqueness only under a limit of 2 or more. Answers like
// UniqueSud, many times as fast and without a way to stop it: microseconds for a puzzle, but a grid
// of a dozen clues may now and then take a tenth of a second. Which of several solutions comes
// first is the same on every machine.
SolutionCount FastCount(const Digits& clues, int limit = kUniqueLimit);

// Does a puzzle with one solution need the clue in this cell: would it have several without it?
// Cheaper than counting again, for it looks for one solution with another digit there and no more.
// The cell holds a clue; a puzzle with none or several solutions has no meaningful answer.
bool NeedsClue(const Digits& clues, int cell);

}  // namespace vemo
