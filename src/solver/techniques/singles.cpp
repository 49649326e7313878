// Hidden and naked singles.
#include "solver/techniques/families.h"
#include "solver/text.h"

namespace vemo {
namespace {

// The digits that exactly one cell of the unit holds as a candidate.
Marks SinglesOf(const Grid& grid, const Unit& unit) {
    unsigned once = 0;
    unsigned twice = 0;
    for (int cell : unit.cells) {
        const unsigned marks = grid.MarksAt(cell);
        twice |= once & marks;
        once |= marks;
    }
    return static_cast<Marks>(once & ~twice);
}

bool OfferHiddenSingles(const Grid& grid, const Unit& unit, FindSink& sink) {
    for (int digit : DigitsOf(SinglesOf(grid, unit))) {
        const int cell = (grid.Candidates(digit) & unit.set).First();
        Find find = Find::Placing(HintKind::HiddenSingle, cell, digit);
        find.AddUnit(unit);
        if (!sink.Offer(find)) {
            return false;
        }
    }
    return true;
}

}  // namespace

// A digit that only one cell of a unit can hold must be there. Boxes, then rows, then columns;
// within a unit by digit.
void HiddenSingle(const Position& position, const Args&, FindSink& sink) {
    for (UnitKind kind : {UnitKind::Box, UnitKind::Row, UnitKind::Column}) {
        for (int index = 0; index < 9; ++index) {
            if (!OfferHiddenSingles(position.Cells(), UnitOf(kind, index), sink)) {
                return;
            }
        }
    }
}

// A cell with a single candidate holds it. By cell.
void NakedSingle(const Position& position, const Args&, FindSink& sink) {
    CellSet once;
    CellSet twice;
    for (int digit = 1; digit <= kDigits; ++digit) {
        const CellSet cells = position.Cells().Candidates(digit);
        twice |= once & cells;
        once |= cells;
    }
    for (int cell : once - twice) {
        const int digit = FirstDigit(position.Cells().MarksAt(cell));
        if (!sink.Offer(Find::Placing(HintKind::NakedSingle, cell, digit))) {
            return;
        }
    }
}

std::string HiddenSingleLog(const Find& find) {
    const Unit& unit = find.UnitAt(0);
    const std::string_view word = unit.kind == UnitKind::Box ? "box" : UnitWord(unit);
    return "Hidden Single " + JoinDigits(Items(find.digits)) + " in " + std::string(word) +
           " at cell " + CellName(find.cells[0]);
}

std::string HiddenSingleHint(const Find& find) {
    const Unit& unit = find.UnitAt(0);
    // Kept: this text alone spells the middle box "center".
    const bool middle = unit.kind == UnitKind::Box && unit.index == 4;
    return "HIDDEN SINGLE: Since number " + JoinDigits(Items(find.digits)) +
           (middle ? " in the center block" : UnitInHint(unit)) + " appears only at cell " +
           CellName(find.cells[0]) + ", it must be there";
}

std::string NakedSingleLog(const Find& find) {
    return "Naked Single " + JoinDigits(Items(find.digits)) + " at cell " + CellName(find.cells[0]);
}

std::string NakedSingleHint(const Find& find) {
    return "NAKED SINGLE: Since number " + JoinDigits(Items(find.digits)) + " at cell " +
           CellName(find.cells[0]) + " is the only one possible, it must be there";
}

}  // namespace vemo
