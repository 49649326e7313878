// The fast count against numbers worked out, against the described search and a plain recursion.
#include "solver/fast_count.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "solver/brute_force.h"
#include "support/plain_search.h"
#include "support/puzzles.h"

namespace vemo {
namespace {

using namespace test;

bool IsSolutionOf(const Digits& digits, const Digits& clues) {
    bool keepsClues = true;
    for (std::size_t cell = 0; cell < kCells; ++cell) {
        keepsClues = keepsClues && (clues[cell] == 0 || clues[cell] == digits[cell]);
    }
    return keepsClues && std::ranges::count(digits, 0) == 0 && !HasClash(digits);
}

// A solution's cells in the order in which they keep their digit.
std::vector<std::size_t> ShuffledCells(std::mt19937& random) {
    std::vector<std::size_t> cells(kCells);
    std::iota(cells.begin(), cells.end(), 0u);
    std::shuffle(cells.begin(), cells.end(), random);
    return cells;
}

Digits SomeOf(const Digits& solution, std::size_t count, std::mt19937& random) {
    Digits clues{};
    const std::vector<std::size_t> cells = ShuffledCells(random);
    for (std::size_t k = 0; k < count; ++k) {
        clues[cells[k]] = solution[cells[k]];
    }
    return clues;
}

// What must hold of every answer, whoever else agrees with it.
void ExpectCount(const Digits& clues, int limit, int count) {
    const SolutionCount result = FastCount(clues, limit);
    EXPECT_EQ(result.count, count);
    if (count == 0) {
        EXPECT_EQ(result.first, Digits{});
    } else {
        EXPECT_TRUE(IsSolutionOf(result.first, clues));
    }
}

TEST(FastCount, CountsUpToItsLimitAndNoFurther) {
    struct Case {
        const char* rule;
        Digits clues;
        int count;
    };
    const Case cases[] = {
        {"a full grid", PlainSolution(), 1},
        {"one open cell", SolutionWithout("E5"), 1},
        {"1, 4 and 7 can change rows in A and B", SolutionWithout("A1 A4 A7 B1 B4 B7"), 2},
        {"but not with one of them given", SolutionWithout("A1 A4 A7 B1 B4"), 1},
        {"2, 5 and 8 can in D and E besides",
         SolutionWithout("A1 A4 A7 B1 B4 B7 D1 D4 D7 E1 E4 E7"), 4},
        {"in all rows of a band: the Latin squares of order 3",
         SolutionWithout("A1 A4 A7 B1 B4 B7 C1 C4 C7"), 12},
        {"in all bands",
         SolutionWithout("A1 A4 A7 B1 B4 B7 C1 C4 C7 D1 D4 D7 E1 E4 E7 F1 F4 F7 "
                         "G1 G4 G7 H1 H4 H7 J1 J4 J7"),
         12 * 12 * 12},
    };
    for (const Case& c : cases) {
        for (int turn = 0; turn < 8; ++turn) {
            SCOPED_TRACE(std::string(c.rule) + ", orientation " + std::to_string(turn));
            const Digits clues = Orientation(turn).Of(c.clues);
            for (int limit : {1, 2, 3, 11, 12, 13, 1727, 1728, 5000}) {
                ExpectCount(clues, limit, std::min(c.count, limit));
            }
        }
    }
    ExpectCount(Digits{}, 1, 1);
    ExpectCount(Digits{}, kUniqueLimit, 2);
    ExpectCount(Digits{}, 1000, 1000);
}

TEST(FastCount, CluesThatContradictEachOtherHaveNoSolution) {
    Digits fullClash = PlainSolution();
    fullClash[0] = 2;
    Digits twoChanged = PlainSolution();
    std::swap(twoChanged[0], twoChanged[80]);
    const std::string empty(18, '.');
    struct Case {
        const char* rule;
        Digits clues;
    };
    const Case cases[] = {
        {"a wrong digit in a full grid", fullClash},
        {"two exchanged in a full grid", twoChanged},
        {"a clash in a row", ParseDigits("1.......1")},
        {"a clash in a column", ParseDigits("1........1")},
        {"a clash in a box", ParseDigits("1.........1")},
        {"a cell that sees all nine digits",
         ParseDigits(".2345678." + empty + "1........" + empty + "9........")},
        {"a row without a place for the 1",
         ParseDigits("23456....1.................1.....................1")},
        {"a row without a place for the 3, behind a thousand guesses",
         ParseDigits(
             "........7......5..3...................6.......43...9......4.3...7..........3..8..")},
    };
    for (const Case& c : cases) {
        for (int turn = 0; turn < 8; ++turn) {
            SCOPED_TRACE(std::string(c.rule) + ", orientation " + std::to_string(turn));
            ExpectCount(Orientation(turn).Of(c.clues), kUniqueLimit, 0);
        }
    }
}

TEST(FastCount, SolvesTheCorpusInEveryOrientationAsTheDescribedSearchDoes) {
    const std::vector<Digits> puzzles = Corpus();
    ASSERT_FALSE(puzzles.empty());
    for (const Digits& puzzle : puzzles) {
        const BruteForceResult described = BruteForceSolve(puzzle);
        ASSERT_TRUE(described.IsUnique());
        for (int turn = 0; turn < 8; ++turn) {
            const Symmetry symmetry = Orientation(turn);
            const SolutionCount result = FastCount(symmetry.Of(puzzle));
            ASSERT_TRUE(result.IsUnique()) << "orientation " << turn;
            ASSERT_EQ(result.first, symmetry.Of(described.solution)) << "orientation " << turn;
        }
    }
}

// Clues of a solution, some with one digit changed: most of these clash at sight or later.
TEST(FastCount, AgreesWithBothOtherSearchesOnRandomGrids) {
    std::mt19937 random(7);
    std::array<int, 3> answers{};
    int hidden = 0;
    for (int round = 0; round < 900; ++round) {
        const Digits solution = RandomSymmetry(random).Of(PlainSolution());
        Digits clues = SomeOf(solution, 24 + random() % 25, random);
        if (round % 3 == 0) {
            clues[random() % kCells] = static_cast<std::uint8_t>(1 + random() % 9);
        }
        SCOPED_TRACE("round " + std::to_string(round));
        PlainSearch plain(clues);
        const int count = plain.Count();
        ++answers[static_cast<std::size_t>(count)];
        hidden += count == 0 && !HasClash(clues) ? 1 : 0;
        ASSERT_EQ(UniqueSud(clues).solutionCount, count);
        ASSERT_NO_FATAL_FAILURE(ExpectCount(clues, kUniqueLimit, count));
        if (count == 1) {
            ASSERT_TRUE(std::ranges::equal(FastCount(clues).first, plain.first));
        }
    }
    // Each answer was put to the test.
    EXPECT_GT(*std::ranges::min_element(answers), 100);
    EXPECT_GT(hidden, 30);
}

TEST(FastCount, AGridOfSixteenCluesAndFewerHasNoneOrSeveral) {
    std::mt19937 random(11);
    for (int round = 0; round < 340; ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        const Digits solution = RandomSymmetry(random).Of(PlainSolution());
        Digits clues = SomeOf(solution, static_cast<std::size_t>(round % 17), random);
        ExpectCount(clues, kUniqueLimit, 2);
        ExpectCount(clues, 40, 40);
        clues[3] = clues[5] = 1;
        ExpectCount(clues, kUniqueLimit, 0);
    }
}

TEST(NeedsClue, SaysWhetherThePuzzleStaysUniqueWithoutTheClue) {
    const std::vector<Digits> puzzles = Corpus();
    std::mt19937 random(5);
    std::array<int, 2> answers{};
    for (std::size_t number = 0; number < puzzles.size(); number += 8) {
        // Two more clues than it came with, so that some can be spared.
        Digits puzzle = puzzles[number];
        const Digits solution = FastCount(puzzle).first;
        for (std::size_t more = 0; more < 2; ++more) {
            const std::size_t cell = random() % kCells;
            puzzle[cell] = solution[cell];
        }
        for (std::size_t cell = 0; cell < kCells; ++cell) {
            if (puzzle[cell] == 0) {
                continue;
            }
            Digits without = puzzle;
            without[cell] = 0;
            const bool needs = NeedsClue(puzzle, static_cast<int>(cell));
            ++answers[needs ? 1 : 0];
            ASSERT_EQ(needs, !BruteForceSolve(without).IsUnique())
                << "puzzle " << number << ", " << CellName(static_cast<int>(cell));
        }
    }
    EXPECT_GT(*std::ranges::min_element(answers), 100);

    EXPECT_FALSE(NeedsClue(PlainSolution(), 40));
    EXPECT_FALSE(NeedsClue(SolutionWithout("A1 A4 A7 B1 B4"), 80));
    EXPECT_TRUE(NeedsClue(SolutionWithout("A1 A4 A7 B1 B4"), CellNamed("B7")));
}

}  // namespace
}  // namespace vemo
