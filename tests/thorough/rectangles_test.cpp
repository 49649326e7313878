// Unique and avoidable rectangles overlook none and find nothing else, type by type.
#include <algorithm>
#include <array>
#include <set>
#include <utility>
#include <vector>

#include "thorough/completeness.h"

namespace vemo {
namespace {

using namespace test;

// Four corners: the second shares the first one's row, the third its column; the fourth is across.
using Corners = std::array<int, 4>;

std::vector<Corners> AllCorners() {
    std::vector<Corners> all;
    for (int first = 0; first < kCells; ++first) {
        for (int last = first + 1; last < kCells; ++last) {
            const int inRow = first / 9 * 9 + last % 9;
            const int inColumn = last / 9 * 9 + first % 9;
            std::set<int> boxes;
            for (int cell : {first, last, inRow, inColumn}) {
                boxes.insert(cell / 27 * 3 + cell % 9 / 3);
            }
            if (first % 9 < last % 9 && first / 9 < last / 9 && boxes.size() == 2) {
                all.push_back({first, inRow, inColumn, last});
            }
        }
    }
    return all;
}

// Each of the four ways to look at a rectangle with one corner as the first.
std::array<Corners, 4> FromEachCorner(const Corners& at) {
    return {{{at[0], at[1], at[2], at[3]},
             {at[1], at[0], at[3], at[2]},
             {at[2], at[3], at[0], at[1]},
             {at[3], at[2], at[1], at[0]}}};
}

// Two corners that are neighbours, the floor, and the other two.
struct Halves {
    std::array<int, 2> floor;
    std::array<int, 2> roof;
};
std::array<Halves, 4> FromEachSide(const Corners& at) {
    return {{{{at[0], at[1]}, {at[2], at[3]}},
             {{at[2], at[3]}, {at[0], at[1]}},
             {{at[0], at[2]}, {at[1], at[3]}},
             {{at[1], at[3]}, {at[0], at[2]}}}};
}

std::vector<CellSet> UnitsWith(int one, int other) {
    std::vector<CellSet> units;
    for (int unit = 0; unit < 27; ++unit) {
        if (CellsOf(unit).Has(one) && CellsOf(unit).Has(other)) {
            units.push_back(CellsOf(unit));
        }
    }
    return units;
}

// A rectangle of open cells with two digits.
struct View {
    const Grid& grid;
    Corners corners;
    int a;
    int b;

    unsigned Pair() const { return 1u << a | 1u << b; }
    unsigned Extras(int cell) const { return grid.MarksAt(cell) & ~Pair(); }
    bool IsBare(int cell) const { return Extras(cell) == 0; }
    // In some unit of both cells the digit stands in these alone.
    bool StandsOnlyIn(int digit, int one, int other) const {
        for (const CellSet& unit : UnitsWith(one, other)) {
            const CellSet holders = Holders(grid, unit, digit);
            if (holders.Any() && (CellSet::Of(one) | CellSet::Of(other)).Contains(holders)) {
                return true;
            }
        }
        return false;
    }
};

void PutType1(const View& view, EffectSet& all) {
    for (const Corners& at : FromEachCorner(view.corners)) {
        if (view.IsBare(at[1]) && view.IsBare(at[2]) && view.IsBare(at[3])) {
            Put(all, Removals(view.grid, CellSet::Of(at[0]), view.Pair()));
        }
    }
}

// Floors that are bare, with a roof of which both cells hold something besides the pair.
std::vector<Halves> Houses(const View& view) {
    std::vector<Halves> houses;
    for (const Halves& halves : FromEachSide(view.corners)) {
        if (view.IsBare(halves.floor[0]) && view.IsBare(halves.floor[1]) &&
            !view.IsBare(halves.roof[0]) && !view.IsBare(halves.roof[1])) {
            houses.push_back(halves);
        }
    }
    return houses;
}

void PutType2(const View& view, EffectSet& all) {
    for (const auto& [floor, roof] : Houses(view)) {
        const unsigned extras = view.Extras(roof[0]) | view.Extras(roof[1]);
        if (BitCount(extras) == 1) {
            Put(all, Removals(view.grid, SeenBy(roof[0]) & SeenBy(roof[1]), extras));
        }
    }
}

void PutLocked(const View& view, const std::array<int, 2>& roof, CellSet unit, EffectSet& all) {
    const CellSet others = unit - CellSet::Of(roof[0]) - CellSet::Of(roof[1]);
    std::vector<int> cells;
    for (int cell : others) {
        cells.push_back(cell);
    }
    for (unsigned chosen = 1; chosen < 1u << cells.size(); ++chosen) {
        unsigned locked = view.Extras(roof[0]) | view.Extras(roof[1]);
        CellSet helpers;
        bool areOpen = true;
        for (std::size_t k = 0; k < cells.size(); ++k) {
            if ((chosen >> k & 1) != 0) {
                helpers.Add(cells[k]);
                locked |= view.grid.MarksAt(cells[k]);
                areOpen = areOpen && view.grid.Digit(cells[k]) == 0;
            }
        }
        const int count = helpers.Count();
        if (areOpen && count <= 4 && BitCount(locked) == count + 1) {
            Put(all, Removals(view.grid, others - helpers, locked));
        }
    }
}

void PutType3(const View& view, EffectSet& all) {
    for (const auto& [floor, roof] : Houses(view)) {
        for (const CellSet& unit : UnitsWith(roof[0], roof[1])) {
            PutLocked(view, roof, unit, all);
        }
    }
}

void PutType4(const View& view, EffectSet& all) {
    for (const auto& [floor, roof] : Houses(view)) {
        const CellSet both = CellSet::Of(roof[0]) | CellSet::Of(roof[1]);
        if (view.StandsOnlyIn(view.a, roof[0], roof[1])) {
            Put(all, Removals(view.grid, both, 1u << view.b));
        }
        if (view.StandsOnlyIn(view.b, roof[0], roof[1])) {
            Put(all, Removals(view.grid, both, 1u << view.a));
        }
    }
}

void PutHidden(const View& view, EffectSet& all) {
    for (const Corners& at : FromEachCorner(view.corners)) {
        for (const auto& [p, q] : {std::pair(view.a, view.b), std::pair(view.b, view.a)}) {
            const auto isForced = [&](int corner, int digit, int neighbour) {
                return view.IsBare(corner) || view.StandsOnlyIn(digit, corner, neighbour);
            };
            if (view.grid.KnopAan(at[0], q) && isForced(at[1], p, at[0]) &&
                isForced(at[2], p, at[0]) &&
                (isForced(at[3], q, at[1]) || isForced(at[3], q, at[2]))) {
                Put(all, {{at[0], q}});
            }
        }
    }
}

// A type by its rule.
template <void (*kPutType)(const View&, EffectSet&)>
EffectSet UniqueRectangles(const Grid& grid) {
    static const std::vector<Corners> kCorners = AllCorners();
    EffectSet all;
    for (const Corners& corners : kCorners) {
        const auto isOpen = [&](int cell) { return grid.Digit(cell) == 0; };
        if (!std::ranges::all_of(corners, isOpen)) {
            continue;
        }
        for (int a = 1; a <= kDigits; ++a) {
            for (int b = a + 1; b <= kDigits; ++b) {
                kPutType({grid, corners, a, b}, all);
            }
        }
    }
    return all;
}

// The last corner is open: with this digit the four would hold two digits.
void PutLastCorner(const Grid& grid, const Corners& at, EffectSet& all) {
    const bool areFilled = grid.Digit(at[1]) != 0 && grid.Digit(at[2]) != 0 &&
                           grid.Digit(at[3]) != 0 && grid.Digit(at[0]) == 0;
    if (areFilled && grid.Digit(at[1]) == grid.Digit(at[2])) {
        Put(all, Removals(grid, CellSet::Of(at[0]), 1u << grid.Digit(at[3])));
    }
}

// Two neighbours are filled; the open corner beside each holds the other's digit and x.
void PutOpenSide(const Grid& grid, const Halves& halves, EffectSet& all) {
    const int a = grid.Digit(halves.floor[0]);
    const int b = grid.Digit(halves.floor[1]);
    for (int x = 1; x <= kDigits; ++x) {
        const bool isExtra = a != 0 && b != 0 && x != a && x != b;
        if (isExtra && grid.MarksAt(halves.roof[0]) == (1u << b | 1u << x) &&
            grid.MarksAt(halves.roof[1]) == (1u << a | 1u << x)) {
            Put(all, Removals(grid, SeenBy(halves.roof[0]) & SeenBy(halves.roof[1]), 1u << x));
        }
    }
}

EffectSet AvoidableRectangles(const Grid& grid) {
    static const std::vector<Corners> kCorners = AllCorners();
    EffectSet all;
    for (const Corners& corners : kCorners) {
        const auto isClue = [&](int cell) { return grid.IsGiven(cell); };
        if (std::ranges::any_of(corners, isClue)) {
            continue;
        }
        for (const Corners& at : FromEachCorner(corners)) {
            PutLastCorner(grid, at, all);
        }
        for (const Halves& halves : FromEachSide(corners)) {
            PutOpenSide(grid, halves, all);
        }
    }
    return all;
}

template <int kType>
Step StepOfType() {
    return StepFor<UniqueRectangle, HintKind::UniqueRectangle, kType>();
}

TEST(Rectangles, EachTypeIsFoundWhereItsDefinitionHolds) {
    const Enumerator rows[] = {{"Type1", StepOfType<1>(), UniqueRectangles<PutType1>},
                               {"Type2", StepOfType<2>(), UniqueRectangles<PutType2>},
                               {"Type3", StepOfType<3>(), UniqueRectangles<PutType3>},
                               {"Type4", StepOfType<4>(), UniqueRectangles<PutType4>},
                               {"Hidden", StepOfType<5>(), UniqueRectangles<PutHidden>},
                               {"Avoidable", StepOfSlot(25), AvoidableRectangles}};
    ExpectComplete(rows);
}

}  // namespace
}  // namespace vemo
