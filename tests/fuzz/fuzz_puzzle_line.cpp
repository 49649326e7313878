// Any bytes as a puzzle line: the reader names a fault, or what it accepts can be written and read
// again.
#include <cstdint>
#include <string>
#include <string_view>

#include "target.h"
#include "tools/puzzle_line.h"

namespace vemo {

void Check(std::span<const std::uint8_t> input) {
    const std::string_view line = TextOf(input);
    const PuzzleLine puzzle = ReadPuzzleLine(line);
    const PositionLine position = ReadPositionLine(line);
    Require(!IsBlankOrComment(line) || !puzzle.IsPuzzle(), "a comment is no puzzle");
    if (puzzle.IsPuzzle()) {
        Require(ReadPuzzleLine(WriteGrid81(puzzle.clues)).clues == puzzle.clues,
                "a written puzzle reads as it was");
    }
    if (!position.IsPosition()) {
        return;
    }
    Require(puzzle.IsPuzzle(), "a position belongs to a puzzle");
    const PositionLine again = ReadPositionLine(WritePositionLine(position.grid));
    Require(again.IsPosition() && again.grid == position.grid,
            "a written position reads as it was");
}

}  // namespace vemo
