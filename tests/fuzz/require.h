// The one way in which a fuzz target says that a rule is broken.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace vemo {

// Ends the target where the rule does not hold, so that the input is kept.
inline void Require(bool holds, const char* rule) {
    if (!holds) {
        std::fprintf(stderr, "broken: %s\n", rule);
        std::abort();
    }
}

}  // namespace vemo
