// Which find comes first, and what is no find.
#include <gtest/gtest.h>

#include "solver/patterns.h"

namespace vemo {
namespace {

using namespace test;

struct OrderCase {
    const char* rule;
    StepRow step;
    std::vector<Pattern> patterns;
    const char* log;
};

TEST(ScanOrder, TheFirstFindIsTheOnePromised) {
    const OrderCase cases[] = {
        {"the naked single with the lower cell index",
         kNakedSingle,
         {{kNoUnit, "2", "J1"}, {kNoUnit, "7", "B9"}},
         "Naked Single 7 at cell B9"},
        {"a hidden single in a box and a row is the box's",
         kHiddenSingle,
         {{Row('A'), "5", "A1"}, {Box(0), "5", "A1"}},
         "Hidden Single 5 in box at cell A1"},
        {"all boxes before the first row",
         kHiddenSingle,
         {{Row('A'), "5", "A5"}, {Box(8), "3", "J9"}},
         "Hidden Single 3 in box at cell J9"},
        {"all rows before the first column",
         kHiddenSingle,
         {{Column(1), "2", "A1"}, {Row('J'), "4", "J9"}},
         "Hidden Single 4 in row at cell J9"},
        {"boxes left to right, then down",
         kHiddenSingle,
         {{Box(3), "2", "D1"}, {Box(2), "8", "C9"}},
         "Hidden Single 8 in box at cell C9"},
        {"a pointing pattern that takes nothing is passed over",
         kPointingPair,
         {{Box(0), "1", "A1 A2"}, {Row('A'), "1", "A1 A2"}, {Box(5), "6", "D9 E9"}},
         "Pointing Pair: Column 9 => Removed candidate 6 from cell(s) A9 B9 C9 G9 H9 J9"},
        {"only cells that hold the digit lose it",
         kPointingPair,
         {{Box(0), "1", "A1 A2"}, {Row('A'), "1", "A1 A2 A6 A9"}},
         "Pointing Pair: Row A => Removed candidate 1 from cell(s) A6 A9"},
        {"all rows before the first column",
         kBoxLine,
         {{Column(1), "2", "A1 C1"}, {Row('J'), "9", "J7 J8 J9"}},
         "Box Line Reduction: Row J => Removed candidate 9 from cell(s) G7 G8 G9 H7 H8 H9"},
        {"a box-line pattern that takes nothing is passed over",
         kBoxLine,
         {{Row('A'), "1", "A1 A2"}, {Box(0), "1", "A1 A2"}, {Column(5), "5", "E5 F5"}},
         "Box Line Reduction: Column 5 => Removed candidate 5 from cell(s) D4 D6 E4 E6 F4 F6"},
        {"rows before columns",
         kNakedPair,
         {{kNoUnit, "12", "A9 J9"}, {kNoUnit, "34", "J1 J5"}},
         "Naked Pair: Row J => Removed candidates 3 and 4 from cells J2 J3 J4 J6 J7 J8"},
        {"columns before boxes",
         kNakedPair,
         {{kNoUnit, "12", "A1 B2"}, {kNoUnit, "34", "B9 H9"}},
         "Naked Pair: Column 9 => Removed candidates 3 and 4 from cells A9 C9 D9 E9 F9 G9 J9"},
        {"two cells in one row and one box are the row's pair",
         kNakedPair,
         {{kNoUnit, "59", "D4 D6"}},
         "Naked Pair: Row D => Removed candidates 5 and 9 from cells D1 D2 D3 D5 D7 D8 D9"},
        {"columns before boxes",
         kHiddenPair,
         {{Box(0), "12", "A1 B2"}, {Column(9), "34", "B9 H9"}},
         "Hidden Pair: Column 9 => Kept candidates 3 and 4 in cells B9 H9"},
        {"a cell of a hidden pair that loses nothing is named as well",
         kHiddenPair,
         {{Row('J'), "46", "J1 J9"}, {kNoUnit, "46", "J1"}},
         "Hidden Pair: Row J => Kept candidates 4 and 6 in cells J1 J9"},
        {"the cells of a triple share three digits without each holding all",
         kNakedTriple,
         {{kNoUnit, "12", "A1"}, {kNoUnit, "23", "A5"}, {kNoUnit, "13", "A9"}},
         "Naked Triple: Row A => Removed candidates 1, 2 and 3 from cells A2 A3 A4 A6 A7 A8"},
    };
    for (const OrderCase& c : cases) {
        SCOPED_TRACE(c.rule);
        const FirstFind first = SearchFirst(StepAt(c.step), GridWith(c.patterns));
        ASSERT_TRUE(first.any);
        EXPECT_EQ(LogLine(first.found), c.log);
    }
}

TEST(ScanOrder, WhatIsNoPatternIsNotFound) {
    struct Case {
        const char* rule;
        StepRow step;
        std::vector<Pattern> patterns;
    };
    const Case cases[] = {
        {"an untouched grid holds nothing", kNakedQuint, {}},
        {"a box's digit on two lines", kPointingPair, {{Box(0), "1", "A1 B2"}}},
        {"a line's digit in two boxes", kBoxLine, {{Row('A'), "1", "A3 A4"}}},
        {"three cells with two digits", kNakedPair, {{kNoUnit, "12", "A1 A5 A9"}}},
        {"a pair whose digits stand nowhere else",
         kNakedPair,
         {{kNoUnit, "12", "A1 A5"}, {Row('A'), "12", "A1 A5"}}},
        {"a cell without a candidate", kNakedPair, {{kNoUnit, "12", "A1"}, {kNoUnit, "", "A5"}}},
        {"a digit without a place", kHiddenPair, {{Row('A'), "1", "A1 A5"}, {Row('A'), "2", ""}}},
        {"two digits with one place between them", kHiddenPair, {{Row('A'), "12", "A1"}}},
        {"a hidden pair alone in its cells",
         kHiddenPair,
         {{kNoUnit, "12", "A1 A5"}, {Row('A'), "12", "A1 A5"}}},
    };
    for (const Case& c : cases) {
        EXPECT_FALSE(SearchFirst(StepAt(c.step), GridWith(c.patterns)).any) << c.rule;
    }
}

TEST(ScanOrder, TheLadderTriesTheCheaperStepFirst) {
    const OrderCase cases[] = {
        {"hidden before naked single",
         kHiddenSingle,
         {{kNoUnit, "7", "A1"}, {Column(9), "2", "J9"}},
         "Hidden Single 2 in column at cell J9"},
        {"naked single before pointing pair",
         kNakedSingle,
         {{kNoUnit, "7", "J9"}, {Box(0), "1", "A1 A2"}},
         "Naked Single 7 at cell J9"},
        {"pointing pair before box-line reduction",
         kPointingPair,
         {{Row('A'), "1", "A1 A2"}, {Box(8), "9", "H7 H8"}},
         "Pointing Pair: Row H => Removed candidate 9 from cell(s) H1 H2 H3 H4 H5 H6"},
        {"naked pair before naked triple",
         kNakedPair,
         {{kNoUnit, "123", "A1 A5 A9"}, {kNoUnit, "59", "D4 F6"}},
         "Naked Pair: Box 5 => Removed candidates 5 and 9 from cells D5 D6 E4 E5 E6 F4 F5"},
        {"naked triple before hidden pair",
         kNakedTriple,
         {{kNoUnit, "123", "G7 H8 J9"}, {Row('A'), "46", "A1 A9"}},
         "Naked Triple: Box 9 => Removed candidates 1, 2 and 3 from cells G8 G9 H7 H9 J7 J8"},
        {"hidden pair before naked quad",
         kHiddenPair,
         {{kNoUnit, "1234", "A1 A4 A6 A9"}, {Box(8), "67", "G7 J9"}},
         "Hidden Pair: Box 9 => Kept candidates 6 and 7 in cells G7 J9"},
        {"naked quad before hidden triple",
         kNakedQuad,
         {{Row('A'), "357", "A1 A4 A8"}, {kNoUnit, "1234", "G7 G9 H8 J9"}},
         "Naked Quad: Box 9 => Removed candidates 1, 2, 3 and 4 from cells G8 H7 H9 J7 J8"},
        {"hidden triple before naked quint",
         kHiddenTriple,
         {{kNoUnit, "12345", "A1 A2 A4 A6 A9"}, {Box(8), "678", "G7 H8 J9"}},
         "Hidden Triple: Box 9 => Kept candidates 6, 7 and 8 in cells G7 H8 J9"},
    };
    for (const OrderCase& c : cases) {
        SCOPED_TRACE(c.rule);
        Solver solver(GridWith(c.patterns));
        std::vector<std::string> log;
        solver.SetLog([&](std::string_view line) { log.emplace_back(line); });
        EXPECT_EQ(solver.Pass(FixedLadder()), PassResult::Changed);
        EXPECT_EQ(log, std::vector<std::string>{c.log});
        EXPECT_EQ(solver.LastStep(), &StepAt(c.step));
    }
}

}  // namespace
}  // namespace vemo
