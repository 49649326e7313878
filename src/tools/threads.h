// How many threads long work takes.
#pragma once

#include <functional>
#include <thread>
#include <vector>

namespace vemo {

inline constexpr int kMostThreads = 64;

// One for each processor core.
int DefaultThreads();

// Threads that run this: so many, or as many as the system has left, perhaps none.
std::vector<std::jthread> StartThreads(int most, const std::function<void()>& run);

}  // namespace vemo
