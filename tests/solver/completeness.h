// Holding a search against an enumeration written straight from its definition, slow and plain, on
// positions of the corpus and on wilder ones, in all eight orientations.
#pragma once

#include <functional>
#include <set>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "solver/patterns.h"
#include "solver/positions.h"

namespace vemo::test {

// What a find does: the placements, then the removals, as (cell, digit).
using Effects = std::vector<std::pair<int, int>>;
using EffectSet = std::set<Effects>;

// Unit 0..26: rows, columns, boxes.
inline CellSet CellsOf(int unit) {
    CellSet cells;
    for (int cell = 0; cell < kCells; ++cell) {
        const int box = cell / 27 * 3 + cell % 9 / 3;
        if (unit == cell / 9 || unit == 9 + cell % 9 || unit == 18 + box) {
            cells.Add(cell);
        }
    }
    return cells;
}
inline bool IsBox(int unit) {
    return unit >= 18;
}

inline CellSet Holders(const Grid& grid, CellSet cells, int digit) {
    CellSet holders;
    for (int cell : cells) {
        if (grid.KnopAan(cell, digit)) {
            holders.Add(cell);
        }
    }
    return holders;
}

// The candidates of `digits` in the cells; all of them, while a find holds fifty at most.
inline Effects Removals(const Grid& grid, CellSet cells, unsigned digits) {
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

// What a find of these removals does: it holds fifty at most, and nothing is no find.
inline void Put(EffectSet& all, Effects removals) {
    removals.resize(std::min(removals.size(), kMaxEffects));
    if (!removals.empty()) {
        all.insert(std::move(removals));
    }
}

inline EffectSet FoundBy(const Step& step, const Grid& grid) {
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

// On as many positions with a find as without one. Where a nearly full grid has thousands of finds,
// ask for more open cells.
inline void ExpectComplete(const Step& step, const std::function<EffectSet(const Grid&)>& all,
                           int fewestOpen = 10) {
    constexpr int kWanted = 50;
    int with = 0;
    int without = 0;
    PositionsOfCorpus corpus;
    WildPositions wild;
    for (int tried = 0; tried < 10000 && (with < kWanted || without < kWanted); ++tried) {
        const Grid grid = tried % 2 == 0 ? corpus.Next().grid : wild.Next();
        if (grid.EmptyCount() < fewestOpen) {
            continue;
        }
        const bool any = SearchFirst(step, grid).any;
        if ((any ? with : without) >= kWanted) {
            continue;
        }
        ++(any ? with : without);
        for (int orientation = 0; orientation < 8; ++orientation) {
            const Grid turned = Orientation(orientation).Moved(grid);
            EffectSet expected = all(turned);
            expected.erase(Effects());
            ASSERT_EQ(FoundBy(step, turned), expected);
        }
    }
    EXPECT_EQ(with, kWanted);
    EXPECT_EQ(without, kWanted);
}

}  // namespace vemo::test
