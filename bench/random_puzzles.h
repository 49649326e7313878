// Puzzles made at random for measurements and long checks.
#pragma once

#include "tools/dig.h"
#include "tools/random.h"

namespace vemo {

struct RandomPuzzle {
    Digits solution;
    Digits clues;
};

// As few clues as go, in every other puzzle; a few more, and so more states, in the others.
inline RandomPuzzle MakeRandomPuzzle(std::uint64_t number, Random& random) {
    const Digits solution = RandomSolution(random);
    const int fewest = number % 2 == 0 ? 0 : 26;
    return {solution, DigClues(solution, Symmetry::None, fewest, random)};
}

}  // namespace vemo
