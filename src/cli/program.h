// The program vemosud: the way from the words on the command line to a command, and its help.
#pragma once

#include <span>
#include <string>

#include "cli/streams.h"

namespace vemo {

// Runs the program on the words behind its name.
ExitCode RunProgram(std::span<const std::string> words, Streams& streams);

}  // namespace vemo
