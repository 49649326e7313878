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

// Unit 0..26: rows, columns, boxes.
CellSet CellsOf(int unit) {
    CellSet cells;
    for (int cell = 0; cell < kCells; ++cell) {
        const int box = cell / 27 * 3 + cell % 9 / 3;
        if (unit == cell / 9 || unit == 9 + cell % 9 || unit == 18 + box) {
            cells.Add(cell);
        }
    }
    return cells;
}
bool IsBox(int unit) {
    return unit >= 18;
}

CellSet Holders(const Grid& grid, CellSet cells, int digit) {
    CellSet holders;
    for (int cell : cells) {
        if (grid.KnopAan(cell, digit)) {
            holders.Add(cell);
        }
    }
    return holders;
}

// The candidates of `digits` in the cells.
Effects Removals(const Grid& grid, CellSet cells, unsigned digits) {
    Effects effects;
    for (int cell : cells) {
        for (int digit = 1; digit <= 9; ++digit) {
            if ((digits >> digit & 1) != 0 && grid.KnopAan(cell, digit)) {
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
            const CellSet holders = Holders(grid, CellsOf(unit), digit);
            if (holders.Count() == 1) {
                all.insert({{holders.First(), digit}});
            }
        }
    }
    return all;
}

EffectSet NakedSingles(const Grid& grid) {
    EffectSet all;
    for (int cell = 0; cell < kCells; ++cell) {
        const Effects candidates = Removals(grid, CellSet::Of(cell), kAllMarks);
        if (candidates.size() == 1) {
            all.insert(candidates);
        }
    }
    return all;
}

// All places of a digit in one unit lie in a second one, of which just one of the two is a box.
EffectSet Intersections(const Grid& grid, bool fromBox) {
    EffectSet all;
    for (int pair = 0; pair < 27 * 27; ++pair) {
        const int from = pair / 27;
        const int to = pair % 27;
        if (IsBox(from) != fromBox || IsBox(to) == fromBox) {
            continue;
        }
        for (int digit = 1; digit <= 9; ++digit) {
            const CellSet holders = Holders(grid, CellsOf(from), digit);
            if (holders.Any() && CellsOf(to).Contains(holders)) {
                all.insert(Removals(grid, CellsOf(to) - CellsOf(from), 1u << digit));
            }
        }
    }
    return all;
}

// As many cells of a unit as there are digits hold nothing but these, and something.
Effects NakedSubset(const Grid& grid, CellSet unit, unsigned digits) {
    CellSet subset;
    for (int cell : unit) {
        const unsigned marks = grid.MarksAt(cell);
        if (marks != 0 && (marks & ~digits) == 0) {
            subset.Add(cell);
        }
    }
    return subset.Count() == BitCount(digits) ? Removals(grid, unit - subset, digits) : Effects();
}

// The digits, each of which has a place, have as many cells of a unit between them as they are.
Effects HiddenSubset(const Grid& grid, CellSet unit, unsigned digits) {
    CellSet places;
    for (int digit = 1; digit <= 9; ++digit) {
        if ((digits >> digit & 1) != 0) {
            const CellSet holders = Holders(grid, unit, digit);
            if (!holders.Any()) {
                return {};
            }
            places |= holders;
        }
    }
    return places.Count() == BitCount(digits) ? Removals(grid, places, ~digits) : Effects();
}

using SubsetRule = Effects (*)(const Grid&, CellSet, unsigned);

EffectSet Subsets(const Grid& grid, SubsetRule rule, int size) {
    EffectSet all;
    for (int unit = 0; unit < 27; ++unit) {
        const CellSet cells = CellsOf(unit);
        for (unsigned digits = 2; digits <= 1022; digits += 2) {
            if (BitCount(digits) == size) {
                all.insert(rule(grid, cells, digits));
            }
        }
    }
    return all;
}

// Two lines on which a digit stands exactly twice, on the same two crossing lines, and no third.
EffectSet XWings(const Grid& grid) {
    EffectSet all;
    for (int digit = 1; digit <= 9; ++digit) {
        for (int pair = 0; pair < 18 * 18; ++pair) {
            const int one = pair / 18;
            const int other = pair % 18;
            const int sameKind = one / 9 * 9;
            if (one >= other || sameKind != other / 9 * 9) {
                continue;
            }
            const CellSet base = CellsOf(one) | CellsOf(other);
            const CellSet corners = Holders(grid, base, digit);
            CellSet cover;
            for (int crossing = 9 - sameKind; crossing < 18 - sameKind; ++crossing) {
                const int shared = (CellsOf(crossing) & corners).Count();
                cover |= shared == 2 ? CellsOf(crossing) : CellSet();
            }
            int lines = 0;
            for (int line = sameKind; line < sameKind + 9; ++line) {
                const CellSet holders = Holders(grid, CellsOf(line), digit);
                lines += holders.Count() == 2 && cover.Contains(holders) ? 1 : 0;
            }
            if (corners.Count() == 4 && cover.Count() == 18 && lines == 2) {
                all.insert(Removals(grid, cover - base, 1u << digit));
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
    {"XWing", kXWing, XWings},
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
        EXPECT_TRUE(found.insert(effects).second) << "twice the same effects";
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
