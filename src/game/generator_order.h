// What a player orders from the generator, as entered in its window and kept in the settings.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/settings_store.h"
#include "tools/generator.h"

namespace vemo {

enum class ClueChoice : std::uint8_t { SuitsTheLevel, FromTo };

struct GeneratorOrder {
    std::array<int, kLevels> wanted{};  // by level, from level 1
    Symmetry symmetry = Symmetry::None;
    ClueChoice clues = ClueChoice::SuitsTheLevel;
    int fewestClues = kFewestClues;
    int mostClues = 30;
    Minimality minimality = Minimality::Any;
    int neededSlot = kNoSlot;
    std::string seed;  // as entered; empty: a fresh one for each search
    std::int64_t mostTries = GeneratorSettings().mostTries;
    int mostMinutes = 0;  // 0: as long as it takes

    int Wanted() const;  // of all levels
    bool operator==(const GeneratorOrder&) const = default;
};

inline constexpr int kMostMinutes = 7 * 24 * 60;

// What keeps the search from starting, as a sentence to the player; empty where all is well.
std::string OrderError(const GeneratorOrder& order);
// Of an order without an error; `freshSeed` counts where none was entered.
GeneratorSettings SettingsOf(const GeneratorOrder& order, std::uint64_t freshSeed);

// A missing or impossible setting reads as its default.
GeneratorOrder ReadGeneratorOrder(SettingsStore& store);
void WriteGeneratorOrder(SettingsStore& store, const GeneratorOrder& order);

}  // namespace vemo
