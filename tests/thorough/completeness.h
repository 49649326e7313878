// Holding a search against an enumeration written straight from its definition, slow and plain, on
// positions of the corpus and on wilder ones, in all eight orientations.
#pragma once

#include <array>
#include <functional>
#include <random>
#include <set>
#include <span>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "solver/patterns.h"
#include "solver/positions.h"

namespace vemo::test {

// What a find does: the placements, then the removals, as (cell, digit).
using Effects = std::vector<std::pair<int, int>>;
using EffectSet = std::set<Effects>;

constexpr std::size_t Index(int number) {
    return static_cast<std::size_t>(number);
}

// Unit 0..26: rows, columns, boxes.
inline CellSet CellsOf(int unit) {
    static const auto kUnitCells = [] {
        std::array<CellSet, 27> units;
        for (int cell = 0; cell < kCells; ++cell) {
            units[Index(cell / 9)].Add(cell);
            units[Index(9 + cell % 9)].Add(cell);
            units[Index(18 + cell / 27 * 3 + cell % 9 / 3)].Add(cell);
        }
        return units;
    }();
    return kUnitCells[Index(unit)];
}

inline CellSet SeenBy(int cell) {
    static const auto kSeen = [] {
        std::array<CellSet, kCells> seen;
        for (int unit = 0; unit < 27; ++unit) {
            for (int at : CellsOf(unit)) {
                seen[Index(at)] |= CellsOf(unit) - CellSet::Of(at);
            }
        }
        return seen;
    }();
    return kSeen[Index(cell)];
}
inline bool Sees(int one, int other) {
    return SeenBy(one).Has(other);
}
// The cells that see every one of these.
inline CellSet SeenByAll(CellSet cells) {
    CellSet seen = CellSet::All();
    for (int cell : cells) {
        seen &= SeenBy(cell);
    }
    return seen;
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

inline Effects EffectsOf(const Find& find) {
    Effects effects;
    for (const auto& [cell, digit] : find.placements) {
        effects.emplace_back(cell, digit);
    }
    for (const auto& [cell, digit] : find.removals) {
        effects.emplace_back(cell, digit);
    }
    return effects;
}

inline EffectSet FoundBy(const Step& step, const Grid& grid) {
    EffectSet found;
    for (const Find& find : SearchAll(step, grid)) {
        EXPECT_TRUE(found.insert(EffectsOf(find)).second) << "twice the same effects";
    }
    return found;
}

// Which positions are looked at.
struct Limits {
    // Where a nearly full grid has thousands of finds, ask for more open cells.
    int fewestOpen = 10;
    // Of positions with a find.
    int mostCandidates = kCells * kDigits;
};

inline int CountCandidates(const Grid& grid) {
    int count = 0;
    for (int cell : grid.EmptyCells()) {
        count += BitCount(grid.MarksAt(cell));
    }
    return count;
}

// Checks fifty positions where the step finds something and fifty where it does not, in all eight
// orientations, until one fails.
inline void CheckFiftyOfEach(const Step& step, const Limits& limits,
                             const std::function<void(const Grid&)>& check) {
    constexpr int kWanted = 50;
    int with = 0;
    int without = 0;
    MixedPositions positions;
    for (int tried = 0; tried < 20000 && (with < kWanted || without < kWanted); ++tried) {
        const Grid grid = positions.Next();
        if (grid.EmptyCount() < limits.fewestOpen) {
            continue;
        }
        const bool any = SearchFirst(step, grid).any;
        int& count = any ? with : without;
        if (count == kWanted || (any && CountCandidates(grid) > limits.mostCandidates)) {
            continue;
        }
        ++count;
        for (int orientation = 0; orientation < 8; ++orientation) {
            check(Orientation(orientation).Moved(grid));
            if (testing::Test::HasFailure()) {
                return;
            }
        }
    }
    EXPECT_EQ(with, kWanted);
    EXPECT_EQ(without, kWanted);
}

// A step, and what all its finds on a grid do by the definition.
struct Enumerator {
    const char* name;
    Step step;
    std::function<EffectSet(const Grid&)> all;
    int fewestOpen = Limits().fewestOpen;
};

// Passes on the finds of a kind and, where one is named, a variant.
class FindsOfKind final : public FindSink {
  public:
    FindsOfKind(HintKind kind, int variant, FindSink& sink)
        : kind_(kind), variant_(variant), sink_(sink) {}
    bool Offer(const Find& find) override {
        const bool isWanted = find.kind == kind_ && (variant_ == 0 || find.variant == variant_);
        return !isWanted || sink_.Offer(find);
    }

  private:
    HintKind kind_;
    int variant_;
    FindSink& sink_;
};

// A step that searches for these finds alone.
template <Search kSearch, HintKind kKind, int kVariant = 0>
Step StepFor() {
    Step step{};
    step.search = [](const Position& position, const Args& args, FindSink& sink) {
        FindsOfKind finds(kKind, kVariant, sink);
        kSearch(position, args, finds);
    };
    return step;
}

inline void ExpectSameFinds(const Enumerator& row, const Grid& grid) {
    EffectSet expected = row.all(grid);
    expected.erase(Effects());
    ASSERT_EQ(FoundBy(row.step, grid), expected);
}

inline void ExpectComplete(std::span<const Enumerator> rows) {
    for (const Enumerator& row : rows) {
        SCOPED_TRACE(row.name);
        CheckFiftyOfEach(row.step, {.fewestOpen = row.fewestOpen},
                         [&](const Grid& grid) { ExpectSameFinds(row, grid); });
    }
}

// Inside a trial a grid can be left without any solution, down to cells without a candidate.
inline void ExpectCompleteWithoutSolution(std::span<const Enumerator> rows, int grids,
                                          unsigned oneIn) {
    std::mt19937 random(37);
    for (int made = 0; made < grids; ++made) {
        const Grid grid = GridWithoutSolution(random, oneIn);
        for (const Enumerator& row : rows) {
            SCOPED_TRACE(row.name);
            ASSERT_NO_FATAL_FAILURE(ExpectSameFinds(row, grid));
            for (const Find& find : SearchAll(row.step, grid)) {
                ExpectProper(find, grid);
            }
        }
    }
}

}  // namespace vemo::test
