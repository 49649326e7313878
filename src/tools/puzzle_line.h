// Puzzles and positions as lines of text: `grid81`, optionally TAB and the marks, optionally TAB
// and the givens.
//
// grid81  81 characters, row by row: a digit 1 to 9, or for an empty cell one of . 0 * _ - x X.
// marks   81 comma-separated groups of the digits still possible, empty for a filled cell. An empty
//         or missing field: they follow from the grid.
// givens  like grid81. An empty or missing field: every filled cell is given.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "model/grid.h"

namespace vemo {

// 1 to 9; 0 for any other character.
constexpr std::uint8_t DigitOf(char character) {
    return character >= '1' && character <= '9' ? static_cast<std::uint8_t>(character - '0')
                                                : std::uint8_t{0};
}

// By character: is it a digit, or one for an empty cell?
inline constexpr std::array<bool, 256> kIsCell = [] {
    std::array<bool, 256> table{};
    for (char character : std::string_view("123456789.0*_-xX")) {
        table[static_cast<unsigned char>(character)] = true;
    }
    return table;
}();
constexpr bool IsCell(char character) {
    return kIsCell[static_cast<unsigned char>(character)];
}

// The text without a UTF-8 byte-order mark in front.
std::string_view WithoutByteOrderMark(std::string_view text);

// The line without what its neighbours in a file may leave on it: a UTF-8 byte-order mark in
// front, blanks around it, a carriage return behind it.
std::string_view TrimLine(std::string_view line);

// Nothing but blanks, or a comment: such a line of a list is passed over.
bool IsBlankOrComment(std::string_view line);

struct PositionLine {
    Grid grid;
    std::string error;  // what is wrong and where; empty: the line is a position

    bool IsPosition() const { return error.empty(); }
};

// A position to go on from. Two equal digits in a unit are an error, and so is a mark that a digit
// of the grid rules out.
PositionLine ReadPositionLine(std::string_view line);

struct PuzzleLine {
    Digits clues{};
    std::string error;

    bool IsPuzzle() const { return error.empty(); }
};

// The puzzle that a position belongs to: its givens. Clues that clash are no error here, but a
// puzzle without a solution.
PuzzleLine ReadPuzzleLine(std::string_view line);

// 81 characters, "." for an empty cell.
std::string WriteGrid81(const Digits& digits);

// All three fields; reading the line gives an equal grid. A grid whose digits clash, or with a mark
// that they rule out, has no such line.
std::string WritePositionLine(const Grid& grid);

}  // namespace vemo
