// A puzzle with what the ladder says of it.
#pragma once

#include "model/records.h"

namespace vemo {

struct RatedPuzzle {
    PuzzleRecord puzzle;
    int rating = 0;       // by the fixed ladder
    int hardestSlot = 0;  // of the techniques that it needs
    int steps = 0;
};

RatedPuzzle Rate(const PuzzleRecord& puzzle);

// From gentle to hard: by rating, then by the hardest technique, then by the number of steps.
bool IsGentler(const RatedPuzzle& a, const RatedPuzzle& b);

}  // namespace vemo
