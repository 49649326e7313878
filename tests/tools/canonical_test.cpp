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

// All 1,296 orders of nine lines that keep the bands together.
std::vector<std::array<int, 9>> LineOrders() {
    std::vector<std::array<int, 9>> orders;
    std::array<int, 9> lines;
    std::iota(lines.begin(), lines.end(), 0);
    do {
        const auto isInBand = [&](int place) {
            return lines[At(place)] / 3 == lines[At(place / 3 * 3)] / 3;
        };
        bool keepsBands = true;
        for (int place = 0; place < 9; ++place) {
            keepsBands = keepsBands && isInBand(place);
        }
        if (keepsBands) {
            orders.push_back(lines);
        }
    } while (std::ranges::next_permutation(lines).found);
    return orders;
}

Digits RelabelledByPlace(const Digits& digits) {
    std::array<std::uint8_t, 10> labels{};
    std::uint8_t used = 0;
    Digits named = digits;
    for (std::uint8_t& digit : named) {
        if (digit != 0) {
            labels[digit] = labels[digit] == 0 ? ++used : labels[digit];
            digit = labels[digit];
        }
    }
    return named;
}

// Whether one of all 3,359,232 looks, its digits named as they come, is the other.
bool AreEquivalent(const Digits& one, const Digits& other) {
    static const auto kOrders = LineOrders();
    const Digits wanted = RelabelledByPlace(other);
    for (const Digits& turned : {one, Transposed(one)}) {
        for (const auto& rows : kOrders) {
            for (const auto& columns : kOrders) {
                Digits look{};
                bool hasSamePlaces = true;
                for (int cell = 0; cell < kCells && hasSamePlaces; ++cell) {
                    const int from =
                        RowColumnCell(rows[At(CellRow(cell))], columns[At(CellColumn(cell))]);
                    look[At(cell)] = turned[At(from)];
                    hasSamePlaces = (look[At(cell)] == 0) == (wanted[At(cell)] == 0);
                }
                if (hasSamePlaces && RelabelledByPlace(look) == wanted) {
                    return true;
                }
            }
        }
    }
    return false;
}

TEST(CanonicalClues, AreEqualWhereOneOfAllLooksIsTheOtherPuzzle) {
    Random random(5);
    std::vector<Digits> puzzles;
    while (puzzles.size() < 6) {
        Digits puzzle{};
        for (int clue = 0; clue < 3; ++clue) {
            puzzle[At(random.Below(kCells))] = static_cast<std::uint8_t>(random.Between(1, 2));
        }
        puzzles.push_back(puzzle);
    }
    int equivalent = 0;
    for (std::size_t a = 0; a < puzzles.size(); ++a) {
        for (std::size_t b = 0; b < a; ++b) {
            const bool areEqual = CanonicalClues(puzzles[a]) == CanonicalClues(puzzles[b]);
            EXPECT_EQ(areEqual, AreEquivalent(puzzles[a], puzzles[b])) << a << ' ' << b;
            equivalent += areEqual ? 1 : 0;
        }
    }
    EXPECT_GT(equivalent, 0);
    EXPECT_LT(equivalent, 15);
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
