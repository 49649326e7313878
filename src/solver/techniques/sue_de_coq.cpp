// Sue-de-Coq: cells of a line and a box that hold as many digits as they are, some of them where
// the two units cross.
#include <algorithm>
#include <array>
#include <bit>
#include <vector>

#include "solver/techniques/families.h"
#include "solver/text.h"

namespace vemo {
namespace {

constexpr std::size_t kMostCells = 6;  // of a line or a box outside their crossing

// Some cells, and the digits that they hold.
struct Group {
    CellSet cells;
    Marks digits = 0;
};

// Some of the cells of a field, and the digits that they hold.
struct Subset {
    std::uint8_t members;  // bit k for the k-th cell of the field
    std::uint8_t size;
    std::uint8_t excess;  // digits more than cells
    Marks digits;
};

// The open cells in one part of the two units, and the subsets that a pattern may use: those with
// more digits than cells, in ascending order of their members.
class Field {
  public:
    Field(const Grid& grid, CellSet part) {
        std::array<Marks, 1u << kMostCells> digits;
        digits[0] = 0;
        std::size_t sets = 1;
        for (const int cell : part) {
            const Marks marks = grid.MarksAt(cell);
            if (marks == 0) {
                continue;
            }
            cells_.Add(static_cast<std::uint8_t>(cell));
            for (std::size_t members = 0; members < sets; ++members) {
                digits[sets + members] = digits[members] | marks;
            }
            sets *= 2;
        }
        for (unsigned members = 1; members < sets; ++members) {
            const int size = BitCount(members);
            const int excess = BitCount(digits[members]) - size;
            if (excess > 0) {
                subsets_.Add({static_cast<std::uint8_t>(members), static_cast<std::uint8_t>(size),
                              static_cast<std::uint8_t>(excess), digits[members]});
            }
        }
    }

    const auto& Subsets() const { return subsets_; }
    CellSet CellsOf(const Subset& subset) const {
        CellSet set;
        for (unsigned left = subset.members; left != 0; left &= left - 1) {
            set.Add(cells_[static_cast<std::size_t>(std::countr_zero(left))]);
        }
        return set;
    }

  private:
    Sequence<std::uint8_t, kMostCells> cells_;
    Sequence<Subset, 1u << kMostCells> subsets_;
};

// The patterns on one line and one box that cross.
class CrossingSearch {
  public:
    CrossingSearch(const Grid& grid, const Unit& line, const Unit& box, FindSink& sink)
        : grid_(grid), line_(line), box_(box), sink_(sink) {}

    bool Search() const {
        const Field crossing(grid_, line_.set & box_.set);
        if (std::ranges::none_of(crossing.Subsets(), IsCommonPart)) {
            return true;
        }
        const Field line(grid_, line_.set - box_.set);
        const Field box(grid_, box_.set - line_.set);
        for (const Subset& common : crossing.Subsets()) {
            if (IsCommonPart(common) && !SearchArms(crossing, common, line, box)) {
                return false;
            }
        }
        return true;
    }

  private:
    static bool IsCommonPart(const Subset& subset) {
        return subset.size >= 2 && subset.excess >= 2;
    }

    // The pattern has as many digits as cells. With arms that share no digit this comes to: as many
    // digits of the common part are in neither arm as it has cells more than the arms have digits
    // in excess.
    bool SearchArms(const Field& crossing, const Subset& common, const Field& line,
                    const Field& box) const {
        for (const Subset& inLine : line.Subsets()) {
            if ((inLine.digits & common.digits) == 0 || inLine.excess >= common.size) {
                continue;
            }
            const unsigned left = common.digits & ~inLine.digits;
            for (const Subset& inBox : box.Subsets()) {
                if ((inBox.digits & inLine.digits) != 0 || (inBox.digits & left) == 0 ||
                    BitCount(left & ~inBox.digits) + inLine.excess + inBox.excess != common.size) {
                    continue;
                }
                if (!Offer({crossing.CellsOf(common), common.digits},
                           {line.CellsOf(inLine), inLine.digits},
                           {box.CellsOf(inBox), inBox.digits})) {
                    return false;
                }
            }
        }
        return true;
    }

    bool Offer(const Group& common, const Group& inLine, const Group& inBox) const {
        const Marks digits = common.digits | inLine.digits | inBox.digits;
        const CellSet restOfLine = line_.set - common.cells - inLine.cells;
        const CellSet restOfBox = box_.set - common.cells - inBox.cells;
        CellsByDigit taken;
        CellSet losers;
        for (int digit : DigitsOf(digits)) {
            CellSet& cells = taken[static_cast<std::size_t>(digit - 1)];
            cells |= HasMark(inBox.digits, digit) ? CellSet() : restOfLine;
            cells |= HasMark(inLine.digits, digit) ? CellSet() : restOfBox;
            losers |= cells & grid_.Candidates(digit);
        }
        if (!losers.Any()) {
            return true;
        }
        const CellSet arms = inLine.cells | inBox.cells;
        Find find;
        find.kind = HintKind::SueDeCoq;
        find.AddUnit(line_);
        find.AddUnit(box_);
        find.AddCells(common.cells | arms);
        find.AddDigits(digits);
        find.firstColor = Find::CandidatesOf(grid_, common.cells, kAllMarks);
        find.secondColor = Find::CandidatesOf(grid_, arms, kAllMarks);
        find.Remove(grid_, taken);
        return sink_.Offer(find);
    }

    const Grid& grid_;
    const Unit& line_;
    const Unit& box_;
    FindSink& sink_;
};

// The arm of a find that lies in one of its units.
Group ArmOf(const Find& find, const Unit& unit) {
    std::vector<CellDigit> arm = find.secondColor;
    std::erase_if(arm, [&](const CellDigit& at) { return !unit.set.Has(at.cell); });
    return {CellsOf(arm), MarksOf(arm)};
}

}  // namespace

// In a line and a box that cross, of open cells: two or three in the crossing with at least two
// digits more than cells; an arm of one or more elsewhere in the line, and one elsewhere in the
// box, each with more digits than cells and a digit of those in the crossing. The arms share no
// digit, and all cells together hold as many digits as they are. No digit stands twice in them:
// those of the one arm only in the line, those of the other only in the box, the rest only in the
// crossing. So each stands there once: all but those of the box arm in the pattern's cells of the
// line, from whose other cells they go, and all but those of the line arm likewise in the box.
//
// By line, rows first, then box; the cells in the crossing, then those of the line arm, then those
// of the box arm, each in the order of the masks over the open cells. The crossing is drawn in the
// first colour, the arms in the second.
void SueDeCoq(const Position& position, const Args&, FindSink& sink) {
    const Grid& grid = position.Cells();
    for (const UnitKind kind : kLineKinds) {
        for (int crossing = 0; crossing < 81; ++crossing) {
            const Unit& line = UnitOf(kind, crossing / 9);
            const Unit& box = UnitOf(UnitKind::Box, crossing % 9);
            if ((line.set & box.set).Any() && !CrossingSearch(grid, line, box, sink).Search()) {
                return;
            }
        }
    }
}

std::string SueDeCoqLog(const Find& find) {
    const Unit& line = find.UnitAt(0);
    const Unit& box = find.UnitAt(1);
    return "Sue-De-Coq: " + UnitInLog(line) + " and " + UnitInLog(box) + " with cells " +
           JoinCells(CellsOf(find.firstColor)) + ", line cells " +
           JoinCells(ArmOf(find, line).cells) + " and box cells " +
           JoinCells(ArmOf(find, box).cells) + RemovedInLog(find);
}

std::string SueDeCoqHint(const Find& find) {
    const Unit& line = find.UnitAt(0);
    const Unit& box = find.UnitAt(1);
    const Marks all = MarksOf(find.firstColor) | MarksOf(find.secondColor);
    const auto numbersWithout = [&](const Group& arm) {
        return "the numbers " + JoinDigits(static_cast<Marks>(all & ~arm.digits));
    };
    return "SUE-DE-COQ: Since the cells " + JoinCells(Items(find.cells)) +
           " must hold exactly the numbers " + JoinDigits(all) + ", " +
           numbersWithout(ArmOf(find, box)) + " can't be anywhere else" + UnitInHint(line) +
           " and " + numbersWithout(ArmOf(find, line)) + " can't be anywhere else" +
           UnitInHint(box);
}

}  // namespace vemo
