// The entry of the checks: each has a Main of its own.
#pragma once

#include <string>
#include <vector>

namespace vemo {

// Takes the words behind the program's name, answers the exit code.
int Main(const std::vector<std::string>& words);

}  // namespace vemo
