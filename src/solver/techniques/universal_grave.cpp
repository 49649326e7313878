// The Bivalue Universal Grave with one cell left over.
#include "solver/techniques/families.h"
#include "solver/text.h"

namespace vemo {
namespace {

// The last unsolved cell that does not hold exactly two candidates, where every unsolved cell but
// one does; -1 where the pattern does not hold.
int OddCell(const Grid& grid) {
    int unsolved = 0;
    int bivalue = 0;
    int odd = -1;
    for (int cell = 0; cell < kCells; ++cell) {
        const Marks marks = grid.MarksAt(cell);
        if (marks == 0) {
            continue;
        }
        ++unsolved;
        if (BitCount(marks) == 2) {
            ++bivalue;
        } else {
            odd = cell;
        }
    }
    // Kept: the number of bits is that of the cell's index, not of its candidates, so that the
    // pattern only holds at cells such as 7, 11 or 13.
    const bool holds = unsolved == bivalue + 1 && BitCount(static_cast<unsigned>(odd)) == 3;
    return holds ? odd : -1;
}

bool StandsTwiceAround(const Grid& grid, int cell, int digit) {
    for (UnitKind kind : kUnitKinds) {
        if ((UnitAround(kind, cell).set & grid.Candidates(digit)).Count() == 2) {
            return true;
        }
    }
    return false;
}

}  // namespace

// Were every unsolved cell bivalue and every candidate twice in its units, there would be two
// solutions or none. The odd cell loses each candidate that stands exactly twice in its row, its
// column or its box.
//
// Kept: any one of the three units suffices, although the explanation says "and"; in rare positions
// the right digit goes as well. The find counts even where nothing goes.
void BUG(const Position& position, const Args&, FindSink& sink) {
    const Grid& grid = position.Cells();
    const int odd = OddCell(grid);
    if (odd < 0) {
        return;
    }
    Marks going = 0;
    for (int digit = 1; digit <= kDigits; ++digit) {
        if (grid.KnopAan(odd, digit) && StandsTwiceAround(grid, odd, digit)) {
            going |= MarkOf(digit);
        }
    }
    Find find;
    find.kind = HintKind::BivalueGrave;
    find.AddCell(odd);
    find.AddDigits(going);
    find.Remove(grid, CellSet::Of(odd), going);
    sink.Offer(find);
}

std::string BUGLog(const Find& find) {
    std::string line = "BUG: Removed candidates from cell " + CellName(find.cells[0]) + " :";
    for (int digit : find.digits) {
        line += " " + std::to_string(digit);
    }
    return line;
}

std::string BUGHint(const Find&) {
    return "BIVALUE UNIVERSAL GRAVE: The only unsolved cell that is not a bi-value cell cannot "
           "contain candidates that only occurs twice in the row, column and box this cell belongs "
           "to.";
}

}  // namespace vemo
