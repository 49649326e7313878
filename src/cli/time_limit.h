// Giving up a puzzle that takes too long.
#pragma once

#include <functional>

#include "cli/commands.h"

namespace vemo {

inline constexpr Option kTimeoutOption = {"--timeout", "SECONDS",
                                          "give up a puzzle after this, 0.001 or more"};

inline constexpr std::string_view kTimeout = "timeout";  // the result of such a puzzle

// As the option says, 0 where it is not given; answers a message where it is no time.
std::string ReadTimeLimit(const Arguments& arguments, double& seconds);

// Answers whether there is time left, counted from now on; empty where there is no limit.
std::function<bool()> TimeLeft(double seconds);

}  // namespace vemo
