// The ladder that a player's order and switches make.
#include "cli/ladder_options.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace vemo {
namespace {

// The content of a small file; nothing, with a message, where it cannot be read.
std::optional<std::string> ReadSmallFile(const std::string& name, Streams& streams) {
    constexpr std::streamsize kMost = 4096;
    errno = 0;
    std::ifstream file(name, std::ios::binary);
    std::string text(kMost, '\0');
    file.read(text.data(), kMost);
    if (!file.is_open() || file.bad()) {
        Tell(streams, name + " cannot be read" + SystemReason());
        return std::nullopt;
    }
    text.resize(static_cast<std::size_t>(file.gcount()));
    return text;
}

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        line.erase(std::min(line.find('\r'), line.size()));
        lines.push_back(line);
    }
    return lines;
}

// Answers what is wrong with the order; empty where it was taken.
std::string TakeOrder(const std::vector<std::string>& lines, TechniqueSettings& settings) {
    if (lines.size() != kSlots) {
        return "forty lines are needed, one a slot";
    }
    for (std::size_t slot = 0; slot < kSlots; ++slot) {
        const auto position = WholeNumber(lines[slot], 0, kSlots - 1);
        if (!position) {
            return "line " + std::to_string(slot + 1) + " is no position from 0 to 39";
        }
        settings.order[slot] = static_cast<int>(*position);
    }
    return IsValidOrder(settings.order)
               ? ""
               : "a position stands there twice, or one of the slots 0 to 7 and 39 is moved";
}

// Answers the offending word; empty where all slots were switched off.
std::string TakeSwitches(const Arguments& arguments, TechniqueSettings& settings) {
    for (const auto& [name, value] : arguments.options) {
        if (name != kOffOption.name) {
            continue;
        }
        const auto slot = WholeNumber(value, kFirstMovableSlot, kSlots - 1);
        if (!slot) {
            return "--off is a slot from 8 to 39: " + value;
        }
        settings.onOff[*slot] = false;
    }
    return "";
}

}  // namespace

ChosenLadder ChooseLadder(const Arguments& arguments, Streams& streams) {
    const std::optional<std::string_view> order = arguments.ValueOf(kOrderOption.name);
    if (!order && !arguments.Has(kOffOption.name)) {
        return {FixedLadder()};
    }
    TechniqueSettings settings;
    if (const std::string error = TakeSwitches(arguments, settings); !error.empty()) {
        return {{}, UsageError(error)};
    }
    if (order) {
        const std::string name(*order);
        const std::optional<std::string> text = ReadSmallFile(name, streams);
        if (!text) {
            return {{}, {ExitCode::InputOutput}};
        }
        if (const std::string error = TakeOrder(LinesOf(*text), settings); !error.empty()) {
            return {{}, UsageError("--order " + name + ": " + error)};
        }
    }
    return {BatchLadder(settings)};
}

}  // namespace vemo
