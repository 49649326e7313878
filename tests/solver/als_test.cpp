// Pairs of almost locked sets, and aligned exclusions: their texts, which comes first, and how they
// are drawn.
#include "solver/find_cases.h"

namespace vemo {
namespace {

using namespace test;

// A1 and A2 are almost locked on 1, 2 and 3, A7, B8 and B9 on four numbers.
std::vector<Pattern> InTwoBoxes(std::string_view atA7, std::string_view atB8AndB9) {
    return {Only("123", "A1 A2"), Only(atA7, "A7"), Only(atB8AndB9, "B8 B9")};
}

TEST(AlsXz, TheFirstFindIsTheOnePromisedInItsWords) {
    ExpectFirst(
        StepOfSlot(34),
        {{"two restricted common numbers lock both sets",
          {Only("12", "A1"), Only("13", "A5"), Only("23", "A6")},
          "Bi-Value ALSxz: Cells A1 and cells A5 and A6 with x=1 and 2 => Removed candidate 1 "
          "from cell(s) A2 A3 A4 A7 A8 A9, candidate 2 from cell(s) A2 A3 A4 A7 A8 A9, candidate 3 "
          "from cell(s) A2 A3 A4 A7 A8 A9 B4 B5 B6 C4 C5 C6",
          "BI-VALUE ALSXZ: Since the numbers 1 and 2 are each allowed only once in cell A1 and "
          "cells A5 and A6 together, both sets are locked and their numbers can be discarded from "
          "the cells that see all their places"},
         {"one restricted common number, two others", InTwoBoxes("123", "124"),
          "ALSxz: Cells A1 and A2 and cells A7, B8 and B9 with x=3 => Removed candidate 1 from "
          "cell(s) A8 A9, candidate 2 from cell(s) A8 A9",
          "ALSXZ: Since number 3 can't be both in cells A1 and A2 (candidates 1, 2 and 3) and in "
          "cells A7, B8 and B9 (candidates 1, 2, 3 and 4), one of the two sets must hold 1 and "
          "2, which can't be in any cell that sees all its places in both sets"},
         {"a set in each color, links between the restricted numbers", InTwoBoxes("134", "145"),
          "ALSxz: Cells A1 and A2 and cells A7, B8 and B9 with x=3", "",
          "A1(123) A2(123) | A7(134) B8(145) B9(145) | A1/A2(3) - A7(3)"},
         {"with a cell of two candidates first, though its list place is a later one",
          {Only("123", "A1 A2"), Only("134", "A7"), Only("14", "B8")},
          "Bi-Value ALSxz: Cells B8 and cells A1, A2 and A7 with x=4"}});
}

// Base cells in the one color, excluders in the other.
TEST(PairExclusion, TheFirstFindIsTheOnePromisedInItsWords) {
    ExpectFirst(
        StepOfSlot(23),
        {{"a set of two cells",
          {Only("12", "A5"), Only("13", "B2"), Only("23", "B4")},
          "Aligned Pair Exclusion: Cells A1 and A5 => Removed candidate 1 from cell(s) A1",
          "ALIGNED PAIR EXCLUSION: Of all combinations of candidates in cells A1 and A5, those "
          "that would leave no number for one of the cells B2 and B4 or repeat a number are "
          "impossible, and the removed candidates appear in no other combination",
          "A1(123456789) A5(12) | B2(13) B4(23) | "},
         {"equal numbers are possible in A1 and B4, not in A4 and A5",
          {Only("12", "A5 B4")},
          "Aligned Pair Exclusion: Cells A4 and A5 => Removed candidate 1 from cell(s) A4, "
          "candidate 2 from cell(s) A4",
          "ALIGNED PAIR EXCLUSION: Of all combinations of candidates in cells A4 and A5, those "
          "that would leave no number for cell B4 or repeat a number are impossible, and the "
          "removed candidates appear in no other combination"},
         {"a number that only repeats needs no other cell",
          {Only("5", "A1")},
          "Aligned Pair Exclusion: Cells A1 and A2 => Removed candidate 5 from cell(s) A2",
          "ALIGNED PAIR EXCLUSION: Of all combinations of candidates in cells A1 and A2, those "
          "that repeat a number are impossible, and the removed candidates appear in no other "
          "combination"}});
}

TEST(TripleExclusion, TheFirstFindIsTheOnePromised) {
    ExpectFirst(
        StepOfSlot(31),
        {{"whatever A2 and A3 hold, 1 at A1 takes the last number of a cell, or they are both 3",
          {Only("23", "A2"), Only("34", "A3"), Only("123", "A5"), Only("124", "B1"),
           Only("134", "C3")},
          "Aligned Triple Exclusion: Cells A1, A2 and A3 => Removed candidate 1 from cell(s) A1",
          "",
          "A1(123456789) A2(23) A3(34) | A5(123) B1(124) C3(134) | "}});
}

}  // namespace
}  // namespace vemo
