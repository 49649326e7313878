// One grid in play or under the solver: digits, pencil marks, givens.
#pragma once

#include <array>
#include <cstdint>

#include "model/cellset.h"
#include "model/units.h"

namespace vemo {

// One digit a cell, 0 where it is empty.
using Digits = std::array<std::uint8_t, kCells>;

// Whether two cells of one unit hold the same digit: such digits have no solution.
bool HasClash(const Digits& digits);

// Candidates are held both ways, cell to digits and digit to cells; every change keeps the two
// alike. A filled cell has no candidates.
class Grid {
  public:
    // All cells empty, all nine marks in each.
    Grid();

    // The clues placed one after the other, each taking its digit from its peers.
    static Grid FromClues(const Digits& clues);

    int Digit(int cell) const { return digits_[Index(cell)]; }
    const Digits& AllDigits() const { return digits_; }
    bool IsGiven(int cell) const { return givens_.Has(cell); }
    CellSet Givens() const { return givens_; }
    CellSet EmptyCells() const { return empty_; }
    int EmptyCount() const { return empty_.Count(); }

    // Is the digit a candidate of the cell?
    bool KnopAan(int cell, int digit) const { return HasMark(marks_[Index(cell)], digit); }
    Marks MarksAt(int cell) const { return marks_[Index(cell)]; }
    CellSet Candidates(int digit) const { return candidates_[Index(digit)]; }

    // No peer of the cell holds the digit.
    bool IsLegal(int cell, int digit) const;

    // True when some empty cell has no candidate at all.
    bool EmptyCell() const;

    // Places a digit: the cell's candidates go, and the digit from those of all its peers.
    void Zet(int digit, int cell);
    // Empties a cell; it has no candidates until some are given back.
    void TakeOff(int cell);
    void SetGivens(CellSet givens) { givens_ = givens; }

    // Candidate off, on, all off. A filled cell is given none back.
    void VerwijderKnop(int cell, int digit);
    void GiveBack(int cell, int digit);
    void WisKnop(int cell);

    // A candidate that a hint would take out, noted while the candidate itself stays.
    void MarkRemoved(int cell, int digit) { removed_[Index(cell)] |= MarkOf(digit); }
    void ClearRemovedMarks() { removed_.fill(0); }
    // Was it noted? The note is cleared by the question.
    bool CandidateRemoved(int digit, int cell);

    bool operator==(const Grid&) const = default;

  private:
    static constexpr std::size_t Index(int number) { return static_cast<std::size_t>(number); }

    Digits digits_{};
    std::array<Marks, kCells> marks_;
    std::array<CellSet, kDigits + 1> candidates_;
    CellSet empty_ = CellSet::All();
    CellSet givens_;
    std::array<Marks, kCells> removed_{};  // the noted candidates, `RemovedMark`
};

}  // namespace vemo
