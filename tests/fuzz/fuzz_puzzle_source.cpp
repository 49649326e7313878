// Any bytes as a file of puzzles: it is read to its end, every piece is a puzzle or has a reason,
// and each puzzle is read back from an export.
#include <algorithm>
#include <cstdint>
#include <sstream>
#include <string>

#include "target.h"
#include "tools/puzzle_export.h"
#include "tools/puzzle_source.h"

namespace vemo {
namespace {

Grid ReadAlone(const std::string& text) {
    std::istringstream in(text);
    PuzzleSource source(in);
    const auto piece = source.Next();
    Require(piece && piece->IsPuzzle() && !source.Next(), "an export is one puzzle");
    return piece->grid;
}

void RequireReadsBack(const Grid& grid, ExportFormat format) {
    const Grid again = ReadAlone(std::string(ExportHeader(format)) + WriteExport(format, grid) +
                                 std::string(ExportFooter(format)));
    if (RowOf(format).holds == ExportHolds::Candidates) {
        return;  // which digits are clues is guessed
    }
    Require(again.Givens() == grid.Givens(), "an export holds the givens");
    for (int cell : grid.Givens()) {
        Require(again.Digit(cell) == grid.Digit(cell), "an export holds the clues");
    }
    Require(RowOf(format).holds == ExportHolds::Clues || again.AllDigits() == grid.AllDigits(),
            "an export of a position holds its digits");
}

}  // namespace

void Check(std::span<const std::uint8_t> input) {
    std::istringstream in{std::string(TextOf(input))};
    PuzzleSource source(in);
    std::size_t count = 0;
    std::int64_t line = 1;
    while (const auto piece = source.Next()) {
        Require(++count <= input.size(), "no byte makes two pieces");
        Require(piece->line >= line, "the pieces come in their order");
        line = piece->line;
        if (piece->IsPuzzle()) {
            Require(!source.Format().empty(), "what holds a puzzle has a format");
            RequireReadsBack(piece->grid, kExportFormats[count % kExportFormats.size()].format);
        }
    }
    Require(!source.Next(), "the end stays the end");
    Require(line <= 1 + std::ranges::count_if(
                            input, [](std::uint8_t byte) { return byte == '\n' || byte == '\r'; }),
            "a line ends with a line break");
}

}  // namespace vemo
