// The text file that a player drops on the box for a puzzle of one's own.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/files.h"

namespace vemo {

// No more bytes than these are read from a file or kept of a text.
inline constexpr std::size_t kMostText = 1 << 20;

struct DroppedText {
    std::string text;   // UTF-8, without a byte-order mark
    std::string error;  // what is wrong with the drop; empty: there is a text
};

// `paths`: what was dropped, at least one. Only a single plain text file (*.txt) is read.
DroppedText ReadDroppedText(Files& files, const std::vector<std::filesystem::path>& paths);

}  // namespace vemo
