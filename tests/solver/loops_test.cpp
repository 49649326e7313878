// Loops: their texts, which comes first, what they do, and what only looks like one.
#include "solver/find_cases.h"
#include "solver/techniques/families.h"

namespace vemo {
namespace {

using namespace test;

// Their slots.
constexpr int kShortNiceLoops = 28;
constexpr int kShortAICs = 29;
constexpr int kLongNiceLoops = 32;
constexpr int kLongAICs = 38;

TEST(NiceLoops, TheFirstIsTheOnePromisedInItsWords) {
    ExpectFirst(
        kShortNiceLoops,
        {{"two weak links meet: gone from whatever sees both ends of the chain between them",
          {{Row('A'), "4", "A1 A4"}, {Row('D'), "4", "D1 D5"}},
          "Nice Loop - Weak Discontinuity: B5(4) - A4(4) = A1(4) - D1(4) = D5(4) - B5(4) => "
          "Removed candidate 4 from cell(s) B5 C5 E4 F4",
          "NICE LOOP - WEAK DISCONTINUITY: Since number 4 at cell B5 would lead along the chain "
          "B5(4) - A4(4) = A1(4) - D1(4) = D5(4) - B5(4) to its own removal, either 4 in A4 or 4 "
          "in D5 must be true and every candidate that conflicts with both can be discarded"},
         {"two strong links meet: placed",
          {{Row('A'), "4", "A1 A9"}, {Row('J'), "4", "J2 J9"}, {Box(0), "4", "A1 C2"}},
          "Nice Loop - Strong Discontinuity: A1(4) = A9(4) - J9(4) = J2(4) - C2(4) = A1(4) => "
          "Candidate 4 placed at cell(s) A1",
          "NICE LOOP - STRONG DISCONTINUITY: Since leaving number 4 out of cell A1 would lead "
          "along the chain A1(4) = A9(4) - J9(4) = J2(4) - C2(4) = A1(4) to its own placement, it "
          "must be there"},
         {"no break: an X-Wing as a loop of four links",
          {{Row('A'), "4", "A1 A9"}, {Row('J'), "4", "J1 J9"}},
          "Nice Loop - Alternating X-Cycle: A1(4) = A9(4) - J9(4) = J1(4) - A1(4) => Removed "
          "candidate 4 from cell(s) B1 B9 C1 C9 D1 D9 E1 E9 F1 F9 G1 G9 H1 H9",
          "NICE LOOP - ALTERNATING X-CYCLE: Since the loop A1(4) = A9(4) - J9(4) = J1(4) - A1(4) "
          "alternates without a break, one of the two candidates of each weak link must be true "
          "and every other candidate that conflicts with both can be discarded"},
         {"locked candidates as a loop of three links",
          {{Row('A'), "4", "A1 A2"}},
          "Nice Loop - Weak Discontinuity: B1(4) - A1(4) = A2(4) - B1(4) => Removed candidate 4 "
          "from cell(s) B1 B2 B3 C1 C2 C3"},
         {"the shorter loop, whatever its first candidate",
          {{Row('A'), "4", "A1 A4"},
           {Row('D'), "4", "D1 D5"},
           {Row('F'), "6", "F2 F8"},
           {Row('J'), "6", "J2 J8"}},
          "Nice Loop - Alternating X-Cycle: F2(6) = F8(6) - J8(6) = J2(6) - F2(6) => Removed "
          "candidate 6 from cell(s) A2 A8 B2 B8 C2 C8 D2 D8 E2 E8 G2 G8 H2 H8"},
         {"of loops of one length that of the lowest cell, then digit",
          {{Row('A'), "7", "A1 A4"},
           {Row('D'), "7", "D1 D5"},
           {Row('A'), "3", "A1 A4"},
           {Row('D'), "3", "D1 D5"}},
          "Nice Loop - Weak Discontinuity: B5(3) - A4(3) = A1(3) - D1(3) = D5(3) - B5(3) => "
          "Removed candidate 3 from cell(s) B5 C5 E4 F4"},
         {"a third place breaks the strong link",
          {{Row('A'), "4", "A1 A4 A7"}, {Row('D'), "4", "D1 D5"}},
          ""},
         {"a cycle that removes nothing is none",
          {{Row('A'), "4", "A1 A9"},
           {Row('J'), "4", "J1 J9"},
           {Column(1), "4", "A1 J1"},
           {Column(9), "4", "A9 J9"}},
          ""},
         {"links do not lead to another digit",
          {{kNoUnit, "12", "A1"}, {kNoUnit, "13", "A5"}, {kNoUnit, "23", "D1"}},
          ""},
         {"links do not lead to groups",
          {{Row('A'), "4", "A1 A7 A8"}, {Column(9), "4", "C9 H9"}},
          ""}});
}

TEST(NiceLoops, TheLongOnesPassGroups) {
    ExpectFirst(
        kLongNiceLoops,
        {{"two places where a line crosses a box",
          {{Row('A'), "4", "A1 A7 A8"}, {Column(9), "4", "C9 H9"}},
          "Nice Loop - Weak Discontinuity: H1(4) - A1(4) = A7/A8(4) - C9(4) = H9(4) - H1(4) => "
          "Removed candidate 4 from cell(s) H1"},
         {"the two arms of a cross in a box share a cell",
          {{Box(4), "4", "D5 E4 E5 E6 F5"}, {Column(1), "4", "A1 E1"}},
          "Nice Loop - Weak Discontinuity: A5(4) - A1(4) = E1(4) - E4/E5/E6(4) = D5/E5/F5(4) - "
          "A5(4) => Removed candidate 4 from cell(s) A5"},
         {"groups that share a cell are not linked weakly",
          {{Row('A'), "4", "A1 A2 A7 A8"}, {Box(0), "4", "A1 A2 B2 C2"}},
          ""}});
}

TEST(AICs, TheFirstIsTheOnePromisedInItsWords) {
    ExpectFirst(
        kShortAICs,
        {{"through cells with two candidates",
          {{kNoUnit, "12", "A1"}, {kNoUnit, "13", "A5"}, {kNoUnit, "23", "D1"}},
          "AIC - Weak Discontinuity: D5(3) - A5(3) = A5(1) - A1(1) = A1(2) - D1(2) = D1(3) - D5(3) "
          "=> Removed candidate 3 from cell(s) D5",
          "AIC - WEAK DISCONTINUITY: Since number 3 at cell D5 would lead along the chain D5(3) - "
          "A5(3) = A5(1) - A1(1) = A1(2) - D1(2) = D1(3) - D5(3) to its own removal, either 3 in "
          "A5 or 3 in D1 must be true and every candidate that conflicts with both can be "
          "discarded"},
         {"ends of different digits take each other's digit from their cells",
          {{Row('D'), "3", "D1 D5"}, {Column(5), "7", "D5 H5"}, {Row('H'), "2", "H1 H5"}},
          "AIC - Weak Discontinuity: D1(2) - D1(3) = D5(3) - D5(7) = H5(7) - H5(2) = H1(2) - D1(2) "
          "=> Removed candidate 2 from cell(s) D1, candidate 3 from cell(s) H1"},
         {"a cycle empties its cells of what is not on it",
          {{Row('A'), "3", "A1 A5"}, {Row('A'), "8", "A1 A5"}},
          "AIC - Alternating Cycle: A1(3) = A5(3) - A5(8) = A1(8) - A1(3) => Removed candidate 1 "
          "from cell(s) A1 A5, candidate 2 from cell(s) A1 A5, candidate 4 from cell(s) A1 A5, "
          "candidate 5 from cell(s) A1 A5, candidate 6 from cell(s) A1 A5, candidate 7 from "
          "cell(s) A1 A5, candidate 9 from cell(s) A1 A5",
          "AIC - ALTERNATING CYCLE: Since the loop A1(3) = A5(3) - A5(8) = A1(8) - A1(3) "
          "alternates without a break, one of the two candidates of each weak link must be true "
          "and every other candidate that conflicts with both can be discarded"},
         {"a third candidate breaks the strong link in a cell",
          {{kNoUnit, "12", "A1"}, {kNoUnit, "134", "A5"}, {kNoUnit, "23", "D1"}},
          ""}});
}

TEST(AICs, TheLongOnesPassAlmostLockedSets) {
    ExpectFirst(
        kLongAICs,
        {{"two such sets; what else they lock is left alone",
          {{kNoUnit, "12", "A1"}, {kNoUnit, "123", "A2"}, {kNoUnit, "13", "A9"}},
          "AIC - Alternating Cycle: A1(1) = A1(2) - A2(2) =ALS A2/A9= A2/A9(1) - A1(1) => Removed "
          "candidate 1 from cell(s) A3 A4 A5 A6 A7 A8, candidate 2 from cell(s) A3 A4 A5 A6 A7 A8 "
          "B1 B2 B3 C1 C2 C3"},
         {"one digit too many in the set",
          {{kNoUnit, "12", "A1"}, {kNoUnit, "1234", "A2"}, {kNoUnit, "15", "A9"}},
          ""}});
}

Find FirstOf(int slot, const std::vector<Pattern>& patterns) {
    const FirstFind first = SearchFirst(StepOfSlot(slot), GridWith(patterns));
    EXPECT_TRUE(first.any);
    return first.found;
}

// "A1(4) B2(5)", by cell.
std::string Written(std::vector<CellDigit> candidates) {
    std::ranges::sort(candidates, {}, &CellDigit::cell);
    std::string text;
    for (const auto& [cell, digit] : candidates) {
        text += (text.empty() ? "" : " ") + CellName(cell) + "(" + std::to_string(digit) + ")";
    }
    return text;
}

TEST(Loops, EveryOtherNodeHasTheFirstColorFromTheFirstStrongLinkOn) {
    const Find weak =
        FirstOf(kLongNiceLoops, {{Row('A'), "4", "A1 A7 A8"}, {Column(9), "4", "C9 H9"}});
    EXPECT_EQ(Written(weak.firstColor), "A7(4) A8(4) H9(4)");
    EXPECT_EQ(Written(weak.secondColor), "A1(4) C9(4) H1(4)");
    const Find strong =
        FirstOf(kShortNiceLoops,
                {{Row('A'), "4", "A1 A9"}, {Row('J'), "4", "J2 J9"}, {Box(0), "4", "A1 C2"}});
    EXPECT_EQ(Written(strong.firstColor), "A1(4) A9(4) J2(4)") << "the first is on in the end";
    EXPECT_EQ(Written(strong.secondColor), "C2(4) J9(4)");
    const Find cycle =
        FirstOf(kShortNiceLoops, {{Row('A'), "4", "A1 A9"}, {Row('J'), "4", "J1 J9"}});
    EXPECT_EQ(Written(cycle.firstColor), "A9(4) J1(4)");
    EXPECT_EQ(Written(cycle.secondColor), "A1(4) J9(4)");
}

TEST(Loops, ACandidateOfTwoNodesHasOneColor) {
    const Find find =
        FirstOf(kLongNiceLoops, {{Box(4), "4", "D5 E4 E5 E6 F5"}, {Column(1), "4", "A1 E1"}});
    EXPECT_EQ(Written(find.firstColor), "D5(4) E1(4) E5(4) F5(4)");
    EXPECT_EQ(Written(find.secondColor), "A1(4) A5(4) E4(4) E6(4)");
}

TEST(Loops, LinksAreDirectedAndKnowTheirSets) {
    const Find find =
        FirstOf(kLongAICs, {{kNoUnit, "12", "A1"}, {kNoUnit, "123", "A2"}, {kNoUnit, "13", "A9"}});
    ASSERT_EQ(find.links.size(), 4u);
    for (std::size_t k = 0; k < find.links.size(); ++k) {
        EXPECT_TRUE(find.links[k].directed);
        EXPECT_EQ(find.links[k].strong, k % 2 == 0);
        EXPECT_EQ(find.links[k].set, k == 2 ? CellsNamed("A2 A9") : CellSet());
    }
}

// The loops of an X-Wing and of two conjugate pairs have four and five links.
TEST(Loops, AreNoLongerThanAllowed) {
    const Position cycle(GridWith({{Row('A'), "4", "A1 A9"}, {Row('J'), "4", "J1 J9"}}));
    const Position chain(GridWith({{Row('A'), "4", "A1 A4"}, {Row('D'), "4", "D1 D5"}}));
    for (const auto& [position, length] : {std::pair(cycle, 4), std::pair(chain, 5)}) {
        for (int longest = 3; longest <= 6; ++longest) {
            FirstFind first;
            NiceLoops(position, {.length = longest}, first);
            EXPECT_EQ(first.any, longest >= length) << longest;
        }
    }
}

// Nothing to hold on to, and digits that have nowhere to go.
TEST(Loops, EndOnGridsWithoutSense) {
    const Grid grids[] = {
        Grid(), Grid::FromClues(PlainSolution()),
        GridWith(
            {{kNoUnit, "1", "A1 A2 B1 B2"}, {kNoUnit, "12", "C3 C4 C5"}, {kNoUnit, "", "J9"}})};
    for (const Grid& grid : grids) {
        for (int slot : {kShortNiceLoops, kShortAICs, kLongNiceLoops, kLongAICs}) {
            for (const Find& find : SearchAll(StepOfSlot(slot), grid)) {
                EXPECT_TRUE(find.ChangesSomething());
            }
        }
    }
}

}  // namespace
}  // namespace vemo
