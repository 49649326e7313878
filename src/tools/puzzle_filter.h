// Which puzzles of a collection are looked for.
#pragma once

#include <bitset>
#include <optional>

#include "solver/solver.h"
#include "tools/clue_facts.h"
#include "tools/dig.h"
#include "tools/rated_puzzle.h"

namespace vemo {

struct NumberRange {
    int least = 0;
    int most = 0;

    bool Holds(int number) const { return number >= least && number <= most; }
    bool operator==(const NumberRange&) const = default;
};

struct PuzzleFilter {
    ClueRange clues{};
    // A symmetry, or its absence, that the places of the clues have.
    std::optional<Symmetry> symmetry{};
    bool isSymmetrical = false;  // any of them
    NumberRange digits{0, kDigits};
    NumberRange emptyBoxes{0, 9};
    // Those that need the ladder: none, and no level set, where it does not matter.
    std::bitset<kLevels + 1> levels{};
    int neededSlot = kNoSlot;

    bool AsksForRating() const { return levels.any() || neededSlot != kNoSlot; }
    // What can be seen without solving.
    bool Likes(const ClueFacts& facts) const;
    bool LikesLevel(int level) const {
        return levels.none() || levels[static_cast<std::size_t>(level)];
    }
    // By the fixed ladder.
    bool LikesRating(const RatedPuzzle& rated) const;

    bool operator==(const PuzzleFilter&) const = default;
};

}  // namespace vemo
