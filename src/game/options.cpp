// The player's options and colours in the settings store.
#include "game/options.h"

#include <algorithm>
#include <string>

#include "model/levels.h"

namespace vemo {
namespace {

constexpr std::string_view kOptions = "Options";
constexpr std::string_view kVersion = "Version";
constexpr std::string_view kSudoku = "Sudoku";
constexpr std::string_view kColors = "Colors";
constexpr int kDarkColors = 100;  // added to a color's number for the dark palette
constexpr std::int64_t kMaxColor = 0xFFFFFF;

struct Switch {
    std::string_view key;
    bool Options::*value;
};

constexpr Switch kSwitches[] = {
    {"Dimmed", &Options::dimmed},           {"PencilmarksOff", &Options::pencilmarksOff},
    {"Pencilmarks", &Options::pencilmarks}, {"Wells", &Options::wells},
    {"Sounds", &Options::sounds},           {"HintWindow", &Options::hintWindow},
    {"TimeOn", &Options::timeOn},           {"Logfiles", &Options::logfiles},
};

std::string TextOf(bool value) {
    return value ? "True" : "False";
}

bool ReadBool(SettingsStore& store, std::string_view key, bool fallback) {
    const std::string text = store.Get(kOptions, key, TextOf(fallback));
    return text == "True" || (text != "False" && fallback);
}

// Calls `visit(key, color)` for every colour of a palette.
template <typename Set, typename Visit>
void ForEachColor(Set& set, int offset, Visit visit) {
    const auto visitAll = [&](std::string_view name, auto& colors) {
        for (std::size_t n = 0; n < colors.size(); ++n) {
            visit(std::string(name) + std::to_string(static_cast<int>(n) + offset), colors[n]);
        }
    };
    visitAll("BColor", set.brush);
    visitAll("FColor", set.brushText);
    visitAll("HColor", set.hint);
}

template <typename ColorsType, typename Visit>
void ForEachPalette(ColorsType& colors, Visit visit) {
    ForEachColor(colors.light, 0, visit);
    ForEachColor(colors.dark, kDarkColors, visit);
}

}  // namespace

// The brushes of a palette differ in lightness by about 4 of 100 each, so that they can be told
// apart without colour, and by at least 10 (CIEDE2000) with each kind of colour blindness.
Colors BuiltInColors() {
    constexpr std::uint32_t kInk = 0x17181D;
    constexpr std::uint32_t kChalk = 0xF3F2EE;
    Colors colors;
    colors.light.brush = {0xE6BD71, 0xAEE4D1, 0x889FED, 0xC3768E, 0xD2C8FF,
                          0xE5FFA5, 0xA09A48, 0x997D62, 0xA6AEB6, 0xBFB89F};
    colors.light.brushText.fill(kInk);
    colors.light.hint = {0xFFF0BF, 0xB3261E, 0x1E7F55, 0x6A3FA0,
                         0x1E7F55, 0x5E5D68, 0xF5F3EC, 0x1C5BB8};
    colors.dark.brush = {0xC7B052, 0x05A9BF, 0x184D9D, 0xA63357, 0x6F688D,
                         0x9CA99A, 0x024E3B, 0x612400, 0x7D858C, 0xB38460};
    colors.dark.brushText = {kInk, kInk, kChalk, kChalk, kChalk, kInk, kChalk, kChalk, kInk, kInk};
    colors.dark.hint = {0x4E431C, 0xFF958C, 0x49C992, 0xC9A6FF,
                        0x49C992, 0xB1B0BA, 0x2D2E35, 0x8FBAFF};
    return colors;
}

Options HaalOpties(SettingsStore& store) {
    Options options;
    for (const Switch& row : kSwitches) {
        options.*row.value = ReadBool(store, row.key, options.*row.value);
    }
    const std::int64_t appearance = ReadNumber(store, kOptions, "Appearance", 0);
    if (appearance >= 0 && appearance <= static_cast<std::int64_t>(Appearance::Dark)) {
        options.appearance = static_cast<Appearance>(appearance);
    }
    return options;
}

Colors HaalKleuren(SettingsStore& store) {
    Colors colors = BuiltInColors();
    ForEachPalette(colors, [&](const std::string& key, std::uint32_t& color) {
        const std::int64_t stored = ReadNumber(store, kColors, key, color);
        if (stored >= 0 && stored <= kMaxColor) {
            color = static_cast<std::uint32_t>(stored);
        }
    });
    return colors;
}

void SchrijfOpties(SettingsStore& store, const Options& options) {
    for (const Switch& row : kSwitches) {
        store.Save(kOptions, row.key, TextOf(options.*row.value));
    }
    store.Save(kOptions, "Appearance", std::to_string(static_cast<int>(options.appearance)));
    store.Flush();
}

void SchrijfKleuren(SettingsStore& store, const Colors& colors) {
    ForEachPalette(colors, [&](const std::string& key, std::uint32_t color) {
        store.Save(kColors, key, std::to_string(color));
    });
    store.Flush();
}

void SchrijfVersie(SettingsStore& store) {
    store.Save(kVersion, "Main", std::to_string(kVersionMain));
    store.Save(kVersion, "Sub", std::to_string(kVersionSub));
}

void SchrijfOptieSudLog(SettingsStore& store) {
    store.Save(kOptions, "Logfiles", TextOf(true));
    store.Flush();
}

int HaalLaatsteLevel(SettingsStore& store) {
    const std::int64_t level = ReadNumber(store, kSudoku, "Level", 0);
    return IsLevel(level) ? static_cast<int>(level) : 0;
}

void SaveLastLevel(SettingsStore& store, int level) {
    store.Save(kSudoku, "Level", std::to_string(level));
    store.Flush();
}

}  // namespace vemo
