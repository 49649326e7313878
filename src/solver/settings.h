// The player's technique settings: which take part, which halt autosolve, in which order.
#pragma once

#include <array>

#include "platform/settings_store.h"
#include "solver/catalogue.h"

namespace vemo {

struct TechniqueSettings {
    // By slot. The defaults: all on, only the three checks halt, the order of the catalogue.
    std::array<bool, kSlots> onOff;
    std::array<bool, kSlots> halt;
    std::array<int, kSlots> order;  // the position, 0..39, of each slot

    TechniqueSettings();

    // The slot at a position of the solving order.
    int SlotAt(int position) const;

    bool operator==(const TechniqueSettings&) const = default;
};

// The forty positions are a permutation that leaves slots 0..7 and 39 in their places.
bool IsValidOrder(const std::array<int, kSlots>& order);

// Slots 0..7 are always on and slots 0..2 always halt, whatever is stored. Where the
// stored order is not valid the whole order is the default one.
TechniqueSettings ReadTechniqueSettings(SettingsStore& store);
void WriteTechniqueSettings(SettingsStore& store, const TechniqueSettings& settings);

}  // namespace vemo
