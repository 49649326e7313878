// Wings and rings: a few cells of two candidates, at most one of three, in which a digit must find
// a place.
#include <array>

#include "solver/techniques/families.h"
#include "solver/text.h"

namespace vemo {
namespace {

// The names of a wing of three cells, and how many candidates its pivot has.
struct WingForm {
    HintKind kind;
    int pivotSize;
    const char* logName;
    const char* hintName;
    const char* sees;  // what a cell has to see to lose the digit
};

constexpr WingForm kXYWing = {HintKind::XYWing, 2, "XY-Wing", "XY-WING", "both"};
constexpr WingForm kXYZWing = {HintKind::XYZWing, 3, "XYZ-Wing", "XYZ-WING", "all three"};

// A pivot and its two wings, which share the digit `common`.
struct Wing {
    int pivot;
    int first;
    int second;
    Marks common;
};

// What the texts need: the pivot, then the wings; the pivot's digits in ascending order, then the
// one that goes where it is none of them.
bool OfferWing(const Grid& grid, const WingForm& form, const Wing& wing, FindSink& sink) {
    const CellSet places = grid.Candidates(FirstDigit(wing.common));
    const Marks pivotMarks = grid.MarksAt(wing.pivot);
    CellSet holders = CellSet::Of(wing.first) | CellSet::Of(wing.second);
    holders |= CellSet::Of(wing.pivot) & places;
    const CellSet attacked = places & CommonPeers(holders);
    if (!attacked.Any()) {
        return true;
    }
    Find find;
    find.kind = form.kind;
    find.AddCell(wing.pivot);
    find.AddCell(wing.first);
    find.AddCell(wing.second);
    find.AddDigits(pivotMarks);
    find.AddDigits(static_cast<Marks>(wing.common & ~pivotMarks));
    find.Remove(grid, attacked, wing.common);
    return sink.Offer(find);
}

// The cells of two candidates that can be wings of this pivot: all of their candidates but one are
// the pivot's, or all where it has three.
CellSet WingsOf(const Grid& grid, const WingForm& form, int pivot, CellSet bivalue) {
    CellSet wings;
    for (int cell : Peers(pivot) & bivalue) {
        if (BitCount(grid.MarksAt(cell) & grid.MarksAt(pivot)) == form.pivotSize - 1) {
            wings.Add(cell);
        }
    }
    return wings;
}

bool SearchWingsOf(const Grid& grid, const WingForm& form, int pivot, CellSet bivalue,
                   FindSink& sink) {
    const CellSet wings = WingsOf(grid, form, pivot, bivalue);
    CellSet later = wings;
    for (int first : wings) {
        later.Remove(first);
        for (int second : later) {
            const Marks a = grid.MarksAt(first);
            const Marks b = grid.MarksAt(second);
            const bool isWing = a != b && BitCount(a | b | grid.MarksAt(pivot)) == 3;
            const Wing wing = {pivot, first, second, static_cast<Marks>(a & b)};
            if (isWing && !OfferWing(grid, form, wing, sink)) {
                return false;
            }
        }
    }
    return true;
}

// A pivot sees two wings, the three hold three digits between them; the wings hold two candidates
// each and are not alike. The digit z that the wings share goes from every cell that sees all of
// the three that hold it. The pivot has z itself, or it takes one of its other digits, and the wing
// that has this digit too is left with z.
//
// By pivot, then first wing, then second wing, each ascending, the first wing below the second.
void SearchWings(const Position& position, const WingForm& form, FindSink& sink) {
    const Grid& grid = position.Cells();
    const CellSet bivalue = position.BivalueCells();
    const CellSet pivots = form.pivotSize == 2 ? bivalue : grid.EmptyCells() - bivalue;
    for (int pivot : pivots) {
        if (BitCount(grid.MarksAt(pivot)) == form.pivotSize &&
            !SearchWingsOf(grid, form, pivot, bivalue, sink)) {
            return;
        }
    }
}

std::string WingLog(const WingForm& form, const Find& find) {
    return std::string(form.logName) + ": Pivot " + CellName(find.cells[0]) + " with wings " +
           JoinCells(Items(find.cells).last(2)) + RemovedInLog(find);
}

std::string WingHint(const WingForm& form, const Find& find) {
    const std::string going = std::to_string(find.removals[0].digit);
    // A pivot of three candidates holds the digit that goes, one of two does not.
    const std::size_t pivotSize = static_cast<std::size_t>(form.pivotSize);
    const CellSet holders = CellsOf(Items(find.cells).last(pivotSize));
    return std::string(form.hintName) + ": Since cell " + CellName(find.cells[0]) +
           " can only be " + JoinDigits(Items(find.digits).first(pivotSize), " or ") +
           ", one of the cells " + JoinCells(holders) + " must be " + going + ", and number " +
           going + " can't be in any cell that sees " + form.sees;
}

// Four cells of two candidates, each seeing the next one round, and side k the digit that cells k
// and k + 1 share.
struct Ring {
    static constexpr std::size_t kSize = 4;

    std::array<int, kSize> cells;
    std::array<Marks, kSize> sides;

    int After(std::size_t at) const { return cells[(at + 1) % kSize]; }
    CellSet Cells() const {
        return CellSet::Of(cells[0]) | CellSet::Of(cells[1]) | CellSet::Of(cells[2]) |
               CellSet::Of(cells[3]);
    }
};

// Answers whether each cell holds the digits of its two sides and no other, when the first side
// has this digit: that fixes all the other sides.
bool Close(const Grid& grid, Ring& ring, Marks firstSide) {
    ring.sides[0] = firstSide;
    for (std::size_t at = 1; at < Ring::kSize; ++at) {
        const Marks marks = grid.MarksAt(ring.cells[at]);
        if ((marks & ring.sides[at - 1]) == 0) {
            return false;
        }
        ring.sides[at] = static_cast<Marks>(marks & ~ring.sides[at - 1]);
    }
    return grid.MarksAt(ring.cells[0]) == (ring.sides[0] | ring.sides[3]);
}

// What the texts need: the cells and the digits of their sides, both in the order of the ring.
bool OfferRing(const Grid& grid, const Ring& ring, FindSink& sink) {
    CellsByDigit losers;
    bool hasLosers = false;
    for (std::size_t at = 0; at < Ring::kSize; ++at) {
        const int digit = FirstDigit(ring.sides[at]);
        const CellSet ends = CellSet::Of(ring.cells[at]) | CellSet::Of(ring.After(at));
        const CellSet others = CommonPeers(ends) - ring.Cells();
        losers[static_cast<std::size_t>(digit - 1)] |= others;
        hasLosers |= (others & grid.Candidates(digit)).Any();
    }
    if (!hasLosers) {
        return true;
    }
    Find find;
    find.kind = HintKind::MultiXWing;
    for (std::size_t at = 0; at < Ring::kSize; ++at) {
        const int digit = FirstDigit(ring.sides[at]);
        find.AddCell(ring.cells[at]);
        find.AddDigit(digit);
        find.AddLink(At(ring.cells[at], digit), At(ring.After(at), digit), Find::Strength::Weak);
    }
    find.Remove(grid, losers);
    return sink.Offer(find);
}

bool ShareDigit(const Grid& grid, int one, int other) {
    return (grid.MarksAt(one) & grid.MarksAt(other)) != 0;
}

// The rings on these four cells, by the digit of the first side.
bool OfferRingsOn(const Grid& grid, const std::array<int, Ring::kSize>& cells, FindSink& sink) {
    Ring ring{cells, {}};
    for (int shared : DigitsOf(grid.MarksAt(cells[0]) & grid.MarksAt(cells[1]))) {
        if (Close(grid, ring, MarkOf(shared)) && !OfferRing(grid, ring, sink)) {
            return false;
        }
    }
    return true;
}

// The rings that begin with these two cells; the third cell is one of `thirds`, the last one of
// `fourths`.
bool SearchRingsFrom(const Grid& grid, int first, int second, CellSet thirds, CellSet fourths,
                     FindSink& sink) {
    for (int third : Peers(second) & thirds) {
        if (!ShareDigit(grid, second, third)) {
            continue;
        }
        for (int fourth : Peers(third) & fourths) {
            if (!OfferRingsOn(grid, {first, second, third, fourth}, sink)) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace

void XYWing(const Position& position, const Args&, FindSink& sink) {
    SearchWings(position, kXYWing, sink);
}

void XYZWing(const Position& position, const Args&, FindSink& sink) {
    SearchWings(position, kXYZWing, sink);
}

std::string XYWingLog(const Find& find) {
    return WingLog(kXYWing, find);
}

std::string XYWingHint(const Find& find) {
    return WingHint(kXYWing, find);
}

std::string XYZWingLog(const Find& find) {
    return WingLog(kXYZWing, find);
}

std::string XYZWingHint(const Find& find) {
    return WingHint(kXYZWing, find);
}

// Four cells of two candidates stand in a ring, each sees the next, and they share a digit that is
// this side of the ring; the candidates of a cell are its two sides. No side can fill both of its
// cells, and four cells take one side each: every side is used once. Its digit goes from the other
// cells that see both of its cells.
//
// By first cell, the lowest of the ring, then second, third and fourth cell, each ascending, the
// second below the fourth; on the same four cells by the digit of the first side.
void MultiXWing(const Position& position, const Args&, FindSink& sink) {
    const Grid& grid = position.Cells();
    CellSet later = position.BivalueCells();
    for (int first : position.BivalueCells()) {
        later.Remove(first);
        CellSet fourths = Peers(first) & later;
        for (int second : Peers(first) & later) {
            fourths.Remove(second);
            if (ShareDigit(grid, first, second) &&
                !SearchRingsFrom(grid, first, second, later, fourths, sink)) {
                return;
            }
        }
    }
}

std::string MultiXWingLog(const Find& find) {
    return "Multi-value X-Wing: Cells " + JoinCells(Items(find.cells)) + RemovedInLog(find);
}

std::string MultiXWingHint(const Find& find) {
    std::string sides;
    for (std::size_t at = 0; at < Ring::kSize; ++at) {
        const std::size_t next = (at + 1) % Ring::kSize;
        sides += (at > 0 ? ", " : "") + std::to_string(find.digits[at]) + " in " +
                 CellName(find.cells[at]) + " and " + CellName(find.cells[next]);
    }
    return "MULTI-VALUE X-WING: Since the cells " + JoinCells(Items(find.cells)) +
           " hold only two candidates each and each neighbouring pair of this ring shares one of "
           "them (" +
           sides +
           "), each of these numbers must be in one of its two cells and can't be in any other "
           "cell that sees both";
}

}  // namespace vemo
