// Rating a puzzle.
#include "tools/rated_puzzle.h"

#include <tuple>

#include "solver/solver.h"

namespace vemo {

RatedPuzzle Rate(const PuzzleRecord& puzzle) {
    static const Ladder kLadder = FixedLadder();
    Solver solver(Grid::FromClues(puzzle.clues));
    const bool isSolved = RunToTheEnd(solver, kLadder);
    return {puzzle, RatingOf(solver, isSolved), solver.HardestSlot(), solver.StepCount()};
}

bool IsGentler(const RatedPuzzle& a, const RatedPuzzle& b) {
    return std::tie(a.rating, a.hardestSlot, a.steps) < std::tie(b.rating, b.hardestSlot, b.steps);
}

}  // namespace vemo
