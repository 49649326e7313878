// Unique rectangles: the searches of types 1 to 4, and the texts of all types.
#include <array>
#include <bit>
#include <span>
#include <utility>

#include "solver/techniques/families.h"
#include "solver/techniques/rectangles.h"
#include "solver/text.h"

namespace vemo {
namespace {

// A side of a rectangle of open cells whose two corners, the floor, hold the two digits of `pair`
// between them and no other. roof[k] is the neighbour of floor[k].
struct BareSide {
    std::array<std::uint8_t, 2> floor;
    std::array<std::uint8_t, 2> roof;
    Marks pair;

    CellSet Roof() const { return CellSet::Of(roof[0]) | CellSet::Of(roof[1]); }
    std::array<int, 4> Corners() const { return {floor[0], floor[1], roof[0], roof[1]}; }
    BareSide Turned() const { return {{floor[1], floor[0]}, {roof[1], roof[0]}, pair}; }
    bool IsRow() const { return CellRow(floor[0]) == CellRow(floor[1]); }
};

using BareSides = Sequence<BareSide, 4 * kRectangleCount>;

BareSide SideOf(const Grid& grid, const Rectangle& rectangle, const Side& side) {
    const auto cellOf = [&](std::size_t corner) {
        return static_cast<std::uint8_t>(rectangle.corners[corner]);
    };
    BareSide bare{};
    for (std::size_t k = 0; k < 2; ++k) {
        bare.floor[k] = cellOf(side.corners[k]);
        bare.roof[k] = cellOf(side.facing[k]);
        bare.pair |= grid.MarksAt(bare.floor[k]);
    }
    return bare;
}

// Pairs of digits by the lower, then the higher one.
constexpr int PairOrder(Marks pair) {
    return FirstDigit(pair) * (kDigits + 1) + std::bit_width(pair);
}

// Keeps the order of sides of the same pair; four at most are inserted faster than sorted.
void SortByPair(std::span<BareSide> sides) {
    for (std::size_t k = 1; k < sides.size(); ++k) {
        for (std::size_t at = k;
             at > 0 && PairOrder(sides[at].pair) < PairOrder(sides[at - 1].pair); --at) {
            std::swap(sides[at], sides[at - 1]);
        }
    }
}

// By rectangle, then digit pair, then side.
BareSides BareSidesOf(const Grid& grid) {
    BareSides all;
    for (const Rectangle& rectangle : kRectangles) {
        if (!grid.EmptyCells().Contains(rectangle.cells)) {
            continue;
        }
        std::array<BareSide, kSides.size()> sides;
        std::size_t count = 0;
        for (const Side& side : kSides) {
            const BareSide bare = SideOf(grid, rectangle, side);
            if (BitCount(bare.pair) == 2) {
                sides[count++] = bare;
            }
        }
        SortByPair({sides.data(), count});
        for (std::size_t k = 0; k < count; ++k) {
            all.Add(sides[k]);
        }
    }
    return all;
}

Marks Extras(const Grid& grid, const BareSide& side, std::size_t k) {
    return static_cast<Marks>(grid.MarksAt(side.roof[k]) & ~side.pair);
}
bool BothHaveExtras(const Grid& grid, const BareSide& side) {
    return Extras(grid, side, 0) != 0 && Extras(grid, side, 1) != 0;
}

std::optional<Find> FindOn(const Grid& grid, const BareSide& side, UniqueType type, CellSet from,
                           Marks going) {
    return UniqueRectangleFind(grid, type, side.Corners(), side.pair, from, going);
}

// Three corners are bare: the fourth, the last of the find's corners, holds neither digit.
bool OfferType1(const Confinement& confinement, const BareSide& side, FindSink& sink) {
    const Grid& grid = confinement.Cells();
    // Of three corners two are a row: the columns would find the same again.
    if (!side.IsRow()) {
        return true;
    }
    for (const BareSide& either : {side, side.Turned()}) {
        if (Extras(grid, either, 0) != 0) {
            continue;
        }
        const CellSet fourth = CellSet::Of(either.roof[1]);
        const auto find = FindOn(grid, either, UniqueType::Type1, fourth, either.pair);
        if (find && !sink.Offer(*find)) {
            return false;
        }
    }
    return true;
}

// The roof cells have the same one extra digit: one of them is it, so it goes from the cells that
// see both.
bool OfferType2(const Confinement& confinement, const BareSide& side, FindSink& sink) {
    const Grid& grid = confinement.Cells();
    const Marks extra = Extras(grid, side, 0);
    if (extra != Extras(grid, side, 1) || BitCount(extra) != 1) {
        return true;
    }
    const auto find = FindOn(grid, side, UniqueType::Type2, CommonPeers(side.Roof()), extra);
    return !find || sink.Offer(*find);
}

constexpr int kMostHelpers = 4;

// The cells of a unit that may lock digits together with the roof.
struct Helpers {
    std::array<int, 7> cells;
    std::size_t count = 0;

    CellSet Chosen(unsigned mask) const {
        CellSet chosen;
        for (std::size_t k = 0; k < count; ++k) {
            if ((mask >> k & 1) != 0) {
                chosen.Add(cells[k]);
            }
        }
        return chosen;
    }
};

Helpers HelpersIn(const Grid& grid, const Unit& unit, const BareSide& side, Marks extras) {
    Helpers helpers;
    const CellSet roof = side.Roof();
    for (int cell : unit.cells) {
        const Marks marks = grid.MarksAt(cell);
        if (marks != 0 && !roof.Has(cell) && BitCount(extras | marks) <= kMostHelpers + 1) {
            helpers.cells[helpers.count++] = cell;
        }
    }
    return helpers;
}

// The find holds the helpers behind the corners, the locked digits behind the pair, and the unit.
bool OfferLocked(const Grid& grid, const BareSide& side, int unitNumber, CellSet helpers,
                 Marks locked, FindSink& sink) {
    const CellSet others = kUnits[static_cast<std::size_t>(unitNumber)].set - side.Roof() - helpers;
    std::optional<Find> find = FindOn(grid, side, UniqueType::Type3, others, locked);
    if (!find) {
        return true;
    }
    find->AddUnit(unitNumber);
    find->AddCells(helpers);
    find->AddDigits(locked);
    for (CellDigit at : Find::CandidatesOf(grid, helpers, kAllMarks)) {
        find->secondColor.push_back(at);
    }
    return sink.Offer(*find);
}

bool OfferType3In(const Grid& grid, const BareSide& side, int unitNumber, FindSink& sink) {
    const Marks extras = static_cast<Marks>(Extras(grid, side, 0) | Extras(grid, side, 1));
    const Unit& unit = kUnits[static_cast<std::size_t>(unitNumber)];
    const Helpers helpers = HelpersIn(grid, unit, side, extras);
    std::array<Marks, 128> unions;  // of the extras and the helpers chosen by the index
    unions[0] = extras;
    const unsigned end = 1u << helpers.count;
    for (unsigned mask = 1; mask < end; ++mask) {
        const int last = helpers.cells[static_cast<std::size_t>(std::countr_zero(mask))];
        unions[mask] = unions[mask & (mask - 1)] | grid.MarksAt(last);
    }
    for (int size = 1; size <= kMostHelpers; ++size) {
        for (unsigned mask = 1; mask < end; ++mask) {
            const bool isLocked = BitCount(mask) == size && BitCount(unions[mask]) == size + 1;
            if (isLocked &&
                !OfferLocked(grid, side, unitNumber, helpers.Chosen(mask), unions[mask], sink)) {
                return false;
            }
        }
    }
    return true;
}

// One of the roof cells takes one of their extra digits. Together with it, m other cells of a unit
// that hold, with these extras, just m + 1 digits use them up: they go from the unit's other cells.
bool OfferType3(const Confinement& confinement, const BareSide& side, FindSink& sink) {
    const Grid& grid = confinement.Cells();
    if (!BothHaveExtras(grid, side)) {
        return true;
    }
    for (int unit : UnitsOfBoth(side.roof[0], side.roof[1])) {
        if (!OfferType3In(grid, side, unit, sink)) {
            return false;
        }
    }
    return true;
}

// A digit p of the pair stands, in some unit, in the roof alone, so that one roof cell is p: the
// other digit goes from both. The find holds the unit.
bool OfferType4(const Confinement& confinement, const BareSide& side, FindSink& sink) {
    const Grid& grid = confinement.Cells();
    if (!BothHaveExtras(grid, side)) {
        return true;
    }
    const Marks lower = MarkOf(FirstDigit(side.pair));
    for (Marks p : {lower, static_cast<Marks>(side.pair - lower)}) {
        const auto unit = confinement.UnitOf(FirstDigit(p), side.roof[0], side.roof[1]);
        if (!unit) {
            continue;
        }
        const Marks q = static_cast<Marks>(side.pair - p);
        std::optional<Find> find = FindOn(grid, side, UniqueType::Type4, side.Roof(), q);
        if (!find) {
            continue;
        }
        find->AddUnit(*unit);
        if (!sink.Offer(*find)) {
            return false;
        }
    }
    return true;
}

bool IsOf(const Find& find, UniqueType type) {
    return find.variant == static_cast<int>(type);
}

// "1 and/or 7": of the digits behind the pair.
std::string LockedInLog(const Find& find) {
    std::string text;
    for (int digit : Items(find.digits).subspan(2)) {
        text += (text.empty() ? "" : " and/or ") + std::to_string(digit);
    }
    return text;
}

std::string JoinPair(const Find& find) {
    return JoinDigits(Items(find.digits).first(2));
}

std::string JoinRoof(const Find& find) {
    return JoinCells(CellSet::Of(find.cells[2]) | CellSet::Of(find.cells[3]));
}

// How the texts of types 1 and 2 go on behind their name.
std::string WouldHoldOnly(const Find& find) {
    return "Since the cells " + JoinCorners(find) + " would otherwise all hold only " +
           JoinPair(find) + " and the sudoku would have two solutions, ";
}

std::string Type1Hint(const Find& find) {
    return "UNIQUE RECTANGLE TYPE 1: " + WouldHoldOnly(find) +
           JoinDigits(MarksOf(Items(find.removals))) + " can be discarded from cell " +
           CellName(find.cells[3]);
}

std::string Type2Hint(const Find& find) {
    return "UNIQUE RECTANGLE TYPE 2: " + WouldHoldOnly(find) + "one of the cells " +
           JoinRoof(find) + " must be " + std::to_string(find.removals[0].digit) +
           ", which can't be in any other cell that sees both";
}

std::string Type3Hint(const Find& find) {
    Marks extras = 0;
    for (const auto& [cell, digit] : find.secondColor) {
        extras |= CornersOf(find).Has(cell) ? MarkOf(digit) : Marks{0};
    }
    const CellSet helpers = CellsOf(Items(find.cells).subspan(4));
    return "UNIQUE RECTANGLE TYPE 3: Since one of the cells " + JoinRoof(find) +
           " must hold a number other than " + JoinPair(find) +
           ", these cells count as one cell with candidates " + JoinDigits(extras) +
           " that together with " + CellsInHint(helpers) + " locks the numbers " +
           JoinDigits(Items(find.digits).subspan(2)) + UnitInHint(find.UnitAt(0));
}

std::string Type4Hint(const Find& find) {
    const int q = find.removals[0].digit;
    const int p = find.digits[0] == q ? find.digits[1] : find.digits[0];
    return "UNIQUE RECTANGLE TYPE 4: Since number " + std::to_string(p) +
           UnitInHint(find.UnitAt(0)) + " appears only in cells " + JoinRoof(find) + ", number " +
           std::to_string(q) + " there would complete the cells " + JoinCorners(find) +
           " with only " + JoinPair(find) + " and give two solutions, so " + std::to_string(q) +
           " can be discarded from both";
}

}  // namespace

// Four open corners on two rows and two columns in exactly two boxes: were they to hold just two
// digits, these could change places, and the sudoku would have two solutions. A corner is bare when
// it holds none but these two, be it that it has lost one of them.
//
// Type by type, 1 to 4, then the hidden ones; within a type by row pair, column pair and digit
// pair; floors at the top, at the bottom, left, right. Type 3 by unit, then by the number of
// helpers, then by the helpers with the last one of the unit counting most. Type 4 with the lower
// digit as the confined one first.
void UniqueRectangle(const Position& position, const Args&, FindSink& sink) {
    const Grid& grid = position.Cells();
    const Confinement confinement(grid);
    const BareSides sides = BareSidesOf(grid);
    for (auto offer : {OfferType1, OfferType2, OfferType3, OfferType4}) {
        for (const BareSide& side : sides) {
            if (!offer(confinement, side, sink)) {
                return;
            }
        }
    }
    SearchHiddenRectangles(confinement, sink);
}

std::string UniqueRectangleLog(const Find& find) {
    if (IsOf(find, UniqueType::Type3)) {
        return "Unique Rectangle: Type 3 => Removed candidates " + LockedInLog(find) +
               " from cells" + SpacedCells(Items(find.removals));
    }
    const std::string name =
        IsOf(find, UniqueType::Hidden)
            ? "Hidden Unique Rectangle: Cells "
            : "Unique Rectangle: Type " + std::to_string(find.variant) + " cells ";
    return name + JoinCorners(find) + RemovedInLog(find);
}

std::string UniqueRectangleHint(const Find& find) {
    switch (static_cast<UniqueType>(find.variant)) {
    case UniqueType::Type1:
        return Type1Hint(find);
    case UniqueType::Type2:
        return Type2Hint(find);
    case UniqueType::Type3:
        return Type3Hint(find);
    case UniqueType::Type4:
        return Type4Hint(find);
    case UniqueType::Hidden:
        return HiddenRectangleHint(find);
    }
    return {};
}

}  // namespace vemo
