// Patterns and colorings of a single digit: their texts, which comes first, and how they are drawn.
#include "solver/find_cases.h"

namespace vemo {
namespace {

using namespace test;

// The places of 4 in the centre block lie in row E and column 5.
std::vector<Pattern> CrossIn5(const std::vector<Pattern>& pairs) {
    return Both({{Box(4), "4", "D5 E4 F5"}}, pairs);
}

TEST(EmptyRectangle, TheFirstIsTheOnePromisedInItsWords) {
    ExpectFirst(
        StepOfSlot(11),
        {{"a pair on a row", CrossIn5({{Row('J'), "4", "J2 J5"}}),
          "Empty Rectangle: Box 5 with cells J2 and J5 => Removed candidate 4 from cell(s) E2",
          "EMPTY RECTANGLE: Since number 4 in the centre block appears only in row E and column "
          "5, and appears only twice in row J (cells J2 and J5), this number can't be at cell E2",
          " |  | J5(4) = J2(4)"},
         {"pairs on columns before pairs on rows",
          CrossIn5({{Column(9), "4", "B9 E9"}, {Row('A'), "4", "A2 A5"}}),
          "Empty Rectangle: Box 5 with cells B9 and E9 => Removed candidate 4 from cell(s) B5"}});
}

TEST(TwoStringKite, TheFirstIsTheOnePromisedInItsWords) {
    ExpectFirst(
        StepOfSlot(13),
        {{"an end of each in one box",
          {{Row('E'), "4", "E1 E5"}, {Column(6), "4", "B6 F6"}},
          "Two-String Kite: Row E and Column 6 => Removed candidate 4 from cell(s) B1",
          "TWO-STRING KITE: Since number 4 appears only twice in row E (cells E1 and E5) and only "
          "twice in column 6 (cells B6 and F6), and cells E5 and F6 are in the same block, this "
          "number must be at E1 or B6 and can't be at cell B1",
          " |  | E1(4) = E5(4), E5(4) - F6(4), F6(4) = B6(4)"},
         {"rows before columns",
          {{Row('B'), "4", "B3 B7"},
           {Column(9), "4", "C9 G9"},
           {Row('H'), "4", "H2 H6"},
           {Column(1), "4", "D1 J1"}},
          "Two-String Kite: Row B and Column 9"},
         {"of two cells of the row in the box the left one is the inner end first",
          {{Row('E'), "4", "E4 E5"}, {Column(6), "4", "B6 F6"}},
          "Two-String Kite: Row E and Column 6 => Removed candidate 4 from cell(s) B5"},
         {"of two cells of the column in the box the upper one is the inner end first",
          {{Row('E'), "4", "E1 E5"}, {Column(6), "4", "D6 F6"}},
          "Two-String Kite: Row E and Column 6 => Removed candidate 4 from cell(s) F1"},
         {"with the row's first end all of the column's before the row's other one",
          {{Row('E'), "4", "E4 E5"}, {Column(6), "4", "D6 F6"}, Only("12356789", "F5")},
          "Two-String Kite: Row E and Column 6 => Removed candidate 4 from cell(s) D5"}});
}

TEST(Skyscraper, TheFirstIsTheOnePromisedInItsWords) {
    ExpectFirst(
        StepOfSlot(14),
        {{"rows",
          {{Row('B'), "4", "B2 B7"}, {Row('E'), "4", "E2 E9"}},
          "Skyscraper: Rows B and E => Removed candidate 4 from cell(s) A9 C9 D7 F7",
          "SKYSCRAPER: Since number 4 appears only twice in both rows B and E, and cells B2 and E2 "
          "are in the same column, this number must be at B7 or E9 and can't be in any cell that "
          "sees both"},
         {"by the first line, not by the second",
          {{Row('A'), "4", "A1 A5"},
           {Row('D'), "4", "D3 D8"},
           {Row('E'), "4", "E3 E9"},
           {Row('H'), "4", "H1 H6"}},
          "Skyscraper: Rows A and H"},
         {"rows before columns",
          {{Column(1), "4", "A1 D1"},
           {Column(4), "4", "A4 E4"},
           {Row('G'), "4", "G3 G8"},
           {Row('H'), "4", "H3 H9"}},
          "Skyscraper: Rows G and H"}});
}

// Five places in a ring of conjugate pairs: no digits at all fit.
const std::vector<Pattern> kOddRing = {{Row('B'), "4", "B2 B7"},
                                       {Column(7), "4", "B7 H7"},
                                       {Box(8), "4", "H7 J9"},
                                       {Row('J'), "4", "J2 J9"},
                                       {Column(2), "4", "B2 J2"}};

TEST(SimpleColors, TheFirstFindIsTheOnePromised) {
    ExpectFirst(
        StepOfSlot(16),
        {{"a single pair is a cluster",
          {{Row('B'), "4", "B7 B8"}},
          "Simple Colors (Color Trap): Cells B7 and B8 => Removed candidate 4 from cell(s) "
          "A7 A8 A9 C7 C8 C9",
          "SIMPLE COLORS (COLOR TRAP): Since number 4 must be either in cell B7 or in cell B8, it "
          "can't be in any other cell that sees a cell of both colors"},
         {"a pair of two units is linked once",
          {{Row('B'), "4", "B7 B8"},
           {Box(2), "4", "B7 B8"},
           {Column(8), "4", "B8 G8"},
           {Box(8), "4", "G8 H7"}},
          "Simple Colors (Color Trap): Cells B7, B8, G8 and H7",
          "",
          "B7(4) G8(4) | B8(4) H7(4) | B7(4) = B8(4), B8(4) = G8(4), G8(4) = H7(4)"},
         {"a wrap takes the whole color, and comes before the trap of its cluster",
          {{Row('B'), "4", "B2 B7"},
           {Column(7), "4", "B7 H7"},
           {Box(8), "4", "H7 J9"},
           {Row('J'), "4", "J2 J9"},
           {Row('H'), "4", "H3 H7"}},
          "Simple Colors (Color Wrap): Cells B2, B7, H3, H7, J2 and J9 => Removed candidate 4 "
          "from cell(s) B2 H7 J2",
          "SIMPLE COLORS (COLOR WRAP): Since number 4 must be in all cells of one of the two "
          "colors, and the color of cells B2, H7 and J2 would place it twice in column 2, this "
          "number can't be in any cell of that color"},
         {"the trap of a cluster before the wrap of a later one",
          {{Row('A'), "4", "A1 A4"},
           {Column(4), "4", "A4 D4"},
           {Row('D'), "4", "D2 D4"},
           {Row('F'), "4", "F6 F8"},
           {Column(8), "4", "F8 H8"},
           {Box(8), "4", "H8 J9"},
           {Row('J'), "4", "J6 J9"}},
          "Simple Colors (Color Trap): Cells A1, A4, D2 and D4"},
         {"a ring of an odd number of pairs ends, all its cells in both colors", kOddRing,
          "Simple Colors (Color Wrap): Cells B2, B7, H7, J2 and J9 => Removed candidate 4 from "
          "cell(s) B2 B7 H7 J2 J9"}});
}

// In a picture of type 1 the partners share the one color; of type 2 the other chain has both.
TEST(MultiColors, TheFirstFindIsTheOnePromisedAndThePictureShowsTheProof) {
    ExpectFirst(
        StepOfSlot(19),
        {{"colors that see each other leave one of their partners",
          {{Row('B'), "4", "B2 B7"}, {Row('E'), "4", "E3 E7"}},
          "Multi Coloring Type 1: Cells B2 and cells E3 => Removed candidate 4 from cell(s) "
          "A3 C3 D2 F2",
          "MULTI COLORING TYPE 1: Since number 4 can't be both in cell B7 and in cell E7, it must "
          "be in cell B2 or in cell E3 (or in both), and can't be in any cell that sees one of "
          "each",
          "B2(4) E3(4) | B7(4) E7(4) | B2(4) = B7(4), E3(4) = E7(4), B7(4) - E7(4)"},
         {"a color that sees both of another cluster is wrong, which comes before any type 1",
          {{Row('B'), "4", "B2 B7"},
           {Column(2), "4", "B2 D2"},
           {Row('D'), "4", "D2 D9"},
           {Row('E'), "4", "E3 E7"}},
          "Multi Coloring Type 2: Cells B7 and D2 against cells E3 and against cells E7 => "
          "Candidate 4 placed at cell(s) B2 D9",
          "MULTI COLORING TYPE 2: Since number 4 in cells B7 and D2 sees both colors of another "
          "chain (cell E3 and cell E7), one of which must be true, it can't be there and must be "
          "in cells B2 and D9"},
         {"strong links of both clusters, then the weak ones between them",
          {{Row('B'), "4", "B2 B7"}, {Column(2), "4", "B2 D2"}, {Row('E'), "4", "E3 E7"}},
          "Multi Coloring Type 2: Cells B7 and D2 against cells E3 and against cells E7",
          "",
          "E3(4) | E7(4) | E3(4) = E7(4), B2(4) = B7(4), B2(4) = D2(4), D2(4) - E3(4), "
          "B7(4) - E7(4)"},
         {"no color is placed that would stand twice in a unit: here B2, C1 and D9",
          {{Row('B'), "4", "B2 B7"},
           {Column(2), "4", "B2 D2"},
           {Row('D'), "4", "D2 D9"},
           {Column(9), "4", "C9 D9"},
           {Row('C'), "4", "C1 C9"},
           {Row('E'), "4", "E3 E7"}},
          "Multi Coloring Type 2: Cells E7 against cells B2, C1 and D9 and against cells B7, C9 "
          "and D2 => Candidate 4 placed at cell(s) E3"}});
}

TEST(MultiColors, NothingIsConcludedFromAClusterWithoutTwoColors) {
    const Grid seenFromE9 = GridWith(Both(kOddRing, {{Row('E'), "4", "E5 E9"}}));
    EXPECT_FALSE(SearchFirst(StepOfSlot(19), seenFromE9).any);
}

}  // namespace
}  // namespace vemo
