// Pairs of almost locked sets: their texts, which comes first, and what only looks like one.
#include "solver/find_cases.h"

namespace vemo {
namespace {

using namespace test;

constexpr int kAlsXz = 34;

// A1 and A2 are almost locked on 1, 2 and 3, A7, B8 and B9 on four numbers.
std::vector<Pattern> InTwoBoxes(std::string_view atA7, std::string_view atB8,
                                std::string_view atB9) {
    return {{kNoUnit, "123", "A1 A2"},
            {kNoUnit, atA7, "A7"},
            {kNoUnit, atB8, "B8"},
            {kNoUnit, atB9, "B9"}};
}

TEST(AlsXz, TheFirstFindIsTheOnePromised) {
    ExpectFirst(
        kAlsXz,
        {{"a cell with two candidates and a larger set",
          {{kNoUnit, "12", "A5"}, {kNoUnit, "13", "B2"}, {kNoUnit, "23", "B4"}},
          "Bi-Value ALSxz: Cells A5 and cells B2 and B4 with x=2 => Removed candidate 1 from "
          "cell(s) A1 A2 A3 B5 B6",
          "BI-VALUE ALSXZ: Since number 2 can't be both in cell A5 (candidates 1 and 2) and in "
          "cells B2 and B4 (candidates 1, 2 and 3), one of the two sets must hold 1, which can't "
          "be in any cell that sees all its places in both sets"},
         {"two restricted common numbers lock both sets",
          {{kNoUnit, "12", "A1"}, {kNoUnit, "13", "A5"}, {kNoUnit, "23", "A6"}},
          "Bi-Value ALSxz: Cells A1 and cells A5 and A6 with x=1 and 2 => Removed candidate 1 "
          "from cell(s) A2 A3 A4 A7 A8 A9, candidate 2 from cell(s) A2 A3 A4 A7 A8 A9, candidate 3 "
          "from cell(s) A2 A3 A4 A7 A8 A9 B4 B5 B6 C4 C5 C6",
          "BI-VALUE ALSXZ: Since the numbers 1 and 2 are each allowed only once in cell A1 and "
          "cells A5 and A6 together, both sets are locked and their numbers can be discarded from "
          "the cells that see all their places"},
         {"two larger sets", InTwoBoxes("134", "145", "145"),
          "ALSxz: Cells A1 and A2 and cells A7, B8 and B9 with x=3 => Removed candidate 1 from "
          "cell(s) A8 A9",
          "ALSXZ: Since number 3 can't be both in cells A1 and A2 (candidates 1, 2 and 3) and in "
          "cells A7, B8 and B9 (candidates 1, 3, 4 and 5), one of the two sets must hold 1, which "
          "can't be in any cell that sees all its places in both sets"},
         {"one restricted common number, two others", InTwoBoxes("123", "124", "124"),
          "ALSxz: Cells A1 and A2 and cells A7, B8 and B9 with x=3 => Removed candidate 1 from "
          "cell(s) A8 A9, candidate 2 from cell(s) A8 A9",
          "ALSXZ: Since number 3 can't be both in cells A1 and A2 (candidates 1, 2 and 3) and in "
          "cells A7, B8 and B9 (candidates 1, 2, 3 and 4), one of the two sets must hold 1 and "
          "2, which can't be in any cell that sees all its places in both sets"},
         {"with a cell of two candidates first, though its list place is a later one",
          {{kNoUnit, "123", "A1 A2"}, {kNoUnit, "134", "A7"}, {kNoUnit, "14", "B8"}},
          "Bi-Value ALSxz: Cells B8 and cells A1, A2 and A7 with x=4 => Removed candidate 1 from "
          "cell(s) A8 A9"},
         {"a 3 at B8 sees no 3 of the other set", InTwoBoxes("134", "135", "145"), ""},
         {"a naked pair is no two sets", {{kNoUnit, "12", "A1 A5"}}, ""}});
}

TEST(AlsXz, IsDrawnWithASetInEachColorAndLinksBetweenTheRestrictedNumbers) {
    const Grid grid = GridWith(InTwoBoxes("134", "145", "145"));
    const Find find = SearchFirst(StepOfSlot(kAlsXz), grid).found;
    EXPECT_EQ(find.firstColor, Find::CandidatesOf(grid, CellsNamed("A1 A2"), kAllMarks));
    EXPECT_EQ(find.secondColor, Find::CandidatesOf(grid, CellsNamed("A7 B8 B9"), kAllMarks));
    const ChainLink link = {.from = CellsNamed("A1 A2"),
                            .to = CellsNamed("A7"),
                            .fromDigit = 3,
                            .toDigit = 3,
                            .strong = false};
    ASSERT_EQ(find.links.size(), 1u);
    EXPECT_EQ(find.links[0], link);
}

}  // namespace
}  // namespace vemo
