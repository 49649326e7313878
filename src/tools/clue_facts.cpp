// What can be seen of a puzzle.
#include "tools/clue_facts.h"

#include <algorithm>

#include "tools/dig.h"

namespace vemo {
namespace {

int DifferentDigits(const Digits& clues) {
    Marks digits = 0;
    for (std::uint8_t digit : clues) {
        digits = static_cast<Marks>(digits | MarkOf(digit));
    }
    return BitCount(digits & kAllMarks);
}

int EmptyBoxes(const Digits& clues) {
    int empty = 0;
    for (int box = 0; box < 9; ++box) {
        const auto& cells = kUnits[static_cast<std::size_t>(UnitNumber(UnitKind::Box, box))].cells;
        empty += std::ranges::all_of(
                     cells, [&](int cell) { return clues[static_cast<std::size_t>(cell)] == 0; })
                     ? 1
                     : 0;
    }
    return empty;
}

}  // namespace

ClueFacts FactsOf(const Digits& clues) {
    ClueFacts facts{ClueCount(clues), DifferentDigits(clues), EmptyBoxes(clues), 0};
    for (const SymmetryRow& row : Symmetries()) {
        if (row.symmetry != Symmetry::None && HasSymmetry(clues, row.symmetry)) {
            facts.symmetries =
                static_cast<std::uint8_t>(facts.symmetries | 1 << static_cast<int>(row.symmetry));
        }
    }
    return facts;
}

}  // namespace vemo
