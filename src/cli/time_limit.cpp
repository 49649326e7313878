// Giving up a puzzle that takes too long.
#include "cli/time_limit.h"

#include <charconv>
#include <chrono>

namespace vemo {

std::string ReadTimeLimit(const Arguments& arguments, double& seconds) {
    constexpr double kLeast = 0.001;
    constexpr double kDay = 86'400;
    const auto text = arguments.ValueOf(kTimeoutOption.name);
    if (!text) {
        return "";
    }
    const char* const behind = text->data() + text->size();
    const auto [end, error] = std::from_chars(text->data(), behind, seconds);
    const bool isTime =
        error == std::errc() && end == behind && seconds >= kLeast && seconds <= kDay;
    return isTime ? "" : "--timeout is a number of seconds, such as 2.5: " + std::string(*text);
}

std::function<bool()> TimeLeft(double seconds) {
    using Clock = std::chrono::steady_clock;
    if (seconds == 0) {
        return {};
    }
    const auto limit =
        std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
    return [end = Clock::now() + limit] { return Clock::now() < end; };
}

}  // namespace vemo
