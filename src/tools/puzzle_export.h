// Writing puzzles and positions in the formats of other programs. puzzle_source.h reads them all.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "model/grid.h"

namespace vemo {

enum class ExportFormat : std::uint8_t {
    Line,
    Rows,
    PencilMarks,
    Digits729,
    LibraryLine,
    Sdk,
    Sdx,
    Sdm,
    Ss,
    OpenSudoku,
    Csv,
    Tsv,
};

// What of a grid a format can say.
enum class ExportHolds : std::uint8_t {
    Clues,
    // What each cell can be, and no givens: a cell that can be one digit, which none of its peers
    // can be, is read back as a clue. .sdx knows the player's digits, the others read them as
    // clues.
    Candidates,
    Position,  // givens, digits and marks
};

struct ExportFormatRow {
    ExportFormat format;
    std::string_view word;     // on the command line
    std::string_view caption;  // in a window
    std::string_view ending;   // of a file's name, with its point
    ExportHolds holds;
};

inline constexpr std::array<ExportFormatRow, 12> kExportFormats = {{
    {ExportFormat::Line, "line", "Lines of 81", ".txt", ExportHolds::Clues},
    {ExportFormat::Rows, "rows", "Nine rows with borders", ".txt", ExportHolds::Clues},
    {ExportFormat::PencilMarks, "marks", "Pencil-mark grid", ".txt", ExportHolds::Candidates},
    {ExportFormat::Digits729, "729", "Lines of 729", ".txt", ExportHolds::Candidates},
    {ExportFormat::LibraryLine, "library", "Library lines", ".txt", ExportHolds::Position},
    {ExportFormat::Sdk, "sdk", "Sudoku file with sections", ".sdk", ExportHolds::Position},
    {ExportFormat::Sdx, "sdx", "Sudoku file with candidates", ".sdx", ExportHolds::Candidates},
    {ExportFormat::Sdm, "sdm", "Sudoku collection", ".sdm", ExportHolds::Clues},
    {ExportFormat::Ss, "ss", "Sudoku file of three grids", ".ss", ExportHolds::Position},
    {ExportFormat::OpenSudoku, "opensudoku", "Sudoku folder in XML", ".opensudoku",
     ExportHolds::Clues},
    {ExportFormat::Csv, "csv", "Table with commas", ".csv", ExportHolds::Clues},
    {ExportFormat::Tsv, "tsv", "Table with tabs", ".tsv", ExportHolds::Clues},
}};

const ExportFormatRow& RowOf(ExportFormat format);
// Nothing for a word of no format.
std::optional<ExportFormat> ExportFormatOf(std::string_view word);

// A file is its header, its puzzles one after the other, its footer; lines end with LF. A header or
// a footer may be empty.
std::string_view ExportHeader(ExportFormat format);
std::string_view ExportFooter(ExportFormat format);
// The clues are the grid's givens. Only marks that the grid's digits leave can be read back from a
// library line.
std::string WriteExport(ExportFormat format, const Grid& grid);

}  // namespace vemo
