// MultiFish: its texts, which comes first, and what only looks like one.
#include "solver/find_cases.h"

namespace vemo {
namespace {

using namespace test;

constexpr int kMultiFish = 35;

// Each row has a number of its own, each column too.
const std::vector<Pattern> kRowsAndColumns = {
    {kNoUnit, "15", "G7"}, {kNoUnit, "16", "G8"}, {kNoUnit, "25", "H7"}, {kNoUnit, "26", "H8"}};
// Three numbers a row.
const std::vector<Pattern> kTwoRows = {{kNoUnit, "123", "A1 A2 A3"}, {kNoUnit, "456", "B1 B2 B3"}};
// Three numbers a column.
const std::vector<Pattern> kTwoColumns = {{kNoUnit, "123", "G7 H7 J7"},
                                          {kNoUnit, "456", "G8 H8 J8"}};

constexpr const char* kFoundOnTwoRows =
    "MultiFish: Rows A and B and Columns 1, 2 and 3 => Removed candidate 1 from cell(s) "
    "A4 A5 A6 A7 A8 A9, candidate 2 from cell(s) A4 A5 A6 A7 A8 A9, candidate 3 from cell(s) "
    "A4 A5 A6 A7 A8 A9, candidate 4 from cell(s) B4 B5 B6 B7 B8 B9, candidate 5 from cell(s) "
    "B4 B5 B6 B7 B8 B9, candidate 6 from cell(s) B4 B5 B6 B7 B8 B9";
constexpr const char* kFoundOnRowsAndColumns =
    "MultiFish: Rows G and H and Columns 7 and 8 => Removed candidate 1 from cell(s) "
    "G1 G2 G3 G4 G5 G6 G9, candidate 2 from cell(s) H1 H2 H3 H4 H5 H6 H9, candidate 5 from "
    "cell(s) A7 B7 C7 D7 E7 F7 J7, candidate 6 from cell(s) A8 B8 C8 D8 E8 F8 J8";

std::vector<Pattern> Both(std::vector<Pattern> patterns, const std::vector<Pattern>& others) {
    patterns.insert(patterns.end(), others.begin(), others.end());
    return patterns;
}

TEST(MultiFish, TheFirstFindIsTheOnePromised) {
    ExpectFirst(
        kMultiFish,
        {{"two numbers are counted by rows and two by columns", kRowsAndColumns,
          kFoundOnRowsAndColumns,
          "MULTIFISH: Since the 4 open cells where rows G and H and columns 7 and 8 meet have room "
          "for only 4 placements (of 1 and 2 one per row, of 5 and 6 one per column), each of "
          "these numbers can be discarded from the other cells of those rows or columns"},
         {"all by rows", kTwoRows, kFoundOnTwoRows,
          "MULTIFISH: Since the 6 open cells where rows A and B and columns 1, 2 and 3 meet have "
          "room for only 6 placements (of 1, 2, 3, 4, 5 and 6 one per row), each of these numbers "
          "can be discarded from the other cells of those rows or columns"},
         {"all by columns", kTwoColumns,
          "MultiFish: Rows G, H and J and Columns 7 and 8 => Removed candidate 1 from cell(s) "
          "A7 B7 C7 D7 E7 F7, candidate 2 from cell(s) A7 B7 C7 D7 E7 F7, candidate 3 from cell(s) "
          "A7 B7 C7 D7 E7 F7, candidate 4 from cell(s) A8 B8 C8 D8 E8 F8, candidate 5 from cell(s) "
          "A8 B8 C8 D8 E8 F8, candidate 6 from cell(s) A8 B8 C8 D8 E8 F8",
          "MULTIFISH: Since the 6 open cells where rows G, H and J and columns 7 and 8 meet have "
          "room for only 6 placements (of 1, 2, 3, 4, 5 and 6 one per column), each of these "
          "numbers can be discarded from the other cells of those rows or columns"},
         {"7 is counted either way, goes from rows and columns, and is named with the rows",
          {{kNoUnit, "17", "A1 A2"}, {kNoUnit, "27", "B1 B2"}},
          "MultiFish: Rows A and B and Columns 1 and 2 => Removed candidate 1 from cell(s) "
          "A3 A4 A5 A6 A7 A8 A9, candidate 2 from cell(s) B3 B4 B5 B6 B7 B8 B9, candidate 7 from "
          "cell(s) A3 A4 A5 A6 A7 A8 A9 B3 B4 B5 B6 B7 B8 B9 C1 C2 D1 D2 E1 E2 F1 F2 G1 G2 H1 H2 "
          "J1 J2",
          "MULTIFISH: Since the 4 open cells where rows A and B and columns 1 and 2 meet have room "
          "for only 4 placements (of 1, 2 and 7 one per row), each of these numbers can be "
          "discarded from the other cells of those rows or columns"},
         {"four lines before five", Both(kTwoRows, kRowsAndColumns), kFoundOnRowsAndColumns},
         {"two rows before three", Both(kTwoColumns, kTwoRows), kFoundOnTwoRows}});
}

TEST(MultiFish, NothingIsFoundWhereTheSumIsNotThatOfTheCells) {
    ExpectFirst(
        kMultiFish,
        {{"room for a placement more than cells",
          {{kNoUnit, "15", "A1"},
           {kNoUnit, "16", "A2"},
           {kNoUnit, "25", "B1"},
           {kNoUnit, "23", "B2"}},
          ""},
         {"four cells with three numbers", {{kNoUnit, "12", "A1 A2"}, {kNoUnit, "3", "B1 B2"}}, ""},
         {"one row alone", {{kNoUnit, "1234", "A1 A2 A3 A4"}}, ""}});
}

TEST(MultiFish, FourOpenCellsAreTheFewest) {
    Grid grid = GridWith({{kNoUnit, "12", "A1 A2"}, {kNoUnit, "3", "B1"}});
    grid.Zet(9, CellNamed("B2"));
    EXPECT_FALSE(SearchFirst(StepOfSlot(kMultiFish), grid).any);
}

TEST(MultiFish, IsDrawnWithTheNumbersOfTheRowsInOneColorAndOfTheColumnsInTheOther) {
    const Find find = SearchFirst(StepOfSlot(kMultiFish), GridWith(kRowsAndColumns)).found;
    const int g7 = CellNamed("G7");
    const int h7 = CellNamed("H7");
    EXPECT_EQ(find.firstColor, (std::vector{At(g7, 1), At(g7 + 1, 1), At(h7, 2), At(h7 + 1, 2)}));
    EXPECT_EQ(find.secondColor, (std::vector{At(g7, 5), At(g7 + 1, 6), At(h7, 5), At(h7 + 1, 6)}));
}

}  // namespace
}  // namespace vemo
