// A measure of how hard a puzzle is, finer than its level.
#pragma once

#include <optional>

#include "model/grid.h"

namespace vemo {

// Grows long before the level does, so that a search can follow it: the marks that are left where
// ever stronger ladders stop, and how few trials lead on from there. 0 for what short chains solve,
// above 1000 for most puzzles that the ladder does not solve at all.
//
// Nothing as soon as it shows that the puzzle is less hard than `least`, where the ladder solves
// it.
std::optional<int> HardnessFrom(const Digits& clues, int least);

}  // namespace vemo
