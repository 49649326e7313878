// Lists of levels with a number of puzzles each, as options and reports have them.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "model/levels.h"

namespace vemo {

using LevelCounts = std::array<int, kLevels + 1>;  // by level; at 0 nothing

inline constexpr std::string_view kLevelCountsNotes =
    "LIST names levels, each with a number of puzzles: Easy:100,Outlaw:5 or 1:100,9:5.\n";

struct ReadLevelCounts {
    LevelCounts counts{};
    std::string error;  // names the offending word
};
ReadLevelCounts ParseLevelCounts(std::string_view list);

}  // namespace vemo
