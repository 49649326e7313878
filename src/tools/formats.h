// The layouts in which other programs, web pages and people write a puzzle as text, told apart by
// their shape alone.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "model/grid.h"

namespace vemo {

enum class TextFormat : std::uint8_t {
    Line,         // 81 characters in one line, as puzzle_line.h reads them
    Rows,         // nine lines of nine cells, with or without borders and separators
    PencilMarks,  // nine lines of nine groups of digits: what each cell can still be
};

struct RecognizedPuzzle {
    TextFormat format;
    Digits clues{};
};

// A text longer than this is no single puzzle: it is not looked at.
inline constexpr std::size_t kLongestPuzzleText = 65536;

// Exactly one puzzle, in one of the formats; nothing where the text is anything else, or more.
// Blank lines and lines that begin with '#' count for nothing. An empty cell is one of . 0 * _ - x
// X, a blank where all nine lines are nine characters wide, or nothing between two commas,
// semicolons or tabs. In a grid of pencil marks a single digit is a clue where no peer lists it and
// no 'u' stands before it. Unicode's other blanks, digits and borders count as the plain ones.
// Clues that clash are no fault here.
std::optional<RecognizedPuzzle> RecognizePuzzle(std::string_view text);

// The text's character i is cell i, whatever it stands for: 1 to 9 are clues, every other character
// leaves its cell empty, a line break (CR LF counts once) included. What follows the 81st does not
// count. UTF-8; a byte that belongs to no character is one by itself.
Digits ReadByPosition(std::string_view text);

// The length in bytes of the character that a non-empty text begins with: a UTF-8 sequence, CR LF,
// or one byte.
std::size_t FirstCharacterLength(std::string_view text);

}  // namespace vemo
