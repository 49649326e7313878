// A puzzle with what the ladder says of it.
#pragma once

#include <optional>

#include "model/records.h"

namespace vemo {

struct RatedPuzzle {
    PuzzleRecord puzzle;
    int rating = 0;       // by the fixed ladder
    int hardestSlot = 0;  // of the techniques that it needs
    int steps = 0;
    // A finer measure than the level, for a search: it grows long before the level does.
    int hardness = 0;
};

RatedPuzzle Rate(const PuzzleRecord& puzzle);

// The same for a search that throws most puzzles away: nothing as soon as it shows that the puzzle
// is less hard than this, where it is no Outlaw.
std::optional<RatedPuzzle> RateIfAsHardAs(const PuzzleRecord& puzzle, int hardness);

// From gentle to hard: by rating, then by the hardest technique, then by the number of steps.
bool IsGentler(const RatedPuzzle& a, const RatedPuzzle& b);

}  // namespace vemo
