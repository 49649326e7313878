// The simple hints of the first three levels: only a cell that can be filled, and how hard it was
// to find.
#pragma once

#include <optional>

#include "model/grid.h"
#include "solver/solver.h"

namespace vemo {

struct SimpleHint {
    CellDigit target;  // the cell that becomes a single, and its digit
    int penalty;       // the highest amount among the steps that led to it
};

// On a scratch copy: eliminations of slots 5..7 are applied until a single appears. `watcher`
// hears of each scan and answers whether to go on.
std::optional<SimpleHint> SpecialHint(const Grid& grid, const Solver::StepWatcher& watcher);

}  // namespace vemo
