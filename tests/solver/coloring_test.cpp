// Colorings of a single digit: their texts, which comes first, and what only looks like one.
#include "solver/find_cases.h"

namespace vemo {
namespace {

using namespace test;

// Their slots.
constexpr int kSimpleColors = 16;
constexpr int kMultiColors = 19;

// Five places in a ring of conjugate pairs: no digits at all fit.
const std::vector<Pattern> kOddRing = {{Row('B'), "4", "B2 B7"},
                                       {Column(7), "4", "B7 H7"},
                                       {Box(8), "4", "H7 J9"},
                                       {Row('J'), "4", "J2 J9"},
                                       {Column(2), "4", "B2 J2"}};

TEST(SimpleColors, TheFirstFindIsTheOnePromised) {
    ExpectFirst(
        kSimpleColors,
        {{"a trap takes every cell outside that sees both colours",
          {{Row('B'), "4", "B2 B7"}, {Column(7), "4", "B7 H7"}, {Row('H'), "4", "H3 H7"}},
          "Simple Colors (Color Trap): Cells B2, B7, H3 and H7 => Removed candidate 4 from "
          "cell(s) A3 C3 G2 J2",
          "SIMPLE COLORS (COLOR TRAP): Since number 4 must be either in cells B2 and H7 or in "
          "cells B7 and H3, it can't be in any other cell that sees a cell of both colors"},
         {"a single pair is a cluster",
          {{Row('B'), "4", "B7 B8"}},
          "Simple Colors (Color Trap): Cells B7 and B8 => Removed candidate 4 from cell(s) "
          "A7 A8 A9 C7 C8 C9",
          "SIMPLE COLORS (COLOR TRAP): Since number 4 must be either in cell B7 or in cell B8, it "
          "can't be in any other cell that sees a cell of both colors"},
         {"a wrap takes the whole colour, and comes before the trap of its cluster",
          {{Row('B'), "4", "B2 B7"},
           {Column(7), "4", "B7 H7"},
           {Box(8), "4", "H7 J9"},
           {Row('J'), "4", "J2 J9"},
           {Row('H'), "4", "H3 H7"}},
          "Simple Colors (Color Wrap): Cells B2, B7, H3, H7, J2 and J9 => Removed candidate 4 "
          "from cell(s) B2 H7 J2",
          "SIMPLE COLORS (COLOR WRAP): Since number 4 must be in all cells of one of the two "
          "colors, and the color of cells B2, H7 and J2 would place it twice in column 2, this "
          "number can't be in any cell of that color"},
         {"the trap of a cluster before the wrap of a later one",
          {{Row('A'), "4", "A1 A4"},
           {Column(4), "4", "A4 D4"},
           {Row('D'), "4", "D2 D4"},
           {Row('F'), "4", "F6 F8"},
           {Column(8), "4", "F8 H8"},
           {Box(8), "4", "H8 J9"},
           {Row('J'), "4", "J6 J9"}},
          "Simple Colors (Color Trap): Cells A1, A4, D2 and D4 => Removed candidate 4 from "
          "cell(s) B2 C2 E1"},
         {"cells that see one colour only", {{Row('B'), "4", "B2 B7"}}, ""},
         {"a line with three places ties nothing",
          {{Row('B'), "4", "B2 B7"}, {Column(7), "4", "B7 F7 H7"}, {Row('H'), "4", "H3 H7"}},
          ""},
         {"a ring of an odd number of pairs ends, all its cells in both colours", kOddRing,
          "Simple Colors (Color Wrap): Cells B2, B7, H7, J2 and J9 => Removed candidate 4 from "
          "cell(s) B2 B7 H7 J2 J9"}});
}

TEST(MultiColors, TheFirstFindIsTheOnePromised) {
    ExpectFirst(
        kMultiColors,
        {{"colours that see each other leave one of their partners",
          {{Row('B'), "4", "B2 B7"}, {Row('E'), "4", "E3 E7"}},
          "Multi Coloring Type 1: Cells B2 and cells E3 => Removed candidate 4 from cell(s) "
          "A3 C3 D2 F2",
          "MULTI COLORING TYPE 1: Since number 4 can't be both in cell B7 and in cell E7, it must "
          "be in cell B2 or in cell E3 (or in both), and can't be in any cell that sees one of "
          "each"},
         {"colours that do not see each other",
          {{Row('B'), "4", "B2 B7"}, {Row('E'), "4", "E3 E8"}},
          ""},
         {"a colour that sees both of another cluster is wrong, which comes before any type 1",
          {{Row('B'), "4", "B2 B7"},
           {Column(2), "4", "B2 D2"},
           {Row('D'), "4", "D2 D9"},
           {Row('E'), "4", "E3 E7"}},
          "Multi Coloring Type 2: Cells B7 and D2 against cells E3 and against cells E7 => "
          "Candidate 4 placed at cell(s) B2 D9",
          "MULTI COLORING TYPE 2: Since number 4 in cells B7 and D2 sees both colors of another "
          "chain (cell E3 and cell E7), one of which must be true, it can't be there and must be "
          "in cells B2 and D9"},
         {"no colour is placed that would stand twice in a unit: here B2, C1 and D9",
          {{Row('B'), "4", "B2 B7"},
           {Column(2), "4", "B2 D2"},
           {Row('D'), "4", "D2 D9"},
           {Column(9), "4", "C9 D9"},
           {Row('C'), "4", "C1 C9"},
           {Row('E'), "4", "E3 E7"}},
          "Multi Coloring Type 2: Cells E7 against cells B2, C1 and D9 and against cells B7, C9 "
          "and D2 => Candidate 4 placed at cell(s) E3"}});
}

TEST(MultiColors, NothingIsConcludedFromAClusterWithoutTwoColors) {
    std::vector<Pattern> patterns = kOddRing;
    patterns.push_back({Row('E'), "4", "E5 E9"});
    ExpectFirst(kMultiColors, {{"a ring of an odd number of pairs, seen from E9", patterns, ""}});
}

std::vector<CellDigit> At4(std::string_view cells) {
    return Find::CandidatesOf(Grid(), CellsNamed(cells), MarkOf(4));
}

TEST(SimpleColors, AreDrawnInTwoColorsWithEachPairLinkedOnce) {
    const FirstFind first = SearchFirst(StepOfSlot(kSimpleColors), GridWith({
                                                                       {Row('B'), "4", "B7 B8"},
                                                                       {Box(2), "4", "B7 B8"},
                                                                       {Column(8), "4", "B8 G8"},
                                                                       {Box(8), "4", "G8 H7"},
                                                                   }));
    ASSERT_TRUE(first.any);
    EXPECT_EQ(first.found.firstColor, At4("B7 G8"));
    EXPECT_EQ(first.found.secondColor, At4("B8 H7"));
    EXPECT_EQ(first.found.links.size(), 3u);
}

// In a picture of type 1 the partners share the one colour; of type 2 the other chain has both.
TEST(MultiColors, AreDrawnSoThatThePictureShowsTheProof) {
    const auto foundOn = [](const std::vector<Pattern>& patterns) {
        return SearchFirst(StepOfSlot(kMultiColors), GridWith(patterns)).found;
    };
    const Find type1 = foundOn({{Row('B'), "4", "B2 B7"}, {Row('E'), "4", "E3 E7"}});
    EXPECT_EQ(type1.firstColor, At4("B2 E3"));
    EXPECT_EQ(type1.secondColor, At4("B7 E7"));
    const Find type2 =
        foundOn({{Row('B'), "4", "B2 B7"}, {Column(2), "4", "B2 D2"}, {Row('E'), "4", "E3 E7"}});
    EXPECT_EQ(type2.firstColor, At4("E3"));
    EXPECT_EQ(type2.secondColor, At4("E7"));
    // Strong: B2 = B7, B2 = D2, E3 = E7; weak: D2 - E3, B7 - E7.
    ASSERT_EQ(type2.links.size(), 5u);
    const ChainLink& last = type2.links.back();
    EXPECT_EQ(last.from, CellSet::Of(CellNamed("B7")));
    EXPECT_EQ(last.to, CellSet::Of(CellNamed("E7")));
    EXPECT_FALSE(last.strong);
}

}  // namespace
}  // namespace vemo
