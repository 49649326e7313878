// A puzzle with what the ladder says of it.
#pragma once

#include <optional>
#include <stop_token>

#include "model/levels.h"
#include "model/records.h"

namespace vemo {

struct RatedPuzzle {
    PuzzleRecord puzzle;
    int rating = 0;       // by the fixed ladder; 0: not rated
    int hardestSlot = 0;  // of the techniques that it needs
    int steps = 0;
};

RatedPuzzle Rate(const PuzzleRecord& puzzle);

// Nothing where the puzzle is harder than the level, which shows sooner than its rating, or where
// the stop was asked for.
std::optional<RatedPuzzle> RateUpTo(const PuzzleRecord& puzzle, int level,
                                    const std::stop_token& stop = {});

// Whether the techniques up to the puzzle's hardest do not solve it without this one.
bool NeedsTechnique(const RatedPuzzle& rated, int slot);

// From gentle to hard: by rating, then by the hardest technique, then by the number of steps.
bool IsGentler(const RatedPuzzle& a, const RatedPuzzle& b);

}  // namespace vemo
