// Aligned exclusions: their texts, which comes first, and what only looks like one.
#include "solver/find_cases.h"

namespace vemo {
namespace {

using namespace test;

// Their slots.
constexpr int kPairs = 23;
constexpr int kWidePairs = 26;
constexpr int kTriples = 31;
constexpr int kWideTriples = 37;

// B4 with either of two wings, A5 and B2, that leave 1 in one of them.
const std::vector<Pattern> kWings = {
    {kNoUnit, "12", "A5"}, {kNoUnit, "13", "B2"}, {kNoUnit, "23", "B4"}};

// A1 and B4 do not see each other. Whatever B4 holds, 1 at A1 takes the last number of a cell.
const std::vector<Pattern> kFourCells = {{kNoUnit, "12", "A5"},
                                         {kNoUnit, "13", "A6"},
                                         {kNoUnit, "14", "B2"},
                                         {kNoUnit, "15", "B3"},
                                         {kNoUnit, "2345", "B4"}};

// A2, A4, A5 and A6 hold four numbers, three in each: only three cells of them are a set.
const std::vector<Pattern> kThreeOfFour = {
    {kNoUnit, "234", "A2"}, {kNoUnit, "123", "A4"}, {kNoUnit, "124", "A5"}, {kNoUnit, "134", "A6"}};

TEST(PairExclusion, TheFirstFindIsTheOnePromised) {
    ExpectFirst(
        kPairs,
        {{"a set of two cells; equal numbers are impossible too where the cells see each other",
          kWings, "Aligned Pair Exclusion: Cells A1 and A5 => Removed candidate 1 from cell(s) A1",
          "ALIGNED PAIR EXCLUSION: Of all combinations of candidates in cells A1 and A5, those "
          "that would leave no number for one of the cells B2 and B4 or repeat a number are "
          "impossible, and the removed candidates appear in no other combination"},
         {"base cells that do not see each other, a cell for each of the other's numbers",
          kFourCells,
          "Aligned Pair Exclusion: Cells A1 and B4 => Removed candidate 1 from cell(s) A1",
          "ALIGNED PAIR EXCLUSION: Of all combinations of candidates in cells A1 and B4, those "
          "that would leave no number for one of the cells A5, A6, B2 and B3 are impossible, and "
          "the removed candidates appear in no other combination"},
         {"equal numbers are possible in A1 and B4, not in A4 and A5",
          {{kNoUnit, "12", "A5 B4"}},
          "Aligned Pair Exclusion: Cells A4 and A5 => Removed candidate 1 from cell(s) A4, "
          "candidate 2 from cell(s) A4",
          "ALIGNED PAIR EXCLUSION: Of all combinations of candidates in cells A4 and A5, those "
          "that would leave no number for cell B4 or repeat a number are impossible, and the "
          "removed candidates appear in no other combination"},
         {"a number that only repeats needs no other cell",
          {{kNoUnit, "5", "A1"}},
          "Aligned Pair Exclusion: Cells A1 and A2 => Removed candidate 5 from cell(s) A2",
          "ALIGNED PAIR EXCLUSION: Of all combinations of candidates in cells A1 and A2, those "
          "that repeat a number are impossible, and the removed candidates appear in no other "
          "combination"},
         {"a cell with three candidates leaves one of them",
          {{kNoUnit, "12", "A5"},
           {kNoUnit, "13", "A6"},
           {kNoUnit, "14", "B2"},
           {kNoUnit, "156", "B3"},
           {kNoUnit, "2345", "B4"}},
          ""},
         {"a set of three cells is none of these", kThreeOfFour, ""}});
}

TEST(WidePairExclusion, TheFirstFindIsTheOnePromised) {
    ExpectFirst(
        kWidePairs,
        {{"a set of three cells", kThreeOfFour,
          "Aligned Pair Exclusion: Cells A1 and A2 => Removed candidate 1 from cell(s) A1, "
          "candidate 2 from cell(s) A1, candidate 3 from cell(s) A1, candidate 4 from cell(s) A1",
          "ALIGNED PAIR EXCLUSION: Of all combinations of candidates in cells A1 and A2, those "
          "that would leave no number for one of the cells A4, A5 and A6 or repeat a number are "
          "impossible, and the removed candidates appear in no other combination"},
         {"smaller sets too", kWings,
          "Aligned Pair Exclusion: Cells A1 and A5 => Removed candidate 1 from cell(s) A1"},
         {"B4 with a cell that it sees, not with A1", kFourCells,
          "Aligned Pair Exclusion: Cells B4 and B5 => Removed candidate 1 from cell(s) B5"}});
}

// Whatever A2 and A3 hold, 1 at A1 takes the last number of a cell that sees all three, or they
// are both 3.
std::vector<Pattern> ThreeThatSeeThem(std::string_view atC3) {
    return {{kNoUnit, "23", "A2"},
            {kNoUnit, "34", "A3"},
            {kNoUnit, "123", "A5"},
            {kNoUnit, "124", "B1"},
            {kNoUnit, atC3, "C3"}};
}

// A2 and A3 hold 2 and 3, A5 and A6 with them two more numbers. A9 is the cell of few candidates
// that all see.
const std::vector<Pattern> kTwoOfFour = {
    {kNoUnit, "23", "A2 A3"}, {kNoUnit, "1235", "A5 A6"}, {kNoUnit, "78", "A9"}};

TEST(TripleExclusion, TheFirstFindIsTheOnePromised) {
    const std::string hint =
        "ALIGNED TRIPLE EXCLUSION: Of all combinations of candidates in cells A1, A2 and A3, those "
        "that repeat a number or would leave no number for a cell that sees them are impossible, "
        "and the removed candidates appear in no other combination";
    ExpectFirst(
        kTriples,
        {{"three candidates of a cell go to three base cells", ThreeThatSeeThem("134"),
          "Aligned Triple Exclusion: Cells A1, A2 and A3 => Removed candidate 1 from cell(s) A1",
          hint.c_str()},
         {"a cell with four candidates leaves one of them", ThreeThatSeeThem("1345"), ""},
         {"a cell with two candidates excludes what it excludes for a pair", kTwoOfFour,
          "Aligned Triple Exclusion: Cells A1, A2 and A3 => Removed candidate 2 from cell(s) A1, "
          "candidate 3 from cell(s) A1"},
         {"no cell of few candidates sees all of A1, A2 and another", {{kNoUnit, "5", "A1"}}, ""}});
}

TEST(WideTripleExclusion, TheFirstFindIsTheOnePromised) {
    ExpectFirst(kWideTriples,
                {{"sets of several cells for pairs", kTwoOfFour,
                  "Aligned Triple Exclusion: Cells A1, A2 and A3 => Removed candidate 1 from "
                  "cell(s) A1, candidate 2 from cell(s) A1, candidate 3 from cell(s) A1, "
                  "candidate 5 from cell(s) A1"},
                 {"a set of two cells with five candidates leaves two of them",
                  {{kNoUnit, "12356", "A5 A6"}, {kNoUnit, "78", "A9"}},
                  ""}});
}

// E5 takes 2 from A5, E6 takes 3 from A6, and 1 or 5 at A1 leaves them one number together. Cells
// that see E5 or E6 lose these numbers by earlier triples.
TEST(WideTripleExclusion, ASetOfTwoCellsIsRobbedOfThreeNumbers) {
    const Grid grid = GridWith({{kNoUnit, "125", "A5"},
                                {kNoUnit, "135", "A6"},
                                {kNoUnit, "2", "E5"},
                                {kNoUnit, "3", "E6"},
                                {kNoUnit, "78", "E1"}});
    const auto hasIt = [&](int slot) {
        return std::ranges::any_of(SearchAll(StepOfSlot(slot), grid), [](const Find& find) {
            return LogLine(find) ==
                   "Aligned Triple Exclusion: Cells A1, E5 and E6 => Removed candidate 1 from "
                   "cell(s) A1, candidate 5 from cell(s) A1";
        });
    };
    EXPECT_TRUE(hasIt(kWideTriples));
    EXPECT_FALSE(hasIt(kTriples));
}

TEST(Exclusions, AreDrawnWithBaseCellsInOneColorAndExcludersInTheOther) {
    const auto drawn = [](int slot, const std::vector<Pattern>& patterns, std::string_view base,
                          std::string_view excluders) {
        const Grid grid = GridWith(patterns);
        const Find find = SearchFirst(StepOfSlot(slot), grid).found;
        EXPECT_EQ(find.firstColor, Find::CandidatesOf(grid, CellsNamed(base), kAllMarks));
        EXPECT_EQ(find.secondColor, Find::CandidatesOf(grid, CellsNamed(excluders), kAllMarks));
    };
    drawn(kPairs, kWings, "A1 A5", "B2 B4");
    drawn(kTriples, ThreeThatSeeThem("134"), "A1 A2 A3", "A5 B1 C3");
}

}  // namespace
}  // namespace vemo
