// The clock of the puzzle in play: when it runs, who stops it, what is charged to it. It runs while
// the timer is on, a puzzle is played, and neither the player nor a minimised window stops it.
#pragma once

#include "game/stage.h"

namespace vemo {

// For a puzzle that begins or goes on after `elapsed` seconds; 0:00 while the timer is off.
void StartClock(Stage& stage, int elapsed);
// After anything that may start or stop the clock: counts up to now, then lets it run or stand.
void UpdateClock(Stage& stage);

// Charges the clock; nothing while the timer is switched off.
void Penalty(Stage& stage, int seconds);

// The player stops the clock, which covers the board, or lets it go on.
void TogglePause(Stage& stage);
void SetMinimized(Stage& stage, bool isMinimized);
// The option "Timer" over.
void ToggleTimer(Stage& stage);

}  // namespace vemo
