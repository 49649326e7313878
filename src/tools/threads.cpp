// How many threads long work takes.
#include "tools/threads.h"

#include <algorithm>
#include <thread>

namespace vemo {

int DefaultThreads() {
    return std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, kMostThreads);
}

}  // namespace vemo
