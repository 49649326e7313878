// The one loop over a list of puzzles that all reading commands share.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "cli/commands.h"
#include "cli/resume.h"

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

// Whether answers may be made by several threads, as --threads says; else each is made by the
// caller's, in the order of the lines.
enum class Working : std::uint8_t { AtOnce, InTurn };

// What some commands have beside their answers.
struct LoopExtras {
    // Written around the answers: of a list that could be opened, be it empty or cut short.
    std::string_view header{};
    std::string_view footer{};
    // For --resume: all that the row of this line, which is a puzzle, may begin with.
    std::function<RowBeginnings(const InputLine&)> rowBeginnings{};
};

// Reads the file that the operand names, "-" for standard input, and gives the answers to its lines
// in order, blank lines and comments left out. An interrupt ends the run between two lines. With
// one thread each answer is flushed before the next line is read; with more, lines are read ahead.
// No line is held that is longer than a position can be.
CommandResult AnswerEachLine(const Arguments& arguments, Streams& streams, Working working,
                             const std::function<Answer(const InputLine&)>& answer,
                             const LoopExtras& extras = {});

}  // namespace vemo
