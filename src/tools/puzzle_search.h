// One line of search for puzzles of some levels: random puzzles, or a walk to hard ones.
#pragma once

#include <variant>

#include "solver/catalogue.h"
#include "tools/hard_walk.h"

namespace vemo {

// Whether a puzzle may hold clues that it could do without.
enum class Minimality : std::uint8_t { Any, Minimal };

// What a puzzle must be, besides of a level.
struct PuzzleWish {
    Symmetry symmetry = Symmetry::None;
    ClueRange clues{};
    Minimality minimality = Minimality::Any;
    int neededSlot = kNoSlot;  // kNoSlot: whatever it needs
};

class PuzzleSearch {
  public:
    // `walks` for levels from kFirstWalkedLevel on.
    enum class Method : std::uint8_t { Digs, Walks };
    PuzzleSearch(std::uint64_t seed, Method method, const PuzzleWish& wish);

    // Makes one more puzzle; answers it where it is of an open level and as wished. Level 0 is open
    // alone, or not at all: then puzzles are not rated. The same seed makes the same puzzles,
    // whatever levels are open. A stop ends it.
    std::optional<RatedPuzzle> Next(LevelSet open, const std::stop_token& stop);

  private:
    std::optional<RatedPuzzle> Dig(Random& random, LevelSet open, const std::stop_token& stop);
    bool HasWishedClues(const Digits& clues) const;

    PuzzleWish wish_;
    ClueRange digTo_;
    std::variant<Random, HardWalk> source_;
};

}  // namespace vemo
