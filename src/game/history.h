// The undo history: what each step changed, so that it can be taken back and done again.
//
// An entry's kind and digit in one number: the low four bits hold the digit placed or taken off (0
// none); +256 marks were given back, not taken; +512 a reset of a cell that held the digit; +1024
// the entry belongs to the same step as the one before it. Without any of these, 0 is a discard and
// 1..9 a placement.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/grid.h"
#include "model/records.h"

namespace vemo {

enum class Joined : std::uint8_t { No, Yes };

class History {
  public:
    // Each makes the change on the grid and records it; a new step cuts what could be redone.
    // Joined entries are undone, redone and counted together with the entry before them.

    // The digit must be a candidate of the cell.
    void Place(Grid& grid, int cell, int digit, Joined joined = Joined::No);
    void Discard(Grid& grid, int cell, int digit, Joined joined = Joined::No);
    // The cell must be empty. Marks that it shows already are left out; without others there is no
    // step.
    void GiveBack(Grid& grid, int cell, Marks marks);
    // Takes the digit off a filled cell: it is a candidate again wherever it is legal again, and
    // the cell gets all its legal marks.
    void Reset(Grid& grid, int cell);

    // One step back or forward; false where there is none. A placement taken back gives its digit
    // to every empty peer where it is legal again, to those that had discarded it as well.
    bool Undo(Grid& grid);
    bool Redo(Grid& grid);
    bool CanUndo() const { return top_ > 0; }
    bool CanRedo() const { return top_ < entries_.size(); }

    // Steps taken so far, joined entries counted once.
    int StepCount() const;

    void Clear();
    void CutRedo();

    // Into and out of a saved record: the last steps that fit whole.
    void SaveTo(PlayState& state) const;
    // Replaces the history. An entry whose last four numbers are all zero is a discard, but where
    // its cell is still filled after it, the placement of that digit: nothing can be discarded from
    // a filled cell. Seen from the end, the first entry that cannot have led to the saved digits is
    // dropped with its whole step and everything before it.
    void LoadFrom(const PlayState& state);

  private:
    void Record(const UndoEntry& entry, Joined joined);
    // Where the step begins that the entry at `at` belongs to.
    std::size_t StepStart(std::size_t at) const;

    std::vector<UndoEntry> entries_;
    std::size_t top_ = 0;  // entries applied; those behind it can be redone
};

// The digits that no peer of the cell holds.
Marks LegalMarks(const Grid& grid, int cell);

}  // namespace vemo
