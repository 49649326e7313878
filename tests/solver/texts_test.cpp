// The log line and the hint text of every form of the singles, intersections and subsets. Each
// position holds the one pattern.
#include <gtest/gtest.h>

#include "solver/patterns.h"

namespace vemo {
namespace {

using namespace test;

struct TextCase {
    StepRow step;
    Pattern pattern;
    const char* title;
    const char* log;
    const char* hint;
};

// clang-format off
const TextCase kCases[] = {
    {kHiddenSingle, {Box(0), "9", "C3"}, "Hidden single",
     "Hidden Single 9 in box at cell C3",
     "HIDDEN SINGLE: Since number 9 in the top left block appears only at cell C3, it must be there"},
    {kHiddenSingle, {Box(4), "5", "E5"}, "Hidden single",
     "Hidden Single 5 in box at cell E5",
     "HIDDEN SINGLE: Since number 5 in the center block appears only at cell E5, it must be there"},
    {kHiddenSingle, {Row('J'), "1", "J1"}, "Hidden single",
     "Hidden Single 1 in row at cell J1",
     "HIDDEN SINGLE: Since number 1 in row J appears only at cell J1, it must be there"},
    {kHiddenSingle, {Column(9), "7", "A9"}, "Hidden single",
     "Hidden Single 7 in column at cell A9",
     "HIDDEN SINGLE: Since number 7 in column 9 appears only at cell A9, it must be there"},
    {kNakedSingle, Only("5", "C3"), "Naked single",
     "Naked Single 5 at cell C3",
     "NAKED SINGLE: Since number 5 at cell C3 is the only one possible, it must be there"},
    {kPointingPair, {Box(0), "1", "A1 A2"}, "Pointing Pair",
     "Pointing Pair: Row A => Removed candidate 1 from cell(s) A4 A5 A6 A7 A8 A9",
     "POINTING PAIR: Since number 1 in the top left block appears only in row A, this number can't be in any other block of that same row"},
    {kPointingPair, {Box(1), "2", "A5 B5 C5"}, "Pointing Pair",
     "Pointing Pair: Column 5 => Removed candidate 2 from cell(s) D5 E5 F5 G5 H5 J5",
     "POINTING PAIR: Since number 2 in the top middle block appears only in column 5, this number can't be in any other block of that same column"},
    // Two blanks after the comma for the first box alone.
    {kBoxLine, {Row('A'), "1", "A1 A2"}, "Box Line Reduction",
     "Box Line Reduction: Row A => Removed candidate 1 from cell(s) B1 B2 B3 C1 C2 C3",
     "BOX LINE REDUCTION: Since number 1 in row A appears only in the top left block,  this number can't be anywhere else in that block"},
    {kBoxLine, {Column(5), "5", "E5 F5"}, "Box Line Reduction",
     "Box Line Reduction: Column 5 => Removed candidate 5 from cell(s) D4 D6 E4 E6 F4 F6",
     "BOX LINE REDUCTION: Since number 5 in column 5 appears only in the centre block, this number can't be anywhere else in that block"},
    {kNakedPair, Only("37", "D2 D8"), "Naked Pair",
     "Naked Pair: Row D => Removed candidates 3 and 7 from cells D1 D3 D4 D5 D6 D7 D9",
     "NAKED PAIR: Since cells D2 and D8 in row D contains only the candidates 3 and 7, those candidates can't appear anywhere else in that row"},
    {kNakedTriple, Only("123", "A1 A5 A9"), "Naked Triple",
     "Naked Triple: Row A => Removed candidates 1, 2 and 3 from cells A2 A3 A4 A6 A7 A8",
     "NAKED TRIPLE: Since cells A1, A5 and A9 in row A contains only the candidates 1, 2 and 3, those candidates can't appear anywhere else in that row"},
    {kNakedQuad, Only("2468", "A3 D3 G3 J3"), "Naked Quad",
     "Naked Quad: Column 3 => Removed candidates 2, 4, 6 and 8 from cells B3 C3 E3 F3 H3",
     "NAKED QUAD: Since cells A3, D3, G3 and J3 in column 3 contains only the candidates 2, 4, 6 and 8, those candidates can't appear anywhere else in that column"},
    {kNakedQuint, Only("13579", "G7 G9 H8 J7 J9"), "Naked Quint",
     "Naked Quint: Box 9 => Removed candidates 1, 3, 5, 7 and 9 from cells G8 H7 H9 J8",
     "NAKED QUINT: Since cells G7, G9, H8, J7 and J9 in the bottom right block contains only the candidates 1, 3, 5, 7 and 9, those candidates can't appear anywhere else in that block"},
    {kHiddenPair, {Row('J'), "46", "J1 J9"}, "Hidden Pair",
     "Hidden Pair: Row J => Kept candidates 4 and 6 in cells J1 J9",
     "HIDDEN PAIR: Since candidates 4 and 6 in row J only occurs in cells J1 and J9, all other candidates can be discarded from those cells."},
    {kHiddenTriple, {Column(7), "689", "A7 E7 F7"}, "Hidden Triple",
     "Hidden Triple: Column 7 => Kept candidates 6, 8 and 9 in cells A7 E7 F7",
     "HIDDEN TRIPLE: Since candidates 6, 8 and 9 in column 7 only occurs in cells A7, E7 and F7, all other candidates can be discarded from those cells."},
    {kHiddenTriple, {Box(6), "123", "G1 H2 J3"}, "Hidden Triple",
     "Hidden Triple: Box 7 => Kept candidates 1, 2 and 3 in cells G1 H2 J3",
     "HIDDEN TRIPLE: Since candidates 1, 2 and 3 in the bottom left block only occurs in cells G1, H2 and J3, all other candidates can be discarded from those cells."},
};
// clang-format on

TEST(Texts, AreThoseOfTheirPattern) {
    for (const TextCase& c : kCases) {
        SCOPED_TRACE(c.log);
        const FirstFind first = SearchFirst(StepAt(c.step), GridWith({c.pattern}));
        ASSERT_TRUE(first.any);
        EXPECT_EQ(HintTitle(first.found), c.title);
        EXPECT_EQ(LogLine(first.found), c.log);
        EXPECT_EQ(HintText(first.found), c.hint);
        const int level = c.step <= kNakedSingle ? 1 : c.step <= kBoxLine ? 2 : 3;
        EXPECT_EQ(StepAt(c.step).level, level);
    }
}

TEST(Texts, NameTheNineBlocks) {
    const char* const names[] = {"top left",    "top middle",    "top right",
                                 "left centre", "centre",        "right centre",
                                 "bottom left", "bottom middle", "bottom right"};
    for (int box = 0; box < 9; ++box) {
        const std::string place = CellName(27 * (box / 3) + 3 * (box % 3));
        const Grid grid = GridWith({{Box(box), "5", place}});
        EXPECT_EQ(HintText(SearchFirst(StepAt(kPointingPair), grid).found),
                  "POINTING PAIR: Since number 5 in the " + std::string(names[box]) +
                      " block appears only in row " + place[0] +
                      ", this number can't be in any other block of that same row");
    }
}

TEST(Texts, OfTheRatingNameItsLevel) {
    EXPECT_EQ(RatedText(1), "Sudoku solved and rated as Easy");
    EXPECT_EQ(RatedText(8), "Sudoku solved and rated as Mayhem");
    EXPECT_EQ(BatchStatusText(0, PuzzleOrigin::Own), "Solving Sudoku : Rated Easy or higher");
    EXPECT_EQ(BatchStatusText(1, PuzzleOrigin::Own), "Solving Sudoku : Rated Easy or higher");
    EXPECT_EQ(BatchStatusText(6, PuzzleOrigin::Imported),
              "Solving Imported Sudoku : Rated Kamikaze or higher");
}

}  // namespace
}  // namespace vemo
