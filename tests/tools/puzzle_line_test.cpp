// The reader and the writer of puzzle and position lines.
#include "tools/puzzle_line.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace vemo {
namespace {

const std::string kBlank(81, '.');
const std::string kFull =
    "123456789456789123789123456234567891567891234891234567345678912678912345912345678";

// A grid field that begins with a text and is blank behind it.
std::string GridOf(const std::string& start) {
    return start + std::string(81 - start.size(), '.');
}

// 81 groups, the first ones as given, the others like the last.
std::string MarksOf(std::vector<std::string> groups) {
    groups.resize(81, std::string(groups.back()));
    std::string text = groups.front();
    for (std::size_t at = 1; at < groups.size(); ++at) {
        text += "," + groups[at];
    }
    return text;
}

TEST(PuzzleLine, GridsAreReadWithAnyBlankAndWhatSurroundsThemInFiles) {
    const Digits expected = ReadPuzzleLine(GridOf("5.......3")).clues;
    EXPECT_EQ(expected[0], 5);
    EXPECT_EQ(expected[8], 3);
    for (char blank : std::string("0*_-xX")) {
        std::string line = GridOf("5.......3");
        std::replace(line.begin(), line.end(), '.', blank);
        EXPECT_EQ(ReadPuzzleLine(line).clues, expected) << blank;
    }
    const std::string plain = GridOf("5.......3");
    for (const std::string& line :
         {plain + "\r", plain + "  ", "\xEF\xBB\xBF" + plain, "  " + plain, plain + "\t",
          plain + "\t\t", plain + "\t\t\r", plain + "\t\t" + plain}) {
        const PuzzleLine read = ReadPuzzleLine(line);
        EXPECT_EQ(read.error, "") << line;
        EXPECT_EQ(read.clues, expected) << line;
    }
}

TEST(PuzzleLine, WithoutMarksAndGivensBothFollowFromTheGrid) {
    const PositionLine read = ReadPositionLine(GridOf("5"));
    ASSERT_EQ(read.error, "");
    EXPECT_EQ(read.grid.MarksAt(0), 0);
    EXPECT_FALSE(read.grid.KnopAan(1, 5));
    EXPECT_EQ(read.grid.MarksAt(80), kAllMarks);
    EXPECT_EQ(read.grid.Givens(), CellSet::Of(0));
}

TEST(PuzzleLine, MarksAndGivensAreTakenAsWritten) {
    const PositionLine read = ReadPositionLine(
        GridOf("56") + "\t" + MarksOf({"", "", "", "42", "1"}) + "\t" + GridOf("5"));
    ASSERT_EQ(read.error, "");
    EXPECT_EQ(read.grid.MarksAt(2), 0) << "an empty cell may have no mark left";
    EXPECT_EQ(read.grid.MarksAt(3), MarkOf(2) | MarkOf(4));
    EXPECT_EQ(read.grid.MarksAt(80), MarkOf(1));
    EXPECT_EQ(read.grid.Givens(), CellSet::Of(0));
    EXPECT_EQ(ReadPuzzleLine(GridOf("56") + "\t\t" + GridOf("5")).clues,
              ReadPuzzleLine(GridOf("5")).clues)
        << "the puzzle of a position is its givens";
}

TEST(PuzzleLine, WhatIsWrongIsNamedWithItsPlace) {
    const struct {
        std::string line;
        const char* error;
    } cases[] = {
        {"", "the grid field has 0 characters instead of 81"},
        {"1", "the grid field has 1 character instead of 81"},
        {kBlank + ".", "the grid field has 82 characters instead of 81"},
        {GridOf("1...q"),
         "character 5 of the grid field (cell A5) is 'q', neither a digit nor a blank"},
        {kBlank.substr(1) + '\x07',
         "character 81 of the grid field (cell J9) is byte 0x07, neither a digit nor a blank"},
        {GridOf("5..5"), "the digit 5 stands twice in row A, at A1 and A4"},
        {GridOf("5........5"), "the digit 5 stands twice in column 1, at A1 and B1"},
        {GridOf("5.........5"), "the digit 5 stands twice in the top left block, at A1 and B2"},
        {kBlank + "\t1,2", "the marks field has 2 groups instead of 81"},
        {kBlank + "\t" + MarksOf({"1", "2x"}),
         "the marks of A2 hold 'x', which is no digit from 1 to 9"},
        {kBlank + "\t" + MarksOf({"1", "0"}),
         "the marks of A2 hold '0', which is no digit from 1 to 9"},
        {kBlank + "\t" + MarksOf({"1", "232"}), "the marks of A2 hold '2' twice"},
        {GridOf("5") + "\t" + MarksOf({"1"}), "the filled cell A1 has marks"},
        {GridOf("5") + "\t" + MarksOf({"", "15"}),
         "the mark 5 of A2 cannot be: the digit stands in the same row, column or block"},
        {GridOf("5") + "\t\t" + GridOf("6"), "the given 6 of A1 is not in the grid"},
        {GridOf("5") + "\t\t5", "the givens field has 1 character instead of 81"},
        {kBlank + "\t\t\t",
         "the line has 4 fields, but a position has 3 at most: grid, marks, givens"},
    };
    for (const auto& [line, error] : cases) {
        EXPECT_EQ(ReadPositionLine(line).error, error) << line;
    }
}

TEST(PuzzleLine, CluesThatClashAreAPuzzleButNoPosition) {
    EXPECT_TRUE(ReadPuzzleLine(GridOf("5..5")).IsPuzzle());
    EXPECT_FALSE(ReadPositionLine(GridOf("5..5")).IsPosition());
}

TEST(PuzzleLine, AWrittenPositionReadsAsItWas) {
    Grid grid = ReadPositionLine(GridOf("56")).grid;
    grid.SetGivens(CellSet::Of(1));
    grid.VerwijderKnop(40, 7);
    grid.WisKnop(80);
    for (const Grid& one : {grid, Grid(), ReadPositionLine(kFull).grid}) {
        const PositionLine read = ReadPositionLine(WritePositionLine(one));
        EXPECT_EQ(read.error, "");
        EXPECT_EQ(read.grid, one);
    }
}

TEST(PuzzleLine, BlankLinesAndCommentsArePassedOver) {
    for (const char* line :
         {"", "   ", "\r", "\t", " \t \r", "# text", "  # text", "\xEF\xBB\xBF"}) {
        EXPECT_TRUE(IsBlankOrComment(line)) << line;
    }
    EXPECT_FALSE(IsBlankOrComment(kBlank));
    EXPECT_FALSE(IsBlankOrComment("x # text"));
}

}  // namespace
}  // namespace vemo
