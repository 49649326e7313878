// Fish: their texts, and which comes first.
#include "solver/find_cases.h"

namespace vemo {
namespace {

using namespace test;

TEST(Fish, TheFirstXWingIsTheOnePromisedInItsWords) {
    ExpectFirst(
        StepOfSlot(8),
        {{"rows as base lines, written as plain indices",
          {{Row('A'), "4", "A3 A7"}, {Row('D'), "4", "D3 D7"}},
          "X-Wing in Rows: Row1=0 Row2=3 => Removed candidate 4 from cell(s) B3 B7 C3 C7 E3 E7 F3 "
          "F7 G3 G7 H3 H7 J3 J7",
          "X-WING: Since number 4 appears only twice in both A and D, and this number appears in "
          "the same two columns 3 and 7, this number can't appear anywhere else in these columns"},
         {"columns as base lines",
          {{Column(3), "4", "A3 J3"}, {Column(7), "4", "A7 J7"}},
          "X-Wing in Columns: Column1=2 Column2=6 => Removed candidate 4 from cell(s) A1 A2 A4 A5 "
          "A6 A8 A9 J1 J2 J4 J5 J6 J8 J9",
          "X-WING: Since number 4 appears only twice in both 3 and 7, and this number appears in "
          "the same two rows A and J, this number can't appear anywhere else in these rows"},
         {"all digits with rows before any digit with columns",
          {{Column(3), "2", "A3 D3"},
           {Column(7), "2", "A7 D7"},
           {Row('G'), "4", "G1 G9"},
           {Row('J'), "4", "J1 J9"}},
          "X-Wing in Rows: Row1=6 Row2=8"},
         {"within a digit by the pair of crossing lines, not by the base lines",
          {{Row('A'), "5", "A2 A3"},
           {Row('B'), "5", "B2 B3"},
           {Row('G'), "5", "G1 G9"},
           {Row('J'), "5", "J1 J9"}},
          "X-Wing in Rows: Row1=6 Row2=8"}});
}

TEST(Fish, ThreeLinesOnTheSameTwoCrossingLinesAreNoXWing) {
    const Grid grid =
        GridWith({{Row('A'), "4", "A3 A7"}, {Row('D'), "4", "D3 D7"}, {Row('G'), "4", "G3 G7"}});
    EXPECT_FALSE(SearchFirst(StepOfSlot(8), grid).any);
}

TEST(Fish, TheFirstSwordfishIsTheOnePromisedInItsWords) {
    ExpectFirst(
        StepOfSlot(9),
        {{"three columns",
          {{Column(1), "6", "A1 E1 J1"},
           {Column(4), "6", "A4 E4 J4"},
           {Column(9), "6", "A9 E9 J9"}},
          "Swordfish: Columns 1, 4 and 9 => Removed candidate 6 from cell(s) A2 A3 A5 A6 A7 A8 E2 "
          "E3 E5 E6 E7 E8 J2 J3 J5 J6 J7 J8",
          "SWORDFISH: Since number 6 in the three columns 1, 4 and 9 appears only in the same "
          "three rows A, E and J, this number can't appear anywhere else in these rows"},
         {"within a digit by the base lines, not by the cover lines",
          {{Row('A'), "5", "A7 A8"},
           {Row('B'), "5", "B7 B9"},
           {Row('C'), "5", "C8 C9"},
           {Row('G'), "5", "G1 G2"},
           {Row('H'), "5", "H1 H3"},
           {Row('J'), "5", "J2 J3"}},
          "Swordfish: Rows A, B and C"}});
}

TEST(Fish, TheFirstFinnedXWingIsTheOnePromisedInItsWords) {
    ExpectFirst(
        StepOfSlot(20),
        {{"rows with a fin beside a corner",
          {{Row('A'), "4", "A2 A6"}, {Row('E'), "4", "E2 E5 E6"}},
          "Finned X-Wing: Rows A and E with fin E5 => Removed candidate 4 from cell(s) D6 F6",
          "FINNED X-WING: Since number 4 in rows A and E appears, apart from the fin at E5, only "
          "in the two columns 2 and 6, either the fin is true or the X-Wing is, and this number "
          "can't be in any cell of column 6 outside the X-Wing that shares a block with the fin",
          "A2(4) A6(4) E2(4) E6(4) | E5(4) | "},
         {"columns with two fins around a corner that is missing",
          {{Column(3), "7", "A3 C3 G3"}, {Column(8), "7", "B8 G8"}},
          "Finned X-Wing: Columns 3 and 8 with fin A3 and C3 => Removed candidate 7 from cell(s) "
          "B1 B2",
          "FINNED X-WING: Since number 7 in columns 3 and 8 appears, apart from the fin at A3 and "
          "C3, only in the two rows B and G, either the fin is true or the X-Wing is, and this "
          "number can't be in any cell of row B outside the X-Wing that shares a block with the "
          "fin"},
         {"all digits with rows before any digit with columns",
          {{Column(3), "2", "A3 C3 G3"},
           {Column(8), "2", "B8 G8"},
           {Row('A'), "4", "A2 A6"},
           {Row('E'), "4", "E2 E5"}},
          "Finned X-Wing: Rows A and E with fin E5"},
         {"of two lines with two places each the first is the exact one",
          {{Row('D'), "6", "D1 D8"}, {Row('H'), "6", "H1 H9"}},
          "Finned X-Wing: Rows D and H with fin H9"},
         {"with an exact line, the finned line in order",
          {{Row('D'), "6", "D1 D8"}, {Row('H'), "6", "H1 H8 H9"}, {Row('B'), "6", "B1 B2 B8"}},
          "Finned X-Wing: Rows B and D with fin B2"},
         {"with two lines, the lower crossing line at the fin first",
          {{Row('A'), "4", "A4 A6"}, {Row('E'), "4", "E4 E5 E6"}},
          "Finned X-Wing: Rows A and E with fin E5 => Removed candidate 4 from cell(s) D4 F4"}});
}

}  // namespace
}  // namespace vemo
