// Positions as they are met in the solves of the corpus.
#pragma once

#include <algorithm>
#include <random>
#include <vector>

#include "solver/solver.h"
#include "support/plain_search.h"
#include "support/puzzles.h"

namespace vemo::test {

inline Digits SolutionOf(const Digits& puzzle) {
    PlainSearch plain(puzzle);
    plain.Count();
    Digits solution{};
    std::ranges::copy(plain.first, solution.begin());
    return solution;
}

// A quarter of the marks that are not the solution's.
inline void DiscardSomeFalseMarks(Grid& grid, const Digits& solution, std::mt19937& random) {
    for (int cell : grid.EmptyCells()) {
        const Marks right = MarkOf(solution[static_cast<std::size_t>(cell)]);
        Discard(grid, cell, static_cast<Marks>(random() & random() & kAllMarks & ~right));
    }
}

// Without end: a puzzle of the corpus after some steps, every other time with further marks gone.
class PositionsOfCorpus {
  public:
    struct Known {
        Grid grid;
        Digits solution;
    };
    Known Next() {
        const Digits& puzzle = puzzles_.at(random_() % puzzles_.size());
        Solver solver(Grid::FromClues(puzzle));
        for (std::size_t steps = random_() % 60; steps > 0; --steps) {
            solver.Pass(ladder_);
        }
        Known known{solver.State().Cells(), SolutionOf(puzzle)};
        if (random_() % 2 == 0) {
            DiscardSomeFalseMarks(known.grid, known.solution, random_);
        }
        return known;
    }

  private:
    std::vector<Digits> puzzles_ = Corpus();
    Ladder ladder_ = FixedLadder();
    std::mt19937 random_{17};
};

}  // namespace vemo::test
