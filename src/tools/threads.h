// How many threads long work takes.
#pragma once

namespace vemo {

inline constexpr int kMostThreads = 64;

// One for each processor core.
int DefaultThreads();

}  // namespace vemo
