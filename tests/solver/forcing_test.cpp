// Forcing chains: their texts, which comes first, and what is none.
#include "solver/find_cases.h"

namespace vemo {
namespace {

using namespace test;

constexpr int kForcing = 36;

Pattern Only(const char* digits, const char* cell) {
    return {kNoUnit, digits, cell};
}

// Whatever comes to E5, one of three cells that see it is left with a 9.
const std::vector<Pattern> kThreeNines = {Only("123", "E5"), Only("19", "E1"), Only("29", "E9"),
                                          Only("39", "D6")};

// The places of 1 in row A lead to J1 over rows G and H.
const std::vector<Pattern> kRowOfThree = {
    {Row('A'), "1", "A1 A5 A9"}, {Row('H'), "1", "H2 H5"}, {Row('G'), "1", "G3 G9"}};

TEST(ForcingChain, TheFirstIsTheOnePromisedInItsWords) {
    ExpectFirst(
        kForcing,
        {{"off wherever the cell's candidates lead: gone", kThreeNines,
          "Forcing Chain from Cell: E5 (E5(1) - E1(1) = E1(9) - E4(9); E5(2) - E9(2) = E9(9) - "
          "E4(9); E5(3) - D6(3) = D6(9) - E4(9)) => Removed candidate 9 from cell(s) E4",
          "FORCING CHAIN FROM CELL: Since every candidate of cell E5 (1, 2 and 3) leads to the "
          "same result, number 9 can't be at cell E4"},
         {"on: the others of its cell go, nothing is placed",
          {Only("123", "E5"),
           Only("19", "E1"),
           {Column(1), "9", "A1 E1"},
           {Box(3), "9", "D2 E1"},
           Only("29", "A5"),
           Only("39", "D4")},
          "Forcing Chain from Cell: E5 (E5(1) - E1(1) = E1(9); E5(2) - A5(2) = A5(9) - A1(9) = "
          "E1(9); E5(3) - D4(3) = D4(9) - D2(9) = E1(9)) => Removed candidate 1 from cell(s) E1",
          "FORCING CHAIN FROM CELL: Since every candidate of cell E5 (1, 2 and 3) leads to the "
          "same result, number 9 must be at cell E1 and the other candidates can be discarded"},
         {"from the places in a line", kRowOfThree,
          "Forcing Chain from Unit: Row A number 1 (A1(1) - J1(1); A5(1) - H5(1) = H2(1) - J1(1); "
          "A9(1) - G9(1) = G3(1) - J1(1)) => Removed candidate 1 from cell(s) J1",
          "FORCING CHAIN FROM UNIT: Since every place of number 1 in row A (cells A1, A5 and A9) "
          "leads to the same result, number 1 can't be at cell J1"},
         {"from the places in a box",
          {{Box(0), "1", "A1 B2 C3"}, {Row('E'), "1", "E2 E9"}, {Row('G'), "1", "G3 G9"}},
          "Forcing Chain from Unit: Box 1 number 1 (A1(1) - A9(1); B2(1) - E2(1) = E9(1) - A9(1); "
          "C3(1) - G3(1) = G9(1) - A9(1)) => Removed candidate 1 from cell(s) A9",
          "FORCING CHAIN FROM UNIT: Since every place of number 1 in the top left block (cells A1, "
          "B2 and C3) leads to the same result, number 1 can't be at cell A9"},
         {"chains of a single link: locked candidates",
          {{Box(4), "1", "D4 D5 D6"}},
          "Forcing Chain from Unit: Box 5 number 1 (D4(1) - D1(1); D5(1) - D1(1); D6(1) - D1(1)) "
          "=> Removed candidate 1 from cell(s) D1"},
         {"the fewest links, a unit's before a cell's",
          {Only("123", "E5"),
           Only("19", "E1"),
           Only("29", "E9"),
           Only("39", "D6"),
           {Box(8), "1", "G7 G8 G9"}},
          "Forcing Chain from Unit: Box 9 number 1 (G7(1) - G1(1); G8(1) - G1(1); G9(1) - G1(1)) "
          "=> Removed candidate 1 from cell(s) G1"},
         {"of units that of the lower digit, then row, column, box",
          {{Box(8), "4", "G7 G8 G9"}, {Box(8), "3", "G7 H7 J7"}, {Column(1), "3", "A1 B1 C1"}},
          "Forcing Chain from Unit: Column 1 number 3 (A1(3) - A2(3); B1(3) - A2(3); C1(3) - "
          "A2(3)) "
          "=> Removed candidate 3 from cell(s) A2"},
         {"an almost locked set, where candidates and groups do not reach",
          {Only("123", "E5"), Only("149", "E1"), Only("149", "E2"), Only("29", "F4"),
           Only("39", "D6")},
          "Forcing Chain from Cell: E5 (E5(1) - E1/E2(1) =ALS E1/E2= E1/E2(9) - E4(9); E5(2) - "
          "E5(1) =ALS D6/E5/F4= D6/F4(9) - E4(9); E5(3) - D6(3) = D6(9) - E4(9)) => Removed "
          "candidate 9 from cell(s) E4"}});
}

TEST(ForcingChain, WhatOnlyLooksLikeOneIsNone) {
    ExpectFirst(kForcing,
                {{"a candidate of the cell that leads nowhere",
                  {Only("1234", "E5"), Only("19", "E1"), Only("29", "E9"), Only("39", "D6")},
                  ""},
                 {"a place in the unit that leads nowhere",
                  {{Row('A'), "1", "A1 A5 A9"}, {Row('G'), "1", "G3 G9"}},
                  ""},
                 {"nothing left where they lead",
                  {Only("123", "E5"), Only("19", "E1"), Only("29", "E9"), Only("39", "D6"),
                   Only("45678", "E4"), Only("45678", "E6")},
                  ""}});
}

// The sources in the one colour, what is on in the other; the chains one after the other.
TEST(ForcingChain, IsDrawnFromItsSources) {
    const auto foundOn = [](const std::vector<Pattern>& patterns) {
        return SearchFirst(StepOfSlot(kForcing), GridWith(patterns)).found;
    };
    const Find off = foundOn(kThreeNines);
    EXPECT_EQ(off.firstColor, (std::vector<CellDigit>{At(40, 1), At(40, 2), At(40, 3)}));
    EXPECT_TRUE(off.secondColor.empty());
    EXPECT_EQ(off.links.size(), 9u);
    const Find on = foundOn({Only("123", "E5"),
                             Only("19", "E1"),
                             {Column(1), "9", "A1 E1"},
                             {Box(3), "9", "D2 E1"},
                             Only("29", "A5"),
                             Only("39", "D4")});
    EXPECT_EQ(on.secondColor, std::vector<CellDigit>{At(CellNamed("E1"), 9)});
    EXPECT_TRUE(on.placements.Empty());
}

}  // namespace
}  // namespace vemo
