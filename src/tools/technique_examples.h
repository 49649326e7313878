// Positions that show one technique each, with what the solver says of it: for the tests and for
// the pages of the help.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "model/grid.h"
#include "solver/catalogue.h"

namespace vemo {

struct TechniqueExample {
    std::string technique;         // "Nice Loop 6 - Strong"
    int slot = kNoSlot;            // kNoSlot: a search outside the ladder
    bool isFirstInLadder = false;  // no earlier step finds anything
    Grid grid;
    std::string log;
    std::string hint;
    std::string removals;    // "A1-4 B2-7"
    std::string placements;  // "A1=4 B2=4"
};

// A line for each, its columns set apart by tabs, below a line with their names. Empty where a line
// has another form.
std::vector<TechniqueExample> ReadTechniqueExamples(std::istream& file);

// The find of the example's technique whose line in the log is the example's.
std::optional<Find> FindOf(const TechniqueExample& example);

// The one solution of the grid's puzzle; all 0 where it has not exactly one.
Digits SolutionOf(const Grid& grid);

// Neither takes a digit of the puzzle's one solution nor places another.
bool AgreesWithSolution(const Find& find, const Grid& grid);

}  // namespace vemo
