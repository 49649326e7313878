// Levels and their puzzles: choosing, opening, saving, completing.
#pragma once

#include "game/stage.h"

namespace vemo {

// The level whose puzzles Next, Open and Scan speak of: the one chosen during play, if any.
int TargetLevel(const Session& session);
// Reads the statistics of the current level.
void PrepareLevel(Stage& stage);
// The level chosen during play, if any, becomes the current one.
void AdoptPendingLevel(Stage& stage);
// Of the current level; a failure is told.
void WriteStatistics(Stage& stage);

// These three do nothing while a puzzle is made: its clues would be lost. The two that open do
// nothing before a level is chosen.
void ChooseLevel(Stage& stage, int level);
void NextPuzzle(Stage& stage);
void OpenByNumber(Stage& stage);

// Why the other windows cannot load a puzzle now, as a sentence; empty where they can.
std::string WhyNoPuzzleCanBeLoaded(const Session& session);

// Loads puzzle `number` of a level with its clues alone; the clock starts at 0:00. False where the
// record is missing or damaged: the puzzle in play stays. A scan does not note it as the last one.
bool LoadSudoku(Stage& stage, int level, int number);
// Loads it with its saved play state, or from its clues where none belongs to it.
bool OpenLastSudoku(Stage& stage, int level, int number);
void TellNoSudokus(Stage& stage, int level);
// Offers the level's unfinished puzzle, if there is one.
void ContinueLastBusy(Stage& stage);

// No puzzle is open any more.
void CloseSudoku(Stage& stage);

enum class SaveRefusal : std::uint8_t { None, Solved, NotChanged, Autosolved, NoPuzzle };
SaveRefusal WhySaveRefuses(const Stage& stage);
// The command: refusals and failures are told.
void SaveCommand(Stage& stage);
// Stores level, statistics and play state; false, with a box, where a write failed.
bool SaveProgress(Stage& stage);

// After every step: a grid filled correctly is completed. In a scan that leaves no trace but on the
// board.
void ZetOpgelost(Stage& stage);

}  // namespace vemo
