// The player's technique settings.
#include "solver/settings.h"

#include <algorithm>
#include <string>

namespace vemo {
namespace {

constexpr std::string_view kSection = "Technique";
constexpr int kLastCheckSlot = 2;

std::string KeyOf(std::string_view name, int slot) {
    return std::string(name) + std::to_string(slot);
}

bool IsFixed(int slot) {
    return slot < kFirstMovableSlot || slot > kLastMovableSlot;
}

}  // namespace

bool IsValidOrder(const std::array<int, kSlots>& order) {
    std::array<bool, kSlots> taken{};
    for (int slot = 0; slot < kSlots; ++slot) {
        const int position = order[static_cast<std::size_t>(slot)];
        if (position < 0 || position >= kSlots || taken[static_cast<std::size_t>(position)] ||
            (IsFixed(slot) && position != slot)) {
            return false;
        }
        taken[static_cast<std::size_t>(position)] = true;
    }
    return true;
}

TechniqueSettings::TechniqueSettings() {
    for (int slot = 0; slot < kSlots; ++slot) {
        const std::size_t at = static_cast<std::size_t>(slot);
        onOff[at] = true;
        halt[at] = slot <= kLastCheckSlot;
        order[at] = slot;
    }
}

int TechniqueSettings::SlotAt(int position) const {
    return static_cast<int>(std::ranges::find(order, position) - order.begin());
}

TechniqueSettings ReadTechniqueSettings(SettingsStore& store) {
    TechniqueSettings settings;
    for (int slot = 0; slot < kSlots; ++slot) {
        const std::size_t at = static_cast<std::size_t>(slot);
        settings.onOff[at] =
            slot < kFirstMovableSlot || ReadNumber(store, kSection, KeyOf("OnOff", slot), 1) != 0;
        settings.halt[at] =
            slot <= kLastCheckSlot || ReadNumber(store, kSection, KeyOf("Halt", slot), 0) != 0;
        const std::int64_t position = ReadNumber(store, kSection, KeyOf("Order", slot), slot);
        settings.order[at] = static_cast<int>(std::clamp<std::int64_t>(position, -1, kSlots));
    }
    if (!IsValidOrder(settings.order)) {
        settings.order = TechniqueSettings().order;
    }
    return settings;
}

void WriteTechniqueSettings(SettingsStore& store, const TechniqueSettings& settings) {
    for (int slot = 0; slot < kSlots; ++slot) {
        const std::size_t at = static_cast<std::size_t>(slot);
        store.Save(kSection, KeyOf("OnOff", slot), settings.onOff[at] ? "1" : "0");
        store.Save(kSection, KeyOf("Halt", slot), settings.halt[at] ? "1" : "0");
        store.Save(kSection, KeyOf("Order", slot), std::to_string(settings.order[at]));
    }
}

}  // namespace vemo
