// What the candidates of one colour of a find come to.
#pragma once

#include <vector>

#include "solver/find.h"

namespace vemo {

// Some cells and the digits that they hold.
struct Group {
    CellSet cells;
    Marks digits = 0;
};

inline Group GroupOf(const std::vector<CellDigit>& color) {
    Group group;
    for (const auto [cell, digit] : color) {
        group.cells.Add(cell);
        group.digits |= MarkOf(digit);
    }
    return group;
}

}  // namespace vemo
