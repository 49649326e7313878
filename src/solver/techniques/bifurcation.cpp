// Bifurcation: trying a candidate out, the last resort of the ladder.
#include "solver/solver.h"
#include "solver/techniques/families.h"
#include "solver/text.h"

namespace vemo {
namespace {

std::string AtCell(int digit, int cell) {
    return std::to_string(digit) + " at cell " + CellName(cell);
}

// Runs the ladder on a copy with the digit placed. Answers whether a single filled the grid.
bool BIFSolveSudoku(Solver& solver, int digit, int cell) {
    Solver trial = solver.BeginTrial(digit, cell);
    const Ladder ladder = TrialLadder();
    PassResult result = PassResult::Changed;
    while (result == PassResult::Changed) {
        result = trial.Pass(ladder);
    }
    if (result == PassResult::DeadEnd) {
        solver.Log(solver.TextsOfTrials().emptyCell);
    } else if (result == PassResult::Nothing) {
        solver.Log(solver.TextsOfTrials().stalled);
    }
    solver.KeepLeftover(trial);
    return result == PassResult::Solved;
}

}  // namespace

// A candidate of a bivalue cell that leads to the solution by the rest of the ladder alone is true.
// A trial that fails proves nothing and takes nothing away. By digit, then cell.
void Bifurcation(Solver& solver, FindSink& sink) {
    const Grid before = solver.State().Cells();
    const CellSet bivalue = solver.State().BivalueCells();
    for (int digit = 1; digit <= kDigits; ++digit) {
        for (int cell : bivalue& before.Candidates(digit)) {
            solver.Log("");
            solver.Log("Bifurcation attempt: placed candidate " + AtCell(digit, cell));
            if (BIFSolveSudoku(solver, digit, cell) &&
                !sink.Offer(Find::Placing(HintKind::Bifurcation, cell, digit))) {
                return;
            }
            if (solver.IsStopped()) {
                return;
            }
        }
    }
}

std::string BifurcationLog(const Find& find) {
    return "Bifurcation placed candidate " + AtCell(find.digits[0], find.cells[0]);
}

std::string BifurcationHint(const Find& find) {
    return "BIFURCATION: Since placing number " + AtCell(find.digits[0], find.cells[0]) +
           " leads to the solution, it must be there";
}

}  // namespace vemo
