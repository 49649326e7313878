// Telling apart the layouts of puzzle texts.
#include "tools/formats.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "tools/file_formats.h"
#include "tools/puzzle_line.h"
#include "tools/text_rows.h"

namespace vemo {
namespace {

using Lines = std::vector<std::string>;

// The lines that count, in plain characters.
Lines LinesOf(std::string_view text) {
    Lines lines(1);
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        lines.back() = PlainText(text.substr(0, end));
        text.remove_prefix(end);
        if (!text.empty()) {
            text.remove_prefix(FirstCharacterLength(text));
            lines.emplace_back();
        }
    }
    return lines;
}

Lines WithoutBlankLines(Lines lines) {
    std::erase_if(lines, [](const std::string& line) { return IsBlankOrComment(line); });
    return lines;
}

Lines WithoutBorders(Lines lines, Borders which) {
    std::erase_if(lines, [&](const std::string& line) { return IsBorder(line, which); });
    return lines;
}

using RowReader = std::optional<PlainCells> (*)(std::string_view line);

std::optional<Digits> ReadRows(const Lines& lines, RowReader read) {
    if (lines.size() != kRowCells) {
        return std::nullopt;
    }
    Digits digits{};
    auto next = digits.begin();
    for (const std::string& line : lines) {
        const std::optional<PlainCells> cells = read(line);
        if (!cells) {
            return std::nullopt;
        }
        next = std::ranges::transform(*cells, next, DigitOf).out;
    }
    return digits;
}

// Lines of nine characters: a row of blanks counts, an empty line at either end does not.
std::optional<Digits> ReadRowsWithBlanks(Lines lines) {
    std::erase_if(lines, [](const std::string& line) { return line.empty(); });
    for (Borders which : {Borders::WithCrossings, Borders::All}) {
        if (auto digits = ReadRows(WithoutBorders(lines, which), RowWithBlanks)) {
            return digits;
        }
    }
    return std::nullopt;
}

std::optional<Digits> ReadAnyRows(const Lines& lines) {
    const Lines filled = WithoutBlankLines(lines);
    const std::array<Lines, 3> readings = {filled, WithoutBorders(filled, Borders::WithCrossings),
                                           WithoutBorders(filled, Borders::All)};
    for (const Lines& rows : readings) {
        if (auto digits = ReadRows(rows, PlainRow)) {
            return digits;
        }
    }
    if (auto digits = ReadRowsWithBlanks(lines)) {
        return digits;
    }
    // A row of tabs alone looks blank, and is nine empty fields.
    Lines table = lines;
    std::erase_if(table, [](const std::string& line) { return line.empty(); });
    return ReadRows(table, RowOfFields);
}

std::optional<Digits> ReadPencilMarks(const Lines& lines) {
    const Lines rows = WithoutBorders(WithoutBlankLines(lines), Borders::All);
    if (rows.size() != kRowCells) {
        return std::nullopt;
    }
    std::array<std::optional<Marks>, kCells> table{};
    CellSet entered;
    int cell = 0;
    for (const std::string& row : rows) {
        const std::optional<CandidateRow> groups = RowOfCandidates(row);
        if (!groups) {
            return std::nullopt;
        }
        for (const CandidateGroup& group : *groups) {
            table[static_cast<std::size_t>(cell)] = group.marks;
            if (group.isEntered) {
                entered.Add(cell);
            }
            ++cell;
        }
    }
    return CluesOf(OfCandidates(table, entered));
}

std::optional<Digits> ReadLine(const Lines& lines) {
    const Lines filled = WithoutBlankLines(lines);
    if (filled.size() != 1) {
        return std::nullopt;
    }
    const PuzzleLine line = ReadPuzzleLine(filled.front());
    return line.IsPuzzle() ? std::optional(line.clues) : std::nullopt;
}

// The bytes that follow a first byte of UTF-8; none for one that begins no character.
std::size_t BytesAfter(unsigned char first) {
    if (first >= 0xC2 && first <= 0xDF) {
        return 1;
    }
    if (first >= 0xE0 && first <= 0xEF) {
        return 2;
    }
    return first >= 0xF0 && first <= 0xF4 ? 3 : 0;
}

}  // namespace

std::optional<RecognizedPuzzle> RecognizePuzzle(std::string_view text) {
    if (text.size() > kLongestPuzzleText) {
        return std::nullopt;
    }
    const Lines lines = LinesOf(WithoutByteOrderMark(text));
    if (const auto clues = ReadLine(lines)) {
        return RecognizedPuzzle{TextFormat::Line, *clues};
    }
    if (const auto clues = ReadAnyRows(lines)) {
        return RecognizedPuzzle{TextFormat::Rows, *clues};
    }
    if (const auto clues = ReadPencilMarks(lines)) {
        return RecognizedPuzzle{TextFormat::PencilMarks, *clues};
    }
    return std::nullopt;
}

Digits ReadByPosition(std::string_view text) {
    Digits clues{};
    for (std::size_t cell = 0; cell < kCells && !text.empty(); ++cell) {
        clues[cell] = DigitOf(text.front());
        text.remove_prefix(FirstCharacterLength(text));
    }
    return clues;
}

std::size_t FirstCharacterLength(std::string_view text) {
    if (text.starts_with("\r\n")) {
        return 2;
    }
    const std::size_t after = BytesAfter(static_cast<unsigned char>(text.front()));
    const std::string_view rest = text.substr(1, after);
    const bool isWhole = rest.size() == after && std::ranges::all_of(rest, [](char byte) {
                             return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
                         });
    return isWhole ? 1 + after : 1;
}

}  // namespace vemo
