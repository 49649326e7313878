// 3D Medusa, Sue-de-Coq and MultiFish: their texts, which comes first, and how they are drawn.
#include "solver/find_cases.h"

namespace vemo {
namespace {

using namespace test;

// The color that goes is drawn as the second.
TEST(Medusa, TheFirstFindIsTheOnePromisedInItsWords) {
    ExpectFirst(
        StepOfSlot(21),
        {{"a single pair: what sees both ends goes",
          {{Row('B'), "4", "B7 B8"}},
          "3D Medusa: Colors of B7(4) against B8(4) => Removed candidate 4 from cell(s) "
          "A7 A8 A9 C7 C8 C9",
          "3D MEDUSA: Since all candidates of one of the two colors (that of number 4 at cell B7 "
          "and that of number 4 at cell B8) must be true, every other candidate that conflicts "
          "with both colors can be discarded"},
         {"two numbers in a cell, which is said before that row B would hold 2 twice",
          {Only("12", "B2"),
           {Row('B'), "1", "B2 B7"},
           {Box(0), "2", "A1 B2"},
           {Column(1), "2", "A1 E1"},
           {Row('E'), "2", "E1 E7"},
           {Column(7), "2", "B7 E7"}},
          "3D Medusa: Color of B2(2), B7(1), B7(2) and E1(2)",
          "3D MEDUSA: Since all candidates of one of the two colors must be true, and the color of "
          "number 2 at cell B2 would place two numbers at cell B7, all candidates of that color "
          "can be discarded",
          "A1(2) B2(1) E7(2) | B2(2) B7(12) E1(2) | A1(2) = B2(2), A1(2) = E1(2), B2(1) = B2(2), "
          "B2(1) = B7(1), B7(2) = E7(2), E1(2) = E7(2)"},
         {"a number twice in a unit",
          {{Row('B'), "4", "B2 B7"},
           {Column(7), "4", "B7 H7"},
           {Box(8), "4", "H7 J9"},
           {Row('J'), "4", "J2 J9"}},
          "3D Medusa: Color of B2(4), H7(4) and J2(4) => Removed candidate 4 from cell(s) B2 H7 J2",
          "3D MEDUSA: Since all candidates of one of the two colors must be true, and the color of "
          "number 4 at cell B2 would place number 4 twice in column 2, all candidates of that "
          "color can be discarded"},
         {"a cell that would lose both its numbers, though it is in no color itself",
          {Only("12", "B1"),
           {Column(1), "1", "B1 E1"},
           {Box(0), "2", "B1 C3"},
           {Row('C'), "2", "C3 C5"},
           Only("12", "E5")},
          "3D Medusa: Color of B1(2), C5(2) and E1(1) => Removed candidate 1 from cell(s) E1, "
          "candidate 2 from cell(s) B1 C5",
          "3D MEDUSA: Since all candidates of one of the two colors must be true, and the color of "
          "number 2 at cell B1 would leave no number for cell E5, all candidates of that color can "
          "be discarded"},
         {"the part with the lowest candidate comes first, in a cell the lowest digit",
          {{Row('B'), "6", "B7 B8"}, {Row('B'), "3", "B7 B9"}},
          "3D Medusa: Colors of B7(3) against B9(3)"}});
}

TEST(Medusa, NothingIsConcludedFromWhatCannotBe) {
    Grid emptyCell = GridWith({{Row('B'), "4", "B2 B7"}});
    emptyCell.WisKnop(CellNamed("E5"));
    EXPECT_FALSE(SearchFirst(StepOfSlot(21), emptyCell).any) << "no color has emptied it";
    const Grid ringOfFive = GridWith({{Row('B'), "4", "B2 B7"},
                                      {Column(7), "4", "B7 H7"},
                                      {Box(8), "4", "H7 J9"},
                                      {Row('J'), "4", "J2 J9"},
                                      {Column(2), "4", "B2 J2"}});
    EXPECT_FALSE(SearchFirst(StepOfSlot(21), ringOfFive).any) << "it has no two colors";
}

// The crossing in the one color, the arms in the other.
TEST(SueDeCoq, TheFirstFindIsTheOnePromised) {
    ExpectFirst(
        StepOfSlot(22),
        {{"two cells of the crossing, an arm of one cell each way; A3 loses all four",
          {Only("1234", "A1 A2"), Only("12", "A5"), Only("34", "B1")},
          "Sue-De-Coq: Row A and Box 1 with cells A1 and A2, line cells A5 and box cells B1 => "
          "Removed candidate 1 from cell(s) A3 A4 A6 A7 A8 A9, candidate 2 from cell(s) "
          "A3 A4 A6 A7 A8 A9, candidate 3 from cell(s) A3 B2 B3 C1 C2 C3, candidate 4 from "
          "cell(s) A3 B2 B3 C1 C2 C3",
          "",
          "A1(1234) A2(1234) | A5(12) B1(34) | "},
         {"of two line arms and of two block arms the first",
          {Only("1234", "A1 A2"), Only("12", "A5 A8"), Only("34", "B2 C3")},
          "Sue-De-Coq: Row A and Box 1 with cells A1 and A2, line cells A5 and box cells B2"},
         {"a row before a column in the same block",
          {Only("1234", "A1 B1 C2 C3"), Only("12", "G1 C7"), Only("34", "B2")},
          "Sue-De-Coq: Row C and Box 1 with cells C2 and C3, line cells C7 and box cells B2"}});
}

TEST(MultiFish, FourCellsWithThreeNumbersAreNone) {
    const Grid grid = GridWith({Only("12", "A1 A2"), Only("3", "B1 B2")});
    EXPECT_FALSE(SearchFirst(StepOfSlot(35), grid).any);
}

TEST(MultiFish, TheFirstFindIsTheOnePromisedInItsWords) {
    // Each row has a number of its own, each column too; then three numbers a row, or a column.
    const std::vector<Pattern> rowsAndColumns = {Only("15", "G7"), Only("16", "G8"),
                                                 Only("25", "H7"), Only("26", "H8")};
    const std::vector<Pattern> twoRows = {Only("123", "A1 A2 A3"), Only("456", "B1 B2 B3")};
    const std::vector<Pattern> twoColumns = {Only("123", "G7 H7 J7"), Only("456", "G8 H8 J8")};
    ExpectFirst(
        StepOfSlot(35),
        {{"four lines before five; the numbers of the rows in one color, of the columns in the "
          "other",
          Both(twoRows, rowsAndColumns),
          "MultiFish: Rows G and H and Columns 7 and 8 => Removed candidate 1 from cell(s) "
          "G1 G2 G3 G4 G5 G6 G9, candidate 2 from cell(s) H1 H2 H3 H4 H5 H6 H9, candidate 5 from "
          "cell(s) A7 B7 C7 D7 E7 F7 J7, candidate 6 from cell(s) A8 B8 C8 D8 E8 F8 J8",
          "", "G7(1) G8(1) H7(2) H8(2) | G7(5) G8(6) H7(5) H8(6) | "},
         {"two rows before three; all by rows", Both(twoColumns, twoRows),
          "MultiFish: Rows A and B and Columns 1, 2 and 3",
          "MULTIFISH: Since the 6 open cells where rows A and B and columns 1, 2 and 3 meet have "
          "room for only 6 placements (of 1, 2, 3, 4, 5 and 6 one per row), each of these numbers "
          "can be discarded from the other cells of those rows or columns"},
         {"all by columns", twoColumns, "MultiFish: Rows G, H and J and Columns 7 and 8",
          "MULTIFISH: Since the 6 open cells where rows G, H and J and columns 7 and 8 meet have "
          "room for only 6 placements (of 1, 2, 3, 4, 5 and 6 one per column), each of these "
          "numbers can be discarded from the other cells of those rows or columns"},
         {"7 is counted either way, goes from rows and columns, and is named with the rows",
          {Only("17", "A1 A2"), Only("27", "B1 B2")},
          "MultiFish: Rows A and B and Columns 1 and 2 => Removed candidate 1 from cell(s) "
          "A3 A4 A5 A6 A7 A8 A9, candidate 2 from cell(s) B3 B4 B5 B6 B7 B8 B9, candidate 7 from "
          "cell(s) A3 A4 A5 A6 A7 A8 A9 B3 B4 B5 B6 B7 B8 B9 C1 C2 D1 D2 E1 E2 F1 F2 G1 G2 H1 H2 "
          "J1 J2",
          "MULTIFISH: Since the 4 open cells where rows A and B and columns 1 and 2 meet have room "
          "for only 4 placements (of 1, 2 and 7 one per row), each of these numbers can be "
          "discarded from the other cells of those rows or columns"}});
}

}  // namespace
}  // namespace vemo
