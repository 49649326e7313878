// Puzzles and positions as lines of text.
#include "tools/puzzle_line.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "solver/text.h"

namespace vemo {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t kMostFields = 3;

using MarkTable = std::array<Marks, kCells>;
using Error = std::optional<std::string>;

// A line as written, before its parts are held against each other.
struct Fields {
    Digits grid{};
    std::optional<MarkTable> marks;
    std::optional<Digits> givens;
};

// 'q', or "byte 0x07" for what no terminal shows.
std::string Shown(char character) {
    if (character > ' ' && character <= '~') {
        return std::string("'") + character + "'";
    }
    static constexpr std::string_view kHex = "0123456789abcdef";
    const unsigned byte = static_cast<unsigned char>(character);
    return std::string("byte 0x") + kHex[byte >> 4] + kHex[byte & 15];
}

std::string WrongCount(std::string_view field, std::size_t count, std::string_view what) {
    return "the " + std::string(field) + " field has " + std::to_string(count) + " " +
           std::string(what) + (count == 1 ? "" : "s") + " instead of " + std::to_string(kCells);
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (std::size_t end = text.find(separator); end != text.npos; end = text.find(separator)) {
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    parts.push_back(text);
    return parts;
}

Error ReadDigits(std::string_view field, std::string_view text, Digits& digits) {
    if (text.size() != kCells) {
        return WrongCount(field, text.size(), "character");
    }
    for (std::size_t at = 0; at < kCells; ++at) {
        const char character = text[at];
        digits[at] = DigitOf(character);
        if (!IsCell(character)) {
            return "character " + std::to_string(at + 1) + " of the " + std::string(field) +
                   " field (cell " + CellName(static_cast<int>(at)) + ") is " + Shown(character) +
                   ", neither a digit nor a blank";
        }
    }
    return std::nullopt;
}

Error ReadMarksOf(int cell, std::string_view text, Marks& marks) {
    for (char character : text) {
        const int digit = DigitOf(character);
        if (digit == 0) {
            return "the marks of " + CellName(cell) + " hold " + Shown(character) +
                   ", which is no digit from 1 to 9";
        }
        if (HasMark(marks, digit)) {
            return "the marks of " + CellName(cell) + " hold " + Shown(character) + " twice";
        }
        marks |= MarkOf(digit);
    }
    return std::nullopt;
}

Error ReadMarks(std::string_view text, MarkTable& table) {
    const std::vector<std::string_view> groups = Split(text, ',');
    if (groups.size() != kCells) {
        return WrongCount("marks", groups.size(), "group");
    }
    for (std::size_t at = 0; at < kCells; ++at) {
        if (Error error = ReadMarksOf(static_cast<int>(at), groups[at], table[at])) {
            return error;
        }
    }
    return std::nullopt;
}

Error ReadFields(std::string_view line, Fields& fields) {
    const std::vector<std::string_view> parts = Split(TrimLine(line), '\t');
    if (Error error = ReadDigits("grid", parts[0], fields.grid)) {
        return error;
    }
    if (parts.size() > kMostFields) {
        return "the line has " + std::to_string(parts.size()) + " fields, but a position has " +
               std::to_string(kMostFields) + " at most: grid, marks, givens";
    }
    if (parts.size() > 1 && !parts[1].empty()) {
        if (Error error = ReadMarks(parts[1], fields.marks.emplace())) {
            return error;
        }
    }
    if (parts.size() > 2 && !parts[2].empty()) {
        return ReadDigits("givens", parts[2], fields.givens.emplace());
    }
    return std::nullopt;
}

// What is wrong between the fields of any line, clashing digits aside.
Error Disagreement(const Fields& fields) {
    for (std::size_t at = 0; at < kCells; ++at) {
        const int given = fields.givens ? (*fields.givens)[at] : 0;
        if (given != 0 && given != fields.grid[at]) {
            return "the given " + std::to_string(given) + " of " + CellName(static_cast<int>(at)) +
                   " is not in the grid";
        }
        if (fields.marks && fields.grid[at] != 0 && (*fields.marks)[at] != 0) {
            return "the filled cell " + CellName(static_cast<int>(at)) + " has marks";
        }
    }
    return std::nullopt;
}

Error Clash(const Digits& digits) {
    for (const Unit& unit : kUnits) {
        std::array<int, kDigits + 1> holder;
        holder.fill(-1);
        for (int cell : unit.cells) {
            const std::size_t digit = digits[static_cast<std::size_t>(cell)];
            if (digit != 0 && holder[digit] >= 0) {
                return "the digit " + std::to_string(digit) + " stands twice" + UnitInHint(unit) +
                       ", at " + CellName(holder[digit]) + " and " + CellName(cell);
            }
            holder[digit] = cell;
        }
    }
    return std::nullopt;
}

CellSet FilledCells(const Digits& digits) {
    CellSet filled;
    for (int cell = 0; cell < kCells; ++cell) {
        if (digits[static_cast<std::size_t>(cell)] != 0) {
            filled.Add(cell);
        }
    }
    return filled;
}

// Leaves the grid the listed marks alone.
Error SetMarks(Grid& grid, const MarkTable& table) {
    for (int cell : grid.EmptyCells()) {
        const Marks listed = table[static_cast<std::size_t>(cell)];
        const Marks legal = grid.MarksAt(cell);
        if (const Marks wrong = listed & ~legal; wrong != 0) {
            return "the mark " + std::to_string(FirstDigit(wrong)) + " of " + CellName(cell) +
                   " cannot be: the digit stands in the same row, column or block";
        }
        for (int digit : DigitsOf(legal & ~listed)) {
            grid.VerwijderKnop(cell, digit);
        }
    }
    return std::nullopt;
}

Error MakeGrid(const Fields& fields, Grid& grid) {
    if (Error error = Clash(fields.grid)) {
        return error;
    }
    grid = Grid::FromClues(fields.grid);
    if (fields.givens) {
        grid.SetGivens(FilledCells(*fields.givens));
    }
    return fields.marks ? SetMarks(grid, *fields.marks) : std::nullopt;
}

std::string WriteMarks(const Grid& grid) {
    std::string text;
    for (int cell = 0; cell < kCells; ++cell) {
        if (cell > 0) {
            text += ',';
        }
        for (int digit : DigitsOf(grid.MarksAt(cell))) {
            text += std::to_string(digit);
        }
    }
    return text;
}

}  // namespace

std::string_view WithoutByteOrderMark(std::string_view text) {
    return text.starts_with(kByteOrderMark) ? text.substr(kByteOrderMark.size()) : text;
}

std::string_view TrimLine(std::string_view line) {
    line = WithoutByteOrderMark(line);
    // A TAB is no blank: behind it stands a field, though an empty one.
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    line.remove_suffix(line.size() - (line.find_last_not_of(" \r") + 1));
    return line;
}

bool IsBlankOrComment(std::string_view line) {
    const std::string_view text = TrimLine(line);
    return text.find_first_not_of('\t') == text.npos || text.front() == '#';
}

PositionLine ReadPositionLine(std::string_view line) {
    Fields fields;
    PositionLine result;
    Error error = ReadFields(line, fields);
    if (!error) {
        error = Disagreement(fields);
    }
    if (!error) {
        error = MakeGrid(fields, result.grid);
    }
    result.error = error.value_or("");
    return result;
}

PuzzleLine ReadPuzzleLine(std::string_view line) {
    Fields fields;
    Error error = ReadFields(line, fields);
    if (!error) {
        error = Disagreement(fields);
    }
    return {fields.givens.value_or(fields.grid), error.value_or("")};
}

std::string WriteGrid81(const Digits& digits) {
    std::string text;
    text.reserve(kCells);
    for (int digit : digits) {
        text += digit == 0 ? '.' : static_cast<char>('0' + digit);
    }
    return text;
}

std::string WritePositionLine(const Grid& grid) {
    Digits givens{};
    for (int cell : grid.Givens()) {
        givens[static_cast<std::size_t>(cell)] = static_cast<std::uint8_t>(grid.Digit(cell));
    }
    return WriteGrid81(grid.AllDigits()) + '\t' + WriteMarks(grid) + '\t' + WriteGrid81(givens);
}

}  // namespace vemo
