// Searching for puzzles, one by one.
#include "tools/puzzle_search.h"

namespace vemo {
namespace {

int HighestOf(LevelSet levels) {
    int level = kLevels;
    while (!levels[static_cast<std::size_t>(level)]) {
        --level;
    }
    return level;
}

}  // namespace

PuzzleSearch::PuzzleSearch(std::uint64_t seed, Method method, const PuzzleWish& wish)
    : wish_(wish),
      digTo_(wish.minimality == Minimality::Minimal ? ClueRange{0, wish.clues.most} : wish.clues),
      source_(Random(seed)) {
    if (method == Method::Walks) {
        source_ = HardWalk(seed, digTo_, wish.symmetry);
    }
}

std::optional<RatedPuzzle> PuzzleSearch::Next(LevelSet open, const std::stop_token& stop) {
    auto* walk = std::get_if<HardWalk>(&source_);
    const auto found =
        walk != nullptr ? walk->Next(open, stop) : Dig(std::get<Random>(source_), open, stop);
    // The walk asks for levels alone.
    if (!found || (walk != nullptr && !HasWishedClues(found->puzzle.clues))) {
        return std::nullopt;
    }
    const bool isAsWished =
        wish_.neededSlot == kNoSlot || NeedsTechnique(*found, wish_.neededSlot, FixedLadder());
    return isAsWished ? found : std::nullopt;
}

std::optional<RatedPuzzle> PuzzleSearch::Dig(Random& random, LevelSet open,
                                             const std::stop_token& stop) {
    const PuzzleRecord puzzle = DigPuzzle(digTo_, wish_.symmetry, random);
    if (!HasWishedClues(puzzle.clues)) {
        return std::nullopt;
    }
    if (open[0]) {
        return RatedPuzzle{puzzle};
    }
    const auto rated = RateUpTo(puzzle, HighestOf(open), stop);
    return rated && open[static_cast<std::size_t>(rated->rating)] ? rated : std::nullopt;
}

bool PuzzleSearch::HasWishedClues(const Digits& clues) const {
    // Clues that were taken out one by one, as far as that went, are all needed.
    const bool isMinimalAnyway = wish_.symmetry == Symmetry::None;
    return wish_.clues.Holds(ClueCount(clues)) &&
           (wish_.minimality == Minimality::Any || isMinimalAnyway || IsMinimal(clues));
}

}  // namespace vemo
