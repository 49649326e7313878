// What the program tells of itself: all of it is made from the descriptions of the commands.
#pragma once

#include <string>

#include "cli/commands.h"

namespace vemo {

std::string ProgramHelp();
std::string CommandHelp(const Command& command);

// The manual page, in the macros of man(7).
std::string ManPage();

// A script that completes commands and options in bash.
std::string BashCompletion();

}  // namespace vemo
