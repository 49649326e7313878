// The hidden form of the unique rectangle.
#include <algorithm>
#include <array>
#include <vector>

#include "solver/techniques/rectangles.h"
#include "solver/text.h"

namespace vemo {
namespace {

// One rectangle of open cells: the candidates of its corners, and the digits that its top, bottom,
// left and right side confine.
struct OpenRectangle {
    std::array<int, 4> corners;
    std::array<Marks, 4> marks;
    std::array<Marks, 4> confined;

    // The digits that a corner and its neighbour in the row, or in the column, keep to themselves.
    Marks ConfinedInRow(std::size_t corner) const { return confined[corner / 2]; }
    Marks ConfinedInColumn(std::size_t corner) const { return confined[2 + corner % 2]; }
};

OpenRectangle Opened(const Confinement& confinement, const Rectangle& rectangle) {
    OpenRectangle open{rectangle.corners, {}, {}};
    for (std::size_t k = 0; k < 4; ++k) {
        const auto& [one, other] = kSides[k].corners;
        open.marks[k] = confinement.Cells().MarksAt(open.corners[k]);
        open.confined[k] = confinement.Digits(open.corners[one], open.corners[other]);
    }
    return open;
}

// The digits q for which a corner of these candidates is bare, its digits being p and q.
Marks BareBeside(Marks marks, int p) {
    const Marks rest = static_cast<Marks>(marks & ~MarkOf(p));
    return rest == 0 ? kAllMarks : BitCount(rest) == 1 ? rest : Marks{0};
}
// The digits p for which there is such a q.
Marks CanBeBare(Marks marks) {
    const int count = BitCount(marks);
    return count < 2 ? kAllMarks : count == 2 ? marks : Marks{0};
}

// The digits p that a digit in this corner may force into both of its neighbours.
Marks ForcedBeside(const OpenRectangle& open, std::size_t corner) {
    return static_cast<Marks>((open.ConfinedInRow(corner) | CanBeBare(open.marks[corner ^ 1])) &
                              (open.ConfinedInColumn(corner) | CanBeBare(open.marks[corner ^ 2])));
}

// The candidates q of this corner that force p into both neighbours and q into the corner across.
Marks DeadlyDigits(const OpenRectangle& open, std::size_t corner, int p) {
    Marks digits = static_cast<Marks>(open.marks[corner] & ~MarkOf(p));
    if (!HasMark(open.ConfinedInRow(corner), p)) {
        digits &= BareBeside(open.marks[corner ^ 1], p);
    }
    if (!HasMark(open.ConfinedInColumn(corner), p)) {
        digits &= BareBeside(open.marks[corner ^ 2], p);
    }
    const std::size_t across = corner ^ 3;
    return static_cast<Marks>(digits & (open.ConfinedInRow(across) | open.ConfinedInColumn(across) |
                                        BareBeside(open.marks[across], p)));
}

// The digit q in this corner would force p into both neighbours.
struct Hidden {
    std::size_t corner;
    int p;
    int q;
};

// The find holds the corner across, the neighbours in the row and in the column, the corner
// itself; the units that force the neighbour in the row, the one in the column, the corner across:
// none for a bare one.
bool OfferHidden(const Confinement& confinement, const OpenRectangle& open, const Hidden& hidden,
                 FindSink& sink) {
    const auto [corner, p, q] = hidden;
    const Grid& grid = confinement.Cells();
    const std::array<int, 4> cells = {open.corners[corner ^ 3], open.corners[corner ^ 1],
                                      open.corners[corner ^ 2], open.corners[corner]};
    const auto& [across, inRow, inColumn, own] = cells;
    const Marks pair = MarkOf(p) | MarkOf(q);
    std::optional<Find> find =
        UniqueRectangleFind(grid, UniqueType::Hidden, cells, pair, CellSet::Of(own), MarkOf(q));
    if (!find) {
        return true;
    }
    const auto addUnit = [&](int cell, std::optional<int> unit) {
        const bool isBare = (grid.MarksAt(cell) & ~pair) == 0;
        if (!isBare && unit) {
            find->AddUnit(*unit);
        }
    };
    addUnit(inRow, confinement.UnitOf(p, own, inRow));
    addUnit(inColumn, confinement.UnitOf(p, own, inColumn));
    const std::optional<int> unit = confinement.UnitOf(q, across, inColumn);
    addUnit(across, unit ? unit : confinement.UnitOf(q, across, inRow));
    return sink.Offer(*find);
}

// By p, then corner, the digits that go; answers whether there are any.
using Deadly = std::array<std::array<Marks, 4>, kDigits + 1>;

bool FindDeadly(const OpenRectangle& open, Deadly& deadly) {
    bool any = false;
    for (std::size_t corner = 0; corner < 4; ++corner) {
        for (int p : DigitsOf(ForcedBeside(open, corner))) {
            const Marks digits = DeadlyDigits(open, corner, p);
            deadly[static_cast<std::size_t>(p)][corner] = digits;
            any |= digits != 0;
        }
    }
    return any;
}

// The form that is seen most easily: the corner across is bare, units force both neighbours.
bool IsUsual(const OpenRectangle& open, const Hidden& hidden) {
    const auto& [corner, p, q] = hidden;
    const Marks pair = MarkOf(p) | MarkOf(q);
    return (open.marks[corner ^ 3] & ~pair) == 0 &&
           HasMark(open.ConfinedInRow(corner) & open.ConfinedInColumn(corner), p);
}

bool OfferPair(const Confinement& confinement, const OpenRectangle& open, const Deadly& deadly,
               int a, int b, FindSink& sink) {
    for (bool isUsual : {true, false}) {
        for (std::size_t at = 0; at < 8; ++at) {
            const Hidden hidden{at % 4, at < 4 ? a : b, at < 4 ? b : a};
            const Marks going = deadly[static_cast<std::size_t>(hidden.p)][hidden.corner];
            if (HasMark(going, hidden.q) && IsUsual(open, hidden) == isUsual &&
                !OfferHidden(confinement, open, hidden, sink)) {
                return false;
            }
        }
    }
    return true;
}

bool OfferDeadly(const Confinement& confinement, const OpenRectangle& open, const Deadly& deadly,
                 FindSink& sink) {
    for (int a = 1; a <= kDigits; ++a) {
        for (int b = a + 1; b <= kDigits; ++b) {
            if (!OfferPair(confinement, open, deadly, a, b, sink)) {
                return false;
            }
        }
    }
    return true;
}

// "only twice in row J"; "only once" where one of the two corners has lost the digit.
std::string OnlyIn(const Find& find, int digit, const Unit& unit) {
    const auto isPlace = [&](CellDigit at) { return at.digit == digit && unit.set.Has(at.cell); };
    const bool isTwice = std::ranges::count_if(find.firstColor, isPlace) == 2;
    return (isTwice ? "only twice" : "only once") + UnitInHint(unit);
}

// The unit of the find that holds these two of its cells.
const Unit* UnitWith(const Find& find, std::size_t one, std::size_t other) {
    for (std::size_t k = 0; k < find.units.Size(); ++k) {
        const CellSet cells = find.UnitAt(k).set;
        if (cells.Has(find.cells[one]) && cells.Has(find.cells[other])) {
            return &find.UnitAt(k);
        }
    }
    return nullptr;
}

}  // namespace

// Were q in one corner, p would come to both of its neighbours and q to the corner across: q goes.
// A neighbour gets p because it is bare or because p stands, in a unit of it and the first corner,
// in these two alone; the corner across gets q likewise, in a unit of it and a neighbour.
//
// By rectangle, then digit pair; the usual form, with the corner across bare and both neighbours
// forced by units, before any other; the lower digit as p before the higher one; the corner in
// reading order.
bool SearchHiddenRectangles(const Confinement& confinement, FindSink& sink) {
    for (const Rectangle& rectangle : kRectangles) {
        if (!confinement.Cells().EmptyCells().Contains(rectangle.cells)) {
            continue;
        }
        const OpenRectangle open = Opened(confinement, rectangle);
        Deadly deadly{};
        if (FindDeadly(open, deadly) && !OfferDeadly(confinement, open, deadly, sink)) {
            return false;
        }
    }
    return true;
}

std::string HiddenRectangleHint(const Find& find) {
    const std::string pair = JoinDigits(Items(find.digits));
    const int q = find.removals[0].digit;
    const int p = find.digits[0] == q ? find.digits[1] : find.digits[0];
    std::vector<std::string> places;
    CellSet bare;
    for (std::size_t neighbour : {1u, 2u}) {
        if (const Unit* unit = UnitWith(find, neighbour, 3)) {
            places.push_back(OnlyIn(find, p, *unit));
        } else {
            bare.Add(find.cells[neighbour]);
        }
    }
    std::vector<std::string> reasons;
    if (!places.empty()) {
        reasons.push_back("number " + std::to_string(p) + " appears " + Join(places));
    }
    if (bare.Any()) {
        reasons.push_back(CellsInHint(bare) + " can only be " +
                          JoinDigits(Items(find.digits), " or "));
    }
    for (std::size_t neighbour : {1u, 2u}) {
        if (const Unit* unit = UnitWith(find, 0, neighbour)) {
            reasons.push_back("number " + std::to_string(q) + " appears " + OnlyIn(find, q, *unit));
        }
    }
    return "HIDDEN UNIQUE RECTANGLE: Since " + Join(reasons) + ", number " + std::to_string(q) +
           " at cell " + CellName(find.cells[3]) + " would fill the cells " + JoinCorners(find) +
           " with only " + pair + " and give two solutions, so it can be discarded";
}

}  // namespace vemo
