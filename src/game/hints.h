// The hint command: the checks, the scans, and how a find is shown.
#pragma once

#include "game/stage.h"
#include "solver/solver.h"

namespace vemo {

// The whole command; nothing while the board is off.
void GiveHint(Stage& stage);
// Marks the digit of the pending target; nothing while there is none.
void ShowMe(Stage& stage);

// Below: what Autosolve shares with the hint.

// A solver of the puzzle as the player has it. Before each scan it shows its status text and gives
// the window and Stop a chance; it writes into the solve log.
Solver BoardSolver(Stage& stage);

// Marks that are hidden are shown where the player agrees to the question; false otherwise.
bool ShowHiddenMarks(Stage& stage, const char* question);

// One of the three checks has something to report: it is shown and charged, and true is answered.
enum class Reporter : std::uint8_t { Hint, Autosolve };
bool ReportEntries(Stage& stage, Reporter reporter);

// `SchrijfHint`, the colours and `ShowHint` of the solver's last find; it is the hint on display
// then.
void ShowLastFind(Stage& stage, const Solver& solver);

}  // namespace vemo
