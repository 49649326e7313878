// Playing times in minutes and seconds, as records keep them and as they are shown.
#pragma once

#include <cstdint>
#include <string>

namespace vemo {

struct PlayTime {
    int minutes = 0;
    int seconds = 0;

    // 0:00 stands for "no time".
    bool IsNone() const { return minutes == 0 && seconds == 0; }
    int InSeconds() const { return 60 * minutes + seconds; }
    bool operator==(const PlayTime&) const = default;
};

constexpr PlayTime TimeOfSeconds(int seconds) {
    return {seconds / 60, seconds % 60};
}

// "mm:ss". Kept: minutes above 99 lose their hundreds, so 125:00 shows as "25:00".
std::string FormatTime(PlayTime time);

// (totalMinutes * 60 + totalSeconds) / count, rounded to nearest, halves to even. 0:00 for no
// count.
PlayTime AverageTime(std::int64_t totalMinutes, std::int64_t totalSeconds, std::int64_t count);

}  // namespace vemo
