// The hint command: the checks, the scans, and how a find is shown.
#pragma once

#include "game/stage.h"

namespace vemo {

// The whole command.
void GiveHint(Stage& stage);
// Marks the digit of the pending target; nothing while there is none.
void ShowMe(Stage& stage);
// Carries out the hint on display as one undoable step; it charges nothing more.
void ApplyHint(Stage& stage);

// Any change of the grid: hint colours, the hint on display and a pending Show Me go.
void DropHint(Stage& stage);

// One of the three checks has something to report: it is shown and charged, and true is answered.
bool ReportEntries(Stage& stage);

}  // namespace vemo
