// Wings, rings and bent sets: their texts, and which comes first.
#include "solver/find_cases.h"

namespace vemo {
namespace {

using namespace test;

TEST(XYWing, TheFirstIsTheOnePromised) {
    ExpectFirst(StepOfSlot(12), {{"by the first wing, whatever the second",
                                  {Only("12", "A1"), Only("13", "A5"), Only("14", "A9"),
                                   Only("24", "B2"), Only("23", "J1")},
                                  "XY-Wing: Pivot A1 with wings A5 and J1"}});
}

TEST(XYZWing, TheFirstIsTheOnePromised) {
    ExpectFirst(StepOfSlot(15), {{"by the pivot, whatever the wings",
                                  {Only("45", "A9"), Only("123", "B2"), Only("23", "B7"),
                                   Only("13", "C1"), Only("46", "G8"), Only("456", "H9")},
                                  "XYZ-Wing: Pivot B2 with wings B7 and C1"}});
}

TEST(MultiXWing, TheFirstIsTheOnePromisedAndTheRingIsDrawn) {
    ExpectFirst(
        StepOfSlot(10),
        {{"the third cell may stand before the second",
          {Only("13", "A1"), Only("24", "B1"), Only("14", "D1"), Only("23", "G1")},
          "Multi-value X-Wing: Cells A1, D1, B1 and G1",
          "",
          " |  | A1(1) - D1(1), D1(4) - B1(4), B1(2) - G1(2), G1(3) - A1(3)"},
         {"on four cells alike, the lower digit on the first side comes first",
          {Only("12", "A1 A4 B1 B4")},
          "Multi-value X-Wing: Cells A1, A4, B4 and B1 => Removed candidate 1 from cell(s) "
          "A2 A3 A5 A6 A7 A8 A9 B2 B3 B5 B6 B7 B8 B9, candidate 2 from cell(s) "
          "A2 A3 A5 A6 B2 B3 B5 B6 C1 C2 C3 C4 C5 C6 D1 D4 E1 E4 F1 F4 G1 G4 H1 H4 J1 J4"}});
}

TEST(WXYZWing, TheFirstIsTheOnePromisedInItsWords) {
    ExpectFirst(
        StepOfSlot(18),
        {{"held by all four cells",
          {Only("1234", "A1"), Only("14", "A5"), Only("24", "A9"), Only("34", "B2")},
          "WXYZ-Wing: Pivot A1 with wings A5, A9 and B2 => Removed candidate 4 from cell(s) A2 A3",
          "WXYZ-WING: Since the four cells A1, A5, A9 and B2 hold only the candidates 1, 2, 3 and "
          "4, and of these only 4 could be in two of them or in none, one of the cells A1, A5, A9 "
          "and B2 must be 4 and this number can't be in any cell that sees all of these"},
         {"rows before columns",
          {Only("1234", "A1"), Only("34", "B2"), Only("14", "D1"), Only("24", "E1"),
           Only("78", "H8"), Only("58", "J2"), Only("68", "J3"), Only("5678", "J9")},
          "WXYZ-Wing: Pivot J9 with wings H8, J2 and J3"},
         {"the lexicographically first set of a line and a box",
          {Only("1234", "A1"), Only("14", "A5"), Only("24", "A8 A9"), Only("34", "B2")},
          "WXYZ-Wing: Pivot A1 with wings A5, A8 and B2"}});
}

TEST(ExtendedWXYZWing, TheLexicographicallyFirstSetIsNamedInOrder) {
    ExpectFirst(StepsOutsideTheLadder()[0],
                {{"with none where line and box cross",
                  {Only("12", "A5"), Only("124", "A6"), Only("34", "B2 C2")},
                  "Extended WXYZ-Wing: Cells A5, A6, B2 and C2 => Removed candidate 4 from cell(s) "
                  "A1 A2 A3"}});
}

}  // namespace
}  // namespace vemo
