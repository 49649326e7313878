// Rating a puzzle.
#include "tools/rated_puzzle.h"

#include <array>
#include <tuple>

#include "solver/solver.h"

namespace vemo {
namespace {

// The levels of the ladder rise from step to step, so that a puzzle of a level is solved by the
// steps up to that level as the whole ladder solves it.
Ladder LadderUpTo(int level) {
    Ladder ladder = FixedLadder();
    std::erase_if(ladder, [&](const LadderStep& at) { return at.step->level > level; });
    return ladder;
}

std::array<Ladder, kLevels + 1> LaddersByLevel() {
    std::array<Ladder, kLevels + 1> ladders;
    for (int level = 1; level <= kLevels; ++level) {
        ladders[static_cast<std::size_t>(level)] = LadderUpTo(level);
    }
    return ladders;
}

void Heed(const std::stop_token& stop, Solver& solver) {
    if (stop.stop_possible()) {
        solver.SetStepWatcher([&](const Step&) { return !stop.stop_requested(); });
    }
}

}  // namespace

RatedPuzzle Rate(const PuzzleRecord& puzzle) {
    return *RateUpTo(puzzle, kOutlaw);
}

std::optional<RatedPuzzle> RateUpTo(const PuzzleRecord& puzzle, int level,
                                    const std::stop_token& stop) {
    static const std::array<Ladder, kLevels + 1> kLadders = LaddersByLevel();
    Solver solver(Grid::FromClues(puzzle.clues));
    Heed(stop, solver);
    const bool isSolved = RunToTheEnd(solver, kLadders[static_cast<std::size_t>(level)]);
    if (solver.IsStopped() || (!isSolved && level < kOutlaw)) {
        return std::nullopt;
    }
    return RatedPuzzle{puzzle, RatingOf(solver, isSolved), solver.HardestSlot(),
                       solver.StepCount()};
}

std::optional<RatedPuzzle> RateBy(const Ladder& ladder, const PuzzleRecord& puzzle,
                                  const std::stop_token& stop, const RatingWatcher& watcher) {
    Solver solver(Grid::FromClues(puzzle.clues));
    solver.SetStepWatcher([&](const Step& step) {
        if (watcher) {
            watcher(solver.ReachedLevel(), step);
        }
        return !stop.stop_requested();
    });
    const bool isSolved = RunToTheEnd(solver, ladder);
    if (solver.IsStopped()) {
        return std::nullopt;
    }
    return RatedPuzzle{puzzle, RatingOf(solver, isSolved), solver.HardestSlot(),
                       solver.StepCount()};
}

bool NeedsTechnique(const RatedPuzzle& rated, int slot, Ladder ladder,
                    const std::stop_token& stop) {
    if (rated.rating == kOutlaw || slot > rated.hardestSlot) {
        return false;
    }
    std::erase_if(ladder, [&](const LadderStep& at) {
        return at.step->slot == slot || at.step->slot > rated.hardestSlot;
    });
    Solver solver(Grid::FromClues(rated.puzzle.clues));
    Heed(stop, solver);
    return !RunToTheEnd(solver, ladder) && !solver.IsStopped();
}

bool IsGentler(const RatedPuzzle& a, const RatedPuzzle& b) {
    return std::tie(a.rating, a.hardestSlot, a.steps) < std::tie(b.rating, b.hardestSlot, b.steps);
}

}  // namespace vemo
