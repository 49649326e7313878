// One piece of a file of puzzles, as every reader gives it.
#pragma once

#include <cstdint>
#include <string>

#include "model/grid.h"

namespace vemo {

// One puzzle of a file, or a piece of it that is none.
struct ReadPiece {
    Grid grid;              // clues as givens; further digits and pencil marks where it has them
    std::string error;      // why it was rejected; empty: a puzzle
    std::int64_t line = 0;  // where it begins, from 1; in a binary file the record's number

    bool IsPuzzle() const { return error.empty(); }
    // The givens alone.
    Digits Clues() const {
        Digits clues{};
        for (int cell : grid.Givens()) {
            clues[static_cast<std::size_t>(cell)] = static_cast<std::uint8_t>(grid.Digit(cell));
        }
        return clues;
    }
};

}  // namespace vemo
