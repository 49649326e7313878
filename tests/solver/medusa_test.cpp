// 3D Medusa: its texts, which rule comes first, and what only looks like one.
#include <algorithm>
#include <array>

#include "solver/find_cases.h"

namespace vemo {
namespace {

using namespace test;

constexpr int kMedusa = 21;

// B2 and B7 have 1, and from B2 the 2 leads by three pairs to B7: both with the same color.
const std::vector<Pattern> kTwoNumbersAtB7 = {{kNoUnit, "12", "B2"},    {Row('B'), "1", "B2 B7"},
                                              {Box(0), "2", "A1 B2"},   {Column(1), "2", "A1 E1"},
                                              {Row('E'), "2", "E1 E7"}, {Column(7), "2", "B7 E7"}};
// One color has 1 in row E and 2 in column 5.
const std::vector<Pattern> kNothingLeftAtE5 = {{kNoUnit, "12", "B1"},
                                               {Column(1), "1", "B1 E1"},
                                               {Box(0), "2", "B1 C3"},
                                               {Row('C'), "2", "C3 C5"},
                                               {kNoUnit, "12", "E5"}};

TEST(Medusa, TheFirstFindIsTheOnePromised) {
    ExpectFirst(
        kMedusa,
        {{"a single pair: what sees both ends goes",
          {{Row('B'), "4", "B7 B8"}},
          "3D Medusa: Colors of B7(4) against B8(4) => Removed candidate 4 from cell(s) "
          "A7 A8 A9 C7 C8 C9",
          "3D MEDUSA: Since all candidates of one of the two colors (that of number 4 at cell B7 "
          "and that of number 4 at cell B8) must be true, every other candidate that conflicts "
          "with both colors can be discarded"},
         {"a cell that holds both colors keeps these two, and row B has 2 in both colors",
          {{kNoUnit, "12", "B2"},
           {Row('B'), "1", "B2 B7"},
           {Column(2), "2", "B2 H2"},
           {Row('H'), "2", "H2 H7"},
           {Column(7), "2", "B7 H7"}},
          "3D Medusa: Colors of B2(1), B7(2) and H2(2) against B2(2), B7(1) and H7(2) => Removed "
          "candidate 2 from cell(s) B1 B3 B4 B5 B6 B8 B9, candidate 3 from cell(s) B7, candidate 4 "
          "from cell(s) B7, candidate 5 from cell(s) B7, candidate 6 from cell(s) B7, candidate 7 "
          "from cell(s) B7, candidate 8 from cell(s) B7, candidate 9 from cell(s) B7"},
         {"two numbers in a cell, which is said before that row B would hold 2 twice",
          kTwoNumbersAtB7,
          "3D Medusa: Color of B2(2), B7(1), B7(2) and E1(2) => Removed candidate 1 from cell(s) "
          "B7, candidate 2 from cell(s) B2 B7 E1",
          "3D MEDUSA: Since all candidates of one of the two colors must be true, and the color of "
          "number 2 at cell B2 would place two numbers at cell B7, all candidates of that color "
          "can be discarded"},
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
          kNothingLeftAtE5,
          "3D Medusa: Color of B1(2), C5(2) and E1(1) => Removed candidate 1 from cell(s) E1, "
          "candidate 2 from cell(s) B1 C5",
          "3D MEDUSA: Since all candidates of one of the two colors must be true, and the color of "
          "number 2 at cell B1 would leave no number for cell E5, all candidates of that color can "
          "be discarded"},
         {"the part with the lowest candidate comes first, in a cell the lowest digit",
          {{Row('B'), "6", "B7 B8"}, {Row('B'), "3", "B7 B9"}},
          "3D Medusa: Colors of B7(3) against B9(3) => Removed candidate 3 from cell(s) "
          "A7 A8 A9 C7 C8 C9"}});
}

TEST(Medusa, NothingIsFoundWhereNothingIsTied) {
    ExpectFirst(kMedusa,
                {{"three places in a line", {{Row('B'), "4", "B2 B7 B8"}}, ""},
                 {"three candidates in a cell", {{kNoUnit, "123", "B2"}}, ""},
                 {"two candidates of a cell, and nothing else", {{kNoUnit, "12", "B2"}}, ""},
                 {"a ring of five pairs has no two colors",
                  {{Row('B'), "4", "B2 B7"},
                   {Column(7), "4", "B7 H7"},
                   {Box(8), "4", "H7 J9"},
                   {Row('J'), "4", "J2 J9"},
                   {Column(2), "4", "B2 J2"}},
                  ""}});
}

// A cell that has lost everything already is no reason.
TEST(Medusa, AnEmptyCellIsNotEmptiedByAColor) {
    Grid grid = GridWith({{Row('B'), "4", "B2 B7"}});
    grid.WisKnop(CellNamed("E5"));
    EXPECT_FALSE(SearchFirst(StepOfSlot(kMedusa), grid).any);
}

TEST(Medusa, OfMoreThanFiftyCandidatesTheFirstGoByCellThenDigit) {
    std::array<CellSet, kDigits> all;
    all.fill(CellSet::All());
    Find find;
    EXPECT_TRUE(find.Remove(Grid(), all));
    EXPECT_EQ(find.removals.Size(), 50u);
    EXPECT_EQ(find.removals[49], At(CellNamed("A6"), 5));
}

TEST(Medusa, IsDrawnWithTheWrongColorAsTheSecondAndEachLinkOnce) {
    const Grid grid = GridWith(kTwoNumbersAtB7);
    const Find find = SearchFirst(StepOfSlot(kMedusa), grid).found;
    EXPECT_EQ(find.firstColor, (std::vector{At(CellNamed("A1"), 2), At(CellNamed("B2"), 1),
                                            At(CellNamed("E7"), 2)}));
    EXPECT_EQ(find.secondColor, (std::vector{At(CellNamed("B2"), 2), At(CellNamed("B7"), 1),
                                             At(CellNamed("B7"), 2), At(CellNamed("E1"), 2)}));
    EXPECT_EQ(find.links.size(), 6u);
    const Find emptied = SearchFirst(StepOfSlot(kMedusa), GridWith(kNothingLeftAtE5)).found;
    EXPECT_TRUE(std::ranges::count(emptied.cells, CellNamed("E5"))) << "the reason is shown";
}

}  // namespace
}  // namespace vemo
