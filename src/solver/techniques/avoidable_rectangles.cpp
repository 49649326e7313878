// Avoidable rectangles: unique rectangles of which some corners are filled already.
#include "solver/techniques/families.h"
#include "solver/techniques/rectangles.h"
#include "solver/text.h"

namespace vemo {
namespace {

// The find holds the corners in the order given, the filled ones first, and the two digits; the
// second form holds the digit that goes behind these.
Find AvoidableFind(const std::array<int, 4>& corners, Marks pair) {
    Find find;
    find.kind = HintKind::AvoidableRectangle;
    for (int cell : corners) {
        find.AddCell(cell);
    }
    find.AddDigits(pair);
    return find;
}

// Three corners are filled, the neighbours of the open one alike: it is not the digit across.
bool OfferLastCorner(const Grid& grid, const Rectangle& rectangle, FindSink& sink) {
    const CellSet open = rectangle.cells & grid.EmptyCells();
    if (open.Count() != 1) {
        return true;
    }
    std::size_t corner = 0;
    while (rectangle.corners[corner] != open.First()) {
        ++corner;
    }
    const int across = rectangle.corners[corner ^ 3];
    const int inRow = rectangle.corners[corner ^ 1];
    const int inColumn = rectangle.corners[corner ^ 2];
    if (grid.Digit(inRow) != grid.Digit(inColumn) ||
        !grid.KnopAan(open.First(), grid.Digit(across))) {
        return true;
    }
    const Marks going = MarkOf(grid.Digit(across));
    Find find =
        AvoidableFind({across, inRow, inColumn, open.First()}, going | MarkOf(grid.Digit(inRow)));
    find.Remove(grid, open, going);
    return sink.Offer(find);
}

// The one digit besides `digit` of a cell that has this and another one; 0 where it does not.
Marks OtherOfTwo(const Grid& grid, int cell, int digit) {
    const Marks marks = grid.MarksAt(cell);
    return HasMark(marks, digit) && BitCount(marks) == 2 ? static_cast<Marks>(marks - MarkOf(digit))
                                                         : Marks{0};
}

// The two corners of one side are filled, each open one holds the digit across and one other, both
// the same: one of them is it, so it goes from the cells that see both.
bool OfferOpenSide(const Grid& grid, const Rectangle& rectangle, const Side& side, FindSink& sink) {
    const int one = rectangle.corners[side.corners[0]];
    const int other = rectangle.corners[side.corners[1]];
    const int besideOne = rectangle.corners[side.facing[0]];
    const int besideOther = rectangle.corners[side.facing[1]];
    const Marks extra = OtherOfTwo(grid, besideOne, grid.Digit(other));
    if (extra == 0 || extra != OtherOfTwo(grid, besideOther, grid.Digit(one))) {
        return true;
    }
    const CellSet open = CellSet::Of(besideOne) | CellSet::Of(besideOther);
    Find find = AvoidableFind({one, other, besideOne, besideOther},
                              MarkOf(grid.Digit(one)) | MarkOf(grid.Digit(other)));
    find.AddDigits(extra);
    return !find.Remove(grid, CommonPeers(open), extra) || sink.Offer(find);
}

bool OfferOpenSides(const Grid& grid, const Rectangle& rectangle, FindSink& sink) {
    const CellSet open = rectangle.cells & grid.EmptyCells();
    if (open.Count() != 2) {
        return true;
    }
    for (const Side& side : kSides) {
        const bool isFilled = !open.Has(rectangle.corners[side.corners[0]]) &&
                              !open.Has(rectangle.corners[side.corners[1]]);
        if (isFilled && !OfferOpenSide(grid, rectangle, side, sink)) {
            return false;
        }
    }
    return true;
}

}  // namespace

// Four corners on two rows and two columns in exactly two boxes, none of them a clue: were they to
// hold just two digits, these could change places, and the sudoku would have two solutions. With
// three of them filled the last one loses the digit that would complete this; with two of one side
// filled one of the others takes the digit that prevents it.
//
// First all rectangles with three filled corners, by row pair and column pair, then all with two,
// the filled side at the top, at the bottom, left, right.
void AvoidableRectangle(const Position& position, const Args&, FindSink& sink) {
    const Grid& grid = position.Cells();
    for (auto offer : {OfferLastCorner, OfferOpenSides}) {
        for (const Rectangle& rectangle : kRectangles) {
            const bool hasClue = (rectangle.cells & grid.Givens()).Any();
            if (!hasClue && !offer(grid, rectangle, sink)) {
                return;
            }
        }
    }
}

std::string AvoidableRectangleLog(const Find& find) {
    return "Avoidable Rectangle: Cells " + JoinCorners(find) + RemovedInLog(find);
}

std::string AvoidableRectangleHint(const Find& find) {
    const std::string corners = JoinCorners(find);
    const std::string pair = JoinDigits(Items(find.digits).first(2));
    const std::string going = std::to_string(find.removals[0].digit);
    const std::string head =
        "AVOIDABLE RECTANGLE: Since none of the cells " + corners + " is a clue, ";
    if (find.digits.Size() == 2) {
        return head + "number " + going + " at cell " + CellName(find.cells[3]) +
               " would make the numbers " + pair +
               " exchangeable and give two solutions, so it can be discarded";
    }
    const CellSet open = CellSet::Of(find.cells[2]) | CellSet::Of(find.cells[3]);
    return head + "the numbers " + pair + " would be exchangeable unless one of the cells " +
           JoinCells(open) + " is " + going + ", which can't be in any other cell that sees both";
}

}  // namespace vemo
