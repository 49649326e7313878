// Small boards on which the colours are seen as they are used.
#pragma once

#include "game/screen.h"

namespace vemo {

// For a row of the colours: a brush on a whole row of cells, below the other brushes; or a hint
// with all that hints draw.
Screen ColorSample(int row);

}  // namespace vemo
