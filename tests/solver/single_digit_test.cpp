// Patterns of a single digit: their texts, which comes first, and what only looks like one.
#include "solver/find_cases.h"

namespace vemo {
namespace {

using namespace test;

// Their slots.
constexpr int kEmptyRectangle = 11;
constexpr int kTwoStringKite = 13;
constexpr int kSkyscraper = 14;

TEST(EmptyRectangle, TakesTheCellThatSeesTheFarEnd) {
    ExpectFirst(
        kEmptyRectangle,
        {{"a pair on a column",
          {{Box(4), "4", "D5 E4 F5"}, {Column(9), "4", "B9 E9"}},
          "Empty Rectangle: Box 5 with cells B9 and E9 => Removed candidate 4 from cell(s) B5",
          "EMPTY RECTANGLE: Since number 4 in the centre block appears only in row E and column 5, "
          "and appears only twice in column 9 (cells B9 and E9), this number can't be at cell B5"},
         {"a pair on a row",
          {{Box(4), "4", "D5 E4 F5"}, {Row('J'), "4", "J2 J5"}},
          "Empty Rectangle: Box 5 with cells J2 and J5 => Removed candidate 4 from cell(s) E2",
          "EMPTY RECTANGLE: Since number 4 in the centre block appears only in row E and column 5, "
          "and appears only twice in row J (cells J2 and J5), this number can't be at cell E2"},
         {"pairs on columns before pairs on rows",
          {{Box(4), "4", "D5 E4 F5"}, {Column(9), "4", "B9 E9"}, {Row('A'), "4", "A2 A5"}},
          "Empty Rectangle: Box 5 with cells B9 and E9 => Removed candidate 4 from cell(s) B5"},
         {"the place where row and column cross may hold the digit",
          {{Box(4), "4", "D5 E4 E5"}, {Column(9), "4", "B9 E9"}},
          "Empty Rectangle: Box 5 with cells B9 and E9 => Removed candidate 4 from cell(s) B5"}});
}

TEST(EmptyRectangle, IsNoneWhereTheProofFails) {
    ExpectFirst(
        kEmptyRectangle,
        {{"a box with two places is a pair itself",
          {{Box(4), "4", "D5 E4"}, {Column(9), "4", "B9 E9"}},
          ""},
         {"a fourth place off the row and the column",
          {{Box(4), "4", "D5 E4 F5 F6"}, {Column(9), "4", "B9 E9"}},
          ""},
         {"all places on one line are a pointing triple",
          {{Box(4), "4", "E4 E5 E6"}, {Column(9), "4", "B9 E9"}, {Row('J'), "4", "J2 J5"}},
          ""},
         {"with the far end in the band the box itself could need the target",
          {{Box(4), "4", "D5 E4 F5"}, {Column(9), "4", "D9 E9"}},
          ""},
         {"a pair that ends in the box",
          {{Box(4), "4", "D5 E4 F5"}, {Column(4), "4", "B4 E4"}},
          ""},
         {"a third place on the pair's line",
          {{Box(4), "4", "D5 E4 F5"}, {Column(9), "4", "B9 E9 H9"}},
          ""},
         {"a target without the digit",
          {{Box(4), "4", "D5 E4 F5"}, {Column(9), "4", "B9 E9"}, {Row('B'), "4", "B1 B2 B9"}},
          ""}});
}

TEST(TwoStringKite, TakesTheCellThatSeesBothOuterEnds) {
    ExpectFirst(
        kTwoStringKite,
        {{"an end of each in one box",
          {{Row('E'), "4", "E1 E5"}, {Column(6), "4", "B6 F6"}},
          "Two-String Kite: Row E and Column 6 => Removed candidate 4 from cell(s) B1",
          "TWO-STRING KITE: Since number 4 appears only twice in row E (cells E1 and E5) and only "
          "twice in column 6 (cells B6 and F6), and cells E5 and F6 are in the same block, this "
          "number must be at E1 or B6 and can't be at cell B1"},
         {"rows before columns",
          {{Row('B'), "4", "B3 B7"},
           {Column(9), "4", "C9 G9"},
           {Row('H'), "4", "H2 H6"},
           {Column(1), "4", "D1 J1"}},
          "Two-String Kite: Row B and Column 9 => Removed candidate 4 from cell(s) G3"},
         {"of two cells of the row in the box the left one is the inner end first",
          {{Row('E'), "4", "E4 E5"}, {Column(6), "4", "B6 F6"}},
          "Two-String Kite: Row E and Column 6 => Removed candidate 4 from cell(s) B5"},
         {"of two cells of the column in the box the upper one is the inner end first",
          {{Row('E'), "4", "E1 E5"}, {Column(6), "4", "D6 F6"}},
          "Two-String Kite: Row E and Column 6 => Removed candidate 4 from cell(s) F1"}});
}

TEST(TwoStringKite, IsNoneWhereTheProofFails) {
    ExpectFirst(
        kTwoStringKite,
        {{"row and column share a cell", {{Row('E'), "4", "E1 E6"}, {Column(6), "4", "B6 E6"}}, ""},
         {"no two ends in one box", {{Row('E'), "4", "E1 E5"}, {Column(9), "4", "B9 H9"}}, ""},
         {"a third place on the row", {{Row('E'), "4", "E1 E5 E8"}, {Column(6), "4", "B6 F6"}}, ""},
         {"a target without the digit",
          {{Row('E'), "4", "E1 E5"}, {Column(6), "4", "B6 F6"}, {Row('B'), "4", "B6 B8 B9"}},
          ""}});
}

TEST(Skyscraper, TakesEveryCellThatSeesBothRoofs) {
    ExpectFirst(
        kSkyscraper,
        {{"rows",
          {{Row('B'), "4", "B2 B7"}, {Row('E'), "4", "E2 E9"}},
          "Skyscraper: Rows B and E => Removed candidate 4 from cell(s) A9 C9 D7 F7",
          "SKYSCRAPER: Since number 4 appears only twice in both rows B and E, and cells B2 and E2 "
          "are in the same column, this number must be at B7 or E9 and can't be in any cell that "
          "sees both"},
         {"columns",
          {{Column(3), "4", "C3 H3"}, {Column(5), "4", "C5 G5"}},
          "Skyscraper: Columns 3 and 5 => Removed candidate 4 from cell(s) G1 G2 H4 H6",
          "SKYSCRAPER: Since number 4 appears only twice in both columns 3 and 5, and cells C3 and "
          "C5 are in the same row, this number must be at H3 or G5 and can't be in any cell that "
          "sees both"},
         {"by the first line, not by the second",
          {{Row('A'), "4", "A1 A5"},
           {Row('D'), "4", "D3 D8"},
           {Row('E'), "4", "E3 E9"},
           {Row('H'), "4", "H1 H6"}},
          "Skyscraper: Rows A and H => Removed candidate 4 from cell(s) B6 C6 G5 J5"},
         {"rows before columns",
          {{Column(1), "4", "A1 D1"},
           {Column(4), "4", "A4 E4"},
           {Row('G'), "4", "G3 G8"},
           {Row('H'), "4", "H3 H9"}},
          "Skyscraper: Rows G and H => Removed candidate 4 from cell(s) J7 J8 J9"},
         {"a base cell that sees both roofs goes too",
          {{Row('A'), "4", "A1 A7"}, {Row('B'), "4", "B1 B3"}},
          "Skyscraper: Rows A and B => Removed candidate 4 from cell(s) A1"}});
}

TEST(Skyscraper, IsNoneWhereTheProofFails) {
    ExpectFirst(
        kSkyscraper,
        {{"both crossing lines in common are an X-Wing",
          {{Row('B'), "4", "B2 B7"}, {Row('E'), "4", "E2 E7"}},
          ""},
         {"no crossing line in common", {{Row('B'), "4", "B2 B7"}, {Row('E'), "4", "E3 E8"}}, ""},
         {"a third place on a line", {{Row('B'), "4", "B2 B7"}, {Row('E'), "4", "E2 E5 E9"}}, ""},
         {"nothing left to take",
          {{Row('B'), "4", "B3 B8"}, {Row('C'), "4", "C3 C9"}, {Row('A'), "4", "A1 A4"}},
          ""}});
}

}  // namespace
}  // namespace vemo
