// The per-user settings store.
#include "platform/settings_store.h"

#include <charconv>

namespace vemo {

long ReadNumber(SettingsStore& store, std::string_view section, std::string_view key,
                long fallback) {
    const std::string text = store.Get(section, key, "");
    long number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? number : fallback;
}

}  // namespace vemo
