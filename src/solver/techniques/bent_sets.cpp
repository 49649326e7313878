// Bent sets: four cells that hold four digits between them but lie in no single unit.
#include "solver/techniques/families.h"
#include "solver/text.h"

namespace vemo {
namespace {

constexpr int kSize = 4;  // of the cells, and of the digits

// The variants of the kind: on a line and a box, or anywhere.
constexpr int kPlain = 0;
constexpr int kExtended = 1;

// A set in the making.
struct BentSet {
    CellSet cells;
    Marks digits = 0;  // of all its cells
    Marks free = 0;    // held by two of its cells that do not see each other
};

BentSet With(const Grid& grid, const BentSet& set, int cell) {
    const Marks marks = grid.MarksAt(cell);
    BentSet larger = set;
    larger.cells.Add(cell);
    larger.digits |= marks;
    for (int unseen : set.cells - Peers(cell)) {
        larger.free |= grid.MarksAt(unseen) & marks;
    }
    return larger;
}

// The cells that hold the digit and see every cell of the set that holds it: none of the set.
CellSet AttackedBy(const Grid& grid, CellSet set, int digit) {
    const CellSet holders = grid.Candidates(digit);
    return holders & CommonPeers(set & holders);
}

// The cells that have one to four candidates.
CellSet SmallCells(const Grid& grid) {
    CellSet small;
    for (int cell : grid.EmptyCells()) {
        const int count = BitCount(grid.MarksAt(cell));
        if (count > 0 && count <= kSize) {
            small.Add(cell);
        }
    }
    return small;
}

// Four cells hold four digits between them, and of these just one, z, is free: it is held by two of
// the cells that do not see each other. Each of the three other digits fills one cell at most, so
// one of the four must be z: it goes from every cell that sees all of the set that hold it. With
// two free digits nothing follows, with none the four are a locked set.
class BentSetSearch {
  public:
    BentSetSearch(const Grid& grid, int variant, FindSink& sink)
        : grid_(grid), variant_(variant), sink_(sink) {}

    // The sets of cells of `pool` with one at least of `hinge`, in lexicographic order. Answers
    // whether the search shall go on.
    bool Search(CellSet pool, CellSet hinge) {
        hinge_ = hinge;
        return Extend(BentSet(), pool);
    }

  private:
    bool Extend(const BentSet& set, CellSet pool) {
        CellSet later = pool;
        for (int cell : pool) {
            later.Remove(cell);
            const BentSet larger = With(grid_, set, cell);
            if (!IsPromising(larger)) {
                continue;
            }
            if (!(larger.cells.Count() == kSize ? Offer(larger) : Extend(larger, later))) {
                return false;
            }
        }
        return true;
    }

    // Whether further cells can make it a set that takes a candidate.
    bool IsPromising(const BentSet& set) const {
        return BitCount(set.digits) <= kSize && BitCount(set.free) <= 1 &&
               (set.free == 0 || AttackedBy(grid_, set.cells, FirstDigit(set.free)).Any());
    }

    // What the texts need: the cells, the pivot before the others; all digits; and all candidates
    // of the four cells, for these tell which of them hold the digit that goes. Where any cell can
    // be a hinge, the lowest is the pivot, and the cells are in order.
    bool Offer(const BentSet& set) {
        const CellSet hinges = set.cells & hinge_;
        if (BitCount(set.digits) != kSize || set.free == 0 || !hinges.Any()) {
            return true;
        }
        const int pivot = hinges.First();
        Find find;
        find.kind = HintKind::WXYZWing;
        find.variant = variant_;
        find.AddCell(pivot);
        find.AddCells(set.cells - CellSet::Of(pivot));
        find.AddDigits(set.digits);
        find.firstColor = Find::CandidatesOf(grid_, set.cells, set.digits);
        find.Remove(grid_, AttackedBy(grid_, set.cells, FirstDigit(set.free)), set.free);
        return sink_.Offer(find);
    }

    const Grid& grid_;
    int variant_;
    FindSink& sink_;
    CellSet hinge_;
};

}  // namespace

// The bent sets on a line and a box that cross, with a cell where they do. That they have a cell of
// the line outside the box and one of the box outside the line need not be asked: only two such
// cells do not see each other, and the free digit is held by two that do not.
//
// Rows, then columns; the boxes that they cross in order; the cells in lexicographic order.
void WXYZWing(const Position& position, const Args&, FindSink& sink) {
    const Grid& grid = position.Cells();
    const CellSet small = SmallCells(grid);
    BentSetSearch search(grid, kPlain, sink);
    for (UnitKind kind : kLineKinds) {
        for (int pair = 0; pair < kDigits * kDigits; ++pair) {
            const CellSet line = UnitOf(kind, pair / kDigits).set & small;
            const CellSet box = UnitOf(UnitKind::Box, pair % kDigits).set & small;
            if ((line & box).Any() && !search.Search(line | box, line & box)) {
                return;
            }
        }
    }
}

// The bent sets anywhere, in lexicographic order of their cells.
void ExtendedWXYZWing(const Position& position, const Args&, FindSink& sink) {
    const CellSet small = SmallCells(position.Cells());
    BentSetSearch(position.Cells(), kExtended, sink).Search(small, small);
}

std::string WXYZWingLog(const Find& find) {
    const auto cells = Items(find.cells);
    const std::string where = find.variant == kExtended
                                  ? "Extended WXYZ-Wing: Cells " + JoinCells(cells)
                                  : "WXYZ-Wing: Pivot " + CellName(cells[0]) + " with wings " +
                                        JoinCells(cells.subspan(1));
    return where + RemovedInLog(find);
}

std::string WXYZWingHint(const Find& find) {
    const int going = find.removals[0].digit;
    CellSet holders;
    for (const auto& [cell, digit] : find.firstColor) {
        if (digit == going) {
            holders.Add(cell);
        }
    }
    const std::string number = std::to_string(going);
    return std::string(find.variant == kExtended ? "EXTENDED " : "") +
           "WXYZ-WING: Since the four cells " + JoinCells(CellsOf(find.firstColor)) +
           " hold only the candidates " + JoinDigits(Items(find.digits)) + ", and of these only " +
           number + " could be in two of them or in none, one of the cells " + JoinCells(holders) +
           " must be " + number + " and this number can't be in any cell that sees all of these";
}

}  // namespace vemo
