// How many threads long work takes.
#include "tools/threads.h"

#include <algorithm>
#include <system_error>

namespace vemo {

int DefaultThreads() {
    return std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, kMostThreads);
}

std::vector<std::jthread> StartThreads(int most, const std::function<void()>& run) {
    std::vector<std::jthread> threads;
    try {
        while (static_cast<int>(threads.size()) < most) {
            threads.emplace_back(run);
        }
    } catch (const std::system_error&) {
        // The work is done by those that there are.
    }
    return threads;
}

}  // namespace vemo
