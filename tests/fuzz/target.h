// One fuzz target: what it holds of any input.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string_view>

namespace vemo {

// Each target's own; called with every input.
void Check(std::span<const std::uint8_t> input);

inline std::string_view TextOf(std::span<const std::uint8_t> input) {
    return {reinterpret_cast<const char*>(input.data()), input.size()};
}

// Ends the target where the rule does not hold, so that the input is kept.
inline void Require(bool holds, const char* rule) {
    if (!holds) {
        std::fprintf(stderr, "broken: %s\n", rule);
        std::abort();
    }
}

}  // namespace vemo
