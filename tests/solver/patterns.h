// Positions made by hand: a grid with all nine marks in every cell, from which a pattern is cut.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "solver/solver.h"
#include "solver/text.h"
#include "support/puzzles.h"

namespace vemo::test {

// The first rows of Steps().
enum StepRow {
    kHiddenSingle,
    kNakedSingle,
    kPointingPair,
    kBoxLine,
    kNakedPair,
    kNakedTriple,
    kHiddenPair,
    kNakedQuad,
    kHiddenTriple,
    kNakedQuint
};
inline const Step& StepAt(int row) {
    return Steps()[static_cast<std::size_t>(row)];
}

inline constexpr int kNoUnit = -1;
inline constexpr int kFilled = -2;
constexpr int Row(char letter) {
    return UnitNumber(UnitKind::Row, letter == 'J' ? 8 : letter - 'A');
}
constexpr int Column(int number) {
    return UnitNumber(UnitKind::Column, number - 1);
}
constexpr int Box(int index) {
    return UnitNumber(UnitKind::Box, index);
}

// In `unit` the digits are candidates of the cells alone; without a unit the cells hold no other
// digits; or they are filled with the digit.
struct Pattern {
    int unit;
    std::string_view digits;
    std::string_view cells;
};

// These cells hold no other digits.
constexpr Pattern Only(std::string_view digits, std::string_view cells) {
    return {kNoUnit, digits, cells};
}
constexpr Pattern Filled(std::string_view digit, std::string_view cells) {
    return {kFilled, digit, cells};
}
inline std::vector<Pattern> Both(std::vector<Pattern> patterns, const std::vector<Pattern>& more) {
    patterns.insert(patterns.end(), more.begin(), more.end());
    return patterns;
}

inline Grid GridWith(const std::vector<Pattern>& patterns) {
    Grid grid;
    for (const auto& [unit, digits, cells] : patterns) {
        const CellSet within = CellsNamed(cells);
        const Marks marks = DigitsNamed(digits);
        if (unit < 0) {
            for (int cell : within) {
                Discard(grid, cell, kAllMarks & ~marks);
                if (unit == kFilled) {
                    grid.Zet(FirstDigit(marks), cell);
                }
            }
            continue;
        }
        for (int cell : kUnits[static_cast<std::size_t>(unit)].set - within) {
            Discard(grid, cell, marks);
        }
    }
    return grid;
}

// The row of the catalogue's step for a slot with a single one.
inline const Step& StepOfSlot(int slot) {
    return *std::ranges::find(Steps(), slot, &Step::slot);
}

inline FirstFind SearchFirst(const Step& step, const Grid& grid) {
    FirstFind first;
    Solver(grid).Search(step, first);
    return first;
}
inline std::vector<Find> SearchAll(const Step& step, const Grid& grid) {
    AllFinds all;
    Solver(grid).Search(step, all);
    return all.finds;
}

// What every find keeps to: it takes or places what is there, and can be told.
inline void ExpectProper(const Find& find, const Grid& grid) {
    const auto isThere = [&](CellDigit at) { return grid.KnopAan(at.cell, at.digit); };
    EXPECT_TRUE(find.ChangesSomething());
    EXPECT_TRUE(std::ranges::all_of(find.placements, isThere));
    EXPECT_TRUE(std::ranges::all_of(find.removals, isThere));
    EXPECT_FALSE(LogLine(find).empty() || HintText(find).empty());
}

}  // namespace vemo::test
