// The nine levels.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace vemo {

// A level is 1..9; 0 stands for "none yet".
inline constexpr int kLevels = 9;
inline constexpr int kOutlaw = 9;

// The levels on which the simple display and the simple hints can be chosen.
inline constexpr int kLastSimpleLevel = 3;

inline constexpr std::array<std::string_view, kLevels> kLevelNames = {
    "Easy", "Medium", "Hard", "Crazy", "Insane", "Kamikaze", "Extreme", "Mayhem", "Outlaw"};

constexpr bool IsLevel(std::int64_t level) {
    return level >= 1 && level <= kLevels;
}
constexpr std::string_view LevelName(int level) {
    return kLevelNames[static_cast<std::size_t>(level - 1)];
}

// The level of this name, in any letters, or of this number; 0 where there is none.
constexpr int LevelNamed(std::string_view word) {
    const auto small = [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    };
    for (int level = 1; level <= kLevels; ++level) {
        const bool isNumber = word.size() == 1 && word.front() == '0' + level;
        if (isNumber || std::ranges::equal(word, LevelName(level), {}, small, small)) {
            return level;
        }
    }
    return 0;
}

}  // namespace vemo
