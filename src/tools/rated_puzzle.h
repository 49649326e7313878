// A puzzle with what the ladder says of it.
#pragma once

#include <functional>
#include <optional>
#include <stop_token>

#include "model/levels.h"
#include "model/records.h"
#include "solver/solver.h"

namespace vemo {

struct RatedPuzzle {
    PuzzleRecord puzzle;
    int rating = 0;       // by the fixed ladder; 0: not rated
    int hardestSlot = 0;  // of the techniques that it needs
    int steps = 0;
};

RatedPuzzle Rate(const PuzzleRecord& puzzle);

// By any ladder. Called before each search of a technique with the level reached so far.
using RatingWatcher = std::function<void(int reachedLevel, const Step& step)>;
// Nothing where the stop was asked for.
std::optional<RatedPuzzle> RateBy(const Ladder& ladder, const PuzzleRecord& puzzle,
                                  const std::stop_token& stop, const RatingWatcher& watcher = {});

// Nothing where the puzzle is harder than the level, which shows sooner than its rating, or where
// the stop was asked for.
std::optional<RatedPuzzle> RateUpTo(const PuzzleRecord& puzzle, int level,
                                    const std::stop_token& stop = {});

// Whether the ladder that the puzzle was rated by, up to its hardest technique, does not solve it
// without this one. False where that ladder leads to no solution, so that nothing is to be lost by
// leaving one out, and where the stop was asked for.
bool NeedsTechnique(const RatedPuzzle& rated, int slot, Ladder ladder,
                    const std::stop_token& stop = {});

// From gentle to hard: by rating, then by the hardest technique, then by the number of steps.
bool IsGentler(const RatedPuzzle& a, const RatedPuzzle& b);

}  // namespace vemo
