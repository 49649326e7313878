// A list of puzzles, taken line by line from a file or from standard input.
#pragma once

#include <array>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "cli/commands.h"

namespace vemo {

struct Line {
    long number = 0;  // from 1
    std::string text;
    bool isTooLong = false;  // for a position: it is cut off
};
using Lines = std::vector<Line>;

// A position with all its marks has 973 characters. No line is held that is longer.
inline constexpr std::size_t kLongestLine = 4096;

class LineSource {
  public:
    // The file that the name stands for, "-" for standard input.
    LineSource(const std::string& name, Streams& streams);

    // With a message where it could not be opened.
    bool IsOpen();
    // The number of threads that --threads asks for; else one a core for a file, and one where
    // whoever writes the lines may wait for an answer before the next.
    std::optional<int> Threads(const Arguments& arguments, std::string& error) const;

    // The next lines that are neither blank nor comments: one, or as many up to `most` as are there
    // without waiting. Nothing at the end, at an interrupt, and where it cannot be read on.
    std::optional<Lines> Next(std::size_t most);

    // Whether all was read, with a message where it was not.
    bool IsFine();

  private:
    bool ReadLine(Line& line);

    std::string name_;
    Streams& streams_;
    std::ifstream file_;
    std::istream& in_;
    std::array<char, kLongestLine + 1> buffer_;
    long number_ = 0;
};

}  // namespace vemo
