// The one form of equivalent puzzles.
#include "tools/canonical.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <set>
#include <vector>

#include <gtest/gtest.h>

#include "solver/brute_force.h"
#include "tools/dig.h"

namespace vemo {
namespace {

std::size_t At(int number) {
    return static_cast<std::size_t>(number);
}

template <std::size_t kSize>
std::array<int, kSize> Shuffled(int first, Random& random) {
    std::array<int, kSize> numbers;
    std::iota(numbers.begin(), numbers.end(), first);
    random.Shuffle(numbers);
    return numbers;
}

// Nine lines with their bands, and the lines within a band, exchanged.
std::array<int, 9> ShuffledLines(Random& random) {
    std::array<int, 9> lines{};
    const std::array<int, 3> bands = Shuffled<3>(0, random);
    for (int place = 0; place < 9; place += 3) {
        const std::array<int, 3> within = Shuffled<3>(3 * bands[At(place / 3)], random);
        std::copy(within.begin(), within.end(), lines.begin() + place);
    }
    return lines;
}

PuzzleRecord AnotherLook(const PuzzleRecord& puzzle, Random& random) {
    const std::array<int, 9> rows = ShuffledLines(random);
    const std::array<int, 9> columns = ShuffledLines(random);
    const std::array<int, 9> labels = Shuffled<9>(1, random);
    const bool isTransposed = random.Below(2) == 1;
    PuzzleRecord look;
    for (int cell = 0; cell < kCells; ++cell) {
        const int row = rows[At(CellRow(cell))];
        const int column = columns[At(CellColumn(cell))];
        const int from = isTransposed ? RowColumnCell(column, row) : RowColumnCell(row, column);
        const auto label = [&](int digit) {
            return static_cast<std::uint8_t>(digit == 0 ? 0 : labels[At(digit) - 1]);
        };
        look.clues[At(cell)] = label(puzzle.clues[At(from)]);
        look.solution[At(cell)] = label(puzzle.solution[At(from)]);
    }
    return look;
}

Digits FormOf(const PuzzleRecord& puzzle) {
    return CanonicalForm(puzzle.clues, puzzle.solution);
}

// The grid whose rows are moved on by three, then by one more in the next band: many of its looks
// are equal, so that the clues alone decide.
Digits MostRegularSolution() {
    Digits digits{};
    for (int cell = 0; cell < kCells; ++cell) {
        const int shift = 3 * CellRow(cell) + CellRow(cell) / 3;
        digits[At(cell)] = static_cast<std::uint8_t>(1 + (shift + CellColumn(cell)) % 9);
    }
    return digits;
}

TEST(CanonicalForm, IsOneOfThePuzzlesOwnLooksAndTheSameForAll) {
    Random random(11);
    std::set<Digits> forms;
    constexpr int kPuzzles = 150;
    for (int k = 0; k < kPuzzles; ++k) {
        PuzzleRecord puzzle = DigPuzzle({}, static_cast<Symmetry>(k % 7), random);
        if (k % 3 == 0) {
            puzzle.solution = MostRegularSolution();
            puzzle.clues = DigClues(puzzle.solution, Symmetry::None, 0, random);
        }
        const Digits form = FormOf(puzzle);
        EXPECT_EQ(FormOf(AnotherLook(puzzle, random)), form) << k;
        EXPECT_EQ(FormOf({form, UniqueSud(form).solution, {}}), form) << k;
        EXPECT_EQ(ClueCount(form), ClueCount(puzzle.clues));
        forms.insert(form);

        // One more clue makes another puzzle of the same solution.
        const Digits& solution = puzzle.solution;
        std::size_t empty = 0;
        while (puzzle.clues[empty] != 0) {
            ++empty;
        }
        puzzle.clues[empty] = solution[empty];
        forms.insert(FormOf(puzzle));
    }
    EXPECT_EQ(forms.size(), 2u * kPuzzles) << "no two of the puzzles are equivalent";
}

TEST(CanonicalClues, AreTheSameForEveryLook) {
    Random random(5);
    for (int k = 0; k < 20; ++k) {
        PuzzleRecord puzzle;
        puzzle.solution = MostRegularSolution();
        puzzle.clues = DigClues(puzzle.solution, Symmetry::None, 0, random);
        puzzle.clues[0] = puzzle.clues[40] = puzzle.clues[80] = 0;
        EXPECT_EQ(CanonicalClues(AnotherLook(puzzle, random).clues), CanonicalClues(puzzle.clues));
    }
}

}  // namespace
}  // namespace vemo
