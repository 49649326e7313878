// The times that are kept of puzzles and levels: counting a completion, showing, erasing.
#pragma once

#include <array>
#include <string>

#include "game/stage.h"

namespace vemo {

// Where a second window of the game has counted completions of the level meanwhile, its times are
// taken over, so that the next write of the statistics does not undo them.
void TakeNewerTimes(Stage& stage);

// Counts a completion of the current puzzle, in whole seconds, for puzzle and level; a new best
// time is told and the puzzle's record written.
void CountCompletion(Stage& stage, int seconds);

// Each writes its files at once; where that fails it is told, and nothing changes in memory.
void EraseSudokuTime(Stage& stage);
void EraseLevelTime(Stage& stage);
void EraseAllTime(Stage& stage);

// The five panels of the status bar.
std::array<std::string, kStatusPanels> StatusPanels(const Session& session);

}  // namespace vemo
