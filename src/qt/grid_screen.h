// A sudoku on a small board of its own, and in words.
#pragma once

#include <QString>

#include "game/screen.h"
#include "model/grid.h"

namespace vemo {

Screen ScreenOf(const Digits& clues);
// Its givens as clues, further digits as the player's.
Screen ScreenOf(const Grid& grid);

// For those who hear the board instead of seeing it: "row A: 4 empty 7 ...; row B: ...".
QString RowsOf(const Digits& digits);

}  // namespace vemo
