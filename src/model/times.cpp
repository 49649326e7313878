// Playing times.
#include "model/times.h"

namespace vemo {
namespace {

std::string TwoDigits(int number) {
    const std::string text = std::to_string(100 + number);
    return text.substr(text.size() - 2);
}

}  // namespace

std::string FormatTime(PlayTime time) {
    return TwoDigits(time.minutes) + ":" + TwoDigits(time.seconds);
}

PlayTime AverageTime(std::int64_t totalMinutes, std::int64_t totalSeconds, std::int64_t count) {
    if (count < 1) {
        return {};
    }
    const std::int64_t total = totalMinutes * 60 + totalSeconds;
    std::int64_t average = total / count;
    const std::int64_t twiceRest = 2 * (total % count);
    if (twiceRest > count || (twiceRest == count && average % 2 != 0)) {
        ++average;
    }
    return {static_cast<int>(average / 60), static_cast<int>(average % 60)};
}

}  // namespace vemo
