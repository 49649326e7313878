// The hint command: the checks, the scans, and how a find is shown.
#pragma once

#include "game/stage.h"
#include "solver/solver.h"

namespace vemo {

// The whole command.
void GiveHint(Stage& stage);
// Marks the digit of the pending target; nothing while there is none.
void ShowMe(Stage& stage);
// Carries out the hint on display as one undoable step; it charges nothing more.
void ApplyHint(Stage& stage);

// Any change of the grid: hint colours, the hint on display and a pending Show Me go.
void DropHint(Stage& stage);

// Below: what Autosolve shares with the hint.

// While one lives, the board and the commands are off; Stop and the clock stay alive.
class BusyScan {
  public:
    explicit BusyScan(Stage& stage) : session_(stage.session) {
        session_.isFunctionBusy = true;
        session_.isStopRequested = false;
    }
    ~BusyScan() { session_.isFunctionBusy = false; }
    BusyScan(const BusyScan&) = delete;
    BusyScan& operator=(const BusyScan&) = delete;

  private:
    Session& session_;
};

// Before each scan: its status text, and a chance for the window and for Stop.
Solver::StepWatcher ScanWatcher(Stage& stage);

// Marks that are hidden are shown where the player agrees to the question; false otherwise.
bool ShowHiddenMarks(Stage& stage, const char* question);

// One of the three checks has something to report: it is shown and charged, and true is answered.
enum class Reporter : std::uint8_t { Hint, Autosolve };
bool ReportEntries(Stage& stage, Reporter reporter);

// `SchrijfHint`, the colours and `ShowHint` of a find; it is the hint on display then.
void ShowFind(Stage& stage, const Find& find);

}  // namespace vemo
