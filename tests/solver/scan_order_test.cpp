// Which find of the singles, intersections and subsets comes first.
#include "solver/find_cases.h"

namespace vemo {
namespace {

using namespace test;

TEST(ScanOrder, TheFirstFindIsTheOnePromised) {
    ExpectFirst(StepAt(kNakedSingle),
                {"by cell", {Only("2", "J1"), Only("7", "B9")}, "Naked Single 7 at cell B9"});
    ExpectFirst(StepAt(kHiddenSingle), {{"all boxes before the first row",
                                         {{Row('A'), "5", "A5"}, {Box(8), "3", "J9"}},
                                         "Hidden Single 3 in box at cell J9"},
                                        {"all rows before the first column",
                                         {{Column(1), "2", "A1"}, {Row('J'), "4", "J9"}},
                                         "Hidden Single 4 in row at cell J9"},
                                        {"boxes left to right, then down",
                                         {{Box(3), "2", "D1"}, {Box(2), "8", "C9"}},
                                         "Hidden Single 8 in box at cell C9"}});
    ExpectFirst(StepAt(kBoxLine), {"all rows before the first column",
                                   {{Column(1), "2", "A1 C1"}, {Row('J'), "9", "J7 J8 J9"}},
                                   "Box Line Reduction: Row J"});
    ExpectFirst(
        StepAt(kNakedPair),
        {{"rows before columns", {Only("12", "A9 J9"), Only("34", "J1 J5")}, "Naked Pair: Row J"},
         {"columns before boxes",
          {Only("12", "A1 B2"), Only("34", "B9 H9")},
          "Naked Pair: Column 9"},
         {"two cells in one row and one box are the row's pair",
          {Only("59", "D4 D6")},
          "Naked Pair: Row D"}});
    ExpectFirst(StepAt(kHiddenPair),
                {"a cell that loses nothing is named as well",
                 {{Row('J'), "46", "J1 J9"}, Only("46", "J1")},
                 "Hidden Pair: Row J => Kept candidates 4 and 6 in cells J1 J9"});
}

TEST(ScanOrder, NothingIsConcludedFromWhatCannotBe) {
    struct Case {
        const char* rule;
        StepRow step;
        std::vector<Pattern> patterns;
    };
    const Case cases[] = {
        {"three cells with two digits", kNakedPair, {Only("12", "A1 A5 A9")}},
        {"a cell without a candidate", kNakedPair, {Only("12", "A1"), Only("", "A5")}},
        {"a digit without a place", kHiddenPair, {{Row('A'), "1", "A1 A5"}, {Row('A'), "2", ""}}},
        {"two digits with one place between them", kHiddenPair, {{Row('A'), "12", "A1"}}},
    };
    for (const Case& c : cases) {
        EXPECT_FALSE(SearchFirst(StepAt(c.step), GridWith(c.patterns)).any) << c.rule;
    }
}

// The other slots have one step each, and come in their order.
TEST(ScanOrder, TheLadderTriesTheCheaperSubsetFirst) {
    struct Case {
        StepRow step;
        std::vector<Pattern> patterns;
    };
    const Case cases[] = {
        {kNakedPair, {Only("123", "A1 A5 A9"), Only("59", "D4 F6")}},
        {kNakedTriple, {Only("123", "G7 H8 J9"), {Row('A'), "46", "A1 A9"}}},
        {kHiddenPair, {Only("1234", "A1 A4 A6 A9"), {Box(8), "67", "G7 J9"}}},
        {kNakedQuad, {{Row('A'), "357", "A1 A4 A8"}, Only("1234", "G7 G9 H8 J9")}},
        {kHiddenTriple, {Only("12345", "A1 A2 A4 A6 A9"), {Box(8), "678", "G7 H8 J9"}}},
    };
    for (const Case& c : cases) {
        Solver solver(GridWith(c.patterns));
        EXPECT_EQ(solver.Pass(FixedLadder()), PassResult::Changed);
        EXPECT_EQ(solver.LastStep(), &StepAt(c.step));
    }
}

}  // namespace
}  // namespace vemo
