// Cases of one step: the first find on a grid from which patterns are cut, by its texts and
// colours.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "solver/patterns.h"
#include "solver/techniques/chain_text.h"

namespace vemo::test {

struct FindCase {
    const char* rule;
    std::vector<Pattern> patterns;
    std::string log;         // what it names no effects of is compared as far as these
    std::string hint = {};   // empty: whatever it says
    std::string drawn = {};  // likewise, see Drawn
};

// "A1(12) B2(3)", by cell.
inline std::string Written(const std::vector<CellDigit>& candidates) {
    std::string text;
    for (int cell : CellsOf(candidates)) {
        text += (text.empty() ? "" : " ") + CellName(cell) + "(";
        for (int digit = 1; digit <= kDigits; ++digit) {
            const bool isThere = std::ranges::count(candidates, At(cell, digit)) > 0;
            text += isThere ? std::to_string(digit) : "";
        }
        text += ")";
    }
    return text;
}

// "A1(12) | B2(3) | A1(2) = A1(1), A1(1) - B2(1)": the candidates in the one color, those in the
// other, the links.
inline std::string Drawn(const Find& find) {
    std::string links;
    for (const ChainLink& link : find.links) {
        links += (links.empty() ? "" : ", ") + ChainText({&link, 1});
    }
    return Written(find.firstColor) + " | " + Written(find.secondColor) + " | " + links;
}

inline void ExpectFirst(const Step& step, const FindCase& at) {
    SCOPED_TRACE(at.rule);
    const FirstFind first = SearchFirst(step, GridWith(at.patterns));
    ASSERT_TRUE(first.any);
    const std::string log = LogLine(first.found);
    const bool hasEffects = at.log.find(" => ") != std::string::npos;
    EXPECT_EQ(hasEffects ? log : log.substr(0, log.find(" => ")), at.log);
    if (!at.hint.empty()) {
        EXPECT_EQ(HintText(first.found), at.hint);
    }
    if (!at.drawn.empty()) {
        EXPECT_EQ(Drawn(first.found), at.drawn);
    }
}
inline void ExpectFirst(const Step& step, const std::vector<FindCase>& cases) {
    for (const FindCase& at : cases) {
        ExpectFirst(step, at);
    }
}

}  // namespace vemo::test
