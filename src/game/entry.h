// Cell entry: what a click, a key or a command does to the digits and marks of the puzzle in play.
#pragma once

#include "game/stage.h"

namespace vemo {

enum class Direction : std::uint8_t { Left, Right, Up, Down };
enum class Jump : std::uint8_t { NextCell, NextEmptyCell };

// What is refused for a reason that cannot be seen leaves a short text in the hint text box; an
// explanation on display stays above it. Clues are left alone in silence.

// A click on a cell, released over it: selects the cell; then link mode begins or ends a link at
// its mark, a brush paints it, or the mark under the pointer is assigned (left) or discarded
// (right).
void ClickBoard(Stage& stage, int cell, int digit, MouseButton button);
// A row or column label: a red one loses its red with all of its side, otherwise a brush paints.
void ClickLabel(Stage& stage, UnitKind kind, int index, MouseButton button);
void ClickColorLabel(Stage& stage, int color, MouseButton button);
void ToggleLinkMode(Stage& stage);
void ToggleDigitFilter(Stage& stage, int digit);

// The keyboard: the same as a left and a right click on a mark of the selected cell, refusals
// included; with the marks' mode "Off" digits can still be assigned, and a mark that is gone is
// given back where it is legal.
void AssignBySelection(Stage& stage, int digit);
void ToggleMarkBySelection(Stage& stage, int digit);
// One cell on, around the ends of the row or column; or to the next empty cell, row after row for
// left and right, column after column for up and down.
void MoveSelectionBy(Stage& stage, Direction direction, Jump jump);

// Carries out the hint on display as one undoable step; it charges nothing more.
void ApplyHint(Stage& stage);
bool MayUndo(const Session& session);
void UndoStep(Stage& stage);
bool MayRedo(const Session& session);
void RedoStep(Stage& stage);
// The selected cell: its digit off, or all its legal marks back. Takes a clue off while making.
bool MayResetCell(const Session& session);
void ResetCell(Stage& stage);
// The puzzle as it was loaded, as a new game.
bool MayRestart(const Session& session);
void Restart(Stage& stage);
// Shows all digits. The puzzle counts as played by the program from here on.
void ShowSolution(Stage& stage);

}  // namespace vemo
