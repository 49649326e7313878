// Wings, rings and bent sets: their texts, which comes first, and what only looks like one.
#include <gtest/gtest.h>

#include "solver/patterns.h"

namespace vemo {
namespace {

using namespace test;

struct WingCase {
    const char* rule;
    std::vector<Pattern> patterns;
    const char* log;  // empty: nothing is found
    const char* hint = nullptr;
};

template <std::size_t kCount>
void ExpectFirstFinds(const Step& step, const WingCase (&cases)[kCount]) {
    for (const WingCase& at : cases) {
        SCOPED_TRACE(at.rule);
        const FirstFind first = SearchFirst(step, GridWith(at.patterns));
        ASSERT_EQ(first.any, *at.log != '\0');
        if (first.any) {
            EXPECT_EQ(LogLine(first.found), at.log);
        }
        if (at.hint != nullptr) {
            EXPECT_EQ(HintText(first.found), at.hint);
        }
    }
}

TEST(XYWing, TakesTheDigitThatTheWingsShare) {
    const WingCase cases[] = {
        {"from the cells that see both wings",
         {{kNoUnit, "12", "A1"}, {kNoUnit, "13", "A5"}, {kNoUnit, "23", "B2"}},
         "XY-Wing: Pivot A1 with wings A5 and B2 => Removed candidate 3 from cell(s) "
         "A2 A3 B4 B5 B6",
         "XY-WING: Since cell A1 can only be 1 or 2, one of the cells A5 and B2 must be 3, and "
         "number 3 can't be in any cell that sees both"},
        {"from the fourth corner, where pivot and wings are three of a rectangle",
         {{kNoUnit, "89", "A5"}, {kNoUnit, "49", "E1"}, {kNoUnit, "48", "E5"}},
         "XY-Wing: Pivot E5 with wings A5 and E1 => Removed candidate 9 from cell(s) A1"},
        {"also where the wings see each other",
         {{kNoUnit, "12", "A1"}, {kNoUnit, "13", "A4"}, {kNoUnit, "23", "A7"}},
         "XY-Wing: Pivot A1 with wings A4 and A7 => Removed candidate 3 from cell(s) "
         "A2 A3 A5 A6 A8 A9"},
        {"by the first wing, whatever the second",
         {{kNoUnit, "12", "A1"},
          {kNoUnit, "13", "A5"},
          {kNoUnit, "14", "A9"},
          {kNoUnit, "24", "B2"},
          {kNoUnit, "23", "J1"}},
         "XY-Wing: Pivot A1 with wings A5 and J1 => Removed candidate 3 from cell(s) J5"},
        {"not where the shared digit is the pivot's as well",
         {{kNoUnit, "12", "A1"}, {kNoUnit, "12", "A5"}, {kNoUnit, "13", "B2"}},
         ""},
        {"not where the wings are alike",
         {{kNoUnit, "12", "A1"}, {kNoUnit, "13", "A5"}, {kNoUnit, "13", "B2"}},
         ""},
        {"not where one of the wings does not see the pivot",
         {{kNoUnit, "12", "A1"}, {kNoUnit, "13", "A5"}, {kNoUnit, "23", "J2"}},
         ""},
        {"not where no cell loses it",
         {{kNoUnit, "89", "A5"},
          {kNoUnit, "49", "E1"},
          {kNoUnit, "48", "E5"},
          {kNoUnit, "12345678", "A1"}},
         ""},
    };
    ExpectFirstFinds(StepOfSlot(12), cases);
}

TEST(XYZWing, TakesTheDigitThatAllThreeCellsShare) {
    const WingCase cases[] = {
        {"from the cells that see the pivot too",
         {{kNoUnit, "13", "A1"}, {kNoUnit, "123", "B2"}, {kNoUnit, "23", "B7"}},
         "XYZ-Wing: Pivot B2 with wings A1 and B7 => Removed candidate 3 from cell(s) B1 B3",
         "XYZ-WING: Since cell B2 can only be 1, 2 or 3, one of the cells A1, B2 and B7 must be 3, "
         "and number 3 can't be in any cell that sees all three"},
        {"also where the three see each other",
         {{kNoUnit, "123", "A1"}, {kNoUnit, "13", "A4"}, {kNoUnit, "23", "A7"}},
         "XYZ-Wing: Pivot A1 with wings A4 and A7 => Removed candidate 3 from cell(s) "
         "A2 A3 A5 A6 A8 A9"},
        {"by the pivot, whatever the wings",
         {{kNoUnit, "45", "A9"},
          {kNoUnit, "123", "B2"},
          {kNoUnit, "23", "B7"},
          {kNoUnit, "13", "C1"},
          {kNoUnit, "46", "G8"},
          {kNoUnit, "456", "H9"}},
         "XYZ-Wing: Pivot B2 with wings B7 and C1 => Removed candidate 3 from cell(s) B1 B3"},
        {"not where the wings are alike",
         {{kNoUnit, "13", "A1"}, {kNoUnit, "123", "B2"}, {kNoUnit, "13", "B7"}},
         ""},
        {"not where a wing has a digit of its own",
         {{kNoUnit, "14", "A1"}, {kNoUnit, "123", "B2"}, {kNoUnit, "24", "B7"}},
         ""},
        {"not where no cell sees all three",
         {{kNoUnit, "23", "A5"}, {kNoUnit, "13", "E1"}, {kNoUnit, "123", "E5"}},
         ""},
    };
    ExpectFirstFinds(StepOfSlot(15), cases);
}

TEST(MultiXWing, TakesTheDigitOfEachSideOfTheRing) {
    const WingCase cases[] = {
        {"along the sides of a rectangle",
         {{kNoUnit, "13", "A1"},
          {kNoUnit, "14", "A5"},
          {kNoUnit, "23", "D1"},
          {kNoUnit, "24", "D5"}},
         "Multi-value X-Wing: Cells A1, A5, D5 and D1 => Removed candidate 1 from cell(s) "
         "A2 A3 A4 A6 A7 A8 A9, candidate 2 from cell(s) D2 D3 D4 D6 D7 D8 D9, candidate 3 from "
         "cell(s) B1 C1 E1 F1 G1 H1 J1, candidate 4 from cell(s) B5 C5 E5 F5 G5 H5 J5",
         "MULTI-VALUE X-WING: Since the cells A1, A5, D5 and D1 hold only two candidates each and "
         "each neighbouring pair of this ring shares one of them (1 in A1 and A5, 4 in A5 and D5, "
         "2 in D5 and D1, 3 in D1 and A1), each of these numbers must be in one of its two cells "
         "and can't be in any other cell that sees both"},
        {"through boxes as well",
         {{kNoUnit, "13", "A1"},
          {kNoUnit, "14", "A4"},
          {kNoUnit, "23", "B2"},
          {kNoUnit, "24", "B5"}},
         "Multi-value X-Wing: Cells A1, A4, B5 and B2 => Removed candidate 1 from cell(s) "
         "A2 A3 A5 A6 A7 A8 A9, candidate 2 from cell(s) B1 B3 B4 B6 B7 B8 B9, candidate 3 from "
         "cell(s) A2 A3 B1 B3 C1 C2 C3, candidate 4 from cell(s) A5 A6 B4 B6 C4 C5 C6"},
        {"the third cell may stand before the second",
         {{kNoUnit, "13", "A1"},
          {kNoUnit, "24", "B1"},
          {kNoUnit, "14", "D1"},
          {kNoUnit, "23", "G1"}},
         "Multi-value X-Wing: Cells A1, D1, B1 and G1 => Removed candidate 1 from cell(s) "
         "C1 E1 F1 H1 J1, candidate 2 from cell(s) C1 E1 F1 H1 J1, candidate 3 from cell(s) "
         "C1 E1 F1 H1 J1, candidate 4 from cell(s) C1 E1 F1 H1 J1"},
        {"opposite sides may have the same digit",
         {{kNoUnit, "13", "A1 D1"}, {kNoUnit, "14", "A5 D5"}},
         "Multi-value X-Wing: Cells A1, A5, D5 and D1 => Removed candidate 1 from cell(s) "
         "A2 A3 A4 A6 A7 A8 A9 D2 D3 D4 D6 D7 D8 D9, candidate 3 from cell(s) "
         "B1 C1 E1 F1 G1 H1 J1, candidate 4 from cell(s) B5 C5 E5 F5 G5 H5 J5"},
        {"on four cells alike, the lower digit on the first side comes first",
         {{kNoUnit, "12", "A1 A4 B1 B4"}},
         "Multi-value X-Wing: Cells A1, A4, B4 and B1 => Removed candidate 1 from cell(s) "
         "A2 A3 A5 A6 A7 A8 A9 B2 B3 B5 B6 B7 B8 B9, candidate 2 from cell(s) "
         "A2 A3 A5 A6 B2 B3 B5 B6 C1 C2 C3 C4 C5 C6 D1 D4 E1 E4 F1 F4 G1 G4 H1 H4 J1 J4"},
        {"not where a cell shares the same digit both ways",
         {{kNoUnit, "12", "A1"},
          {kNoUnit, "14", "A5"},
          {kNoUnit, "23", "D1"},
          {kNoUnit, "24", "D5"}},
         ""},
        {"not where a side is open",
         {{kNoUnit, "13", "A1"},
          {kNoUnit, "14", "A5"},
          {kNoUnit, "23", "D1"},
          {kNoUnit, "24", "E5"}},
         ""},
    };
    ExpectFirstFinds(StepOfSlot(10), cases);
}

TEST(WXYZWing, TakesTheOneDigitThatIsNotConfined) {
    const WingCase cases[] = {
        {"held by all four cells",
         {{kNoUnit, "1234", "A1"},
          {kNoUnit, "14", "A5"},
          {kNoUnit, "24", "A9"},
          {kNoUnit, "34", "B2"}},
         "WXYZ-Wing: Pivot A1 with wings A5, A9 and B2 => Removed candidate 4 from cell(s) A2 A3",
         "WXYZ-WING: Since the four cells A1, A5, A9 and B2 hold only the candidates 1, 2, 3 and "
         "4, and of these only 4 could be in two of them or in none, one of the cells A1, A5, A9 "
         "and B2 must be 4 and this number can't be in any cell that sees all of these"},
        {"held by two of them, from all that see both",
         {{kNoUnit, "14", "A5"},
          {kNoUnit, "12", "B5"},
          {kNoUnit, "34", "D4"},
          {kNoUnit, "23", "E5"}},
         "WXYZ-Wing: Pivot E5 with wings A5, B5 and D4 => Removed candidate 4 from cell(s) "
         "A4 B4 C4 D5 F5",
         "WXYZ-WING: Since the four cells A5, B5, D4 and E5 hold only the candidates 1, 2, 3 and "
         "4, and of these only 4 could be in two of them or in none, one of the cells A5 and D4 "
         "must be 4 and this number can't be in any cell that sees all of these"},
        {"rows before columns",
         {{kNoUnit, "1234", "A1"},
          {kNoUnit, "34", "B2"},
          {kNoUnit, "14", "D1"},
          {kNoUnit, "24", "E1"},
          {kNoUnit, "78", "H8"},
          {kNoUnit, "58", "J2"},
          {kNoUnit, "68", "J3"},
          {kNoUnit, "5678", "J9"}},
         "WXYZ-Wing: Pivot J9 with wings H8, J2 and J3 => Removed candidate 8 from cell(s) J7 J8"},
        {"the lexicographically first set of a line and a box",
         {{kNoUnit, "1234", "A1"},
          {kNoUnit, "14", "A5"},
          {kNoUnit, "24", "A8 A9"},
          {kNoUnit, "34", "B2"}},
         "WXYZ-Wing: Pivot A1 with wings A5, A8 and B2 => Removed candidate 4 from cell(s) A2 A3"},
        {"not with two digits that are not confined",
         {{kNoUnit, "1234", "A1"},
          {kNoUnit, "14", "A5"},
          {kNoUnit, "24", "A9"},
          {kNoUnit, "14", "B2"}},
         ""},
        {"not with none",
         {{kNoUnit, "1234", "A1"}, {kNoUnit, "12", "A5 A9"}, {kNoUnit, "34", "B2"}},
         ""},
        {"not with five digits",
         {{kNoUnit, "1234", "A1"},
          {kNoUnit, "14", "A5"},
          {kNoUnit, "24", "A9"},
          {kNoUnit, "45", "B2"}},
         ""},
        {"not without a cell where line and box cross",
         {{kNoUnit, "12", "A5"}, {kNoUnit, "124", "A6"}, {kNoUnit, "34", "B2 C2"}},
         ""},
        {"not where no cell loses it",
         {{kNoUnit, "1234", "A1"},
          {kNoUnit, "14", "A5"},
          {kNoUnit, "24", "A9"},
          {kNoUnit, "34", "B2"},
          {kNoUnit, "12356789", "A2 A3"}},
         ""},
    };
    ExpectFirstFinds(StepOfSlot(18), cases);
}

TEST(ExtendedWXYZWing, TakesItWhereverTheFourCellsStand) {
    const WingCase cases[] = {
        {"on a line and a box",
         {{kNoUnit, "1234", "A1"},
          {kNoUnit, "14", "A5"},
          {kNoUnit, "24", "A9"},
          {kNoUnit, "34", "B2"}},
         "Extended WXYZ-Wing: Cells A1, A5, A9 and B2 => Removed candidate 4 from cell(s) A2 A3",
         "EXTENDED WXYZ-WING: Since the four cells A1, A5, A9 and B2 hold only the candidates 1, "
         "2, 3 and 4, and of these only 4 could be in two of them or in none, one of the cells A1, "
         "A5, A9 and B2 must be 4 and this number can't be in any cell that sees all of these"},
        {"with none where line and box cross",
         {{kNoUnit, "12", "A5"}, {kNoUnit, "124", "A6"}, {kNoUnit, "34", "B2 C2"}},
         "Extended WXYZ-Wing: Cells A5, A6, B2 and C2 => Removed candidate 4 from cell(s) "
         "A1 A2 A3"},
        {"over the whole grid",
         {{kNoUnit, "14", "A1"},
          {kNoUnit, "12", "A5"},
          {kNoUnit, "23", "E5"},
          {kNoUnit, "34", "E9"}},
         "Extended WXYZ-Wing: Cells A1, A5, E5 and E9 => Removed candidate 4 from cell(s) A9 E1"},
        {"only from cells that see a third holder too",
         {{kNoUnit, "14", "A1"},
          {kNoUnit, "12", "A5"},
          {kNoUnit, "234", "E5"},
          {kNoUnit, "34", "E9"}},
         "Extended WXYZ-Wing: Cells A1, A5, E5 and E9 => Removed candidate 4 from cell(s) E1"},
        {"not with two digits that are not confined",
         {{kNoUnit, "14", "A1"},
          {kNoUnit, "12", "A5"},
          {kNoUnit, "23", "E5"},
          {kNoUnit, "134", "E9"}},
         ""},
        {"not with none",
         {{kNoUnit, "12", "A1"},
          {kNoUnit, "23", "A3"},
          {kNoUnit, "34", "A5"},
          {kNoUnit, "14", "A9"}},
         ""},
    };
    ExpectFirstFinds(StepsOutsideTheLadder()[0], cases);
}

}  // namespace
}  // namespace vemo
