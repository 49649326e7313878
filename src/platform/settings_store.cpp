// The per-user settings store.
#include "platform/settings_store.h"

#include <charconv>

namespace vemo {

std::int64_t ReadNumber(SettingsStore& store, std::string_view section, std::string_view key,
                        std::int64_t fallback) {
    const std::string text = store.Get(section, key, "");
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? number : fallback;
}

}  // namespace vemo
