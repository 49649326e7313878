// The three checks of the player's own entries that come before any technique.
#pragma once

#include <optional>
#include <string>

#include "model/grid.h"

namespace vemo {

// The first cell, in cell order, whose digit differs from the solution's.
std::optional<int> FindBadSolvedCell(const Grid& grid, const Digits& solution);
// The first empty cell whose correct digit is no candidate any more.
std::optional<int> FindMissingCandidate(const Grid& grid, const Digits& solution);

// A candidate that a placed digit of the same row, column or box rules out.
struct StaleMark {
    int placedCell;
    int markedCell;
    int digit;
};
// The first one by the cell of the placed digit, then by the cell of the mark.
std::optional<StaleMark> FindStaleMark(const Grid& grid);

std::string BadSolvedCellText(int cell, int digit);
// Without the advice that Autosolve adds.
std::string MissingCandidateText(int cell);
std::string StaleMarkText(const StaleMark& stale);

}  // namespace vemo
