// Telling apart the layouts of puzzle texts.
#include "tools/formats.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "tools/puzzle_line.h"

namespace vemo {
namespace {

using Lines = std::vector<std::string>;

constexpr std::size_t kRows = 9;
constexpr std::string_view kSeparators = " \t|,;:+!";
constexpr std::string_view kFieldSeparators = ",;\t";
constexpr std::string_view kBorderCharacters = " \t|:+-=*.'`,";

// The plain character for one of the box-drawing characters U+2500 to U+257F; none for any other.
std::optional<char> PlainBorder(std::string_view character) {
    if (character.size() != 3 || character[0] != '\xE2' ||
        (character[1] != '\x94' && character[1] != '\x95')) {
        return std::nullopt;
    }
    static constexpr std::array<std::string_view, 5> kHorizontal = {"\u2500", "\u2501", "\u2550",
                                                                    "\u2504", "\u2508"};
    static constexpr std::array<std::string_view, 5> kVertical = {"\u2502", "\u2503", "\u2551",
                                                                  "\u2506", "\u250A"};
    if (std::ranges::find(kHorizontal, character) != kHorizontal.end()) {
        return '-';
    }
    return std::ranges::find(kVertical, character) != kVertical.end() ? '|' : '+';
}

// The lines that count, as they stand but for drawn borders.
Lines LinesOf(std::string_view text) {
    Lines lines(1);
    while (!text.empty()) {
        const std::string_view character = text.substr(0, FirstCharacterLength(text));
        text.remove_prefix(character.size());
        if (character == "\n" || character == "\r" || character == "\r\n") {
            lines.emplace_back();
        } else if (const std::optional<char> border = PlainBorder(character)) {
            lines.back() += *border;
        } else {
            lines.back() += character;
        }
    }
    return lines;
}

Lines WithoutBlankLines(Lines lines) {
    std::erase_if(lines, [](const std::string& line) { return IsBlankOrComment(line); });
    return lines;
}

// A line that only frames the rows. One without crossings may as well be a row of empty cells.
enum class Borders : std::uint8_t { WithCrossings, All };

bool IsBorder(std::string_view line, Borders which) {
    const bool hasRun = line.find("---") != line.npos || line.find("===") != line.npos;
    return hasRun && line.find_first_not_of(kBorderCharacters) == line.npos &&
           (which == Borders::All || line.find_first_of("+=") != line.npos);
}

Lines WithoutBorders(Lines lines, Borders which) {
    std::erase_if(lines, [&](const std::string& line) { return IsBorder(line, which); });
    return lines;
}

// Nine cells, anything between them a separator; nothing for any other line.
std::optional<std::string> PlainRow(std::string_view line) {
    std::string cells;
    for (char character : line) {
        if (IsCell(character)) {
            cells += character;
        } else if (kSeparators.find(character) == kSeparators.npos) {
            return std::nullopt;
        }
    }
    return cells.size() == kRows ? std::optional(cells) : std::nullopt;
}

// Nine characters, bars aside, of which blanks are empty cells.
std::optional<std::string> RowWithBlanks(std::string_view line) {
    std::string cells(line);
    std::erase(cells, '|');
    const bool isRow = cells.size() == kRows && std::ranges::all_of(cells, [](char character) {
                           return character == ' ' || IsCell(character);
                       });
    return isRow ? std::optional(cells) : std::nullopt;
}

std::string Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == text.npos
               ? std::string()
               : std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

// Nine fields as tables have them, of which some are left empty.
std::optional<std::string> RowOfFields(std::string_view line) {
    std::string cells;
    for (std::size_t start = 0; start <= line.size();) {
        const std::size_t end = std::min(line.find_first_of(kFieldSeparators, start), line.size());
        const std::string field = Trimmed(line.substr(start, end - start));
        if (field.size() > 1 || (field.size() == 1 && !IsCell(field[0]))) {
            return std::nullopt;
        }
        cells += field.empty() ? ' ' : field[0];
        start = end + 1;
    }
    return cells.size() == kRows ? std::optional(cells) : std::nullopt;
}

using RowReader = std::optional<std::string> (*)(std::string_view line);

std::optional<Digits> ReadRows(const Lines& lines, RowReader read) {
    if (lines.size() != kRows) {
        return std::nullopt;
    }
    Digits digits{};
    auto next = digits.begin();
    for (const std::string& line : lines) {
        const std::optional<std::string> cells = read(line);
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

// The groups of digits of a line, nothing where it holds anything else or a digit twice in a group.
std::optional<std::vector<Marks>> GroupsOf(std::string_view line) {
    std::vector<Marks> groups;
    bool isInGroup = false;
    for (char character : line) {
        const int digit = DigitOf(character);
        if (digit == 0) {
            if (kSeparators.find(character) == kSeparators.npos) {
                return std::nullopt;
            }
            isInGroup = false;
            continue;
        }
        if (!isInGroup) {
            groups.push_back(0);
            isInGroup = true;
        }
        if (HasMark(groups.back(), digit)) {
            return std::nullopt;
        }
        groups.back() |= MarkOf(digit);
    }
    return groups;
}

using MarkTable = std::array<Marks, kCells>;

Digits CluesOf(const MarkTable& table) {
    const auto marksAt = [&](int cell) { return table[static_cast<std::size_t>(cell)]; };
    Digits clues{};
    for (int cell = 0; cell < kCells; ++cell) {
        const Marks marks = marksAt(cell);
        bool isClue = BitCount(marks) == 1;
        for (int peer : Peers(cell)) {
            isClue = isClue && (marksAt(peer) & marks) == 0;
        }
        if (isClue) {
            clues[static_cast<std::size_t>(cell)] = static_cast<std::uint8_t>(FirstDigit(marks));
        }
    }
    return clues;
}

std::optional<Digits> ReadPencilMarks(const Lines& lines) {
    const Lines rows = WithoutBorders(WithoutBlankLines(lines), Borders::All);
    if (rows.size() != kRows) {
        return std::nullopt;
    }
    MarkTable table{};
    auto next = table.begin();
    for (const std::string& row : rows) {
        const std::optional<std::vector<Marks>> groups = GroupsOf(row);
        if (!groups || groups->size() != kRows) {
            return std::nullopt;
        }
        next = std::ranges::copy(*groups, next).out;
    }
    return CluesOf(table);
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
