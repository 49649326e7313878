// Autosolve solves the puzzle in play step by step in front of the player; Scan does so for a
// range of puzzles of a level. Every step is written into the solve log.
#pragma once

#include "game/stage.h"

namespace vemo {

// Both are refused without a word while a brush is armed, in link mode, and on levels with the
// simple display. Autosolve needs a puzzle in play, Scan a level and no puzzle that is being made.
bool MayAutosolve(const Stage& stage);
bool MayScan(const Stage& stage);

// Runs until the grid is full, nothing is found, a technique that halts finds something, or Stop;
// the step found by the last two is the hint on display then. The puzzle is marked as autosolved.
void AutoSolve(Stage& stage);

// Asks for a range of numbers and solves each puzzle once, without pause or sound. Stop ends all of
// it, a halt only one puzzle. Statistics and saved progress stay as they are; the last puzzle stays
// on the board.
void Scan(Stage& stage);

}  // namespace vemo
