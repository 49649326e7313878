// Writing puzzles and positions in the formats of other programs.
#include "tools/puzzle_export.h"

#include <algorithm>
#include <vector>

#include "tools/file_formats.h"
#include "tools/text_rows.h"

namespace vemo {
namespace {

constexpr int kRowLength = 9;

using CellText = std::string (*)(const Grid& grid, int cell);

std::string DigitText(int digit) {
    return std::string(1, static_cast<char>('0' + digit));
}

std::string MarksText(Marks marks) {
    std::string text;
    for (int digit : DigitsOf(marks)) {
        text += DigitText(digit);
    }
    return text;
}

std::string ClueOf(const Grid& grid, int cell) {
    return grid.IsGiven(cell) ? DigitText(grid.Digit(cell)) : ".";
}

std::string DigitOfCell(const Grid& grid, int cell) {
    return grid.Digit(cell) != 0 ? DigitText(grid.Digit(cell)) : ".";
}

std::string CandidatesOf(const Grid& grid, int cell) {
    return grid.Digit(cell) != 0     ? DigitText(grid.Digit(cell))
           : grid.MarksAt(cell) != 0 ? MarksText(grid.MarksAt(cell))
                                     : std::string(1, kNoCandidate);
}

std::string CandidatesOfSdx(const Grid& grid, int cell) {
    const bool isEntered = grid.Digit(cell) != 0 && !grid.IsGiven(cell);
    return (isEntered ? "u" : "") + CandidatesOf(grid, cell);
}

std::string NotesOfSdk(const Grid& grid, int cell) {
    return grid.Digit(cell) != 0 ? "" : CandidatesOf(grid, cell);
}

std::string PositionalOf(const Grid& grid, int cell) {
    std::string text;
    for (int digit = 1; digit <= kDigits; ++digit) {
        const bool canBe = grid.Digit(cell) == digit || grid.KnopAan(cell, digit);
        text += canBe ? DigitText(digit) : ".";
    }
    return text;
}

std::string LibraryCell(const Grid& grid, int cell) {
    const bool isEntered = grid.Digit(cell) != 0 && !grid.IsGiven(cell);
    return (isEntered ? "+" : "") + DigitOfCell(grid, cell);
}

std::string LineOf(const Grid& grid, CellText text) {
    std::string line;
    for (int cell = 0; cell < kCells; ++cell) {
        line += text(grid, cell);
    }
    return line;
}

std::string RowsOf(const Grid& grid, CellText text, std::string_view separator) {
    std::string rows;
    for (int cell = 0; cell < kCells; ++cell) {
        rows += text(grid, cell);
        rows += cell % kRowLength == kRowLength - 1 ? "\n" : separator;
    }
    return rows;
}

// How a grid is framed: the borders' corners and what stands between the cells.
struct Frame {
    std::string_view topCorner;
    std::string_view topCrossing;
    std::string_view sideCorner;
    std::string_view crossing;
    std::string_view bottomCorner;
    std::string_view bottomCrossing;
    std::string_view padding;  // beside a bar
    std::string_view between;  // two cells of a box
};

constexpr Frame kWideFrame = {"+", "+", "+", "+", "+", "+", " ", " "};
constexpr Frame kDottedFrame = {".", ".", ":", "+", "'", "'", " ", " "};
constexpr Frame kNarrowFrame = {"*", "-", "|", "+", "*", "-", "", ""};
constexpr Frame kStarFrame = {"*", "-", "|", "+", "*", "-", " ", " "};

std::string Border(std::string_view corner, std::string_view crossing,
                   const std::array<std::size_t, 3>& widths) {
    std::string line(corner);
    for (std::size_t box = 0; box < widths.size(); ++box) {
        line += (box == 0 ? "" : std::string(crossing)) + std::string(widths[box], '-');
    }
    return line + std::string(corner) + '\n';
}

// Columns as wide as their widest cell, bars between the boxes, a border around each band.
std::string FramedRows(const Grid& grid, CellText text, const Frame& frame) {
    std::array<std::string, kCells> cells;
    std::array<std::size_t, kRowLength> widths{};
    for (int cell = 0; cell < kCells; ++cell) {
        std::string& shown = cells[static_cast<std::size_t>(cell)];
        shown = text(grid, cell);
        std::size_t& width = widths[static_cast<std::size_t>(CellColumn(cell))];
        width = std::max(width, shown.size());
    }
    std::array<std::size_t, 3> boxWidths{};
    for (std::size_t column = 0; column < widths.size(); ++column) {
        boxWidths[column / 3] +=
            widths[column] + (column % 3 == 0 ? 2 * frame.padding.size() : frame.between.size());
    }
    std::string rows = Border(frame.topCorner, frame.topCrossing, boxWidths);
    for (int cell = 0; cell < kCells; ++cell) {
        const auto column = static_cast<std::size_t>(CellColumn(cell));
        if (column == 0 && cell > 0 && CellRow(cell) % 3 == 0) {
            rows += Border(frame.sideCorner, frame.crossing, boxWidths);
        }
        const std::string& shown = cells[static_cast<std::size_t>(cell)];
        if (column % 3 == 0) {
            rows += column == 0 ? "" : frame.padding;
            rows += '|';
        }
        rows += column % 3 == 0 ? frame.padding : frame.between;
        rows += shown + std::string(widths[column] - shown.size(), ' ');
        if (column == kRowLength - 1) {
            rows += std::string(frame.padding) + "|\n";
        }
    }
    return rows + Border(frame.bottomCorner, frame.bottomCrossing, boxWidths);
}

// The candidates that the digits leave, but the grid has no more: digit, row, column.
std::string DeletedOf(const Grid& grid) {
    Grid legal = Grid::FromClues(grid.AllDigits());
    std::string text;
    for (int cell : grid.EmptyCells()) {
        const Marks deleted = static_cast<Marks>(legal.MarksAt(cell) & ~grid.MarksAt(cell));
        for (int digit : DigitsOf(deleted)) {
            text += (text.empty() ? "" : " ") + DigitText(digit) + DigitText(CellRow(cell) + 1) +
                    DigitText(CellColumn(cell) + 1);
        }
    }
    return text;
}

bool IsUntouched(const Grid& grid) {
    const Grid start = Grid::FromClues(CluesOf({grid.AllDigits(), grid.Givens(), {}}));
    for (int cell = 0; cell < kCells; ++cell) {
        if (grid.Digit(cell) != start.Digit(cell) || grid.MarksAt(cell) != start.MarksAt(cell)) {
            return false;
        }
    }
    return true;
}

std::string SdkOf(const Grid& grid) {
    std::string text = "[Puzzle]\n" + RowsOf(grid, ClueOf, "");
    if (!IsUntouched(grid)) {
        text += "[State]\n" + RowsOf(grid, DigitOfCell, "");
        text += "[PencilMarks]\n" + RowsOf(grid, NotesOfSdk, ",");
    }
    return text + "\n";
}

std::string SsOf(const Grid& grid) {
    return FramedRows(grid, ClueOf, kNarrowFrame) + "\n" +
           FramedRows(grid, DigitOfCell, kNarrowFrame) + "\n" +
           FramedRows(grid, CandidatesOf, kStarFrame) + "\n";
}

std::string ZeroLineOf(const Grid& grid) {
    std::string line = LineOf(grid, ClueOf);
    std::ranges::replace(line, '.', '0');
    return line;
}

std::string TableLine(const Grid& grid, char separator) {
    return LineOf(grid, ClueOf) + separator + std::to_string(grid.Givens().Count()) + '\n';
}

}  // namespace

const ExportFormatRow& RowOf(ExportFormat format) {
    return kExportFormats[static_cast<std::size_t>(format)];
}

std::optional<ExportFormat> ExportFormatOf(std::string_view word) {
    const auto row = std::ranges::find(kExportFormats, word, &ExportFormatRow::word);
    return row == kExportFormats.end() ? std::nullopt : std::optional(row->format);
}

std::string_view ExportHeader(ExportFormat format) {
    switch (format) {
    case ExportFormat::OpenSudoku:
        return "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
               "<opensudoku>\n";
    case ExportFormat::Csv:
        return "puzzle,clues\n";
    case ExportFormat::Tsv:
        return "puzzle\tclues\n";
    default:
        return "";
    }
}

std::string_view ExportFooter(ExportFormat format) {
    return format == ExportFormat::OpenSudoku ? "</opensudoku>\n" : "";
}

std::string WriteExport(ExportFormat format, const Grid& grid) {
    switch (format) {
    case ExportFormat::Line:
        return LineOf(grid, ClueOf) + '\n';
    case ExportFormat::Rows:
        return FramedRows(grid, ClueOf, kWideFrame) + '\n';
    case ExportFormat::PencilMarks:
        return FramedRows(grid, CandidatesOf, kDottedFrame) + '\n';
    case ExportFormat::Digits729:
        return LineOf(grid, PositionalOf) + '\n';
    case ExportFormat::LibraryLine:
        return ":0000:x:" + LineOf(grid, LibraryCell) + ':' + DeletedOf(grid) + ":::\n";
    case ExportFormat::Sdk:
        return SdkOf(grid);
    case ExportFormat::Sdx:
        return RowsOf(grid, CandidatesOfSdx, " ") + '\n';
    case ExportFormat::Sdm:
        return ZeroLineOf(grid) + '\n';
    case ExportFormat::Ss:
        return SsOf(grid);
    case ExportFormat::OpenSudoku:
        return "  <game data=\"" + ZeroLineOf(grid) + "\" />\n";
    case ExportFormat::Csv:
        return TableLine(grid, ',');
    case ExportFormat::Tsv:
        return TableLine(grid, '\t');
    }
    return "";
}

}  // namespace vemo
