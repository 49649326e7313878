// What can be seen of a puzzle without solving it.
#pragma once

#include <cstdint>

#include "tools/symmetry.h"

namespace vemo {

struct ClueFacts {
    int clues = 0;
    int digits = 0;               // how many of the nine occur, 0..9
    int emptyBoxes = 0;           // 0..9
    std::uint8_t symmetries = 0;  // of the places of the clues: bit k for Symmetry k, None left out

    Symmetry Main() const {
        return MainSymmetry([&](Symmetry symmetry) { return Has(symmetry); });
    }
    bool Has(Symmetry symmetry) const {
        return symmetry == Symmetry::None ? symmetries == 0
                                          : (symmetries >> static_cast<int>(symmetry) & 1) != 0;
    }
};

ClueFacts FactsOf(const Digits& clues);

}  // namespace vemo
