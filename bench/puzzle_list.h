// Puzzle lists for measurements and long checks.
#pragma once

#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "tools/puzzle_line.h"

namespace vemo {

// The puzzles of a list file; nothing, with a message, where it cannot be read or a line is none.
inline std::optional<std::vector<Digits>> ReadPuzzleList(const std::string& name) {
    std::vector<Digits> puzzles;
    std::ifstream file(name);
    if (!file) {
        std::cerr << name << " cannot be opened\n";
        return std::nullopt;
    }
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        ++number;
        if (IsBlankOrComment(line)) {
            continue;
        }
        const PuzzleLine read = ReadPuzzleLine(line);
        if (!read.IsPuzzle()) {
            std::cerr << name << ", line " << number << ": " << read.error << '\n';
            return std::nullopt;
        }
        puzzles.push_back(read.clues);
    }
    if (file.bad()) {
        std::cerr << name << " cannot be read\n";
        return std::nullopt;
    }
    return puzzles;
}

}  // namespace vemo
