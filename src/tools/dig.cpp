// Full grids at random, and the clues that can go from them.
#include "tools/dig.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "solver/fast_count.h"

namespace vemo {
namespace {

// Fills the cell with the fewest candidates, then the rest.
bool FillAtRandom(const Grid& grid, Random& random, Digits& solution) {
    if (grid.EmptyCount() == 0) {
        solution = grid.AllDigits();
        return true;
    }
    const auto markCount = [&](int cell) { return BitCount(grid.MarksAt(cell)); };
    int chosen = grid.EmptyCells().First();
    for (int cell : grid.EmptyCells()) {
        chosen = markCount(cell) < markCount(chosen) ? cell : chosen;
    }
    std::array<int, kDigits> digits;
    std::iota(digits.begin(), digits.end(), 1);
    random.Shuffle(digits);
    for (int digit : digits) {
        if (!grid.KnopAan(chosen, digit)) {
            continue;
        }
        Grid next = grid;
        next.Zet(digit, chosen);
        if (FillAtRandom(next, random, solution)) {
            return true;
        }
    }
    return false;
}

// Takes the clues of a whole orbit out. Answers whether the solution is still the only one.
bool TakeOrbit(Digits& clues, const Orbit& orbit) {
    return std::ranges::all_of(orbit, [&](int cell) {
        const bool isNeeded = NeedsClue(clues, cell);
        clues[static_cast<std::size_t>(cell)] = 0;
        return !isNeeded;
    });
}

}  // namespace

int ClueCount(const Digits& clues) {
    return kCells - static_cast<int>(std::ranges::count(clues, 0));
}

Digits RandomSolution(Random& random) {
    Digits solution{};
    FillAtRandom(Grid(), random, solution);
    return solution;
}

Digits DigClues(const Digits& from, Symmetry symmetry, int fewest, Random& random) {
    std::array<int, kCells> order;
    std::iota(order.begin(), order.end(), 0);
    random.Shuffle(order);
    Digits clues = from;
    int clueCount = ClueCount(clues);
    for (int cell : order) {
        const Orbit orbit = OrbitOf(cell, symmetry);
        const int going = static_cast<int>(orbit.Size());
        if (clues[static_cast<std::size_t>(cell)] == 0 || clueCount - going < fewest) {
            continue;
        }
        Digits fewer = clues;
        if (TakeOrbit(fewer, orbit)) {
            clues = fewer;
            clueCount -= going;
        }
    }
    return clues;
}

PuzzleRecord DigPuzzle(ClueRange range, Symmetry symmetry, Random& random) {
    PuzzleRecord puzzle;
    puzzle.solution = RandomSolution(random);
    const int fewest = range.fewest <= kFewestClues ? 0 : random.Between(range.fewest, range.most);
    puzzle.clues = DigClues(puzzle.solution, symmetry, fewest, random);
    return puzzle;
}

bool IsMinimal(const Digits& clues) {
    for (int cell = 0; cell < kCells; ++cell) {
        if (clues[static_cast<std::size_t>(cell)] != 0 && !NeedsClue(clues, cell)) {
            return false;
        }
    }
    return true;
}

}  // namespace vemo
