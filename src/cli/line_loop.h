// The one loop over a list of puzzles that all reading commands share.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "cli/options.h"
#include "cli/streams.h"

namespace vemo {

struct InputLine {
    long number;  // from 1
    std::string_view text;
};

// What a command has to say to a line. It depends on nothing but the line.
struct Answer {
    std::string text;       // the result, with its line ends
    std::string message{};  // told with the line's number; empty: none
    bool isFaulty = false;  // no puzzle, or one without exactly one solution
};

// The answer to a line that is no puzzle.
inline Answer Refusal(std::string error) {
    return {"", std::move(error), true};
}

// Reads the file that the operand names, "-" for standard input, and answers its lines in order,
// blank lines and comments left out. Each answer is flushed before the next line is read. No line
// is held that is longer than a position can be.
ExitCode AnswerEachLine(const Arguments& arguments, Streams& streams,
                        const std::function<Answer(const InputLine&)>& answer);

}  // namespace vemo
