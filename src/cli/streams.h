// The standard streams as the commands see them, and the program's exit codes.
#pragma once

#include <istream>
#include <ostream>
#include <string_view>

namespace vemo {

inline constexpr std::string_view kProgram = "vemosud";

enum class ExitCode : int {
    Fine = 0,
    FaultyLine = 1,  // some line was no puzzle, or had no or several solutions
    Usage = 2,
    InputOutput = 3,
    Interrupted = 130,  // by the user; what was finished is written
};

struct Streams {
    std::istream& in;
    std::ostream& out;  // results alone
    std::ostream& err;  // messages and progress
    bool showsProgress = false;
    // Whether the user asked the program to end.
    bool (*isInterrupted)() = [] { return false; };
};

// One message: "vemosud: <text>" on a line of its own.
void Tell(Streams& streams, std::string_view text);

// Writes a result and flushes it. False, with a message, where that failed.
bool WriteResult(Streams& streams, std::string_view text);

// ": No space left on device"; empty where the system gave no reason.
std::string SystemReason();

}  // namespace vemo
