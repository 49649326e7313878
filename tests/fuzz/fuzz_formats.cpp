// Any bytes as a pasted text: what is recognised is a grid that is recognised again in the plain
// layouts, and the reading by position takes every character for one cell.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "target.h"
#include "tools/formats.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

void RequireReadable(const Digits& clues) {
    const std::string line = WriteGrid81(clues);
    Require(ReadByPosition(line) == clues, "a line is read by position");
    const auto again = RecognizePuzzle(line);
    Require(again && again->format == TextFormat::Line && again->clues == clues,
            "a line is recognised");
    std::string rows;
    for (std::size_t row = 0; row < 9; ++row) {
        rows += line.substr(9 * row, 9) + "\r\n";
    }
    const auto inRows = RecognizePuzzle(rows);
    Require(inRows && inRows->format == TextFormat::Rows && inRows->clues == clues,
            "nine lines are recognised");
}

}  // namespace

void Check(std::span<const std::uint8_t> input) {
    std::string_view text = TextOf(input);
    RequireReadable(ReadByPosition(text));
    if (const auto puzzle = RecognizePuzzle(text)) {
        RequireReadable(puzzle->clues);
    }
    while (!text.empty()) {
        const std::size_t length = FirstCharacterLength(text);
        Require(length >= 1 && length <= text.size(), "a character lies within its text");
        text.remove_prefix(length);
    }
}

}  // namespace vemo
