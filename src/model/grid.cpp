// One grid in play or under the solver.
#include "model/grid.h"

#include <cassert>

namespace vemo {

bool HasClash(const Digits& digits) {
    for (const Unit& unit : kUnits) {
        Marks seen = 0;
        for (int cell : unit.cells) {
            const int digit = digits[static_cast<std::size_t>(cell)];
            if (digit != 0 && HasMark(seen, digit)) {
                return true;
            }
            seen |= MarkOf(digit);
        }
    }
    return false;
}

Grid::Grid() {
    marks_.fill(kAllMarks);
    candidates_.fill(CellSet::All());
    candidates_[0] = CellSet();
}

Grid Grid::FromClues(const Digits& clues) {
    Grid grid;
    for (int cell = 0; cell < kCells; ++cell) {
        if (const int digit = clues[Index(cell)]; digit != 0) {
            grid.Zet(digit, cell);
            grid.givens_.Add(cell);
        }
    }
    return grid;
}

bool Grid::IsLegal(int cell, int digit) const {
    for (int peer : Peers(cell) - empty_) {
        if (digits_[Index(peer)] == digit) {
            return false;
        }
    }
    return true;
}

bool Grid::EmptyCell() const {
    CellSet withCandidate;
    for (int digit = 1; digit <= kDigits; ++digit) {
        withCandidate |= candidates_[Index(digit)];
    }
    return !withCandidate.Contains(empty_);
}

void Grid::Zet(int digit, int cell) {
    assert(digit >= 1 && digit <= kDigits && "only the digits 1 to 9 can be placed");
    WisKnop(cell);
    digits_[Index(cell)] = static_cast<std::uint8_t>(digit);
    empty_.Remove(cell);
    const CellSet losers = candidates_[Index(digit)] & Peers(cell);
    candidates_[Index(digit)] -= losers;
    for (int peer : losers) {
        marks_[Index(peer)] &= static_cast<Marks>(~MarkOf(digit));
    }
}

void Grid::TakeOff(int cell) {
    digits_[Index(cell)] = 0;
    empty_.Add(cell);
}

void Grid::VerwijderKnop(int cell, int digit) {
    marks_[Index(cell)] &= static_cast<Marks>(~MarkOf(digit));
    candidates_[Index(digit)].Remove(cell);
}

void Grid::GiveBack(int cell, int digit) {
    if (empty_.Has(cell)) {
        marks_[Index(cell)] |= MarkOf(digit);
        candidates_[Index(digit)].Add(cell);
    }
}

void Grid::WisKnop(int cell) {
    for (int digit : DigitsOf(marks_[Index(cell)])) {
        candidates_[Index(digit)].Remove(cell);
    }
    marks_[Index(cell)] = 0;
}

bool Grid::CandidateRemoved(int digit, int cell) {
    const bool noted = HasMark(removed_[Index(cell)], digit);
    removed_[Index(cell)] &= static_cast<Marks>(~MarkOf(digit));
    return noted;
}

}  // namespace vemo
