// Fish: their texts, which comes first, and what only looks like one.
#include "solver/find_cases.h"

namespace vemo {
namespace {

using namespace test;

constexpr int kXWingSlot = 8;
constexpr int kSwordfishSlot = 9;
constexpr int kJellyfishSlot = 17;
constexpr int kFinnedXWingSlot = 20;

TEST(Fish, TheFirstXWingIsTheOnePromisedInItsWords) {
    const std::vector<FindCase> cases = {
        {"rows as base lines, written as plain indices",
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
         "X-Wing in Rows: Row1=6 Row2=8 => Removed candidate 4 from cell(s) A1 A9 B1 B9 C1 C9 D1 "
         "D9 E1 E9 F1 F9 H1 H9"},
        {"within a digit by the pair of crossing lines, not by the base lines",
         {{Row('A'), "5", "A2 A3"},
          {Row('B'), "5", "B2 B3"},
          {Row('G'), "5", "G1 G9"},
          {Row('J'), "5", "J1 J9"}},
         "X-Wing in Rows: Row1=6 Row2=8 => Removed candidate 5 from cell(s) C1 C9 D1 D9 E1 E9 F1 "
         "F9 H1 H9"},
        {"a third place on a base line spoils it",
         {{Row('A'), "4", "A3 A7"}, {Row('D'), "4", "D3 D5 D7"}},
         ""},
        {"three lines on the same two crossing lines are none",
         {{Row('A'), "4", "A3 A7"}, {Row('D'), "4", "D3 D7"}, {Row('G'), "4", "G3 G7"}},
         ""},
        {"one that takes nothing is passed over",
         {{Row('A'), "4", "A3 A7"},
          {Row('D'), "4", "D3 D7"},
          {Column(3), "4", "A3 D3"},
          {Column(7), "4", "A7 D7"}},
         ""},
    };
    ExpectFirst(kXWingSlot, cases);
}

TEST(Fish, TheFirstSwordfishIsTheOnePromisedInItsWords) {
    const std::vector<FindCase> cases = {
        {"three rows with two places each",
         {{Row('A'), "8", "A4 A5"}, {Row('E'), "8", "E4 E7"}, {Row('G'), "8", "G5 G7"}},
         "Swordfish: Rows A, E and G => Removed candidate 8 from cell(s) B4 B5 B7 C4 C5 C7 D4 D5 "
         "D7 F4 F5 F7 H4 H5 H7 J4 J5 J7",
         "SWORDFISH: Since number 8 in the three rows A, E and G appears only in the same three "
         "columns 4, 5 and 7, this number can't appear anywhere else in these columns"},
        {"three columns with three places each",
         {{Column(1), "6", "A1 E1 J1"}, {Column(4), "6", "A4 E4 J4"}, {Column(9), "6", "A9 E9 J9"}},
         "Swordfish: Columns 1, 4 and 9 => Removed candidate 6 from cell(s) A2 A3 A5 A6 A7 A8 E2 "
         "E3 E5 E6 E7 E8 J2 J3 J5 J6 J7 J8",
         "SWORDFISH: Since number 6 in the three columns 1, 4 and 9 appears only in the same three "
         "rows A, E and J, this number can't appear anywhere else in these rows"},
        {"all digits with rows before any digit with columns",
         {{Column(1), "2", "A1 B1"},
          {Column(2), "2", "B2 C2"},
          {Column(3), "2", "A3 C3"},
          {Row('G'), "4", "G7 G8"},
          {Row('H'), "4", "H8 H9"},
          {Row('J'), "4", "J7 J9"}},
         "Swordfish: Rows G, H and J => Removed candidate 4 from cell(s) A7 A8 A9 B7 B8 B9 C7 C8 "
         "C9 D7 D8 D9 E7 E8 E9 F7 F8 F9"},
        {"within a digit by the base lines, not by the cover lines",
         {{Row('A'), "5", "A7 A8"},
          {Row('B'), "5", "B7 B9"},
          {Row('C'), "5", "C8 C9"},
          {Row('G'), "5", "G1 G2"},
          {Row('H'), "5", "H1 H3"},
          {Row('J'), "5", "J2 J3"}},
         "Swordfish: Rows A, B and C => Removed candidate 5 from cell(s) D7 D8 D9 E7 E8 E9 F7 F8 "
         "F9"},
        {"a fourth crossing line spoils it",
         {{Row('A'), "8", "A4 A5"}, {Row('E'), "8", "E4 E7"}, {Row('G'), "8", "G5 G9"}},
         ""},
        {"a line with a single place is no base line",
         {{Row('A'), "8", "A5"}, {Row('E'), "8", "E4 E7"}, {Row('G'), "8", "G5 G7"}},
         ""},
        {"a line without a place is no base line",
         {{Row('A'), "8", "A4 A5 A7"}, {Row('E'), "8", "E4 E5 E7"}, {Row('G'), "8", ""}},
         ""},
        {"three lines on two crossing lines are none",
         {{Row('A'), "4", "A3 A7"}, {Row('D'), "4", "D3 D7"}, {Row('G'), "4", "G3 G7"}},
         ""},
        {"one that takes nothing is passed over",
         {{Row('A'), "8", "A4 A5"},
          {Row('E'), "8", "E4 E7"},
          {Row('G'), "8", "G5 G7"},
          {Column(4), "8", "A4 E4"},
          {Column(5), "8", "A5 G5"},
          {Column(7), "8", "E7 G7"}},
         ""},
    };
    ExpectFirst(kSwordfishSlot, cases);
}

TEST(Fish, TheFirstJellyfishIsTheOnePromisedInItsWords) {
    const std::vector<FindCase> cases = {
        {"four rows with two or three places",
         {{Row('C'), "3", "C1 C3 C8"},
          {Row('D'), "3", "D3 D6"},
          {Row('E'), "3", "E1 E6 E8"},
          {Row('H'), "3", "H1 H8"}},
         "Jellyfish: Rows C, D, E and H => Removed candidate 3 from cell(s) A1 A3 A6 A8 B1 B3 B6 "
         "B8 F1 F3 F6 F8 G1 G3 G6 G8 J1 J3 J6 J8",
         "JELLYFISH: Since number 3 in the four rows C, D, E and H appears only in the same four "
         "columns 1, 3, 6 and 8, this number can't appear anywhere else in these columns"},
        {"a ring of columns",
         {{Column(2), "9", "B2 D2"},
          {Column(5), "9", "B5 F5"},
          {Column(6), "9", "D6 H6"},
          {Column(9), "9", "F9 H9"}},
         "Jellyfish: Columns 2, 5, 6 and 9 => Removed candidate 9 from cell(s) B1 B3 B4 B7 B8 D1 "
         "D3 D4 D7 D8 F1 F3 F4 F7 F8 H1 H3 H4 H7 H8",
         "JELLYFISH: Since number 9 in the four columns 2, 5, 6 and 9 appears only in the same "
         "four rows B, D, F and H, this number can't appear anywhere else in these rows"},
        {"a fifth crossing line spoils it",
         {{Row('C'), "3", "C1 C3 C8"},
          {Row('D'), "3", "D3 D6"},
          {Row('E'), "3", "E1 E6 E9"},
          {Row('H'), "3", "H1 H8"}},
         ""},
        {"four lines on three crossing lines are none",
         {{Row('C'), "3", "C1 C3 C8"},
          {Row('D'), "3", "D3 D8"},
          {Row('E'), "3", "E1 E8"},
          {Row('H'), "3", "H1 H8"}},
         ""},
    };
    ExpectFirst(kJellyfishSlot, cases);
}

TEST(Fish, TheFirstFinnedXWingIsTheOnePromisedInItsWords) {
    const std::vector<FindCase> cases = {
        {"rows with a fin beside a corner",
         {{Row('A'), "4", "A2 A6"}, {Row('E'), "4", "E2 E5 E6"}},
         "Finned X-Wing: Rows A and E with fin E5 => Removed candidate 4 from cell(s) D6 F6",
         "FINNED X-WING: Since number 4 in rows A and E appears, apart from the fin at E5, only in "
         "the two columns 2 and 6, either the fin is true or the X-Wing is, and this number can't "
         "be in any cell of column 6 outside the X-Wing that shares a block with the fin"},
        {"columns with two fins around a corner that is missing",
         {{Column(3), "7", "A3 C3 G3"}, {Column(8), "7", "B8 G8"}},
         "Finned X-Wing: Columns 3 and 8 with fin A3 and C3 => Removed candidate 7 from cell(s) B1 "
         "B2",
         "FINNED X-WING: Since number 7 in columns 3 and 8 appears, apart from the fin at A3 and "
         "C3, only in the two rows B and G, either the fin is true or the X-Wing is, and this "
         "number can't be in any cell of row B outside the X-Wing that shares a block with the "
         "fin"},
        {"the exact line keeps its own place in the box of the fin",
         {{Row('D'), "4", "D2 D6"}, {Row('E'), "4", "E2 E5 E6"}},
         "Finned X-Wing: Rows D and E with fin E5 => Removed candidate 4 from cell(s) F6"},
        {"all digits with rows before any digit with columns",
         {{Column(3), "2", "A3 C3 G3"},
          {Column(8), "2", "B8 G8"},
          {Row('A'), "4", "A2 A6"},
          {Row('E'), "4", "E2 E5"}},
         "Finned X-Wing: Rows A and E with fin E5 => Removed candidate 4 from cell(s) D6 F6"},
        {"of two lines with two places each the first is the exact one",
         {{Row('D'), "6", "D1 D8"}, {Row('H'), "6", "H1 H9"}},
         "Finned X-Wing: Rows D and H with fin H9 => Removed candidate 6 from cell(s) G8 J8"},
        {"with an exact line, the finned line in order",
         {{Row('D'), "6", "D1 D8"}, {Row('H'), "6", "H1 H8 H9"}, {Row('B'), "6", "B1 B2 B8"}},
         "Finned X-Wing: Rows B and D with fin B2 => Removed candidate 6 from cell(s) A1 C1"},
        {"with two lines, the lower crossing line at the fin first",
         {{Row('A'), "4", "A4 A6"}, {Row('E'), "4", "E4 E5 E6"}},
         "Finned X-Wing: Rows A and E with fin E5 => Removed candidate 4 from cell(s) D4 F4"},
        {"a fin in another box is none",
         {{Row('A'), "4", "A2 A6"}, {Row('E'), "4", "E2 E6 E7"}},
         ""},
        {"fins at both corners are none",
         {{Row('A'), "4", "A2 A6"}, {Row('E'), "4", "E1 E2 E5 E6"}},
         ""},
        {"the corner away from the fin may not be missing",
         {{Row('A'), "4", "A2 A6"}, {Row('E'), "4", "E5 E6"}},
         ""},
        {"an X-Wing without a fin is none",
         {{Row('A'), "4", "A2 A6"}, {Row('E'), "4", "E2 E6"}},
         ""},
        {"a third place on the exact line spoils it",
         {{Row('A'), "4", "A2 A6 A8"}, {Row('E'), "4", "E2 E5 E6"}},
         ""},
        {"one that takes nothing is passed over",
         {{Row('A'), "4", "A2 A6"},
          {Row('E'), "4", "E2 E5 E6"},
          {Box(4), "4", "D4 D5 E5 E6 F4 F5"}},
         ""},
    };
    ExpectFirst(kFinnedXWingSlot, cases);
}

TEST(Fish, TheBaseLinesAreTintedAndTheFinsHaveTheOtherColor) {
    const Grid grid = GridWith({{Row('A'), "4", "A2 A6"}, {Row('E'), "4", "E2 E5 E6"}});
    const Find find = SearchFirst(StepOfSlot(kFinnedXWingSlot), grid).found;
    EXPECT_EQ(find.UnitAt(0).set, UnitOf(UnitKind::Row, 0).set);
    EXPECT_EQ(find.UnitAt(1).set, UnitOf(UnitKind::Row, 4).set);
    EXPECT_EQ(find.units.Size(), 2u);
    EXPECT_EQ(find.firstColor, Find::CandidatesOf(grid, CellsNamed("A2 A6 E2 E6"), MarkOf(4)));
    EXPECT_EQ(find.secondColor, Find::CandidatesOf(grid, CellsNamed("E5"), MarkOf(4)));
}

}  // namespace
}  // namespace vemo
