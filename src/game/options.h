// The player's options and colours, as the settings store keeps them.
#pragma once

#include <array>
#include <cstdint>

#include "platform/settings_store.h"

namespace vemo {

enum class Appearance : std::uint8_t { AsTheSystem, Light, Dark };

inline constexpr int kVersionMain = 2;
inline constexpr int kVersionSub = 6;

struct Options {
    bool dimmed = false;          // "Dimmed Pencilmarks"
    bool pencilmarksOff = false;  // "Pencilmarks off in first 3 levels"
    bool pencilmarks = true;      // "Auto Pencilmarks": the mode is "On" or "Off"
    bool wells = true;
    bool sounds = false;
    bool hintWindow = false;
    bool timeOn = true;
    bool logfiles = false;  // the progress files were made
    Appearance appearance = Appearance::AsTheSystem;
};

// Colours as 0xRRGGBB, for a light and a dark palette.
inline constexpr int kBrushColors = 10;
inline constexpr int kHintColors = 8;

enum class HintColor : std::uint8_t {
    HintCell,
    Attacked,
    Pattern,
    SecondPattern,
    StrongLink,
    WeakLink,
    UnitTint,
    Placed,
};

struct ColorSet {
    std::array<std::uint32_t, kBrushColors> brush;      // BColor
    std::array<std::uint32_t, kBrushColors> brushText;  // FColor
    std::array<std::uint32_t, kHintColors> hint;        // HColor, by HintColor

    std::uint32_t Hint(HintColor color) const { return hint[static_cast<std::size_t>(color)]; }
    bool operator==(const ColorSet&) const = default;
};

enum class Tone : std::uint8_t { Light, Dark };

struct Colors {
    ColorSet light;
    ColorSet dark;

    const ColorSet& Of(Tone tone) const { return tone == Tone::Dark ? dark : light; }
    ColorSet& Of(Tone tone) { return tone == Tone::Dark ? dark : light; }
    bool operator==(const Colors&) const = default;
};
Colors BuiltInColors();

// A missing or malformed setting reads as its default.
Options HaalOpties(SettingsStore& store);
Colors HaalKleuren(SettingsStore& store);
// Each writes its whole section and flushes the store.
void SchrijfOpties(SettingsStore& store, const Options& options);
void SchrijfKleuren(SettingsStore& store, const Colors& colors);
void SchrijfVersie(SettingsStore& store);
void SchrijfOptieSudLog(SettingsStore& store);

// The level chosen last, 1..9; 0 for none or an impossible one.
int HaalLaatsteLevel(SettingsStore& store);
void SaveLastLevel(SettingsStore& store, int level);

}  // namespace vemo
