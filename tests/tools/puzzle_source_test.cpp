// Reading the puzzles of files in every format, good and damaged, and by a layout of records.
#include "tools/puzzle_source.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/puzzles.h"
#include "tools/puzzle_line.h"

namespace vemo::test {
namespace {

const std::string kLine =
    "53..7....6..195....98....6.8...6...34..8.3..17...2...6.6....28....419..5....8..79";
const std::string kSolution =
    "534678912672195348198342567859761423426853791713924856961537284287419635345286179";
const std::string kOther = kOutlawed;

std::string With(std::string text, char from, char to) {
    std::ranges::replace(text, from, to);
    return text;
}

// "3: reason" for a rejected piece, "3: 53..7..." for a puzzle, with its position where it has one.
std::vector<std::string> PiecesOf(PuzzleSource& source) {
    std::vector<std::string> pieces;
    while (const auto piece = source.Next()) {
        std::string text = std::to_string(piece->line) + ": ";
        if (!piece->IsPuzzle()) {
            pieces.push_back(text + piece->error);
            continue;
        }
        Digits clues{};
        for (int cell : piece->grid.Givens()) {
            clues[static_cast<std::size_t>(cell)] =
                static_cast<std::uint8_t>(piece->grid.Digit(cell));
        }
        text += WriteGrid81(clues);
        if (piece->grid.AllDigits() != clues) {
            text += " at " + WriteGrid81(piece->grid.AllDigits());
        }
        pieces.push_back(text);
    }
    return pieces;
}

std::vector<std::string> Read(const std::string& text) {
    std::istringstream in(text);
    PuzzleSource source(in);
    return PiecesOf(source);
}

using Pieces = std::vector<std::string>;
const Pieces kOne = {"1: " + kLine};

std::string Rows(const std::string& cells, const std::string& end = "\n") {
    std::string text;
    for (std::size_t row = 0; row < 9; ++row) {
        text += cells.substr(9 * row, 9) + end;
    }
    return text;
}

std::string Joined(const std::string& cells, const std::string& between) {
    std::string text;
    for (char cell : cells) {
        text += (text.empty() ? "" : between) + std::string(1, cell);
    }
    return text;
}

std::string Framed(const std::string& cells) {
    std::string text = "*-----------*\n";
    for (std::size_t row = 0; row < 9; ++row) {
        text += row == 3 || row == 6 ? "|---+---+---|\n" : "";
        text += "|" + cells.substr(9 * row, 3) + "|" + cells.substr(9 * row + 3, 3) + "|" +
                cells.substr(9 * row + 6, 3) + "|\n";
    }
    return text + "*-----------*\n";
}

TEST(PuzzleSource, APuzzleInOneLine) {
    std::string marks;
    for (char cell : kLine) {
        for (char digit = '1'; digit <= '9'; ++digit) {
            marks += cell == '.' || cell == digit ? digit : '.';
        }
    }
    const std::vector<std::string> texts = {
        kLine,
        kLine + "\n",
        kLine + "\r\n",
        "\xEF\xBB\xBF" + kLine,
        With(kLine, '.', '0'),
        With(kLine, '.', '*'),
        With(kLine, '.', 'x'),
        With(kLine, '.', '_'),
        With(kLine, '.', ' '),
        With(kLine, '.', ' ') + "  # newspaper",
        kLine + " # easy",
        kLine + "\t// easy",
        kLine + "  ED=1.2/1.2/1.2",
        "  " + kLine + "  ",
        "No #17," + kLine,
        kLine + "\t\teasy",
        "No. 17 \"" + kLine + "\"",
        "{\"puzzle\":\"" + kLine + "\"}",
        kLine + "," + kSolution,
        kSolution + ";" + kLine,
        "17,easy,\"" + kLine + "\",30",
        "17\t" + With(kLine, '.', ' ') + "\t30",
        Joined(kLine, ","),
        Joined(kLine, " "),
        With(Joined(kLine, ","), '.', ' '),
        "https://example.org/show.php?bd=" + kLine + "&x=1",
        "https://example.org/play/" + With(kLine, '.', '0'),
        ":0000:x:" + kLine + ":::",
    };
    for (const std::string& text : texts) {
        EXPECT_EQ(Read(text), kOne) << text;
    }
    std::string spaced;
    for (char cell : kLine) {
        spaced += cell == '.' ? "\u00A0" : cell == '5' ? "\uFF15" : std::string(1, cell);
    }
    EXPECT_EQ(Read(spaced), kOne) << "no-break spaces and full-width digits";
    std::string wide = "\xFF\xFE";
    for (char cell : kLine + "\r\n" + kLine) {
        wide += cell;
        wide += '\0';
    }
    EXPECT_EQ(Read(wide), (Pieces{"1: " + kLine, "2: " + kLine})) << "UTF-16";
}

TEST(PuzzleSource, APositionIsReadWithItsDigitsAndMarks) {
    std::string state = kLine;
    state[2] = '4';
    const Pieces expected = {"1: " + kLine + " at " + state};
    std::string library = kLine;
    library.replace(2, 1, "+4");
    std::string marked;
    for (std::size_t row = 0; row < 9; ++row) {
        marked += row == 0 ? "12,,,126,,2468" : "";
        marked += std::string(row == 0 ? 3 : 8, ',') + "\n";
    }
    for (const std::string& text :
         {kLine + "," + state, state + "\t\t" + kLine,
          ":0000:x:" + library + ":::", "[Puzzle]\n" + Rows(kLine) + "[State]\n" + Rows(state),
          Framed(kLine) + "\n" + Framed(state) + "\n",
          "<opensudoku><game data=\"version: 1&#10;" +
              [&] {
                  std::string cells;
                  for (std::size_t cell = 0; cell < 81; ++cell) {
                      cells += With(state.substr(cell, 1), '.', '0') + "|-|" +
                               (kLine[cell] == '.' ? "1|" : "0|");
                  }
                  return cells;
              }() +
              "\" /></opensudoku>"}) {
        EXPECT_EQ(Read(text), expected) << text;
    }
    std::istringstream in("[Puzzle]\n" + Rows(kLine) + "[PencilMarks]\n" + marked);
    const auto piece = PuzzleSource(in).Next();
    ASSERT_TRUE(piece && piece->IsPuzzle());
    EXPECT_EQ(piece->grid.MarksAt(0), 0) << "a given has no marks";
    EXPECT_EQ(piece->grid.MarksAt(3), MarkOf(1) | MarkOf(2) | MarkOf(6));
    EXPECT_EQ(piece->grid.MarksAt(2), MarkOf(1) | MarkOf(2) | MarkOf(4)) << "nothing noted";
}

TEST(PuzzleSource, GridsOfNineRows) {
    std::string spaced;
    for (std::size_t row = 0; row < 9; ++row) {
        spaced += Joined(kLine.substr(9 * row, 9), "\t") + "\n";
    }
    std::string banded = Rows(kLine);
    banded.insert(60, "\n").insert(30, "\n");
    for (const std::string& text :
         {Rows(kLine), Rows(kLine, "\r\n"), Rows(kLine, "\r"), Rows(kLine, "\n\n"),
          Rows(kLine, "  # row\n"), banded, spaced, Framed(kLine), Rows(With(kLine, '.', ' ')),
          "[Puzzle]\n" + Rows(kLine), Rows(kLine) + "\n" + Rows(kSolution)}) {
        const Pieces pieces = Read(text);
        ASSERT_EQ(pieces.size(), 1u) << text << pieces[0];
        EXPECT_EQ(pieces, kOne) << text;
    }
    // A second grid is one more puzzle, whether a line stands between them or not.
    for (const char* between : {"", "\n", "\n\n\n", "# next\n"}) {
        const Pieces pieces = Read(Rows(kLine) + between + Rows(kOther) + between + Rows(kLine));
        ASSERT_EQ(pieces.size(), 3u) << between;
        EXPECT_EQ(pieces[1].substr(pieces[1].find(' ') + 1), kOther);
    }
}

TEST(PuzzleSource, GridsOfCandidates) {
    const std::string others = "23 23 23 | 45 45 45 | 67 67 67\n";
    std::string text = ".----.----.----.\n| 1 8 89 | 45 45 45 | 67 67 67 |\n";
    std::string sdx = "1 8 89 45 45 45 67 u6 67\n";
    for (int row = 1; row < 9; ++row) {
        text += others;
        sdx += With(others, '|', ' ');
    }
    const std::string clue = "1" + std::string(80, '.');
    EXPECT_EQ(Read(text + "'----'----'----'\n"), Pieces{"1: " + clue});
    const Pieces withEntered = {"1: " + clue + " at 1......6." + std::string(72, '.')};
    EXPECT_EQ(Read(sdx), withEntered);
    // Nine groups of nine digits are 81 cells in a line, and yet candidates of an empty grid.
    std::string open;
    for (int row = 0; row < 9; ++row) {
        open += Joined("abcdefghi", " ") + "\n";
    }
    std::string all;
    for (char character : open) {
        all += character >= 'a' ? "123456789" : std::string(1, character);
    }
    EXPECT_EQ(Read(all), Pieces{"1: " + std::string(81, '.')});
}

TEST(PuzzleSource, OpenSudokuIsReadInOneLineOrInMany) {
    const std::string data = With(kLine, '.', '0');
    const std::string text =
        "<?xml version=\"1.0\"?>\n<opensudoku version=\"2\"><name>a > b</name>"
        "<!-- <game data=\"\"/> --><game created=\"1\" data=\"" +
        data + "\" note='\"' /><game\n data='" + data +
        "'></game><game note=\"\"/><game data=\"12\"/></opensudoku>\n" + kOther;
    EXPECT_EQ(Read(text), (Pieces{"2: " + kLine, "2: " + kLine, "3: a game without data",
                                  "3: the data of the game are 2 characters, not all 81 of them "
                                  "cells",
                                  "4: " + kOther}));
    std::string folder = "<?xml version=\"1.0\"?><opensudoku>";
    for (int count = 0; count < 1000; ++count) {
        folder += "<game data=\"" + data + "\"/>";
    }
    EXPECT_EQ(Read(folder + "</opensudoku>"), Pieces(1000, kOne[0])) << "one line of 100,000 bytes";
    EXPECT_EQ(Read("<?xml version=\"1.0\"?>\n<puzzle>" + kLine + "</puzzle>"),
              Pieces{"2: " + kLine})
        << "another XML file";
    EXPECT_EQ(Read("<opensudoku><game data=\"" + data), Pieces{"1: a tag that does not end"});
}

TEST(PuzzleSource, AMixedFileLosesNothingButItsJunk) {
    const std::string text = "# a collection\n\n" + kLine + "\nHello, world\n" + Framed(kOther) +
                             "\n:0000:x:" + kLine + ":::\n" + kLine.substr(1) + "\n" + kOther +
                             "\n-----------\n" + Rows(kLine) + "[State]\n" + kLine + "\n";
    EXPECT_EQ(Read(text),
              (Pieces{"3: " + kLine, "4: no puzzle: \"Hello, world\"", "5: " + kOther,
                      "19: " + kLine, "20: 80 cells where a puzzle has 81", "21: " + kOther,
                      "22: " + kLine, "32: no puzzle: \"[State]\"", "33: " + kLine}));
    std::istringstream in(text);
    PuzzleSource source(in);
    EXPECT_EQ(source.Format(), "");
    PiecesOf(source);
    EXPECT_EQ(source.Format(), "lines of 81, library lines and nine rows");
}

TEST(PuzzleSource, DamageIsNamedAndCostsNoOtherPuzzle) {
    const std::string rows = Rows(kLine);
    const struct {
        std::string text;
        std::string error;
    } cases[] = {
        {kLine + "1", "1: 82 cells where a puzzle has 81"},
        {kLine + kLine, "1: 162 cells where a puzzle has 81"},
        {With(kLine, '6', 'q'), "1: cell B1 is \"q\", neither a digit nor a blank"},
        {rows.substr(10), "1: 8 rows of nine cells where a grid has nine rows"},
        {rows + "123456789\n", "1: 10 rows of nine cells where a grid has nine rows"},
        {"[Puzzle]\n" + rows.substr(10),
         "1: the [Puzzle] section has 8 rows of nine cells where a grid has nine rows"},
        {":0000:x:" + kLine.substr(1) + ":::",
         "1: the grid of the library line has 80 cells where a puzzle has 81"},
        {":0000:x:" + kLine + ":12:::",
         "1: the deleted candidate \"12\" of the library line is not digit, row and column"},
        {kLine + "\t1,2\t" + kLine, "1: the marks field has 2 groups instead of 81"},
        {std::string(729, '1'), "1: 729 characters that are not the digits 1 to 9 of each cell"},
        {std::string(70000, '1'), "1: a line of more than 65535 bytes"},
        {std::string(70, '\0'), "1: no puzzle: \"" + std::string(30, '?') + "...\""},
    };
    for (const auto& damage : cases) {
        const Pieces pieces = Read(damage.text + "\n\n" + kOther + "\n");
        ASSERT_EQ(pieces.size(), 2u) << damage.text << pieces[0];
        EXPECT_EQ(pieces[0], damage.error);
        EXPECT_TRUE(pieces[1].ends_with(kOther)) << damage.text;
    }
}

TEST(PuzzleSource, ATablesHeaderPassesAndOnlyThere) {
    EXPECT_EQ(Read("id,Puzzle,solution\n1," + kLine + "," + kSolution + "\n"),
              Pieces{"2: " + kLine});
    EXPECT_EQ(
        Read("Sudoku of the day\nHello\n" + kLine),
        (Pieces{"1: no puzzle: \"Sudoku of the day\"", "2: no puzzle: \"Hello\"", "3: " + kLine}));
}

TEST(PuzzleSource, ClashesAreNotTheReadersBusiness) {
    const std::string clash = "11" + std::string(79, '.');
    EXPECT_EQ(Read(clash), Pieces{"1: " + clash});
}

// A stream without an end in memory: the same text over and over.
class Repeated : public std::streambuf {
  public:
    Repeated(std::string text, std::size_t times) : text_(std::move(text)), left_(times) {}

  private:
    int_type underflow() override {
        if (left_ == 0) {
            return traits_type::eof();
        }
        --left_;
        setg(text_.data(), text_.data(), text_.data() + text_.size());
        return traits_type::to_int_type(text_[0]);
    }

    std::string text_;
    std::size_t left_;
};

TEST(PuzzleSource, LinesAreCountedThroughALongFile) {
    Repeated text(kLine + "\r\n" + Framed(kOther) + "junk\r", 5'000);
    std::istream in(&text);
    PuzzleSource source(in);
    std::int64_t count = 0;
    for (auto piece = source.Next(); piece; piece = source.Next()) {
        const std::int64_t line = 15 * (count / 3) + (count % 3 == 0 ? 1 : count % 3 == 1 ? 2 : 15);
        ASSERT_EQ(piece->line, line);
        ASSERT_EQ(piece->IsPuzzle(), count % 3 != 2) << piece->error;
        ++count;
    }
    EXPECT_EQ(count, 15'000);
    Repeated endless(std::string(65536, '1'), 1000);
    std::istream oneLine(&endless);
    PuzzleSource one(oneLine);
    EXPECT_EQ(PiecesOf(one), Pieces{"1: a line of more than 65535 bytes"});
}

TEST(PuzzleSource, TagsAndCommentsThatDoNotEndCostNoOtherPuzzleAndLittleTime) {
    const std::string game = "<game data=\"" + With(kLine, '.', '0') + "\"/>";
    const Pieces oneEach = {"1: a tag that does not end", "1: " + kLine};
    const std::string far(200'000, ' ');
    EXPECT_EQ(Read("<opensudoku><!-- " + far + "<!-- <game data=\"\"/> -->" + game), oneEach);
    // The end of what is ahead lies in the game.
    for (std::size_t length = 3 * kTextAhead / 2 - 100; length < 3 * kTextAhead / 2; length += 20) {
        EXPECT_EQ(Read("<opensudoku><" + far.substr(0, length) + game), oneEach) << length;
    }
    const Pieces pieces = Read("<opensudoku>" + std::string(1 << 22, '<') + ">" + game);
    EXPECT_LT(pieces.size(), 200u);
    EXPECT_EQ(pieces.back(), "1: " + kLine);
}

TEST(PuzzleSource, ItStopsAlsoWhereNoPieceComes) {
    for (const char* text : {"\n", "1"}) {
        Repeated endless(std::string(1 << 16, *text), 1 << 30);
        std::istream in(&endless);
        PuzzleSource source(in);
        int left = 100;
        source.StopWhen([&] { return --left < 0; });
        EXPECT_LE(PiecesOf(source).size(), 1u);
    }
}

std::vector<std::string> ReadRecords(const std::string& bytes, const RecordLayout& layout) {
    std::istringstream in(bytes);
    PuzzleSource source(in, layout);
    return PiecesOf(source);
}

TEST(RecordLayout, ABinaryFileIsReadRecordByRecord) {
    const auto record = [](std::string cells) {
        for (char& cell : cells) {
            cell = cell == '.' ? '\xFE' : static_cast<char>(cell - '0');
        }
        return "#7" + cells + std::string("\0\1\2", 3);
    };
    const std::string file = "HEAD" + record(kLine) + record(kOther) + record("0" + kLine);
    RecordLayout layout{4, 86, 2, RecordDigits::Binary, 0xFE};
    EXPECT_EQ(ReadRecords(file, layout),
              (Pieces{"1: " + kLine, "2: " + kOther,
                      "3: byte 0 of cell A1 is neither a digit's byte nor the empty cell's",
                      "4: the file ends after 1 byte of a record of 86"}));
    EXPECT_EQ(ReadRecords(file.substr(0, 4 + 86 + 83), layout).back(), "2: " + kOther)
        << "the last record's cells are whole";
    layout.empty.reset();
    EXPECT_EQ(ReadRecords(file, layout)[2], "3: ." + kLine.substr(0, 80));
    std::istringstream in(file);
    EXPECT_EQ(Preview(in, layout, 2).size(), 2u);
    EXPECT_EQ(ReadRecords("HE", layout), Pieces{});
    EXPECT_EQ(ReadRecords(kLine + "\r\n" + kOther, {0, 83, 0, RecordDigits::Text, '.'}),
              (Pieces{"1: " + kLine, "2: " + kOther}));
}

TEST(RecordLayout, AFaultIsToldInASentence) {
    const struct {
        RecordLayout layout;
        std::string fault;
    } cases[] = {
        {{}, ""},
        {{0, 80, 0, RecordDigits::Text, '.'}, "A record of 80 bytes cannot hold the 81 cells."},
        {{0, 100, 20, RecordDigits::Text, '.'},
         "The 81 cells do not fit into a record of 100 bytes after the first 20 bytes."},
        {{0, ~std::uint64_t{0}, 0, RecordDigits::Text, '.'},
         "A record is longer than 1048576 bytes."},
        {{~std::uint64_t{0}, 81, 0, RecordDigits::Text, '.'},
         "The header is longer than 1073741824 bytes."},
        {{0, 81, 0, RecordDigits::Text, '5'}, "The empty cell's byte, 53, is that of the digit 5."},
        {{0, 81, 0, RecordDigits::Binary, 5}, "The empty cell's byte, 5, is that of the digit 5."},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(LayoutFault(test.layout), test.fault);
    }
    EXPECT_EQ(ReadRecords(kLine, cases[1].layout), Pieces{"0: " + cases[1].fault});
}

}  // namespace
}  // namespace vemo::test
