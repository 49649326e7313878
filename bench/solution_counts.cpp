// Holds the engines that count solutions against a plain recursion.
//     solution_counts [--seed N] COUNT
// COUNT grids, most of them near a puzzle: with one solution, with a clue less, with a wrong one;
// full grids with cells opened, with and without a wrong digit; and digits put down at random.
// Exits with 1 where an engine answers differently from the recursion.
#include <algorithm>
#include <array>
#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

#include "cli/options.h"
#include "main.h"
#include "random_puzzles.h"
#include "solver/brute_force.h"
#include "solver/fast_count.h"
#include "support/plain_search.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

std::vector<std::size_t> FilledCells(const Digits& digits) {
    std::vector<std::size_t> cells;
    for (std::size_t cell = 0; cell < kCells; ++cell) {
        if (digits[cell] != 0) {
            cells.push_back(cell);
        }
    }
    return cells;
}

// Opens some of the filled cells.
void Open(Digits& digits, int count, Random& random) {
    std::vector<std::size_t> cells = FilledCells(digits);
    random.Shuffle(cells);
    for (int at = 0; at < count; ++at) {
        digits[cells[static_cast<std::size_t>(at)]] = 0;
    }
}

// Puts another digit into one of the filled cells; often it clashes with nothing.
void Spoil(Digits& digits, Random& random) {
    std::vector<std::size_t> cells = FilledCells(digits);
    random.Shuffle(cells);
    std::uint8_t& digit = digits[cells[0]];
    digit = static_cast<std::uint8_t>((digit + random.Below(kDigits - 1)) % kDigits + 1);
}

// Digits that do not clash, wherever they come to stand.
Digits Scattered(int tries, Random& random) {
    Grid grid;
    for (int at = 0; at < tries; ++at) {
        const int cell = random.Below(kCells);
        const int digit = 1 + random.Below(kDigits);
        if (grid.Digit(cell) == 0 && grid.IsLegal(cell, digit)) {
            grid.Zet(digit, cell);
        }
    }
    return grid.AllDigits();
}

Digits MakeGrid(std::uint64_t number, Random& random) {
    constexpr int kShapes = 6;
    const int shape = static_cast<int>(number % kShapes);
    if (shape == 5) {
        return Scattered(random.Between(35, 60), random);
    }
    const bool isPuzzle = shape < 3;
    Digits digits = isPuzzle ? MakeRandomPuzzle(number, random).clues : RandomSolution(random);
    Open(digits, isPuzzle ? shape % 2 : random.Between(30, 60), random);
    if (shape == 2 || shape == 4) {
        Spoil(digits, random);
    }
    return digits;
}

// The game's own engines keep the solution where it is the only one.
bool Agree(const Digits& clues, test::PlainSearch& plain, int count) {
    for (const BruteForceResult& result : {BruteForceSolve(clues), UniqueSud(clues)}) {
        const bool isSame = count == 1 ? std::ranges::equal(result.solution, plain.first)
                                       : result.solution == Digits{};
        if (result.solutionCount != count || !isSame || (result.invalid && count != 0)) {
            return false;
        }
    }
    const SolutionCount fast = FastCount(clues);
    return fast.count == count && (count != 1 || std::ranges::equal(fast.first, plain.first));
}

}  // namespace

int Main(const std::vector<std::string>& words) {
    static constexpr Option kOptions[] = {{"--seed", "N", ""}};
    const ParsedArguments parsed = ParseArguments(words, kOptions);
    const auto seed = WholeNumber(parsed.arguments.ValueOf("--seed").value_or("1"), 0, ~0ull);
    const auto& operands = parsed.arguments.operands;
    const auto count = WholeNumber(operands.empty() ? "" : operands[0], 1, 1'000'000'000);
    if (!parsed.error.empty() || !seed || !count || operands.size() != 1) {
        std::cerr << "usage: solution_counts [--seed N] COUNT\n";
        return 2;
    }
    Random random(*seed);
    std::array<long, 3> answers{};
    long wrong = 0;
    for (std::uint64_t number = 0; number < *count; ++number) {
        const Digits clues = MakeGrid(number, random);
        test::PlainSearch plain(clues);
        const int solutions = plain.Count();
        ++answers[static_cast<std::size_t>(solutions)];
        if (!Agree(clues, plain, solutions)) {
            ++wrong;
            std::cerr << WriteGrid81(clues) << ": not " << solutions << '\n';
        }
    }
    std::printf("%ld grids without a solution, %ld with one, %ld with more: %ld wrong answers\n",
                answers[0], answers[1], answers[2], wrong);
    return wrong == 0 ? 0 : 1;
}

}  // namespace vemo
