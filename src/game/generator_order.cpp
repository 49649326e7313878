// What a player orders from the generator.
#include "game/generator_order.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <numeric>

namespace vemo {
namespace {

constexpr std::string_view kSection = "Generator";

template <typename Number>
std::optional<Number> WholeNumber(const std::string& text) {
    Number number{};
    const char* end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stopped == end ? std::optional(number) : std::nullopt;
}

// The stored number where it lies in the range; otherwise `number` stays as it is.
template <typename Number>
void Read(SettingsStore& store, std::string_view key, Number least, Number most, Number& number) {
    const auto stored = WholeNumber<Number>(store.Get(kSection, key, ""));
    if (stored && *stored >= least && *stored <= most) {
        number = *stored;
    }
}

// Of a choice between two.
template <typename Choice>
void Read(SettingsStore& store, std::string_view key, Choice second, Choice& choice) {
    int number = static_cast<int>(choice);
    Read(store, key, 0, 1, number);
    choice = number == 0 ? Choice{} : second;
}

std::string WantedKey(int level) {
    return "Wanted" + std::to_string(level);
}

}  // namespace

int GeneratorOrder::Wanted() const {
    return std::accumulate(wanted.begin(), wanted.end(), 0);
}

std::string OrderError(const GeneratorOrder& order) {
    if (!order.seed.empty() && !WholeNumber<std::uint64_t>(order.seed)) {
        return "The seed is a whole number from 0 to " +
               std::to_string(std::numeric_limits<std::uint64_t>::max()) + ", or empty.";
    }
    return SettingsError(SettingsOf(order, 0));
}

GeneratorSettings SettingsOf(const GeneratorOrder& order, std::uint64_t freshSeed) {
    GeneratorSettings settings;
    settings.seed = WholeNumber<std::uint64_t>(order.seed).value_or(freshSeed);
    std::ranges::copy(order.wanted, settings.wanted.begin() + 1);
    settings.symmetry = order.symmetry;
    if (order.clues == ClueChoice::FromTo) {
        settings.clues = ClueRange{order.fewestClues, order.mostClues};
    }
    settings.minimality = order.minimality;
    settings.neededSlot = order.neededSlot;
    settings.mostTries = order.mostTries;
    settings.mostTime = std::chrono::minutes(order.mostMinutes);
    return settings;
}

GeneratorOrder ReadGeneratorOrder(SettingsStore& store) {
    GeneratorOrder order;
    for (int level = 1; level <= kLevels; ++level) {
        Read(store, WantedKey(level), 0, kMostWanted,
             order.wanted[static_cast<std::size_t>(level - 1)]);
    }
    order.symmetry = SymmetryNamed(store.Get(kSection, "Symmetry", "")).value_or(order.symmetry);
    Read(store, "Clues", ClueChoice::FromTo, order.clues);
    Read(store, "FewestClues", kFewestClues, kCells, order.fewestClues);
    Read(store, "MostClues", kFewestClues, kCells, order.mostClues);
    Read(store, "Minimal", Minimality::Minimal, order.minimality);
    Read(store, "Technique", kFirstTechniqueSlot, kSlots - 1, order.neededSlot);
    order.seed = store.Get(kSection, "Seed", "");
    Read(store, "Tries", std::int64_t{1}, kMostTries, order.mostTries);
    Read(store, "Minutes", 0, kMostMinutes, order.mostMinutes);
    return order;
}

void WriteGeneratorOrder(SettingsStore& store, const GeneratorOrder& order) {
    const auto write = [&store](std::string_view key, auto number) {
        store.Save(kSection, key, std::to_string(number));
    };
    for (int level = 1; level <= kLevels; ++level) {
        write(WantedKey(level), order.wanted[static_cast<std::size_t>(level - 1)]);
    }
    store.Save(kSection, "Symmetry", Symmetries()[static_cast<std::size_t>(order.symmetry)].word);
    write("Clues", static_cast<int>(order.clues));
    write("FewestClues", order.fewestClues);
    write("MostClues", order.mostClues);
    write("Minimal", static_cast<int>(order.minimality));
    write("Technique", order.neededSlot);
    store.Save(kSection, "Seed", order.seed);
    write("Tries", order.mostTries);
    write("Minutes", order.mostMinutes);
    store.Flush();
}

}  // namespace vemo
