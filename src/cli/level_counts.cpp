// Reading lists of levels.
#include "cli/level_counts.h"

#include <algorithm>

#include "cli/options.h"
#include "tools/generator.h"

namespace vemo {

ReadLevelCounts ParseLevelCounts(std::string_view list) {
    ReadLevelCounts read;
    while (read.error.empty()) {
        const std::string_view item = list.substr(0, list.find(','));
        const std::size_t colon = std::min(item.find(':'), item.size());
        const int level = LevelNamed(item.substr(0, colon));
        const std::string_view digits = item.substr(std::min(colon + 1, item.size()));
        const auto count = WholeNumber(digits, 0, kMostWanted);
        if (level == 0 || !count) {
            read.error = "no level with a number of puzzles: " + std::string(item);
            break;
        }
        read.counts[static_cast<std::size_t>(level)] = static_cast<int>(*count);
        if (item.size() == list.size()) {
            break;
        }
        list.remove_prefix(item.size() + 1);
    }
    return read;
}

}  // namespace vemo
