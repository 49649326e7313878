// The simple hints of the first three levels.
#include "game/simple_hints.h"

#include <algorithm>

namespace vemo {

std::optional<SimpleHint> SpecialHint(const Grid& grid, const Solver::StepWatcher& watcher) {
    Solver scratch(grid);
    scratch.SetStepWatcher(watcher);
    const Ladder ladder = QuickLadder();
    int penalty = 0;
    for (;;) {
        const PassResult result = scratch.Pass(ladder);
        if (result != PassResult::Changed && result != PassResult::Solved) {
            return std::nullopt;
        }
        penalty = std::max(penalty, scratch.LastStep()->penalty);
        if (!scratch.LastFind().placements.Empty()) {
            return SimpleHint{scratch.LastFind().placements[0], penalty};
        }
    }
}

}  // namespace vemo
