// A measure of how hard a puzzle is, finer than its level.
#pragma once

#include <optional>
#include <stop_token>

#include "model/grid.h"

namespace vemo {

struct Hardness {
    // Grows long before the level does, so that a search can follow it: the marks that are left
    // where ever stronger ladders stop, and how few trials lead on from there. 0 for what short
    // chains solve.
    int value = 0;
    // The highest level that the puzzle can have. Below it lies what a whole ladder finds in
    // another order, now and then.
    int level = 0;
};

// Nothing as soon as it shows that the value would be less than `least`, where the ladder solves
// the puzzle; and where the stop was asked for.
std::optional<Hardness> HardnessFrom(const Digits& clues, int least, const std::stop_token& stop);

}  // namespace vemo
