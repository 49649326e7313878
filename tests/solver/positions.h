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

// A quarter of the marks, right ones too: there may be no solution left.
inline void DiscardSomeMarks(Grid& grid, std::mt19937& random) {
    for (int cell : grid.EmptyCells()) {
        Discard(grid, cell, static_cast<Marks>(random() & random() & kAllMarks));
    }
}

// A puzzle of the corpus with all states on the way that the ladder takes.
struct Solve {
    std::vector<Grid> states;
    Digits solution;
};
inline const std::vector<Solve>& SolvesOfCorpus() {
    static const std::vector<Solve> kSolves = [] {
        std::vector<Solve> solves;
        const Ladder ladder = FixedLadder();
        for (const Digits& puzzle : Corpus()) {
            Solve solve{{}, SolutionOf(puzzle)};
            Solver solver(Grid::FromClues(puzzle));
            RunToTheEnd(solver, ladder, [&] {
                solve.states.push_back(solver.State().Cells());
                return true;
            });
            solve.states.push_back(solver.State().Cells());
            solves.push_back(std::move(solve));
        }
        return solves;
    }();
    return kSolves;
}

// Without end: a puzzle of the corpus after some steps, every other time with further marks gone.
class PositionsOfCorpus {
  public:
    struct Known {
        Grid grid;
        Digits solution;
    };
    Known Next() {
        const auto& [states, solution] = solves_.at(random_() % solves_.size());
        Known known{states[std::min<std::size_t>(random_() % 60, states.size() - 1)], solution};
        if (random_() % 2 == 0) {
            DiscardSomeFalseMarks(known.grid, known.solution, random_);
        }
        return known;
    }

  private:
    const std::vector<Solve>& solves_ = SolvesOfCorpus();
    std::mt19937 random_{17};
};

// Without end: a full grid with some cells open, where any share of the wrong candidates is left
// and any part of the filled cells are clues. No puzzle may lead there, but every shape occurs.
class WildPositions {
  public:
    Grid Next() {
        const Digits solution = RandomSymmetry(random_).Of(PlainSolution());
        const unsigned filled = 5 + random_() % 60;  // in a hundred
        Digits clues{};
        Digits placed{};
        for (std::size_t cell = 0; cell < kCells; ++cell) {
            if (random_() % 100 < filled) {
                (random_() % 2 == 0 ? clues : placed)[cell] = solution[cell];
            }
        }
        Grid grid = Grid::FromClues(clues);
        for (std::size_t cell = 0; cell < kCells; ++cell) {
            if (placed[cell] != 0) {
                grid.Zet(placed[cell], static_cast<int>(cell));
            }
        }
        const unsigned gone = 10 + random_() % 60;  // in a hundred
        for (int cell : grid.EmptyCells()) {
            for (int digit = 1; digit <= kDigits; ++digit) {
                if (solution[static_cast<std::size_t>(cell)] != digit && random_() % 100 < gone) {
                    Discard(grid, cell, MarkOf(digit));
                }
            }
        }
        return grid;
    }

  private:
    std::mt19937 random_{23};
};

// Of both in turn.
class MixedPositions {
  public:
    Grid Next() { return ++count_ % 2 == 1 ? corpus_.Next().grid : wild_.Next(); }

  private:
    PositionsOfCorpus corpus_;
    WildPositions wild_;
    int count_ = 0;
};

// Few candidates or none in one cell of so many, a lot in the others.
inline Grid GridWithoutSolution(std::mt19937& random, unsigned oneIn) {
    Grid grid;
    for (int cell = 0; cell < kCells; ++cell) {
        const auto one = random();
        const auto other = random();
        const auto gone = random() % oneIn == 0 ? one | other : one & other;
        Discard(grid, cell, static_cast<Marks>(gone & kAllMarks));
    }
    return grid;
}

}  // namespace vemo::test
