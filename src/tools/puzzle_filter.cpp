// Which puzzles are looked for.
#include "tools/puzzle_filter.h"

#include <algorithm>

namespace vemo {

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

bool PuzzleFilter::LikesClues(const Digits& digitsOfClues) const {
    const bool hasSymmetry = !symmetry                     ? true
                             : *symmetry == Symmetry::None ? SymmetryOf(digitsOfClues) == *symmetry
                                                           : HasSymmetry(digitsOfClues, *symmetry);
    return clues.Holds(ClueCount(digitsOfClues)) && digits.Holds(DifferentDigits(digitsOfClues)) &&
           emptyBoxes.Holds(EmptyBoxes(digitsOfClues)) && hasSymmetry &&
           (!isSymmetrical || SymmetryOf(digitsOfClues) != Symmetry::None);
}

bool PuzzleFilter::LikesRating(const RatedPuzzle& rated) const {
    return (levels.none() || levels[static_cast<std::size_t>(rated.rating)]) &&
           (neededSlot == kNoSlot || NeedsTechnique(rated, neededSlot));
}

}  // namespace vemo
