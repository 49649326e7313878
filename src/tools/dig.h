// Random puzzles with exactly one solution: full grids, and clues taken out of them.
#pragma once

#include <compare>

#include "model/records.h"
#include "tools/random.h"
#include "tools/symmetry.h"

namespace vemo {

struct ClueRange {
    int fewest = 0;
    int most = kCells;

    bool Holds(int clues) const { return clues >= fewest && clues <= most; }
    auto operator<=>(const ClueRange&) const = default;
};

inline constexpr int kFewestClues = 17;  // no puzzle with one solution has fewer

int ClueCount(const Digits& clues);

// A full grid without a clash.
Digits RandomSolution(Random& random);

// Takes clues out of a full grid, or out of a puzzle, in whole orbits, as long as its solution
// stays the only one and at least `fewest` clues stay. What is left has more clues where no other
// can go.
Digits DigClues(const Digits& from, Symmetry symmetry, int fewest, Random& random);

// A puzzle dug out of a random grid to a number of clues in the range, or as far as that goes; as
// far as it goes where the range begins with 17 or fewer.
PuzzleRecord DigPuzzle(ClueRange range, Symmetry symmetry, Random& random);

// Whether every clue is needed for the solution to be the only one.
bool IsMinimal(const Digits& clues);

}  // namespace vemo
