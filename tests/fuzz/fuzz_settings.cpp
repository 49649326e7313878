// Any text as the player's settings: every value that is read is a possible one, and what was read
// is read again after it was written.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "game/options.h"
#include "model/levels.h"
#include "platform/memory_settings.h"
#include "solver/settings.h"
#include "target.h"

namespace vemo {
namespace {

constexpr std::uint32_t kMostColor = 0xFFFFFF;

// Lines like "Options/Wells=True"; others are passed over.
MemorySettings StoreOf(std::string_view text) {
    MemorySettings store;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        const std::size_t slash = line.find('/');
        const std::size_t equals = line.find('=', slash);
        if (slash != line.npos && equals != line.npos) {
            store.Save(line.substr(0, slash), line.substr(slash + 1, equals - slash - 1),
                       line.substr(equals + 1));
        }
    }
    return store;
}

void RequireColors(const ColorSet& read, const ColorSet& again) {
    for (const std::uint32_t color : read.brush) {
        Require(color <= kMostColor, "a color has three bytes");
    }
    Require(
        read.brush == again.brush && read.brushText == again.brushText && read.hint == again.hint,
        "colors read as they were written");
}

void RequireTechniques(const TechniqueSettings& techniques) {
    Require(IsValidOrder(techniques.order), "an order is valid");
    for (std::size_t slot = 0; slot < kFirstMovableSlot; ++slot) {
        Require(techniques.onOff[slot], "what cannot be switched off is on");
    }
}

}  // namespace

void Check(std::span<const std::uint8_t> input) {
    const std::string_view text = TextOf(input);
    MemorySettings store = StoreOf(text);
    const Options options = HaalOpties(store);
    const Colors colors = HaalKleuren(store);
    const TechniqueSettings techniques = ReadTechniqueSettings(store);
    const int level = HaalLaatsteLevel(store);
    Require(options.appearance <= Appearance::Dark, "an appearance is one of three");
    Require(level >= 0 && level <= kLevels, "a level is one of nine, or none");
    RequireTechniques(techniques);

    SchrijfOpties(store, options);
    SchrijfKleuren(store, colors);
    WriteTechniqueSettings(store, techniques);
    const Options again = HaalOpties(store);
    Require(again.appearance == options.appearance && again.wells == options.wells &&
                again.timeOn == options.timeOn && again.logfiles == options.logfiles,
            "options read as they were written");
    RequireColors(colors.light, HaalKleuren(store).light);
    RequireColors(colors.dark, HaalKleuren(store).dark);
    Require(ReadTechniqueSettings(store) == techniques, "techniques read as they were written");
}

}  // namespace vemo
