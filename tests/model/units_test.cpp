// Cells, their names, their units; playing times.
#include "model/units.h"

#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

#include "model/times.h"

namespace vemo {
namespace {

TEST(Units, CellsAreNamedByRowAndColumnWithoutAnI) {
    const std::string rows = "ABCDEFGHJ";
    for (int cell = 0; cell < kCells; ++cell) {
        EXPECT_EQ(CellName(cell),
                  rows[static_cast<std::size_t>(cell / 9)] + std::to_string(cell % 9 + 1));
    }
}

TEST(Units, ABoxIsFoundFromItsCellsAndBack) {
    EXPECT_EQ(CellBox(33), 5);
    EXPECT_EQ(BoxStart(8), 60);
    EXPECT_EQ(BoxCell(5, 5), 44);
    for (int cell = 0; cell < kCells; ++cell) {
        EXPECT_EQ(BoxCell(CellBox(cell), BoxPosition(cell)), cell);
        EXPECT_EQ(BoxStart(CellBox(cell)), CellBoxStart(cell));
    }
}

TEST(Units, EveryCellStandsInOneUnitOfEachKindAndSeesTwentyOthers) {
    for (int cell = 0; cell < kCells; ++cell) {
        for (int other = 0; other < kCells; ++other) {
            const bool sees = other / 9 == cell / 9 || other % 9 == cell % 9 ||
                              (other / 27 == cell / 27 && other % 9 / 3 == cell % 9 / 3);
            EXPECT_EQ(Peers(cell).Has(other), sees && other != cell);
        }
        for (UnitKind kind : kUnitKinds) {
            const Unit& unit = UnitAround(kind, cell);
            EXPECT_EQ(unit.kind, kind);
            EXPECT_TRUE(unit.set.Has(cell));
            EXPECT_EQ(std::ranges::count(unit.cells, cell), 1);
            EXPECT_EQ(unit.set.Count(), 9);
        }
    }
}

TEST(CellSet, IsWalkedInCellOrderAcrossItsTwoWords) {
    CellSet cells;
    for (int cell : {80, 64, 63, 0, 17}) {
        cells.Add(cell);
    }
    std::vector<int> walked;
    for (int cell : cells) {
        walked.push_back(cell);
    }
    EXPECT_EQ(walked, (std::vector{0, 17, 63, 64, 80}));
    EXPECT_EQ((cells - CellSet::Of(0)).First(), 17);
    EXPECT_EQ((CellSet::All() - cells).Count(), 76);
    EXPECT_FALSE(cells.Contains(CellSet::All()));
}

TEST(Times, MinutesAboveNinetyNineLoseTheirHundreds) {
    EXPECT_EQ(FormatTime({0, 0}), "00:00");
    EXPECT_EQ(FormatTime({5, 7}), "05:07");
    EXPECT_EQ(FormatTime({99, 59}), "99:59");
    EXPECT_EQ(FormatTime({125, 0}), "25:00");
    EXPECT_EQ(FormatTime({1000, 30}), "00:30");
}

TEST(Times, AveragesAreRoundedToNearestAndHalvesToEven) {
    struct Case {
        int minutes, seconds, count;
        PlayTime average;
    };
    for (const Case& c : {Case{2, 3, 2, {1, 2}},     // 61.5 -> 62
                          Case{2, 5, 2, {1, 2}},     // 62.5 -> 62
                          Case{3, 4, 3, {1, 1}},     // 61.33
                          Case{3, 5, 3, {1, 2}},     // 61.67
                          Case{0, 600, 10, {1, 0}},  // seconds are not carried in the totals
                          Case{5, 0, 0, {0, 0}}}) {
        EXPECT_EQ(AverageTime(c.minutes, c.seconds, c.count), c.average)
            << c.minutes << " min " << c.seconds << " s over " << c.count;
    }
}

}  // namespace
}  // namespace vemo
