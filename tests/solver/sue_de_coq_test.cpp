// Sue-de-Coq: its texts, which comes first, and what only looks like one.
#include "solver/find_cases.h"

namespace vemo {
namespace {

using namespace test;

constexpr int kSueDeCoq = 22;

TEST(SueDeCoq, TheFirstFindIsTheOnePromised) {
    ExpectFirst(
        kSueDeCoq,
        {{"two cells of the crossing, an arm of one cell each way; A3 loses all four",
          {{kNoUnit, "1234", "A1 A2"}, {kNoUnit, "12", "A5"}, {kNoUnit, "34", "B1"}},
          "Sue-De-Coq: Row A and Box 1 with cells A1 and A2, line cells A5 and box cells B1 => "
          "Removed candidate 1 from cell(s) A3 A4 A6 A7 A8 A9, candidate 2 from cell(s) "
          "A3 A4 A6 A7 A8 A9, candidate 3 from cell(s) A3 B2 B3 C1 C2 C3, candidate 4 from "
          "cell(s) A3 B2 B3 C1 C2 C3",
          "SUE-DE-COQ: Since the cells A1, A2, A5 and B1 must hold exactly the numbers 1, 2, 3 "
          "and 4, the numbers 1 and 2 can't be anywhere else in row A and the numbers 3 and 4 "
          "can't be anywhere else in the top left block"},
         {"a number of no arm goes from line and block",
          {{kNoUnit, "12345", "A1 B1 C1"}, {kNoUnit, "12", "H1"}, {kNoUnit, "34", "C3"}},
          "Sue-De-Coq: Column 1 and Box 1 with cells A1, B1 and C1, line cells H1 and box cells C3 "
          "=> Removed candidate 1 from cell(s) D1 E1 F1 G1 J1, candidate 2 from cell(s) "
          "D1 E1 F1 G1 J1, candidate 3 from cell(s) A2 A3 B2 B3 C2, candidate 4 from cell(s) "
          "A2 A3 B2 B3 C2, candidate 5 from cell(s) A2 A3 B2 B3 C2 D1 E1 F1 G1 J1"},
         {"an arm of more cells may hold numbers that the crossing has not",
          {{kNoUnit, "1234", "A1 A2"}, {kNoUnit, "127", "A5 A6"}, {kNoUnit, "34", "B1"}},
          "Sue-De-Coq: Row A and Box 1 with cells A1 and A2, line cells A5 and A6 and box cells B1 "
          "=> Removed candidate 1 from cell(s) A3 A4 A7 A8 A9, candidate 2 from cell(s) "
          "A3 A4 A7 A8 A9, candidate 3 from cell(s) A3 B2 B3 C1 C2 C3, candidate 4 from cell(s) "
          "A3 B2 B3 C1 C2 C3, candidate 7 from cell(s) A3 A4 A7 A8 A9"},
         {"three cells of the crossing pay for an arm with two numbers too many",
          {{kNoUnit, "12345", "A1 A2 A3"}, {kNoUnit, "123", "A5"}, {kNoUnit, "45", "B1"}},
          "Sue-De-Coq: Row A and Box 1 with cells A1, A2 and A3, line cells A5 and box cells B1 => "
          "Removed candidate 1 from cell(s) A4 A6 A7 A8 A9, candidate 2 from cell(s) "
          "A4 A6 A7 A8 A9, candidate 3 from cell(s) A4 A6 A7 A8 A9, candidate 4 from cell(s) "
          "B2 B3 C1 C2 C3, candidate 5 from cell(s) B2 B3 C1 C2 C3"},
         {"of two line arms and of two block arms the first",
          {{kNoUnit, "1234", "A1 A2"}, {kNoUnit, "12", "A5 A8"}, {kNoUnit, "34", "B2 C3"}},
          "Sue-De-Coq: Row A and Box 1 with cells A1 and A2, line cells A5 and box cells B2 => "
          "Removed candidate 1 from cell(s) A3 A4 A6 A7 A8 A9, candidate 2 from cell(s) "
          "A3 A4 A6 A7 A8 A9, candidate 3 from cell(s) A3 B1 B3 C1 C2 C3, candidate 4 from "
          "cell(s) A3 B1 B3 C1 C2 C3"},
         {"a row before a column in the same block",
          {{kNoUnit, "1234", "A1 B1 C2 C3"}, {kNoUnit, "12", "G1 C7"}, {kNoUnit, "34", "B2"}},
          "Sue-De-Coq: Row C and Box 1 with cells C2 and C3, line cells C7 and box cells B2 => "
          "Removed candidate 1 from cell(s) C1 C4 C5 C6 C8 C9, candidate 2 from cell(s) "
          "C1 C4 C5 C6 C8 C9, candidate 3 from cell(s) A1 A2 A3 B1 B3 C1, candidate 4 from "
          "cell(s) A1 A2 A3 B1 B3 C1"}});
}

TEST(SueDeCoq, NothingIsFoundWhereACountOrAnArmIsWrong) {
    ExpectFirst(kSueDeCoq,
                {{"the arms share a number",
                  {{kNoUnit, "1234", "A1 A2"}, {kNoUnit, "12", "A5"}, {kNoUnit, "23", "B1"}},
                  ""},
                 {"the cells of the crossing hold just one number too many",
                  {{kNoUnit, "123", "A1 A2"}, {kNoUnit, "12", "A5"}, {kNoUnit, "34", "B1"}},
                  ""},
                 {"a number more than cells",
                  {{kNoUnit, "12345", "A1 A2"}, {kNoUnit, "12", "A5"}, {kNoUnit, "34", "B1"}},
                  ""},
                 {"an arm that holds no more numbers than cells",
                  {{kNoUnit, "1234", "A1 A2"}, {kNoUnit, "1", "A5"}, {kNoUnit, "234", "B1"}},
                  ""}});
}

TEST(SueDeCoq, IsDrawnWithTheCrossingInOneColorAndTheArmsInTheOther) {
    const Find find =
        SearchFirst(
            StepOfSlot(kSueDeCoq),
            GridWith({{kNoUnit, "1234", "A1 A2"}, {kNoUnit, "12", "A5"}, {kNoUnit, "34", "B1"}}))
            .found;
    const auto cellsOf = [](const std::vector<CellDigit>& candidates) {
        CellSet cells;
        for (const CellDigit& candidate : candidates) {
            cells.Add(candidate.cell);
        }
        return cells;
    };
    EXPECT_EQ(cellsOf(find.firstColor), CellsNamed("A1 A2"));
    EXPECT_EQ(find.firstColor.size(), 8u);
    EXPECT_EQ(cellsOf(find.secondColor), CellsNamed("A5 B1"));
    EXPECT_EQ(find.secondColor.size(), 4u);
}

}  // namespace
}  // namespace vemo
