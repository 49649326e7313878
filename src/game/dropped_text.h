// The text file that a player drops on the box for a puzzle of one's own.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/files.h"

namespace vemo {

// No more bytes than these are read from a file, and kept of a text: much more than any sudoku has,
// and little enough to be typed into without a wait.
inline constexpr std::size_t kMostOfFile = 1 << 20;
inline constexpr std::size_t kMostText = 1 << 15;

struct DroppedText {
    std::string text;   // UTF-8, without a byte-order mark
    std::string error;  // what is wrong with the drop; empty: there is a text
};

// `paths`: what was dropped, at least one. Only a single plain text file (*.txt) is read.
DroppedText ReadDroppedText(Files& files, const std::vector<std::filesystem::path>& paths);

}  // namespace vemo
