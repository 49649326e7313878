// Which pencil marks are drawn in which display mode. A mode never changes a candidate.
#pragma once

#include "game/stage.h"

namespace vemo {

// The marks of a cell that are drawn now: all candidates, none while the mode is "Off", and in the
// simple display only the one under the pointer and those that a hint speaks of.
Marks ShownMarks(const Stage& stage, int cell);

// May a mark be clicked at all, and may it be discarded by hand?
bool AreMarksUsable(const Stage& stage);
bool CanDiscardMarks(const Stage& stage);

}  // namespace vemo
