// Pointing pairs and triples, and box-line reductions: a digit confined to the intersection of
// two units.
#include <span>

#include "solver/techniques/families.h"
#include "solver/text.h"

namespace vemo {
namespace {

// Where every place of the digit in `from` lies in `to` as well, `from` needs one of these places:
// the digit goes from the rest of `to`. Answers whether the search shall go on.
bool OfferIntersection(const Grid& grid, HintKind kind, const Unit& from, const Unit& to, int digit,
                       FindSink& sink) {
    const CellSet places = grid.Candidates(digit) & from.set;
    if (!to.set.Contains(places)) {
        return true;
    }
    const CellSet losers = (grid.Candidates(digit) & to.set) - from.set;
    if (!losers.Any()) {
        return true;
    }
    Find find;
    find.kind = kind;
    find.AddUnit(from);
    find.AddUnit(to);
    find.AddCells(places);
    find.AddDigit(digit);
    find.Remove(grid, losers, MarkOf(digit));
    return sink.Offer(find);
}

// By unit of the kind `from`, then digit, then the crossing kinds in their order.
bool SearchIntersections(const Grid& grid, HintKind kind, UnitKind fromKind,
                         std::span<const UnitKind> toKinds, FindSink& sink) {
    for (int index = 0; index < 9; ++index) {
        const Unit& from = UnitOf(fromKind, index);
        for (int digit = 1; digit <= kDigits; ++digit) {
            const CellSet places = grid.Candidates(digit) & from.set;
            if (!places.Any()) {
                continue;
            }
            for (UnitKind toKind : toKinds) {
                const Unit& to = UnitAround(toKind, places.First());
                if (!OfferIntersection(grid, kind, from, to, digit, sink)) {
                    return false;
                }
            }
        }
    }
    return true;
}

std::string IntersectionLog(const char* name, const Unit& line, const Find& find) {
    return std::string(name) + ": " + UnitInLog(line) + RemovedInLog(find);
}

}  // namespace

// Within a box a digit stands only on one row or column: it goes from the rest of that line.
void PointingPair(const Position& position, const Args&, FindSink& sink) {
    SearchIntersections(position.Cells(), HintKind::PointingPair, UnitKind::Box, kLineKinds, sink);
}

// Within a row or column a digit stands only in one box: it goes from the rest of that box. All
// rows before any column.
void BoxLine(const Position& position, const Args&, FindSink& sink) {
    static constexpr std::array kBox = {UnitKind::Box};
    for (UnitKind line : kLineKinds) {
        if (!SearchIntersections(position.Cells(), HintKind::BoxLine, line, kBox, sink)) {
            return;
        }
    }
}

std::string PointingPairLog(const Find& find) {
    return IntersectionLog("Pointing Pair", find.UnitAt(1), find);
}

std::string PointingPairHint(const Find& find) {
    const Unit& line = find.UnitAt(1);
    const std::string word(UnitWord(line));
    return "POINTING PAIR: Since number " + JoinDigits(Items(find.digits)) +
           UnitInHint(find.UnitAt(0)) + " appears only in " + word + " " + UnitLabel(line) +
           ", this number can't be in any other block of that same " + word;
}

std::string BoxLineLog(const Find& find) {
    return IntersectionLog("Box Line Reduction", find.UnitAt(0), find);
}

std::string BoxLineHint(const Find& find) {
    const Unit& box = find.UnitAt(1);
    // Kept: two blanks after the comma for the first box.
    const char* joint = box.index == 0 ? ",  " : ", ";
    return "BOX LINE REDUCTION: Since number " + JoinDigits(Items(find.digits)) +
           UnitInHint(find.UnitAt(0)) + " appears only" + UnitInHint(box) + joint +
           "this number can't be anywhere else in that block";
}

}  // namespace vemo
