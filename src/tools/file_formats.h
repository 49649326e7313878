// The formats that a file of puzzles may mix, and what each of their readers finds in a text.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/grid.h"
#include "tools/text_window.h"

namespace vemo {

enum class FileFormat : std::uint8_t {
    Line,
    Table,
    Link,
    Digits729,
    Position,
    LibraryLine,
    Rows,
    PencilMarks,
    Sdk,
    Sdx,
    Ss,
    OpenSudoku,
};

// For the player, several of them: "lines of 81".
std::string_view NameOf(FileFormat format);

// What a text says of the 81 cells.
struct WrittenGrid {
    Digits digits{};
    CellSet givens;
    // What is noted for an empty cell, perhaps none at all. Nothing: what the digits leave.
    std::array<std::optional<Marks>, kCells> marks{};
};

WrittenGrid OfClues(const Digits& clues);
// The digits of the givens alone.
Digits CluesOf(const WrittenGrid& written);
// Every clue is among the digits.
bool Contains(const Digits& digits, const Digits& clues);
Grid MakeGrid(const WrittenGrid& written);

// The grid of a text that tells what each cell can be, but not what is given: a single digit is a
// clue where no peer lists it. `entered`: cells known to hold a digit of the player's.
WrittenGrid OfCandidates(const std::array<std::optional<Marks>, kCells>& table,
                         CellSet entered = CellSet());

struct FoundPuzzle {
    WrittenGrid grid;
    std::string error{};  // why the piece is no puzzle
};

// The pieces that begin at the head of a text.
struct FoundPuzzles {
    FileFormat format{};
    std::vector<FoundPuzzle> puzzles;
    std::size_t length = 0;  // bytes of the text that they take up
};

inline FoundPuzzles Rejected(std::string error, std::size_t length) {
    return {FileFormat::Line, {{WrittenGrid{}, std::move(error)}}, length};
}

// Each reader looks at the head of a text, and gives nothing where that does not look like its
// format. Those of several lines are handed a cursor before the first one.

// One line, without its end: everything that has a puzzle in one.
std::optional<FoundPuzzles> ReadPuzzlesOfLine(std::string_view line);
// 81 characters of which blanks are empty cells, in a line or a field of it. ReadPuzzlesOfLine
// leaves such a line out where it may be one of nine with candidates.
std::optional<FoundPuzzles> ReadLineWithBlanks(std::string_view line);
// Nine lines of cells, of candidates, or the three grids of a .ss file.
std::optional<FoundPuzzles> ReadGrid(const LineCursor& lines);
// The sections of a .sdk file.
std::optional<FoundPuzzles> ReadSections(const LineCursor& lines);
// The attributes of a <game> of a .opensudoku file.
FoundPuzzle ReadGameTag(std::string_view tag);

// Why a line in which nothing was found is none.
std::string WhyNoPuzzle(std::string_view line);
// The names of a table's columns, one of which is that of the puzzle.
bool IsTableHeader(std::string_view line);

}  // namespace vemo
