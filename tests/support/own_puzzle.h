// A puzzle as a player makes it: typed in one line, or pasted in nine.
#pragma once

#include <string>

namespace vemo::test {

// Yields to singles alone.
inline const std::string kEasy =
    "53..7....6..195....98....6.8...6...34..8.3..17...2...6.6....28....419..5....8..79";

inline std::string InNineLines(const std::string& line) {
    std::string text;
    for (std::size_t row = 0; row < 9; ++row) {
        text += line.substr(9 * row, 9) + "\n";
    }
    return text;
}

// The question whether to read a text in nine lines as the grid of kEasy.
inline const std::string kReadRows =
    "This text looks like a grid of nine lines. Read these clues from it ?\n\n"
    "5 3 \u2012   \u2012 7 \u2012   \u2012 \u2012 \u2012\n"
    "6 \u2012 \u2012   1 9 5   \u2012 \u2012 \u2012\n"
    "\u2012 9 8   \u2012 \u2012 \u2012   \u2012 6 \u2012\n\n"
    "8 \u2012 \u2012   \u2012 6 \u2012   \u2012 \u2012 3\n"
    "4 \u2012 \u2012   8 \u2012 3   \u2012 \u2012 1\n"
    "7 \u2012 \u2012   \u2012 2 \u2012   \u2012 \u2012 6\n\n"
    "\u2012 6 \u2012   \u2012 \u2012 \u2012   2 8 \u2012\n"
    "\u2012 \u2012 \u2012   4 1 9   \u2012 \u2012 5\n"
    "\u2012 \u2012 \u2012   \u2012 8 \u2012   \u2012 7 9\n\n"
    "[No] reads it as one line of 81 characters, line breaks included.";

}  // namespace vemo::test
