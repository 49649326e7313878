// Patterns of a single digit: the empty rectangle of a box, and two pairs of places that meet in a
// box (kite) or on a crossing line (skyscraper).
#include <array>

#include "model/sequence.h"
#include "solver/techniques/families.h"
#include "solver/text.h"

namespace vemo {
namespace {

// A line on which the digit has exactly two places.
struct Pair {
    int unit = 0;  // index into kUnits
    CellSet cells;

    int OtherEnd(int cell) const { return (cells - CellSet::Of(cell)).First(); }
};
using Pairs = Sequence<Pair, 9>;

// In the order of the lines.
Pairs PairsOf(const Grid& grid, UnitKind kind, int digit) {
    Pairs pairs;
    for (int index = 0; index < 9; ++index) {
        const CellSet places = UnitOf(kind, index).set & grid.Candidates(digit);
        if (places.Count() == 2) {
            pairs.Add({UnitNumber(kind, index), places});
        }
    }
    return pairs;
}

// Two pairs whose inner ends see each other.
struct Meeting {
    const Pair& one;
    const Pair& other;
    int innerOne;
    int innerOther;

    int OuterOne() const { return one.OtherEnd(innerOne); }
    int OuterOther() const { return other.OtherEnd(innerOther); }
};

// The find's units: the two lines. Its cells: outer, inner, inner and outer end, as its links run.
// Answers whether the search shall go on.
bool OfferMeeting(const Grid& grid, HintKind kind, int digit, const Meeting& meeting,
                  CellSet losers, FindSink& sink) {
    Find find;
    find.kind = kind;
    if (!find.Remove(grid, losers, MarkOf(digit))) {
        return true;
    }
    find.AddUnit(meeting.one.unit);
    find.AddUnit(meeting.other.unit);
    find.AddDigit(digit);
    const std::array chain = {meeting.OuterOne(), meeting.innerOne, meeting.innerOther,
                              meeting.OuterOther()};
    for (std::size_t k = 0; k < chain.size(); ++k) {
        find.AddCell(chain[k]);
        if (k > 0) {
            find.AddLink(At(chain[k - 1], digit), At(chain[k], digit),
                         k == 2 ? Find::Strength::Weak : Find::Strength::Strong);
        }
    }
    return sink.Offer(find);
}

// The places of the digit in a box; all of them lie on this row and this column of it.
struct Rectangle {
    const Unit& box;
    const Unit& row;
    const Unit& column;
    CellSet places;
    int digit;
};

// The find's units: box, row, column and the pair's line. Its cells: the pair in order of cells,
// then the places in the box. Answers whether the search shall go on.
bool OfferRectangle(const Grid& grid, const Rectangle& rectangle, const Pair& pair, int near,
                    int target, FindSink& sink) {
    Find find;
    find.kind = HintKind::EmptyRectangle;
    if (!find.Remove(grid, CellSet::Of(target), MarkOf(rectangle.digit))) {
        return true;
    }
    for (const Unit* unit : {&rectangle.box, &rectangle.row, &rectangle.column}) {
        find.AddUnit(*unit);
    }
    find.AddUnit(pair.unit);
    find.AddCells(pair.cells);
    find.AddCells(rectangle.places);
    find.AddDigit(rectangle.digit);
    find.AddLink(At(near, rectangle.digit), At(pair.OtherEnd(near), rectangle.digit),
                 Find::Strength::Strong);
    return sink.Offer(find);
}

// The pairs that stand across `through`, one of the rectangle's two lines, with one end on it
// outside the box; the target lies on `onto`, the other line. By the pair's line.
bool OfferPairsAcross(const Grid& grid, const Rectangle& rectangle, const Unit& through,
                      const Unit& onto, FindSink& sink) {
    const CellSet places = grid.Candidates(rectangle.digit);
    for (int near : (places & through.set) - rectangle.box.set) {
        const Unit& line = UnitAround(onto.kind, near);
        const Pair pair = {UnitNumber(line.kind, line.index), places & line.set};
        if (pair.cells.Count() != 2) {
            continue;
        }
        const int far = pair.OtherEnd(near);
        const int target = (UnitAround(through.kind, far).set & onto.set).First();
        // Within the box the target could be the very place that the box needs.
        const bool isTarget = places.Has(target) && !rectangle.box.set.Has(target);
        if (isTarget && !OfferRectangle(grid, rectangle, pair, near, target, sink)) {
            return false;
        }
    }
    return true;
}

// A box with two places is a pair itself: that makes a kite or a skyscraper.
bool SearchBox(const Grid& grid, int digit, const Unit& box, FindSink& sink) {
    const CellSet places = grid.Candidates(digit) & box.set;
    if (places.Count() < 3) {
        return true;
    }
    for (int crossing : box.cells) {
        const Unit& row = UnitAround(UnitKind::Row, crossing);
        const Unit& column = UnitAround(UnitKind::Column, crossing);
        const CellSet outsideRow = places - row.set;
        const CellSet outsideColumn = places - column.set;
        if ((outsideRow & outsideColumn).Any() || !outsideRow.Any() || !outsideColumn.Any()) {
            continue;
        }
        const Rectangle rectangle = {box, row, column, places, digit};
        if (!OfferPairsAcross(grid, rectangle, row, column, sink) ||
            !OfferPairsAcross(grid, rectangle, column, row, sink)) {
            return false;
        }
    }
    return true;
}

bool OfferKites(const Grid& grid, int digit, const Pair& row, const Pair& column, FindSink& sink) {
    if ((row.cells & column.cells).Any()) {
        return true;
    }
    for (int inRow : row.cells) {
        for (int inColumn : column.cells) {
            if (CellBox(inRow) != CellBox(inColumn)) {
                continue;
            }
            const Meeting meeting = {row, column, inRow, inColumn};
            const int target =
                RowColumnCell(CellRow(meeting.OuterOther()), CellColumn(meeting.OuterOne()));
            if (!OfferMeeting(grid, HintKind::TwoStringKite, digit, meeting, CellSet::Of(target),
                              sink)) {
                return false;
            }
        }
    }
    return true;
}

// Two parallel pairs share one crossing line at most: with both in common they are an X-Wing.
bool OfferSkyscraper(const Grid& grid, int digit, const Pair& one, const Pair& other,
                     FindSink& sink) {
    const UnitKind crossing = CrossingKind(kUnits[static_cast<std::size_t>(one.unit)].kind);
    for (int base : one.cells) {
        const CellSet opposite = UnitAround(crossing, base).set & other.cells;
        if (!opposite.Any()) {
            continue;
        }
        const Meeting meeting = {one, other, base, opposite.First()};
        const int roofOne = meeting.OuterOne();
        const int roofOther = meeting.OuterOther();
        if (UnitIndexOf(crossing, roofOne) == UnitIndexOf(crossing, roofOther)) {
            return true;
        }
        return OfferMeeting(grid, HintKind::Skyscraper, digit, meeting,
                            Peers(roofOne) & Peers(roofOther), sink);
    }
    return true;
}

bool SearchSkyscrapers(const Grid& grid, int digit, UnitKind kind, FindSink& sink) {
    const Pairs pairs = PairsOf(grid, kind, digit);
    for (std::size_t one = 0; one < pairs.Size(); ++one) {
        for (std::size_t other = one + 1; other < pairs.Size(); ++other) {
            if (!OfferSkyscraper(grid, digit, pairs[one], pairs[other], sink)) {
                return false;
            }
        }
    }
    return true;
}

// " in row B (cells B3 and B8)"
std::string PairInHint(const Unit& line, int one, int other) {
    return UnitInHint(line) + " (" + CellsInHint(CellSet::Of(one) | CellSet::Of(other)) + ")";
}

}  // namespace

// The three or more places of a digit in a box all lie on one row and one column of it, some on
// each alone, and a pair of places stands across one of these two lines outside the box. If the
// pair's end on that line holds the digit, the box needs it on its other line; otherwise the
// pair's far end holds it. The cell of the other line that sees the far end loses it either way,
// unless it lies in the box itself. By digit, then box, then the crossing of row and column; pairs
// on columns before pairs on rows.
void EmptyRectangle(const Position& position, const Args&, FindSink& sink) {
    for (int digit = 1; digit <= kDigits; ++digit) {
        for (int box = 0; box < 9; ++box) {
            if (!SearchBox(position.Cells(), digit, UnitOf(UnitKind::Box, box), sink)) {
                return;
            }
        }
    }
}

std::string EmptyRectangleLog(const Find& find) {
    return "Empty Rectangle: " + UnitInLog(find.UnitAt(0)) + " with cells " +
           JoinCells(Items(find.cells).first(2)) + RemovedInLog(find);
}

std::string EmptyRectangleHint(const Find& find) {
    return "EMPTY RECTANGLE: Since number " + JoinDigits(Items(find.digits)) +
           UnitInHint(find.UnitAt(0)) + " appears only" + UnitInHint(find.UnitAt(1)) +
           " and column " + UnitLabel(find.UnitAt(2)) + ", and appears only twice" +
           PairInHint(find.UnitAt(3), find.cells[0], find.cells[1]) +
           ", this number can't be at cell " + CellName(find.removals[0].cell);
}

// A row and a column with exactly two places of the digit each, all four different, with one end
// of each in the same box. These two ends are not both right, so one of the outer ends is: the
// cell that sees the one along its column and the other along its row loses the digit. By digit,
// row, column, then the row's end in the box, then the column's.
void TwoStringKite(const Position& position, const Args&, FindSink& sink) {
    const Grid& grid = position.Cells();
    for (int digit = 1; digit <= kDigits; ++digit) {
        const Pairs columns = PairsOf(grid, UnitKind::Column, digit);
        for (const Pair& row : PairsOf(grid, UnitKind::Row, digit)) {
            for (const Pair& column : columns) {
                if (!OfferKites(grid, digit, row, column, sink)) {
                    return;
                }
            }
        }
    }
}

std::string TwoStringKiteLog(const Find& find) {
    return "Two-String Kite: " + UnitInLog(find.UnitAt(0)) + " and " + UnitInLog(find.UnitAt(1)) +
           RemovedInLog(find);
}

std::string TwoStringKiteHint(const Find& find) {
    const auto& cells = find.cells;
    return "TWO-STRING KITE: Since number " + JoinDigits(Items(find.digits)) +
           " appears only twice" + PairInHint(find.UnitAt(0), cells[0], cells[1]) +
           " and only twice" + PairInHint(find.UnitAt(1), cells[2], cells[3]) + ", and cells " +
           CellName(cells[1]) + " and " + CellName(cells[2]) +
           " are in the same block, this number must be at " + CellName(cells[0]) + " or " +
           CellName(cells[3]) + " and can't be at cell " + CellName(find.removals[0].cell);
}

// Two rows, or two columns, with exactly two places of the digit each, of which one of each lies
// on the same crossing line and the other two do not. The first two are not both right, so one of
// the other two is: every cell that sees both of these loses the digit. By digit, rows before
// columns, then by the first line and the second.
void Skyscraper(const Position& position, const Args&, FindSink& sink) {
    const Grid& grid = position.Cells();
    for (int digit = 1; digit <= kDigits; ++digit) {
        for (UnitKind kind : kLineKinds) {
            if (!SearchSkyscrapers(grid, digit, kind, sink)) {
                return;
            }
        }
    }
}

std::string SkyscraperLog(const Find& find) {
    const char* lines = find.UnitAt(0).kind == UnitKind::Row ? "Rows " : "Columns ";
    return std::string("Skyscraper: ") + lines + JoinUnits(find, 0, 2) + RemovedInLog(find);
}

std::string SkyscraperHint(const Find& find) {
    const Unit& line = find.UnitAt(0);
    const auto& cells = find.cells;
    const Unit& base = UnitAround(CrossingKind(line.kind), cells[1]);
    return "SKYSCRAPER: Since number " + JoinDigits(Items(find.digits)) +
           " appears only twice in both " + std::string(LinesWord(line)) + " " +
           JoinUnits(find, 0, 2) + ", and cells " + CellName(cells[1]) + " and " +
           CellName(cells[2]) + " are in the same " + std::string(UnitWord(base)) +
           ", this number must be at " + CellName(cells[0]) + " or " + CellName(cells[3]) +
           " and can't be in any cell that sees both";
}

}  // namespace vemo
