// Counting solutions: the exhaustive search and the fast count against numbers worked out, against
// each other and against a plain recursion.
#include <algorithm>
#include <array>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "solver/brute_force.h"
#include "solver/fast_count.h"
#include "solver/patterns.h"
#include "support/plain_search.h"

namespace vemo {
namespace {

using namespace test;

// Some cells of a solution, the others open.
Digits SomeOf(const Digits& solution, std::size_t count, std::mt19937& random) {
    std::vector<std::size_t> cells(kCells);
    std::iota(cells.begin(), cells.end(), 0u);
    std::shuffle(cells.begin(), cells.end(), random);
    Digits clues{};
    for (std::size_t k = 0; k < count; ++k) {
        clues[cells[k]] = solution[cells[k]];
    }
    return clues;
}

bool IsSolutionOf(const Digits& digits, const Digits& clues) {
    bool keepsClues = true;
    for (std::size_t cell = 0; cell < kCells; ++cell) {
        keepsClues = keepsClues && (clues[cell] == 0 || clues[cell] == digits[cell]);
    }
    return keepsClues && std::ranges::count(digits, 0) == 0 && !HasClash(digits);
}

// Of the fast count, whoever else agrees with it.
void ExpectCount(const Digits& clues, int limit, int count) {
    const SolutionCount result = FastCount(clues, limit);
    EXPECT_EQ(result.count, count);
    if (count == 0) {
        EXPECT_EQ(result.first, Digits{});
    } else {
        EXPECT_TRUE(IsSolutionOf(result.first, clues));
    }
}

// Of both exhaustive searches, which stop at the second solution.
void ExpectSearched(const Digits& clues, int count) {
    for (const BruteForceResult& result : {BruteForceSolve(clues), UniqueSud(clues)}) {
        EXPECT_EQ(result.solutionCount, count);
        EXPECT_EQ(result.IsUnique(), count == 1);
        EXPECT_TRUE(count == 1 ? IsSolutionOf(result.solution, clues)
                               : result.solution == Digits{});
        EXPECT_FALSE(result.stopped);
        EXPECT_FALSE(result.invalid && count > 0);
    }
}

TEST(Counting, GoesUpToItsLimitAndNoFurther) {
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
            ExpectSearched(clues, std::min(c.count, 2));
            for (int limit : {1, 2, 3, 11, 12, 13, 1727, 1728, 5000}) {
                ExpectCount(clues, limit, std::min(c.count, limit));
            }
        }
    }
    ExpectSearched(Digits{}, 2);
    ExpectCount(Digits{}, 1, 1);
    ExpectCount(Digits{}, kUniqueLimit, 2);
    ExpectCount(Digits{}, 1000, 1000);
}

TEST(Counting, CluesThatContradictEachOtherHaveNoSolution) {
    Digits fullClash = PlainSolution();
    fullClash[0] = 2;
    Digits twoChanged = PlainSolution();
    std::swap(twoChanged[0], twoChanged[80]);
    const std::string empty(18, '.');
    enum class Seen { AtOnce, Later };
    struct Case {
        const char* rule;
        Digits clues;
        Seen seen;
    };
    const Case cases[] = {
        {"a wrong digit in a full grid", fullClash, Seen::AtOnce},
        {"two exchanged in a full grid", twoChanged, Seen::AtOnce},
        {"a clash in a row", ParseDigits("1.......1"), Seen::AtOnce},
        {"a clash in a column", ParseDigits("1........1"), Seen::AtOnce},
        {"a clash in a box", ParseDigits("1.........1"), Seen::AtOnce},
        {"a cell that sees all nine digits",
         ParseDigits(".2345678." + empty + "1........" + empty + "9........"), Seen::AtOnce},
        {"a row without a place for the 1",
         ParseDigits("23456....1.................1.....................1"), Seen::Later},
        // Noticed before the branches below it are walked.
        {"a row without a place for the 3, behind a thousand guesses",
         ParseDigits(
             "........7......5..3...................6.......43...9......4.3...7..........3..8.."),
         Seen::Later},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        ExpectSearched(c.clues, 0);
        for (const BruteForceResult& result : {BruteForceSolve(c.clues), UniqueSud(c.clues)}) {
            EXPECT_TRUE(result.invalid || c.seen == Seen::Later);
        }
        for (int turn = 0; turn < 8; ++turn) {
            ExpectCount(Orientation(turn).Of(c.clues), kUniqueLimit, 0);
        }
    }
}

TEST(Counting, EachPuzzleOfTheCorpusHasOneSolutionInEveryOrientation) {
    const std::vector<Digits> puzzles = Corpus();
    EXPECT_GE(puzzles.size(), 200u);
    for (const Digits& puzzle : puzzles) {
        PlainSearch plain(puzzle);
        ASSERT_EQ(plain.Count(), 1);
        ASSERT_NO_FATAL_FAILURE(ExpectSearched(puzzle, 1));
        for (int turn = 0; turn < 8; ++turn) {
            ASSERT_TRUE(FastCount(Orientation(turn).Of(puzzle)).IsUnique()) << turn;
            ASSERT_NO_FATAL_FAILURE(ExpectCount(Orientation(turn).Of(puzzle), kUniqueLimit, 1));
        }
    }
}

// Clues of a solution, some with one digit changed: most of these clash at sight or later.
TEST(Counting, AgreesWithAPlainRecursionOnRandomGrids) {
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
        const int count = PlainSearch(clues).Count();
        ++answers[static_cast<std::size_t>(count)];
        hidden += count == 0 && !HasClash(clues) ? 1 : 0;
        ExpectSearched(clues, count);
        ExpectCount(clues, kUniqueLimit, count);
        ASSERT_FALSE(HasFailure());
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
        for (int cell : Grid::FromClues(puzzle).Givens()) {
            Digits without = puzzle;
            without[static_cast<std::size_t>(cell)] = 0;
            const bool needs = NeedsClue(puzzle, cell);
            ++answers[needs ? 1 : 0];
            ASSERT_EQ(needs, !BruteForceSolve(without).IsUnique())
                << "puzzle " << number << ", " << CellName(cell);
        }
    }
    EXPECT_GT(*std::ranges::min_element(answers), 100);
    EXPECT_FALSE(NeedsClue(PlainSolution(), 40));
}

TEST(BruteForce, StopsWhenItsYieldSaysSo) {
    // Passes four times 4,096 placements on the way to its second solution.
    const Digits slow = ParseDigits(
        "3...6.....9.8..7..6..4.....1...8..3..................2..2..4..88.3..1.2..4......1");
    int asked = 0;
    const BruteForceResult whole = UniqueSud(slow, [&] { return ++asked > 0; });
    EXPECT_EQ(whole.solutionCount, 2);
    EXPECT_FALSE(whole.stopped);
    EXPECT_EQ(asked, 4);
    for (int last = 1; last <= 4; ++last) {
        asked = 0;
        const BruteForceResult result = UniqueSud(slow, [&] { return ++asked < last; });
        EXPECT_EQ(asked, last);
        EXPECT_TRUE(result.stopped);
        EXPECT_FALSE(result.IsUnique());
        EXPECT_EQ(result.solution, Digits{});
    }
}

TEST(PreSolve, GoesAsFarAsTheEasyStepsAndLeavesTheGridLegal) {
    const PreSolveResult solved = PreSolve(Grid::FromClues(SolutionWithout("A1 E5 J9")));
    EXPECT_TRUE(solved.solved);
    EXPECT_EQ(solved.grid.AllDigits(), PlainSolution());

    const PreSolveResult stuck = PreSolve(Grid::FromClues(SolutionWithout("A1 A4 A7 B1 B4 B7")));
    EXPECT_FALSE(stuck.solved);
    EXPECT_FALSE(stuck.invalid);
    EXPECT_EQ(stuck.grid.EmptyCount(), 6);

    EXPECT_TRUE(PreSolve(GridWith({Only("", "E5")})).invalid);
    // Both cells need the 1, so that the second is left with nothing.
    EXPECT_TRUE(PreSolve(GridWith({Only("1", "A1 A9")})).invalid);
}

}  // namespace
}  // namespace vemo
