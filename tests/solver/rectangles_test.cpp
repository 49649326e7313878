// Unique and avoidable rectangles: their texts, which comes first, and how they are drawn.
#include "solver/find_cases.h"

namespace vemo {
namespace {

using namespace test;

constexpr int kUnique = 24;
constexpr int kAvoidable = 25;

TEST(UniqueRectangle, Type1TakesThePairFromTheFourthCorner) {
    ExpectFirst(
        StepOfSlot(kUnique),
        {{"a bare corner may have lost one digit of the pair, and so may the fourth",
          {Only("4", "B7"), Only("46", "B8 H7"), Only("1256789", "H8")},
          "Unique Rectangle: Type 1 cells B7, B8, H7 and H8 => Removed candidate 6 from cell(s) H8",
          "UNIQUE RECTANGLE TYPE 1: Since the cells B7, B8, H7 and H8 would otherwise all hold "
          "only 4 and 6 and the sudoku would have two solutions, 6 can be discarded from cell H8"},
         {"all of type 1 before any of type 2",
          {Only("12", "A1 A4"), Only("123", "B1 B4"), Only("46", "H7 H8 B8")},
          "Unique Rectangle: Type 1 cells B7, B8, H7 and H8"},
         {"by the upper row, then by the lower one, whatever the columns",
          {Only("12", "A7 D7 D8"), Only("46", "A1 E1 E2")},
          "Unique Rectangle: Type 1 cells A7, A8, D7 and D8"},
         {"by the columns before the digits",
          {Only("12", "A7 D7 D8"), Only("46", "A1 D1 D2")},
          "Unique Rectangle: Type 1 cells A1, A2, D1 and D2"}});
}

TEST(UniqueRectangle, Type2TakesTheExtraDigitFromWhatSeesTheRoof) {
    ExpectFirst(
        StepOfSlot(kUnique),
        {{"in the roof's row and box",
          {Only("46", "H7 H8"), Only("456", "B7 B8")},
          "Unique Rectangle: Type 2 cells B7, B8, H7 and H8 => Removed candidate 5 from cell(s) "
          "A7 A8 A9 B1 B2 B3 B4 B5 B6 B9 C7 C8 C9",
          "UNIQUE RECTANGLE TYPE 2: Since the cells B7, B8, H7 and H8 would otherwise all hold "
          "only 4 and 6 and the sudoku would have two solutions, one of the cells B7 and B8 must "
          "be 5, which can't be in any other cell that sees both"},
         {"by the digits before the floor: 4 and 5 at the left, 4 and 6 at the bottom",
          {Only("45", "B7"), Only("4", "H7"), Only("56", "B8"), Only("46", "H8")},
          "Unique Rectangle: Type 2 cells B7, B8, H7 and H8 => Removed candidate 6 from cell(s) "
          "A8 C8 D8 E8 F8 G8 J8"}});
}

// The floor H7 H8 holds 4 and 6, the roof 5 and 7 besides; then the cells that lock.
std::vector<Pattern> RoofOf57(const std::vector<Pattern>& helpers) {
    return Both({Only("46", "H7 H8"), Only("456", "B7"), Only("467", "B8")}, helpers);
}

TEST(UniqueRectangle, Type3LocksTheExtraDigitsWithOtherCells) {
    ExpectFirst(
        StepOfSlot(kUnique),
        {{"of the roof's row; a roof's and helper's other candidates in the other color",
          RoofOf57({Only("57", "B1"), Only("46", "B2 B3 B4 B5 B6")}),
          "Unique Rectangle: Type 3 => Removed candidates 5 and/or 7 from cells B9",
          "UNIQUE RECTANGLE TYPE 3: Since one of the cells B7 and B8 must hold a number other "
          "than 4 and 6, these cells count as one cell with candidates 5 and 7 that together with "
          "cell B1 locks the numbers 5 and 7 in row B",
          "B7(46) B8(46) H7(46) H8(46) | B1(57) B7(5) B8(7) | "},
         {"two of which hold a digit of the pair, which goes as well",
          RoofOf57({Only("45", "B1"), Only("47", "B2")}),
          "Unique Rectangle: Type 3 => Removed candidates 4 and/or 5 and/or 7 from cells "
          "B3 B4 B5 B6 B9",
          "UNIQUE RECTANGLE TYPE 3: Since one of the cells B7 and B8 must hold a number other "
          "than 4 and 6, these cells count as one cell with candidates 5 and 7 that together with "
          "cells B1 and B2 locks the numbers 4, 5 and 7 in row B"},
         {"the row before the box, whatever the number of cells",
          RoofOf57({Only("57", "C9"), Only("58", "B1"), Only("78", "B2")}),
          "Unique Rectangle: Type 3 => Removed candidates 5 and/or 7 and/or 8 from cells "
          "B3 B4 B5 B6 B9"},
         {"one cell before two", RoofOf57({Only("58", "B1"), Only("78", "B2"), Only("57", "B6")}),
          "Unique Rectangle: Type 3 => Removed candidates 5 and/or 7 from cells B1 B2 B3 B4 B5 B9"},
         {"of two pairs of cells the one with the lower last cell",
          RoofOf57({Only("58", "B1"), Only("59", "B2"), Only("79", "B3"), Only("78", "B4")}),
          "Unique Rectangle: Type 3 => Removed candidates 5 and/or 7 and/or 9 from cells "
          "B1 B4 B5 B6 B9"}});
}

TEST(UniqueRectangle, Type4TakesOneDigitWhereTheOtherHasNoPlaceBesides) {
    ExpectFirst(
        StepOfSlot(kUnique),
        {{"in its box, the lower digit before the higher one in the row",
          {Only("46", "H7 H8"), {Box(2), "4", "B7 B8"}, {Row('B'), "6", "B7 B8"}},
          "Unique Rectangle: Type 4 cells B7, B8, H7 and H8 => Removed candidate 6 from cell(s) "
          "B7 B8",
          "UNIQUE RECTANGLE TYPE 4: Since number 4 in the top right block appears only in cells "
          "B7 and B8, number 6 there would complete the cells B7, B8, H7 and H8 with only 4 and 6 "
          "and give two solutions, so 6 can be discarded from both"},
         {"the row is named before the box",
          {Only("46", "H7 H8"), {Row('B'), "6", "B7 B8"}, {Box(2), "6", "B7 B8"}},
          "Unique Rectangle: Type 4 cells B7, B8, H7 and H8 => Removed candidate 4 from cell(s) "
          "B7 B8",
          "UNIQUE RECTANGLE TYPE 4: Since number 6 in row B appears only in cells B7 and B8, "
          "number 4 there would complete the cells B7, B8, H7 and H8 with only 4 and 6 and give "
          "two solutions, so 4 can be discarded from both"}});
}

TEST(UniqueRectangle, Type4NeedsAPlaceForTheDigit) {
    const Grid grid = GridWith({Only("46", "H7 H8"), {Row('B'), "4", ""}});
    EXPECT_FALSE(SearchFirst(StepOfSlot(kUnique), grid).any);
}

// The 6 at H8, for these reasons.
FindCase HiddenAtH8(const char* rule, const std::vector<Pattern>& patterns, const char* other,
                    const std::string& reasons) {
    const std::string digits = std::string(other) + " and 6";
    return {rule, patterns,
            "Hidden Unique Rectangle: Cells B7, B8, H7 and H8 => Removed candidate 6 from cell(s) "
            "H8",
            "HIDDEN UNIQUE RECTANGLE: Since " + reasons +
                ", number 6 at cell H8 would fill the cells B7, B8, H7 and H8 with only " + digits +
                " and give two solutions, so it can be discarded"};
}

TEST(UniqueRectangle, TheHiddenFormNamesWhatForcesTheOtherCorners) {
    ExpectFirst(
        StepOfSlot(kUnique),
        {HiddenAtH8("a corner with a bare one across before an earlier corner without",
                    {Only("46", "B7"),
                     {Row('H'), "4", "H7 H8"},
                     {Column(8), "4", "B8 H8"},
                     {Row('B'), "6", "B7 B8"}},
                    "4", "number 4 appears only twice in row H and only twice in column 8"),
         HiddenAtH8("a bare neighbour, and the corner across forced with the other digit; the "
                    "lower digit as the other one first, whatever the corner",
                    {Only("46", "H7"), {Column(8), "4", "B8 H8"}, {Row('B'), "6", "B7 B8"}}, "4",
                    "number 4 appears only twice in column 8, cell H7 can only be 4 or 6 and "
                    "number 6 appears only twice in row B"),
         HiddenAtH8("two bare neighbours", {Only("46", "B8 H7"), {Row('B'), "6", "B7 B8"}}, "4",
                    "cells B8 and H7 can only be 4 or 6 and number 6 appears only twice in row B"),
         HiddenAtH8("the corner itself may have lost the other digit",
                    {Only("46", "B7"), {Row('H'), "4", "H7"}, {Column(8), "4", "B8"}}, "4",
                    "number 4 appears only once in row H and only once in column 8"),
         HiddenAtH8(
             "no bare corner at all; the lower digit pair first",
             {{Row('H'), "14", "H7 H8"}, {Column(8), "14", "B8 H8"}, {Column(7), "69", "B7 H7"}},
             "1",
             "number 1 appears only twice in row H and only twice in column 8 and number 6 "
             "appears only twice in column 7"),
         {"twice in the block",
          {Only("46", "H7"), {Box(2), "4", "B7 B8"}, {Column(8), "4", "B8 H8"}},
          "Hidden Unique Rectangle: Cells B7, B8, H7 and H8 => Removed candidate 6 from cell(s) B8",
          "HIDDEN UNIQUE RECTANGLE: Since number 4 appears only twice in the top right block and "
          "only twice in column 8, number 6 at cell B8 would fill the cells B7, B8, H7 and H8 "
          "with only 4 and 6 and give two solutions, so it can be discarded"}});
}

TEST(AvoidableRectangle, TheFirstFindIsTheOnePromisedInItsWords) {
    const std::vector<Pattern> twoFilled = {Filled("4", "B7"), Filled("6", "B8"), Only("56", "H7"),
                                            Only("45", "H8")};
    ExpectFirst(
        StepOfSlot(kAvoidable),
        {{"two filled corners", twoFilled,
          "Avoidable Rectangle: Cells B7, B8, H7 and H8 => Removed candidate 5 from cell(s) "
          "G7 G8 G9 H1 H2 H3 H4 H5 H6 H9 J7 J8 J9",
          "AVOIDABLE RECTANGLE: Since none of the cells B7, B8, H7 and H8 is a clue, the numbers 4 "
          "and 6 would be exchangeable unless one of the cells H7 and H8 is 5, which can't be in "
          "any other cell that sees both"},
         {"three filled before two filled",
          Both(twoFilled, {Filled("1", "D1"), Filled("2", "D4 E1")}),
          "Avoidable Rectangle: Cells D1, D4, E1 and E4 => Removed candidate 1 from cell(s) E4"}});
}

}  // namespace
}  // namespace vemo
