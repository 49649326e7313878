// Loops, XY-Chains and forcing chains: which comes first, and how they are drawn.
#include "solver/find_cases.h"
#include "solver/techniques/families.h"

namespace vemo {
namespace {

using namespace test;

// The loops of an X-Wing and of two conjugate pairs have four and five links.
const std::vector<Pattern> kXWing = {{Row('A'), "4", "A1 A9"}, {Row('J'), "4", "J1 J9"}};
const std::vector<Pattern> kTwoPairs = {{Row('A'), "4", "A1 A4"}, {Row('D'), "4", "D1 D5"}};

// From the first strong link on every other node has the first color.
TEST(NiceLoops, AreDrawnInTwoColorsAlongTheirLinks) {
    ExpectFirst(StepOfSlot(28),
                {{"the node that is on in the end has the first color",
                  {{Row('A'), "4", "A1 A9"}, {Row('J'), "4", "J2 J9"}, {Box(0), "4", "A1 C2"}},
                  "Nice Loop - Strong Discontinuity: A1(4) = A9(4) - J9(4) = J2(4) - C2(4) = A1(4)",
                  "",
                  "A1(4) A9(4) J2(4) | C2(4) J9(4) | A1(4) = A9(4), A9(4) - J9(4), J9(4) = J2(4), "
                  "J2(4) - C2(4), C2(4) = A1(4)"},
                 {"a cycle", kXWing,
                  "Nice Loop - Alternating X-Cycle: A1(4) = A9(4) - J9(4) = J1(4) - A1(4)", "",
                  "A9(4) J1(4) | A1(4) J9(4) | A1(4) = A9(4), A9(4) - J9(4), J9(4) = J1(4), "
                  "J1(4) - A1(4)"}});
    ExpectFirst(
        StepOfSlot(32),
        {{"a group",
          {{Row('A'), "4", "A1 A7 A8"}, {Column(9), "4", "C9 H9"}},
          "Nice Loop - Weak Discontinuity: H1(4) - A1(4) = A7/A8(4) - C9(4) = H9(4) - H1(4)",
          "",
          "A7(4) A8(4) H9(4) | A1(4) C9(4) H1(4) | H1(4) - A1(4), A1(4) = A7/A8(4), "
          "A7/A8(4) - C9(4), C9(4) = H9(4), H9(4) - H1(4)"},
         {"a candidate of two nodes has one color",
          {{Box(4), "4", "D5 E4 E5 E6 F5"}, {Column(1), "4", "A1 E1"}},
          "Nice Loop - Weak Discontinuity: A5(4) - A1(4) = E1(4) - E4/E5/E6(4) = "
          "D5/E5/F5(4) - A5(4)",
          "",
          "D5(4) E1(4) E5(4) F5(4) | A1(4) A5(4) E4(4) E6(4) | A5(4) - A1(4), "
          "A1(4) = E1(4), E1(4) - E4/E5/E6(4), E4/E5/E6(4) = D5/E5/F5(4), "
          "D5/E5/F5(4) - A5(4)"}});
}

TEST(NiceLoops, AreNoLongerThanAllowed) {
    for (const auto& [patterns, length] : {std::pair(kXWing, 4), std::pair(kTwoPairs, 5)}) {
        const Position position(GridWith(patterns));
        for (int longest = 3; longest <= 6; ++longest) {
            FirstFind first;
            NiceLoops(position, {.length = longest}, first);
            EXPECT_EQ(first.any, longest >= length) << longest;
        }
    }
}

TEST(XYChain, TheFirstIsTheOnePromised) {
    ExpectFirst(
        StepOfSlot(30),
        {{"the shorter one, whatever its first cell; from the earlier of its ends",
          {Only("12", "A1"), Only("23", "A6"), Only("34", "F6"), Only("14", "F2"), Only("56", "J1"),
           Only("67", "J6"), Only("57", "H4")},
          "XY-Chain: Cells H4 - J6 - J1"},
         {"of equal length the one with the lower digit at the same first cell",
          {Only("12", "A1"), Only("23", "A6"), Only("13", "B4"), Only("14", "D1"),
           Only("24", "E2")},
          "XY-Chain: Cells A1 - A6 - B4",
          "",
          "A1(12) A6(23) B4(13) |  | A1(1) = A1(2), A1(2) - A6(2), A6(2) = A6(3), A6(3) - B4(3), "
          "B4(3) = B4(1)"}});
}

TEST(ForcingChain, ToACandidateThatIsOnTakesTheOthersOfItsCell) {
    ExpectFirst(StepOfSlot(36),
                {{"nothing is placed",
                  {Only("123", "E5"),
                   Only("19", "E1"),
                   {Column(1), "9", "A1 E1"},
                   {Box(3), "9", "D2 E1"},
                   Only("29", "A5"),
                   Only("39", "D4")},
                  "Forcing Chain from Cell: E5 (E5(1) - E1(1) = E1(9); E5(2) - A5(2) = A5(9) - "
                  "A1(9) = E1(9); E5(3) - D4(3) = D4(9) - D2(9) = E1(9)) => Removed candidate 1 "
                  "from cell(s) E1",
                  "FORCING CHAIN FROM CELL: Since every candidate of cell E5 (1, 2 and 3) leads to "
                  "the same result, number 9 must be at cell E1 and the other candidates can be "
                  "discarded"}});
}

}  // namespace
}  // namespace vemo
