// Cases of one slot: the first find on a grid from which patterns are cut, by its texts.
#pragma once

#include <vector>

#include <gtest/gtest.h>

#include "solver/patterns.h"

namespace vemo::test {

struct FindCase {
    const char* rule;
    std::vector<Pattern> patterns;
    const char* log;             // empty: nothing is found
    const char* hint = nullptr;  // nullptr: whatever it says
};

inline void ExpectFirst(int slot, const std::vector<FindCase>& cases) {
    for (const FindCase& at : cases) {
        SCOPED_TRACE(at.rule);
        const FirstFind first = SearchFirst(StepOfSlot(slot), GridWith(at.patterns));
        EXPECT_EQ(first.any ? LogLine(first.found) : "", at.log);
        if (first.any && at.hint != nullptr) {
            EXPECT_EQ(HintText(first.found), at.hint);
        }
    }
}

}  // namespace vemo::test
