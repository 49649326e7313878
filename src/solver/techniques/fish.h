// What plain and finned fish have in common: the lines of a digit, and the words for them.
#pragma once

#include <string>

#include "solver/find.h"
#include "solver/techniques/combinations.h"

namespace vemo {

// By base line the crossing lines on which it holds the digit; a line with a single place is a
// hidden single and no base line.
Members CrossingsOf(const Grid& grid, UnitKind base, int digit);

// The cells of these lines, bit k for line k of the kind.
CellSet LinesOf(UnitKind kind, unsigned mask);

// The words of a fish's texts. In its find the units are the base lines, in order; the cells are
// the places of the one digit on them; the second color is that of the fins, and the cover lines
// are those through the other cells.
struct FishWords {
    explicit FishWords(const Find& find);

    std::string digit;
    std::string base;       // "A, E and G"
    std::string baseKind;   // "rows" or "columns"
    std::string cover;      // "4, 5 and 7"
    std::string coverKind;  // "columns" or "rows"
    std::string baseInLog;  // "Rows A, E and G"
};

}  // namespace vemo
