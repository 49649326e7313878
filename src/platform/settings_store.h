// The per-user settings store: strings by section and key.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vemo {

// The application name under which the store keeps its settings, and the data folder its files.
inline constexpr std::string_view kApplicationName = "VemoSud2";

class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    // The stored text; `fallback` where the key is missing.
    virtual std::string Get(std::string_view section, std::string_view key,
                            std::string_view fallback) = 0;
    virtual void Save(std::string_view section, std::string_view key, std::string_view value) = 0;

    // What was saved so far survives a crash of the program from here on.
    virtual void Flush() = 0;
};

// The number that a stored text stands for; `fallback` where it is no whole decimal number.
std::int64_t ReadNumber(SettingsStore& store, std::string_view section, std::string_view key,
                        std::int64_t fallback);

}  // namespace vemo
