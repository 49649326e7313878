// None, one or more: the exhaustive search against cases worked out and against a plain recursion.
#include "solver/brute_force.h"

#include <random>

#include <gtest/gtest.h>

#include "solver/patterns.h"
#include "support/plain_search.h"

namespace vemo {
namespace {

using namespace test;

TEST(BruteForce, AnswersNoneOneOrMore) {
    Digits fullClash = PlainSolution();
    fullClash[0] = 2;
    const std::string empty(18, '.');
    struct Case {
        const char* rule;
        Digits clues;
        int count;
        bool invalid;
    };
    const Case cases[] = {
        {"a full grid", PlainSolution(), 1, false},
        {"one open cell", SolutionWithout("E5"), 1, false},
        {"1, 4 and 7 can change rows in A and B", SolutionWithout("A1 A4 A7 B1 B4 B7"), 2, false},
        {"but not with one of them given", SolutionWithout("A1 A4 A7 B1 B4"), 1, false},
        {"an empty grid", Digits{}, 2, false},
        {"a clash in a full grid", fullClash, 0, true},
        {"a clash in a row", ParseDigits("1.......1"), 0, true},
        {"a clash in a column", ParseDigits("1........1"), 0, true},
        {"a cell that sees all nine digits",
         ParseDigits(".2345678." + empty + "1........" + empty + "9........"), 0, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        for (const BruteForceResult& result : {BruteForceSolve(c.clues), UniqueSud(c.clues)}) {
            EXPECT_EQ(result.solutionCount, c.count);
            EXPECT_EQ(result.invalid, c.invalid);
            EXPECT_EQ(result.IsUnique(), c.count == 1);
            EXPECT_EQ(result.solution, c.count == 1 ? PlainSolution() : Digits{});
            EXPECT_FALSE(result.stopped);
        }
    }
}

TEST(BruteForce, AgreesWithAPlainRecursion) {
    std::mt19937 random(3);
    std::array<int, 3> answers{};
    for (int round = 0; round < 400; ++round) {
        Digits clues = RandomSymmetry(random).Of(PlainSolution());
        for (std::size_t open = 35 + random() % 23; open > 0; --open) {
            clues[random() % kCells] = 0;
        }
        if (round % 3 == 0) {
            clues[random() % kCells] = static_cast<std::uint8_t>(1 + random() % 9);
        }
        PlainSearch plain(clues);
        const int count = plain.Count();
        ++answers[static_cast<std::size_t>(count)];
        for (const BruteForceResult& result : {BruteForceSolve(clues), UniqueSud(clues)}) {
            ASSERT_EQ(result.solutionCount, count) << "round " << round;
            ASSERT_TRUE(count != 1 || std::ranges::equal(result.solution, plain.first));
        }
    }
    // Each answer was put to the test.
    EXPECT_GT(*std::ranges::min_element(answers), 40);
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

    EXPECT_TRUE(PreSolve(GridWith({{kNoUnit, "", "E5"}})).invalid);
    // Both cells need the 1, so that the second is left with nothing.
    EXPECT_TRUE(PreSolve(GridWith({{kNoUnit, "1", "A1 A9"}})).invalid);
}

// Row H has no place for 3, deep below a thousand branches that all look open.
TEST(BruteForce, AUnitWithoutAPlaceForADigitIsNoticedBeforeTheBranchesBelowIt) {
    const Digits clues = test::ParseDigits(
        "........7......5..3...................6.......43...9......4.3...7..........3..8..");
    for (const BruteForceResult& result : {BruteForceSolve(clues), UniqueSud(clues)}) {
        EXPECT_EQ(result.solutionCount, 0);
    }
}

}  // namespace
}  // namespace vemo
