// XY-Chains: their texts, which comes first, and what only looks like one.
#include "solver/find_cases.h"
#include "solver/techniques/chain_text.h"

namespace vemo {
namespace {

using namespace test;

constexpr int kXYChain = 30;

Pattern Only(const char* digits, const char* cell) {
    return {kNoUnit, digits, cell};
}

const std::vector<Pattern> kOfThree = {Only("12", "A1"), Only("23", "A6"), Only("13", "B4")};
const std::vector<Pattern> kOfFour = {Only("12", "A1"), Only("23", "A6"), Only("34", "F6"),
                                      Only("14", "F2")};

std::vector<Pattern> Joined(std::vector<Pattern> patterns, const std::vector<Pattern>& more) {
    patterns.insert(patterns.end(), more.begin(), more.end());
    return patterns;
}

TEST(XYChain, TheFirstIsTheOnePromisedInItsWords) {
    ExpectFirst(
        kXYChain,
        {{"gone from every cell that sees both ends", kOfFour,
          "XY-Chain: Cells A1 - A6 - F6 - F2 => Removed candidate 1 from cell(s) A2 B2 C2 D1 E1 F1",
          "XY-CHAIN: Since each cell of the chain A1 - A6 - F6 - F2 holds only two candidates and "
          "a number other than 1 at A1 forces 1 at F2, one of these two cells must be 1 and this "
          "number can't be in any cell that sees both"},
         {"three cells are enough", kOfThree,
          "XY-Chain: Cells A1 - A6 - B4 => Removed candidate 1 from cell(s) A4 A5 B1 B2 B3"},
         {"a cell of the chain that sees both ends loses the digit like any other",
          {{Row('A'), "1", "A1 A5"},
           {Row('A'), "2", "A1 A8"},
           {Row('A'), "3", "A5 A8"},
           Only("12", "A1"),
           Only("23", "A8"),
           Only("13", "A5"),
           Only("14", "E5"),
           Only("14", "H5")},
          "XY-Chain: Cells A1 - A8 - A5 - E5 - H5 => Removed candidate 1 from cell(s) A5 H1"},
         {"the shorter one, whatever its first cell; from the earlier of its ends",
          Joined(kOfFour, {Only("56", "J1"), Only("67", "J6"), Only("57", "H4")}),
          "XY-Chain: Cells H4 - J6 - J1 => Removed candidate 5 from cell(s) H1 H2 H3 J4 J5"},
         {"of equal length the one with the lower digit at the same first cell",
          Joined(kOfThree, {Only("14", "D1"), Only("24", "E2")}),
          "XY-Chain: Cells A1 - A6 - B4 => Removed candidate 1 from cell(s) A4 A5 B1 B2 B3"},
         {"a way round, where the ends are a pair by themselves",
          {Only("12", "A1"), Only("12", "A9"), Only("23", "B2"), Only("23", "B8")},
          "XY-Chain: Cells A1 - B2 - B8 - A9 => Removed candidate 1 from cell(s) A2 A3 A4 A5 A6 A7 "
          "A8"}});
}

TEST(XYChain, WhatOnlyLooksLikeOneIsNone) {
    ExpectFirst(kXYChain,
                {{"a cell of three candidates forces nothing",
                  {Only("12", "A1"), Only("235", "A6"), Only("34", "F6"), Only("14", "F2")},
                  ""},
                 {"two neighbours that do not see each other",
                  {Only("12", "A1"), Only("23", "A6"), Only("34", "E7"), Only("14", "F2")},
                  ""},
                 {"the digit is at both ends, but does not lead from the one to the other",
                  {Only("12", "A1"), Only("13", "A6"), Only("13", "F6")},
                  ""},
                 {"nothing left to lose it",
                  Joined(kOfThree, {{Row('A'), "1", "A1"}, {Row('B'), "1", "B4"}}), ""}});
}

// Inside a cell one candidate or the other, between cells not both.
TEST(XYChain, IsDrawnAlongItsCandidates) {
    const Find find = SearchFirst(StepOfSlot(kXYChain), GridWith(kOfThree)).found;
    EXPECT_EQ(ChainText(find.links), "A1(1) = A1(2) - A6(2) = A6(3) - B4(3) = B4(1)");
    EXPECT_EQ(find.firstColor.size(), 6u);
    EXPECT_TRUE(find.secondColor.empty());
}

}  // namespace
}  // namespace vemo
