// Nine lines of a text that make a grid, with what may stand between them.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "tools/file_formats.h"
#include "tools/text_rows.h"

namespace vemo {

// What a block of rows says. Its rows are cells or candidates.
struct GridBlock {
    int rows = 0;      // of one kind that stand together; whole where they are nine
    LineCursor after;  // behind the last row, and behind a border that closes a whole grid
    bool isOfCandidates = false;
    bool hasEntered = false;  // a row of candidates marks digits of the player's
    Digits digits{};          // of rows of cells
    std::array<std::optional<Marks>, kCells> marks{};  // of rows of candidates
    CellSet entered{};

    bool IsWhole() const { return rows == static_cast<int>(kRowCells); }
};

enum class BlockOf : std::uint8_t { Cells, Candidates, Either };

// The block that begins with the next line, which is a row or a border: the first reading of the
// rows that makes it whole, or the one that gets furthest, with no rows perhaps. Between the rows
// may stand borders, a single blank line or comment after each band, or one after every row. Rows
// that follow the ninth at once belong to the block, unless they are nine more.
GridBlock ReadBlock(const LineCursor& lines, BlockOf kind);

// Past blank lines and comments, but not many of them.
LineCursor PastGap(LineCursor lines);

// "8 rows of nine cells where a grid has nine rows"
std::string WrongRows(const GridBlock& block);

}  // namespace vemo
