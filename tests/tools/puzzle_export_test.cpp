// Every export is read back as it was written, many positions in one file.
#include "tools/puzzle_export.h"

#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/puzzles.h"
#include "tools/puzzle_source.h"

namespace vemo::test {
namespace {

// Some givens, some digits of the player's, some marks gone; now and then a cell without any.
Grid RandomPosition(std::mt19937& random) {
    const auto oneIn = [&](unsigned count) { return random() % count == 0; };
    Digits relabelled = PlainSolution();
    const std::uint32_t shift = random() % 9;
    CellSet givens;
    for (int cell = 0; cell < kCells; ++cell) {
        std::uint8_t& digit = relabelled[static_cast<std::size_t>(cell)];
        digit = static_cast<std::uint8_t>((digit + shift) % 9 + 1);
        if (oneIn(3)) {
            givens.Add(cell);
        } else if (!oneIn(5)) {
            digit = 0;
        }
    }
    Grid grid = Grid::FromClues(relabelled);
    grid.SetGivens(givens);
    for (int cell : grid.EmptyCells()) {
        const bool losesAll = oneIn(200);
        for (int digit : DigitsOf(grid.MarksAt(cell))) {
            if (losesAll || oneIn(4)) {
                grid.VerwijderKnop(cell, digit);
            }
        }
    }
    return grid;
}

Digits GivensOf(const Grid& grid) {
    Digits givens{};
    for (int cell : grid.Givens()) {
        givens[static_cast<std::size_t>(cell)] = static_cast<std::uint8_t>(grid.Digit(cell));
    }
    return givens;
}

Marks CandidatesAt(const Grid& grid, int cell) {
    return grid.Digit(cell) != 0 ? MarkOf(grid.Digit(cell)) : grid.MarksAt(cell);
}

// What a reader that knows candidates alone makes of the grid.
Grid ReadFromCandidates(const Grid& grid, bool knowsEntered) {
    Grid read = grid;
    CellSet givens;
    for (int cell = 0; cell < kCells; ++cell) {
        const Marks marks = CandidatesAt(grid, cell);
        const bool isEntered = grid.Digit(cell) != 0 && !grid.IsGiven(cell);
        bool isAlone = BitCount(marks) == 1;
        for (int peer : Peers(cell)) {
            isAlone = isAlone && (CandidatesAt(grid, peer) & marks) == 0;
        }
        if (isAlone && grid.Digit(cell) == 0) {
            read.Zet(FirstDigit(marks), cell);
        }
        if (isAlone && !(isEntered && knowsEntered)) {
            givens.Add(cell);
        }
    }
    read.SetGivens(givens);
    return read;
}

Grid Expected(const ExportFormatRow& row, const Grid& grid) {
    switch (row.holds) {
    case ExportHolds::Clues:
        return Grid::FromClues(GivensOf(grid));
    case ExportHolds::Candidates:
        return ReadFromCandidates(grid, row.format == ExportFormat::Sdx);
    case ExportHolds::Position:
        break;
    }
    return grid;
}

void ExpectReadsBack(const ExportFormatRow& row, const std::vector<Grid>& grids,
                     const std::string& lineEnd) {
    std::string text = std::string(ExportHeader(row.format));
    for (const Grid& grid : grids) {
        text += WriteExport(row.format, grid);
    }
    text += ExportFooter(row.format);
    std::string converted = lineEnd == "\n" ? "" : "\xEF\xBB\xBF";
    for (char character : text) {
        converted += character == '\n' ? lineEnd : std::string(1, character);
    }
    std::istringstream in(converted);
    PuzzleSource source(in);
    for (std::size_t index = 0; index < grids.size(); ++index) {
        const auto piece = source.Next();
        ASSERT_TRUE(piece) << row.word << " " << index;
        ASSERT_EQ(piece->error, "") << row.word << " line " << piece->line;
        ASSERT_TRUE(piece->grid == Expected(row, grids[index]))
            << row.word << " line " << piece->line << "\n"
            << WriteExport(row.format, grids[index]);
    }
    EXPECT_FALSE(source.Next()) << row.word;
}

TEST(PuzzleExport, EveryFormatIsReadBackAsItWasWritten) {
    std::mt19937 random(8);
    std::vector<Grid> grids;
    for (int count = 0; count < 300; ++count) {
        grids.push_back(RandomPosition(random));
    }
    // The bounds: nothing, clues alone, and everything, given or entered.
    Grid entered = Grid::FromClues(PlainSolution());
    entered.SetGivens(CellSet());
    grids.insert(grids.end(), {Grid(), Grid::FromClues(ParseDigits(kOutlawed)), entered,
                               Grid::FromClues(PlainSolution())});
    for (const ExportFormatRow& row : kExportFormats) {
        ExpectReadsBack(row, grids, "\n");
        ExpectReadsBack(row, grids, "\r\n");
        ExpectReadsBack(row, grids, "\r");
    }
}

TEST(PuzzleExport, TheTableOfFormatsIsFoundByFormatAndByWord) {
    for (const ExportFormatRow& row : kExportFormats) {
        EXPECT_EQ(RowOf(row.format).word, row.word);
        EXPECT_EQ(ExportFormatOf(row.word), row.format);
    }
    EXPECT_FALSE(ExportFormatOf("Line"));
}

TEST(PuzzleExport, FilesLookAsOtherProgramsWriteThem) {
    Grid grid = Grid::FromClues(ParseDigits(kOutlawed));
    EXPECT_TRUE(WriteExport(ExportFormat::Rows, grid)
                    .starts_with("+-------+-------+-------+\n"
                                 "| . 4 . | . . . | . . 5 |\n"
                                 "| 2 . . | 9 . . | . 8 . |\n"));
    EXPECT_TRUE(WriteExport(ExportFormat::Ss, grid)
                    .starts_with("*-----------*\n|.4.|...|..5|\n|2..|9..|.8.|\n"));
    EXPECT_EQ(WriteExport(ExportFormat::Csv, grid), std::string(kOutlawed) + ",24\n");
    grid.VerwijderKnop(0, 8);
    EXPECT_EQ(WriteExport(ExportFormat::LibraryLine, grid),
              ":0000:x:" + std::string(kOutlawed) + ":811:::\n");
    grid.Zet(3, 0);
    EXPECT_TRUE(WriteExport(ExportFormat::Sdx, grid).starts_with("u3 4 "));
    EXPECT_TRUE(WriteExport(ExportFormat::LibraryLine, grid).starts_with(":0000:x:+34."));
}

}  // namespace
}  // namespace vemo::test
