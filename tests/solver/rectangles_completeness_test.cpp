// Unique and avoidable rectangles overlook none and find nothing else, type by type.
#include <algorithm>
#include <array>
#include <set>
#include <utility>
#include <vector>

#include "solver/completeness.h"

namespace vemo {
namespace {

using namespace test;

constexpr std::size_t kTypes = 5;

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
    static const auto kUnitCells = [] {
        std::vector<CellSet> cells;
        for (int unit = 0; unit < 27; ++unit) {
            cells.push_back(CellsOf(unit));
        }
        return cells;
    }();
    std::vector<CellSet> units;
    for (const CellSet& cells : kUnitCells) {
        if (cells.Has(one) && cells.Has(other)) {
            units.push_back(cells);
        }
    }
    return units;
}

CellSet SeenByBoth(int one, int other) {
    CellSet seen;
    for (int cell = 0; cell < kCells; ++cell) {
        const bool isOther = cell != one && cell != other;
        if (isOther && !UnitsWith(cell, one).empty() && !UnitsWith(cell, other).empty()) {
            seen.Add(cell);
        }
    }
    return seen;
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
            Put(all, Removals(view.grid, SeenByBoth(roof[0], roof[1]), extras));
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

using TypeRule = void (*)(const View&, EffectSet&);
constexpr std::array<TypeRule, kTypes> kTypeRules = {PutType1, PutType2, PutType3, PutType4,
                                                     PutHidden};

std::array<EffectSet, kTypes> UniqueRectangles(const Grid& grid) {
    static const std::vector<Corners> kCorners = AllCorners();
    std::array<EffectSet, kTypes> all;
    for (const Corners& corners : kCorners) {
        const auto isOpen = [&](int cell) { return grid.Digit(cell) == 0; };
        if (!std::ranges::all_of(corners, isOpen)) {
            continue;
        }
        for (int pair = 0; pair < 100; ++pair) {
            const View view{grid, corners, pair / 10, pair % 10};
            if (view.a == 0 || view.a >= view.b) {
                continue;
            }
            for (std::size_t type = 0; type < kTypes; ++type) {
                kTypeRules[type](view, all[type]);
            }
        }
    }
    return all;
}

// Keeps what the finds of each type do.
class ByType final : public FindSink {
  public:
    bool Offer(const Find& find) override {
        Effects effects;
        for (const auto& [cell, digit] : find.removals) {
            effects.emplace_back(cell, digit);
        }
        found.at(static_cast<std::size_t>(find.variant - 1)).insert(effects);
        return true;
    }

    std::array<EffectSet, kTypes> found;
};

std::array<EffectSet, kTypes> FoundByType(const Grid& grid) {
    ByType sink;
    Solver(grid).Search(StepOfSlot(24), sink);
    return sink.found;
}

// How many positions are still wanted, by type: without a find, and with one.
struct Wanted {
    std::array<std::array<int, 2>, kTypes> counts;

    // Answers whether the position is wanted for any type.
    bool Take(const std::array<EffectSet, kTypes>& found) {
        bool isWanted = false;
        for (std::size_t type = 0; type < kTypes; ++type) {
            int& count = counts[type][found[type].empty() ? 0 : 1];
            isWanted |= count > 0;
            count -= count > 0 ? 1 : 0;
        }
        return isWanted;
    }
};

TEST(UniqueRectangle, EachTypeFindsWhatItsDefinitionHolds) {
    Wanted wanted;
    wanted.counts.fill({50, 50});
    const Wanted none{};
    PositionsOfCorpus corpus;
    WildPositions wild;
    for (int tried = 0; tried < 4000 && wanted.counts != none.counts; ++tried) {
        const Grid grid = tried % 2 == 0 ? corpus.Next().grid : wild.Next();
        if (!wanted.Take(FoundByType(grid))) {
            continue;
        }
        for (int orientation = 0; orientation < 8; ++orientation) {
            const Grid turned = Orientation(orientation).Moved(grid);
            ASSERT_EQ(FoundByType(turned), UniqueRectangles(turned));
        }
    }
    EXPECT_EQ(wanted.counts, none.counts);
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
            Put(all, Removals(grid, SeenByBoth(halves.roof[0], halves.roof[1]), 1u << x));
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

TEST(AvoidableRectangle, FindsWhatItsDefinitionHolds) {
    ExpectComplete(StepOfSlot(25), AvoidableRectangles);
}

}  // namespace
}  // namespace vemo
