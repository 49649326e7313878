// Telling the layouts of puzzle texts apart, and the reading by position.
#include "tools/formats.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/puzzles.h"

namespace vemo::test {
namespace {

const std::string kLine =
    "53..7....6..195....98....6.8...6...34..8.3..17...2...6.6....28....419..5....8..79";

// The rows of the puzzle, each made into a line by `write`.
template <typename Write>
std::string InRows(Write write, const std::string& lineEnd = "\n") {
    std::string text;
    for (std::size_t row = 0; row < 9; ++row) {
        text += write(kLine.substr(9 * row, 9)) + lineEnd;
    }
    return text;
}
std::string AsItIs(const std::string& row) {
    return row;
}
std::string WithBlank(std::string row, char blank) {
    std::replace(row.begin(), row.end(), '.', blank);
    return row;
}
// A line before each band and, perhaps, one at the end; a text between the cells' groups of three.
std::string Framed(const std::string& top, const std::string& middle, const std::string& bottom,
                   const std::string& bar) {
    std::string text = top;
    for (std::size_t row = 0; row < 9; ++row) {
        text += row == 3 || row == 6 ? middle : "";
        const std::string cells = kLine.substr(9 * row, 9);
        text += bar + cells.substr(0, 3) + bar + cells.substr(3, 3) + bar + cells.substr(6) + bar +
                "\n";
    }
    return text + bottom;
}

void ExpectRecognized(const std::string& text, TextFormat format, const Digits& clues) {
    const std::optional<RecognizedPuzzle> puzzle = RecognizePuzzle(text);
    ASSERT_TRUE(puzzle) << text;
    EXPECT_EQ(puzzle->format, format) << text;
    EXPECT_EQ(puzzle->clues, clues) << text;
}

TEST(Formats, ALineIsALineWithWhateverBlanks) {
    for (const std::string& text :
         {kLine, kLine + "\n", "\n\n" + kLine + "\r\n", "# a comment\n" + kLine,
          "\xEF\xBB\xBF" + kLine, WithBlank(kLine, '0'), WithBlank(kLine, '*')}) {
        ExpectRecognized(text, TextFormat::Line, ParseDigits(kLine));
    }
}

TEST(Formats, NineLinesAreRowsWithOrWithoutBorders) {
    std::vector<std::string> texts = {
        InRows(AsItIs),
        InRows(AsItIs, "\r\n"),
        InRows(AsItIs, "\n\n"),
        "# found in a newspaper\n\n" + InRows(AsItIs),
        "\xEF\xBB\xBF" + InRows(AsItIs),
        Framed("", "---+---+---\n", "", "|"),
        Framed("", "---+---+---\n", "", " "),
        Framed("|---+---+---|\n", "|---+---+---|\n", "|---+---+---|\n", "|"),
        Framed("+-------+-------+-------+\n", "+-------+-------+-------+\n",
               "+-------+-------+-------+\n", " | "),
        Framed("*-----------*\n", "|---+---+---|\n", "*-----------*\n", "|"),
        Framed("", "\n", "", " "),
        Framed("\u250C\u2500\u2500\u2500\u252C\u2500\u2500\u2500\u2510\n",
               "\u251C\u2500\u2500\u2500\u253C\u2500\u2500\u2500\u2524\n",
               "\u2514\u2500\u2500\u2500\u2534\u2500\u2500\u2500\u2518\n", "\u2502"),
    };
    for (char blank : std::string("0_*-xX ")) {
        texts.push_back(InRows([&](const std::string& row) { return WithBlank(row, blank); }));
    }
    for (const char* separator : {" ", ",", "\t", ", ", ";"}) {
        texts.push_back(InRows([&](const std::string& row) {
            std::string line;
            for (char cell : row) {
                line += (line.empty() ? "" : separator) + std::string(1, cell);
            }
            return line;
        }));
    }
    for (const std::string& text : texts) {
        ExpectRecognized(text, TextFormat::Rows, ParseDigits(kLine));
    }
}

TEST(Formats, EmptyCellsOfTablesAreEmptyFields) {
    for (char separator : std::string(",;\t")) {
        const std::string text = InRows([&](const std::string& row) {
            std::string line;
            for (std::size_t at = 0; at < row.size(); ++at) {
                line += at == 0 ? "" : std::string(1, separator);
                line += row[at] == '.' ? "" : std::string(1, row[at]);
            }
            return line;
        });
        ExpectRecognized(text, TextFormat::Rows, ParseDigits(kLine));
    }
}

TEST(Formats, ARowOfDashesIsARowWhereTheBordersHaveCrossings) {
    std::string text;
    for (int row = 0; row < 9; ++row) {
        text += row == 3 || row == 6 ? "---+---+---\n" : "";
        text += row == 4 ? "---|---|---\n" : "1--|---|---\n";
    }
    Digits clues{};
    for (std::size_t row : {0, 1, 2, 3, 5, 6, 7, 8}) {
        clues[9 * row] = 1;
    }
    ExpectRecognized(text, TextFormat::Rows, clues);
}

// Eight rows like the first, their lines ended alike.
std::string MarksText(const std::string& first, const std::string& others) {
    std::string text = first + "\n";
    for (int row = 1; row < 9; ++row) {
        text += others + "\n";
    }
    return text;
}

TEST(Formats, ASingleMarkIsAClueWhereNoPeerListsIt) {
    const std::string others = "23 23 23 | 45 45 45 | 67 67 67";
    Digits clues{};
    clues[0] = 1;
    // 8 is listed twice in the row: two naked singles that nobody placed yet.
    ExpectRecognized(MarksText("1 8 89 | 45 45 45 | 67 67 67", others), TextFormat::PencilMarks,
                     clues);
    ExpectRecognized(".----.----.----.\n| " + MarksText("1 8 89 | 45 45 45 | 67 67 67 |", others) +
                         "'----'----'----'\n",
                     TextFormat::PencilMarks, clues);
}

TEST(Formats, WhatIsPlainlyNothingOrMoreThanOnePuzzleIsNotRecognized) {
    const std::string rows = InRows(AsItIs);
    for (const std::string& text :
         {std::string(), std::string("\n\n"), std::string("Hello"), kLine.substr(1), kLine + ".",
          kLine + "\n" + kLine, rows + rows, rows.substr(10), rows + "1........\n",
          InRows([](const std::string& row) { return row.substr(1); }),
          InRows([](const std::string& row) { return row + "?"; }),
          InRows([](const std::string&) { return "1"; }),
          MarksText("11 2 3 4 5 6 7 8 9", "1 2 3 4 5 6 7 8 9"),
          MarksText("123 2 3 4 5 6 7 8", "1 2 3 4 5 6 7 8 9"), std::string(10'000'000, '1')}) {
        EXPECT_FALSE(RecognizePuzzle(text)) << text.substr(0, 200);
    }
}

TEST(Formats, ByPositionACharacterIsACellWhateverItStandsFor) {
    EXPECT_EQ(ReadByPosition(kLine), ParseDigits(kLine));
    EXPECT_EQ(ReadByPosition(kLine + "123"), ParseDigits(kLine)) << "past the 81st";
    EXPECT_EQ(ReadByPosition(""), Digits{});
    Digits fifth{};
    fifth[4] = 7;
    for (const char* text :
         {"....7", "0x? 7", "\n\n\n\n7", "\r\n\r\n\n\r7", "\u00B7\u20AC\U0001F600\u00E97",
          "\xFF\xC3\x80\xBF\xE2\x82"
          "7",
          "\xED\xED\xED\xED"
          "7"}) {
        const Digits read = ReadByPosition(text);
        if (std::string(text).starts_with("\xFF")) {
            // One broken byte, one character of two bytes, one broken byte, a cut character.
            EXPECT_EQ(read[5], 7);
        } else {
            EXPECT_EQ(read, fifth) << text;
        }
    }
}

}  // namespace
}  // namespace vemo::test
