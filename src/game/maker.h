// Puzzles of the player's own: clues by clicks, keys, text and dropped files; validating, rating
// and storing them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "game/stage.h"

namespace vemo {

// Saves the game in progress where Save would, and begins with an empty grid. A game that cannot be
// saved is told of and stays. Does nothing while a puzzle is made already.
void MakeSudoku(Stage& stage);

// The events below do nothing unless a puzzle is made.

// The box's new text. It is read by position, character i for cell i; where it looks like a grid
// that this reading misses, the player is asked whether to read it as that. A refusal lasts while
// the text is changed key by key.
void ChangeSudTekst(Stage& stage, std::string text);
// Puts a text file into the box. What is no such file is told of and changes nothing.
void DropOnSudTekst(Stage& stage, const std::vector<std::filesystem::path>& paths);

// A left click places a clue at a mark, or empties the cell of its clue; any click selects.
void ClickClue(Stage& stage, int cell, int digit, MouseButton button);
// In the selected cell: the clue, in place of another one; the same clue again empties the cell.
void TypeClue(Stage& stage, int digit);
// Empties the selected cell.
void EmptyClue(Stage& stage);
// Gives the making up; clues that are there are asked about.
void CancelMaking(Stage& stage);

// What the first of the five minimal requirements that the clues fail says; empty where they pass.
std::string UnmetRestriction(const Digits& clues);
// Tells it; true where the clues pass.
bool SudMeetRestrictions(Stage& stage);

// Requirements, uniqueness and rating; then the puzzle is stored in its level and play begins.
// Refused or stopped, the clues stay, unless the player discards them.
void ValidateSudoku(Stage& stage);

}  // namespace vemo
