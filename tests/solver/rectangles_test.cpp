// Unique and avoidable rectangles: their texts, which comes first, and what only looks like one.
#include <utility>

#include <gtest/gtest.h>

#include "solver/find_cases.h"

namespace vemo {
namespace {

using namespace test;

constexpr int kUnique = 24;
constexpr int kAvoidable = 25;

TEST(UniqueRectangle, Type1TakesThePairFromTheFourthCorner) {
    ExpectFirst(
        kUnique,
        {{"three bare corners",
          {{kNoUnit, "46", "B7 B8 H7"}},
          "Unique Rectangle: Type 1 cells B7, B8, H7 and H8 => Removed candidate 4 from cell(s) "
          "H8, candidate 6 from cell(s) H8",
          "UNIQUE RECTANGLE TYPE 1: Since the cells B7, B8, H7 and H8 would otherwise all hold "
          "only 4 and 6 and the sudoku would have two solutions, 4 and 6 can be discarded from "
          "cell H8"},
         {"a bare corner may have lost one digit of the pair, and so may the fourth",
          {{kNoUnit, "4", "B7"}, {kNoUnit, "46", "B8 H7"}, {kNoUnit, "1256789", "H8"}},
          "Unique Rectangle: Type 1 cells B7, B8, H7 and H8 => Removed candidate 6 from cell(s) H8",
          "UNIQUE RECTANGLE TYPE 1: Since the cells B7, B8, H7 and H8 would otherwise all hold "
          "only 4 and 6 and the sudoku would have two solutions, 6 can be discarded from cell H8"},
         {"all of type 1 before any of type 2",
          {{kNoUnit, "12", "A1 A4"}, {kNoUnit, "123", "B1 B4"}, {kNoUnit, "46", "H7 H8 B8"}},
          "Unique Rectangle: Type 1 cells B7, B8, H7 and H8 => Removed candidate 4 from cell(s) "
          "B7, candidate 6 from cell(s) B7"},
         {"by the upper row, then by the lower one, whatever the columns",
          {{kNoUnit, "12", "A7 D7 D8"}, {kNoUnit, "46", "A1 E1 E2"}},
          "Unique Rectangle: Type 1 cells A7, A8, D7 and D8 => Removed candidate 1 from cell(s) "
          "A8, candidate 2 from cell(s) A8"},
         {"by the columns before the digits",
          {{kNoUnit, "12", "A7 D7 D8"}, {kNoUnit, "46", "A1 D1 D2"}},
          "Unique Rectangle: Type 1 cells A1, A2, D1 and D2 => Removed candidate 4 from cell(s) "
          "A2, candidate 6 from cell(s) A2"},
         {"nothing in four boxes", {{kNoUnit, "46", "B4 B7 H4"}}, ""},
         {"nothing in one box", {{kNoUnit, "46", "B7 B8 C7"}}, ""},
         {"nothing with three digits in the corners",
          {{kNoUnit, "46", "B7 B8"}, {kNoUnit, "45", "H7"}},
          ""}});
}

TEST(UniqueRectangle, Type2TakesTheExtraDigitFromWhatSeesTheRoof) {
    ExpectFirst(
        kUnique,
        {{"in the roof's row and box",
          {{kNoUnit, "46", "H7 H8"}, {kNoUnit, "456", "B7 B8"}},
          "Unique Rectangle: Type 2 cells B7, B8, H7 and H8 => Removed candidate 5 from cell(s) "
          "A7 A8 A9 B1 B2 B3 B4 B5 B6 B9 C7 C8 C9",
          "UNIQUE RECTANGLE TYPE 2: Since the cells B7, B8, H7 and H8 would otherwise all hold "
          "only 4 and 6 and the sudoku would have two solutions, one of the cells B7 and B8 must "
          "be 5, which can't be in any other cell that sees both"},
         {"in the roof's column alone where it lies in two boxes, with digits of the pair lost",
          {{kNoUnit, "46", "B7"},
           {kNoUnit, "4", "H7"},
           {kNoUnit, "56", "B8"},
           {kNoUnit, "456", "H8"}},
          "Unique Rectangle: Type 2 cells B7, B8, H7 and H8 => Removed candidate 5 from cell(s) "
          "A8 C8 D8 E8 F8 G8 J8"},
         {"by the digits before the floor: 4 and 5 at the bottom, 4 and 6 at the left",
          {{kNoUnit, "46", "B7"},
           {kNoUnit, "4", "H7"},
           {kNoUnit, "56", "B8"},
           {kNoUnit, "45", "H8"}},
          "Unique Rectangle: Type 2 cells B7, B8, H7 and H8 => Removed candidate 6 from cell(s) "
          "A7 A8 A9 B1 B2 B3 B4 B5 B6 B9 C7 C8 C9"},
         {"not with a floor of which one corner is bare",
          {{kNoUnit, "46", "H7"}, {kNoUnit, "467", "H8"}, {kNoUnit, "456", "B7 B8"}},
          ""},
         {"not with bare corners across",
          {{kNoUnit, "46", "B7 H8"}, {kNoUnit, "456", "B8 H7"}},
          ""},
         {"not with an extra digit that only one of the roof has",
          {{kNoUnit, "46", "H7 H8"}, {kNoUnit, "456", "B7"}, {kNoUnit, "4567", "B8"}},
          ""}});
}

// The floor H7 H8 holds 4 and 6, the roof 5 and 7 besides; then the cells that lock.
std::vector<Pattern> RoofOf57(const std::vector<Pattern>& helpers) {
    std::vector<Pattern> patterns = {
        {kNoUnit, "46", "H7 H8"}, {kNoUnit, "456", "B7"}, {kNoUnit, "467", "B8"}};
    patterns.insert(patterns.end(), helpers.begin(), helpers.end());
    return patterns;
}

TEST(UniqueRectangle, Type3LocksTheExtraDigitsWithOtherCells) {
    ExpectFirst(
        kUnique,
        {{"of the roof's row", RoofOf57({{kNoUnit, "57", "B1"}}),
          "Unique Rectangle: Type 3 => Removed candidates 5 and/or 7 from cells B2 B3 B4 B5 B6 B9",
          "UNIQUE RECTANGLE TYPE 3: Since one of the cells B7 and B8 must hold a number other "
          "than 4 and 6, these cells count as one cell with candidates 5 and 7 that together with "
          "cell B1 locks the numbers 5 and 7 in row B"},
         {"of its box", RoofOf57({{kNoUnit, "57", "C9"}}),
          "Unique Rectangle: Type 3 => Removed candidates 5 and/or 7 from cells A7 A8 A9 B9 C7 C8",
          "UNIQUE RECTANGLE TYPE 3: Since one of the cells B7 and B8 must hold a number other "
          "than 4 and 6, these cells count as one cell with candidates 5 and 7 that together with "
          "cell C9 locks the numbers 5 and 7 in the top right block"},
         {"two of which hold a digit of the pair, which goes as well",
          RoofOf57({{kNoUnit, "45", "B1"}, {kNoUnit, "47", "B2"}}),
          "Unique Rectangle: Type 3 => Removed candidates 4 and/or 5 and/or 7 from cells "
          "B3 B4 B5 B6 B9",
          "UNIQUE RECTANGLE TYPE 3: Since one of the cells B7 and B8 must hold a number other "
          "than 4 and 6, these cells count as one cell with candidates 5 and 7 that together with "
          "cells B1 and B2 locks the numbers 4, 5 and 7 in row B"},
         {"four of them", RoofOf57({{kNoUnit, "57123", "B1 B2 B3 B4"}}),
          "Unique Rectangle: Type 3 => Removed candidates 1 and/or 2 and/or 3 and/or 5 and/or 7 "
          "from cells B5 B6 B9"},
         {"but not five", RoofOf57({{kNoUnit, "571238", "B1 B2 B3 B4 B5"}}), ""},
         {"the row before the box, whatever the number of cells",
          RoofOf57({{kNoUnit, "57", "C9"}, {kNoUnit, "58", "B1"}, {kNoUnit, "78", "B2"}}),
          "Unique Rectangle: Type 3 => Removed candidates 5 and/or 7 and/or 8 from cells "
          "B3 B4 B5 B6 B9"},
         {"one cell before two",
          RoofOf57({{kNoUnit, "58", "B1"}, {kNoUnit, "78", "B2"}, {kNoUnit, "57", "B6"}}),
          "Unique Rectangle: Type 3 => Removed candidates 5 and/or 7 from cells B1 B2 B3 B4 B5 B9"},
         {"of two pairs of cells the one with the lower last cell",
          RoofOf57({{kNoUnit, "58", "B1"},
                    {kNoUnit, "59", "B2"},
                    {kNoUnit, "79", "B3"},
                    {kNoUnit, "78", "B4"}}),
          "Unique Rectangle: Type 3 => Removed candidates 5 and/or 7 and/or 9 from cells "
          "B1 B4 B5 B6 B9"},
         {"not in the box of one roof cell",
          {{kNoUnit, "46", "A1 A4"},
           {kNoUnit, "456", "B1"},
           {kNoUnit, "467", "B4"},
           {kNoUnit, "57", "C2"}},
          ""},
         {"not where one of the roof is bare as well but for a digit of the pair",
          {{kNoUnit, "46", "H7"}, {kNoUnit, "4", "B7"}, {kNoUnit, "57", "B1"}},
          ""}});
}

TEST(UniqueRectangle, Type4TakesOneDigitWhereTheOtherHasNoPlaceBesides) {
    const char* const log =
        "Unique Rectangle: Type 4 cells B7, B8, H7 and H8 => Removed candidate 6 from cell(s) "
        "B7 B8";
    ExpectFirst(
        kUnique,
        {{"in the roof's row",
          {{kNoUnit, "46", "H7 H8"}, {Row('B'), "4", "B7 B8"}, {Box(2), "4", "B7 B8"}},
          log,
          "UNIQUE RECTANGLE TYPE 4: Since number 4 in row B appears only in cells B7 and B8, "
          "number 6 there would complete the cells B7, B8, H7 and H8 with only 4 and 6 and give "
          "two solutions, so 6 can be discarded from both"},
         {"in its box, the lower digit before the higher one in the row",
          {{kNoUnit, "46", "H7 H8"}, {Box(2), "4", "B7 B8"}, {Row('B'), "6", "B7 B8"}},
          log,
          "UNIQUE RECTANGLE TYPE 4: Since number 4 in the top right block appears only in cells "
          "B7 and B8, number 6 there would complete the cells B7, B8, H7 and H8 with only 4 and 6 "
          "and give two solutions, so 6 can be discarded from both"},
         {"the one roof cell may have lost the digit",
          {{kNoUnit, "46", "H7 H8"}, {Row('B'), "4", "B7"}},
          log},
         {"the higher digit",
          {{kNoUnit, "46", "H7 H8"}, {Row('B'), "6", "B7 B8"}},
          "Unique Rectangle: Type 4 cells B7, B8, H7 and H8 => Removed candidate 4 from cell(s) "
          "B7 B8"},
         {"not with a third place", {{kNoUnit, "46", "H7 H8"}, {Row('B'), "4", "B1 B7 B8"}}, ""},
         {"not with a digit that has no place",
          {{kNoUnit, "46", "H7 H8"}, {Row('B'), "4", ""}},
          ""},
         {"not with one bare corner", {{kNoUnit, "46", "H7"}, {Row('B'), "4", "B7 B8"}}, ""}});
}

TEST(UniqueRectangle, TheHiddenFormNamesWhatForcesTheOtherCorners) {
    const char* const log =
        "Hidden Unique Rectangle: Cells B7, B8, H7 and H8 => Removed candidate 6 from cell(s) H8";
    ExpectFirst(
        kUnique,
        {{"a bare corner across, the other digit twice in row and column",
          {{kNoUnit, "46", "B7"}, {Row('H'), "4", "H7 H8"}, {Column(8), "4", "B8 H8"}},
          log,
          "HIDDEN UNIQUE RECTANGLE: Since number 4 appears only twice in row H and only twice in "
          "column 8, number 6 at cell H8 would fill the cells B7, B8, H7 and H8 with only 4 and 6 "
          "and give two solutions, so it can be discarded"},
         {"a corner with a bare one across before an earlier corner without",
          {{kNoUnit, "46", "B7"},
           {Row('H'), "4", "H7 H8"},
           {Column(8), "4", "B8 H8"},
           {Row('B'), "6", "B7 B8"}},
          log},
         {"twice in the block",
          {{kNoUnit, "46", "H7"}, {Box(2), "4", "B7 B8"}, {Column(8), "4", "B8 H8"}},
          "Hidden Unique Rectangle: Cells B7, B8, H7 and H8 => Removed candidate 6 from cell(s) B8",
          "HIDDEN UNIQUE RECTANGLE: Since number 4 appears only twice in the top right block and "
          "only twice in column 8, number 6 at cell B8 would fill the cells B7, B8, H7 and H8 "
          "with only 4 and 6 and give two solutions, so it can be discarded"},
         {"a bare neighbour, and the corner across forced with the other one; the lower digit as "
          "the other one first, whatever the corner",
          {{kNoUnit, "46", "H7"}, {Column(8), "4", "B8 H8"}, {Row('B'), "6", "B7 B8"}},
          log,
          "HIDDEN UNIQUE RECTANGLE: Since number 4 appears only twice in column 8, cell H7 can "
          "only be 4 or 6 and number 6 appears only twice in row B, number 6 at cell H8 would fill "
          "the cells B7, B8, H7 and H8 with only 4 and 6 and give two solutions, so it can be "
          "discarded"},
         {"no bare corner at all",
          {{Row('H'), "4", "H7 H8"}, {Column(8), "4", "B8 H8"}, {Column(7), "6", "B7 H7"}},
          log,
          "HIDDEN UNIQUE RECTANGLE: Since number 4 appears only twice in row H and only twice in "
          "column 8 and number 6 appears only twice in column 7, number 6 at cell H8 would fill "
          "the cells B7, B8, H7 and H8 with only 4 and 6 and give two solutions, so it can be "
          "discarded"},
         {"two bare neighbours",
          {{kNoUnit, "46", "B8 H7"}, {Row('B'), "6", "B7 B8"}},
          "Hidden Unique Rectangle: Cells B7, B8, H7 and H8 => Removed candidate 6 from cell(s) H8",
          "HIDDEN UNIQUE RECTANGLE: Since cells B8 and H7 can only be 4 or 6 and number 6 appears "
          "only twice in row B, number 6 at cell H8 would fill the cells B7, B8, H7 and H8 with "
          "only 4 and 6 and give two solutions, so it can be discarded"},
         {"the corner itself may have lost the other digit",
          {{kNoUnit, "46", "B7"}, {Row('H'), "4", "H7"}, {Column(8), "4", "B8"}},
          log,
          "HIDDEN UNIQUE RECTANGLE: Since number 4 appears only once in row H and only once in "
          "column 8, number 6 at cell H8 would fill the cells B7, B8, H7 and H8 with only 4 and 6 "
          "and give two solutions, so it can be discarded"},
         {"the lower digit pair first",
          {{Row('H'), "14", "H7 H8"}, {Column(8), "14", "B8 H8"}, {Column(7), "69", "B7 H7"}},
          "Hidden Unique Rectangle: Cells B7, B8, H7 and H8 => Removed candidate 6 from cell(s) H8",
          "HIDDEN UNIQUE RECTANGLE: Since number 1 appears only twice in row H and only twice in "
          "column 8 and number 6 appears only twice in column 7, number 6 at cell H8 would fill "
          "the cells B7, B8, H7 and H8 with only 1 and 6 and give two solutions, so it can be "
          "discarded"},
         {"not with the digit twice in one line alone",
          {{kNoUnit, "46", "B7"}, {Row('H'), "4", "H7 H8"}, {Column(8), "4", "A8 B8 H8"}},
          ""},
         {"not where nothing forces the corner across",
          {{kNoUnit, "456", "B7"}, {Row('H'), "4", "H7 H8"}, {Column(8), "4", "B8 H8"}},
          ""},
         {"not in four boxes",
          {{kNoUnit, "46", "B4"}, {Row('H'), "4", "H4 H8"}, {Column(8), "4", "B8 H8"}},
          ""}});
}

TEST(UniqueRectangle, TintsThePairInOneColourAndTheRestInTheOther) {
    const FirstFind first =
        SearchFirst(StepOfSlot(kUnique),
                    GridWith(RoofOf57({{kNoUnit, "57", "B1"}, {kNoUnit, "46", "B2 B3 B4 B5 B6"}})));
    ASSERT_TRUE(first.any);
    const auto at = [](const char* name, int digit) { return At(CellNamed(name), digit); };
    const std::vector<CellDigit> pair = {at("B7", 4), at("B7", 6), at("B8", 4), at("B8", 6),
                                         at("H7", 4), at("H7", 6), at("H8", 4), at("H8", 6)};
    const std::vector<CellDigit> rest = {at("B7", 5), at("B8", 7), at("B1", 5), at("B1", 7)};
    EXPECT_EQ(first.found.firstColor, pair);
    EXPECT_EQ(first.found.secondColor, rest);
}

struct AvoidableCase {
    const char* rule;
    std::vector<std::pair<int, const char*>> filled;  // a digit and its cells
    const char* clues;                                // of these
    std::vector<Pattern> patterns;
    const char* log;
    const char* hint = nullptr;
};

Grid GridOf(const AvoidableCase& at) {
    Grid grid = GridWith(at.patterns);
    for (const auto& [digit, cells] : at.filled) {
        for (int cell : CellsNamed(cells)) {
            grid.Zet(digit, cell);
        }
    }
    grid.SetGivens(CellsNamed(at.clues));
    return grid;
}

TEST(AvoidableRectangle, TheFirstFindIsTheOnePromisedInItsWords) {
    const AvoidableCase cases[] = {
        {"three filled corners",
         {{4, "B7"}, {6, "B8 H7"}},
         "",
         {},
         "Avoidable Rectangle: Cells B7, B8, H7 and H8 => Removed candidate 4 from cell(s) H8",
         "AVOIDABLE RECTANGLE: Since none of the cells B7, B8, H7 and H8 is a clue, number 4 at "
         "cell H8 would make the numbers 4 and 6 exchangeable and give two solutions, so it can "
         "be discarded"},
        {"two filled corners",
         {{4, "B7"}, {6, "B8"}},
         "",
         {{kNoUnit, "56", "H7"}, {kNoUnit, "45", "H8"}},
         "Avoidable Rectangle: Cells B7, B8, H7 and H8 => Removed candidate 5 from cell(s) "
         "G7 G8 G9 H1 H2 H3 H4 H5 H6 H9 J7 J8 J9",
         "AVOIDABLE RECTANGLE: Since none of the cells B7, B8, H7 and H8 is a clue, the numbers 4 "
         "and 6 would be exchangeable unless one of the cells H7 and H8 is 5, which can't be in "
         "any other cell that sees both"},
        {"two in a column, the open ones in two boxes",
         {{6, "B8"}, {4, "H8"}},
         "",
         {{kNoUnit, "45", "B7"}, {kNoUnit, "56", "H7"}},
         "Avoidable Rectangle: Cells B7, B8, H7 and H8 => Removed candidate 5 from cell(s) "
         "A7 C7 D7 E7 F7 G7 J7"},
        {"three filled before two filled",
         {{4, "B7"}, {6, "B8"}, {1, "D1"}, {2, "D4 E1"}},
         "",
         {{kNoUnit, "56", "H7"}, {kNoUnit, "45", "H8"}},
         "Avoidable Rectangle: Cells D1, D4, E1 and E4 => Removed candidate 1 from cell(s) E4"},
        {"not with a clue among three", {{4, "B7"}, {6, "B8 H7"}}, "H7", {}, ""},
        {"not with a clue among two",
         {{4, "B7"}, {6, "B8"}},
         "B8",
         {{kNoUnit, "56", "H7"}, {kNoUnit, "45", "H8"}},
         ""},
        {"not in four boxes", {{4, "B1"}, {6, "B8 H1"}}, "", {}, ""},
        {"not with different neighbours", {{4, "B7"}, {6, "B8"}, {5, "H7"}}, "", {}, ""},
        {"not with two filled corners across", {{4, "B7 H8"}}, "", {{kNoUnit, "56", "B8 H7"}}, ""},
        {"not with different extra digits",
         {{4, "B7"}, {6, "B8"}},
         "",
         {{kNoUnit, "56", "H7"}, {kNoUnit, "47", "H8"}},
         ""},
        {"not with a second extra digit",
         {{4, "B7"}, {6, "B8"}},
         "",
         {{kNoUnit, "567", "H7"}, {kNoUnit, "45", "H8"}},
         ""},
    };
    for (const AvoidableCase& at : cases) {
        SCOPED_TRACE(at.rule);
        const FirstFind first = SearchFirst(StepOfSlot(kAvoidable), GridOf(at));
        EXPECT_EQ(first.any ? LogLine(first.found) : "", at.log);
        if (first.any && at.hint != nullptr) {
            EXPECT_EQ(HintText(first.found), at.hint);
        }
    }
}

TEST(UniqueRectangle, UsesNoFilledCorner) {
    const AvoidableCase filled = {"", {{4, "B7"}, {6, "B8 H7"}}, "", {}, ""};
    EXPECT_FALSE(SearchFirst(StepOfSlot(kUnique), GridOf(filled)).any);
}

}  // namespace
}  // namespace vemo
