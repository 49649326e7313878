// No step overlooks a find: each against an enumeration written straight from its definition,
// slow and plain, on positions of the corpus in all eight orientations.
#include <algorithm>
#include <functional>
#include <set>

#include <gtest/gtest.h>

#include "solver/patterns.h"
#include "solver/positions.h"

namespace vemo {
namespace {

using namespace test;

// What a find does: the placements, then the removals, as (cell, digit).
using Effects = std::vector<std::pair<int, int>>;
using EffectSet = std::set<Effects>;

using Cells = std::vector<int>;

Cells CellsOf(int unit) {
    Cells cells;
    for (int cell = 0; cell < kCells; ++cell) {
        const int box = cell / 27 * 3 + cell % 9 / 3;
        if (unit == cell / 9 || unit == 9 + cell % 9 || unit == 18 + box) {
            cells.push_back(cell);
        }
    }
    return cells;
}
bool IsBox(int unit) {
    return unit >= 18;
}

Cells Holders(const Grid& grid, const Cells& cells, int digit) {
    Cells holders;
    std::ranges::copy_if(cells, std::back_inserter(holders),
                         [&](int cell) { return grid.KnopAan(cell, digit); });
    return holders;
}
bool Has(const Cells& cells, int cell) {
    return std::ranges::count(cells, cell) != 0;
}

// The candidates of `digits` in `cells` that are not in `kept`.
Effects Removals(const Grid& grid, const Cells& cells, const Cells& kept,
                 const std::vector<int>& digits) {
    Effects effects;
    for (int cell : cells) {
        for (int digit : digits) {
            if (!Has(kept, cell) && grid.KnopAan(cell, digit)) {
                effects.emplace_back(cell, digit);
            }
        }
    }
    return effects;
}

EffectSet HiddenSingles(const Grid& grid) {
    EffectSet all;
    for (int unit = 0; unit < 27; ++unit) {
        for (int digit = 1; digit <= 9; ++digit) {
            const Cells holders = Holders(grid, CellsOf(unit), digit);
            if (holders.size() == 1) {
                all.insert({{holders[0], digit}});
            }
        }
    }
    return all;
}

EffectSet NakedSingles(const Grid& grid) {
    EffectSet all;
    for (int cell = 0; cell < kCells; ++cell) {
        Effects digits;
        for (int digit = 1; digit <= 9; ++digit) {
            if (grid.KnopAan(cell, digit)) {
                digits.emplace_back(cell, digit);
            }
        }
        if (digits.size() == 1) {
            all.insert(digits);
        }
    }
    return all;
}

// All places of a digit in one unit lie in a second one, of which just one of the two is a box.
EffectSet Intersections(const Grid& grid, bool fromBox) {
    EffectSet all;
    for (int from = 0; from < 27; ++from) {
        const Cells source = CellsOf(from);
        for (int to = 0; to < 27; ++to) {
            const Cells target = CellsOf(to);
            for (int digit = 1; digit <= 9 && IsBox(from) == fromBox && IsBox(to) != fromBox;
                 ++digit) {
                const Cells holders = Holders(grid, source, digit);
                const bool within =
                    std::ranges::all_of(holders, [&](int cell) { return Has(target, cell); });
                if (!holders.empty() && within) {
                    all.insert(Removals(grid, target, source, {digit}));
                }
            }
        }
    }
    return all;
}

std::vector<int> DigitsOf(unsigned set) {
    std::vector<int> digits;
    for (int digit = 1; digit <= 9; ++digit) {
        if ((set >> digit & 1) != 0) {
            digits.push_back(digit);
        }
    }
    return digits;
}

// Just `size` cells of a unit hold nothing but the digits, and something.
Effects NakedSubset(const Grid& grid, const Cells& unit, const std::vector<int>& digits) {
    Cells subset;
    for (int cell : unit) {
        int within = 0;
        int other = 0;
        for (int digit = 1; digit <= 9; ++digit) {
            const bool isOne = std::ranges::count(digits, digit) != 0;
            (isOne ? within : other) += grid.KnopAan(cell, digit) ? 1 : 0;
        }
        if (within > 0 && other == 0) {
            subset.push_back(cell);
        }
    }
    return subset.size() == digits.size() ? Removals(grid, unit, subset, digits) : Effects();
}

// The digits, each of which has a place, have just `size` cells of a unit between them.
Effects HiddenSubset(const Grid& grid, const Cells& unit, const std::vector<int>& digits) {
    std::set<int> places;
    for (int digit : digits) {
        const Cells holders = Holders(grid, unit, digit);
        if (holders.empty()) {
            return {};
        }
        places.insert(holders.begin(), holders.end());
    }
    std::vector<int> others;
    for (int digit = 1; digit <= 9; ++digit) {
        if (std::ranges::count(digits, digit) == 0) {
            others.push_back(digit);
        }
    }
    return places.size() == digits.size()
               ? Removals(grid, Cells(places.begin(), places.end()), {}, others)
               : Effects();
}

using SubsetRule = Effects (*)(const Grid&, const Cells&, const std::vector<int>&);

EffectSet Subsets(const Grid& grid, SubsetRule rule, std::size_t size) {
    EffectSet all;
    for (int unit = 0; unit < 27; ++unit) {
        const Cells cells = CellsOf(unit);
        for (unsigned set = 2; set <= 1022; set += 2) {
            const std::vector<int> digits = DigitsOf(set);
            if (digits.size() == size) {
                all.insert(rule(grid, cells, digits));
            }
        }
    }
    return all;
}

struct Enumerator {
    const char* name;
    StepRow step;
    std::function<EffectSet(const Grid&)> all;
};
void PrintTo(const Enumerator& row, std::ostream* out) {
    *out << row.name;
}

const Enumerator kEnumerators[] = {
    {"HiddenSingle", kHiddenSingle, HiddenSingles},
    {"NakedSingle", kNakedSingle, NakedSingles},
    {"PointingPair", kPointingPair, [](const Grid& grid) { return Intersections(grid, true); }},
    {"BoxLine", kBoxLine, [](const Grid& grid) { return Intersections(grid, false); }},
    {"NakedPair", kNakedPair, [](const Grid& grid) { return Subsets(grid, NakedSubset, 2); }},
    {"NakedTriple", kNakedTriple, [](const Grid& grid) { return Subsets(grid, NakedSubset, 3); }},
    {"HiddenPair", kHiddenPair, [](const Grid& grid) { return Subsets(grid, HiddenSubset, 2); }},
    {"NakedQuad", kNakedQuad, [](const Grid& grid) { return Subsets(grid, NakedSubset, 4); }},
    {"HiddenTriple", kHiddenTriple,
     [](const Grid& grid) { return Subsets(grid, HiddenSubset, 3); }},
    {"NakedQuint", kNakedQuint, [](const Grid& grid) { return Subsets(grid, NakedSubset, 5); }},
};

EffectSet FoundBy(const Step& step, const Grid& grid) {
    EffectSet found;
    for (const Find& find : SearchAll(step, grid)) {
        Effects effects;
        for (const auto& [cell, digit] : find.placements) {
            effects.emplace_back(cell, digit);
        }
        for (const auto& [cell, digit] : find.removals) {
            effects.emplace_back(cell, digit);
        }
        found.insert(effects);
    }
    return found;
}

class Completeness : public testing::TestWithParam<Enumerator> {};

TEST_P(Completeness, TheStepFindsWhatItsDefinitionHolds) {
    constexpr int kWanted = 50;
    int with = 0;
    int without = 0;
    PositionsOfCorpus positions;
    for (int tried = 0; tried < 5000 && (with < kWanted || without < kWanted); ++tried) {
        const Grid grid = positions.Next().grid;
        const bool any = SearchFirst(StepAt(GetParam().step), grid).any;
        if (grid.EmptyCount() < 10 || (any ? with : without) >= kWanted) {
            continue;
        }
        ++(any ? with : without);
        for (int orientation = 0; orientation < 8; ++orientation) {
            const Grid turned = Orientation(orientation).Moved(grid);
            EffectSet expected = GetParam().all(turned);
            expected.erase(Effects());
            ASSERT_EQ(FoundBy(StepAt(GetParam().step), turned), expected);
        }
    }
    EXPECT_EQ(with, kWanted);
    EXPECT_EQ(without, kWanted);
}

INSTANTIATE_TEST_SUITE_P(Steps, Completeness, testing::ValuesIn(kEnumerators),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace vemo
