// The three checks of the player's own entries.
#include "game/checks.h"

namespace vemo {
namespace {

int SolutionAt(const Digits& solution, int cell) {
    return solution[static_cast<std::size_t>(cell)];
}

}  // namespace

std::optional<int> FindBadSolvedCell(const Grid& grid, const Digits& solution) {
    for (int cell : CellSet::All() - grid.EmptyCells()) {
        if (grid.Digit(cell) != SolutionAt(solution, cell)) {
            return cell;
        }
    }
    return std::nullopt;
}

std::optional<int> FindMissingCandidate(const Grid& grid, const Digits& solution) {
    for (int cell : grid.EmptyCells()) {
        if (!grid.KnopAan(cell, SolutionAt(solution, cell))) {
            return cell;
        }
    }
    return std::nullopt;
}

std::optional<StaleMark> FindStaleMark(const Grid& grid) {
    for (int cell : CellSet::All() - grid.EmptyCells()) {
        const int digit = grid.Digit(cell);
        const CellSet stale = Peers(cell) & grid.Candidates(digit);
        if (stale.Any()) {
            return StaleMark{cell, stale.First(), digit};
        }
    }
    return std::nullopt;
}

std::string BadSolvedCellText(int cell, int digit) {
    return "Incorrect number (" + std::to_string(digit) + ") at cell " + CellName(cell) +
           " - Use [Undo] or [Reset Cell]";
}

std::string MissingCandidateText(int cell) {
    return "The correct number is no longer shown as a possibility at cell " + CellName(cell);
}

std::string StaleMarkText(const StaleMark& stale) {
    return "Since number " + std::to_string(stale.digit) + " is located at cell " +
           CellName(stale.placedCell) +
           ", this number cannot longer be a candidate in that same row, column or block";
}

}  // namespace vemo
