// A settings store that lives and dies with the program.
#include "platform/memory_settings.h"

namespace vemo {
namespace {

std::string PathOf(std::string_view section, std::string_view key) {
    return std::string(section) + "/" + std::string(key);
}

}  // namespace

std::string MemorySettings::Get(std::string_view section, std::string_view key,
                                std::string_view fallback) {
    const auto found = values_.find(PathOf(section, key));
    return found == values_.end() ? std::string(fallback) : found->second;
}

void MemorySettings::Save(std::string_view section, std::string_view key, std::string_view value) {
    values_[PathOf(section, key)] = value;
}

}  // namespace vemo
