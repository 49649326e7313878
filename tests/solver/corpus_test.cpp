// What must hold for every puzzle, tried on the corpus.
#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "model/levels.h"
#include "solver/patterns.h"
#include "solver/positions.h"

namespace vemo {
namespace {

using namespace test;

TEST(Corpus, NoStepContradictsTheSolutionAndTheRatingIsTheHardestUsed) {
    const Ladder ladder = FixedLadder();
    for (const Digits& puzzle : Corpus()) {
        Solver solver(Grid::FromClues(puzzle));
        solver.SetSolution(SolutionOf(puzzle));
        PassResult result = PassResult::Changed;
        int hardest = 0;
        int steps = 0;
        while (result == PassResult::Changed) {
            result = solver.Pass(ladder);
            const bool changed = result == PassResult::Changed || result == PassResult::Solved;
            steps += changed ? 1 : 0;
            hardest = changed ? std::max(hardest, solver.LastStep()->level) : hardest;
        }
        EXPECT_NE(result, PassResult::DeadEnd);
        EXPECT_EQ(solver.UnsoundFinds(), 0);
        EXPECT_EQ(solver.ReachedLevel(), hardest);
        EXPECT_EQ(solver.StepCount(), steps);
    }
}

// The fixed ladder as far as its steps of this level.
Ladder LadderUpTo(int level) {
    Ladder ladder = FixedLadder();
    std::erase_if(ladder, [&](const LadderStep& at) { return at.step->level > level; });
    return ladder;
}

// The first level whose steps, with all those below, solve the puzzle.
int LevelThatSolves(const Digits& puzzle) {
    for (int level = 1; level < kOutlaw; ++level) {
        Solver solver(Grid::FromClues(puzzle));
        if (RunToTheEnd(solver, LadderUpTo(level))) {
            return level;
        }
    }
    return kOutlaw;
}

TEST(Corpus, ALevelIsSolvedByItsOwnStepsAndNotByThoseBelow) {
    std::array<int, kOutlaw + 1> puzzlesOfLevel{};
    for (const Digits& puzzle : Corpus()) {
        Solver solver(Grid::FromClues(puzzle));
        const bool isSolved = RunToTheEnd(solver, FixedLadder());
        const int rating = RatingOf(solver, isSolved);
        EXPECT_EQ(rating, LevelThatSolves(puzzle));
        ++puzzlesOfLevel[static_cast<std::size_t>(rating)];
    }
    for (std::size_t level : {1u, 2u, 3u, 4u, 5u, 6u}) {
        EXPECT_GT(puzzlesOfLevel[level], 5) << level;
    }
}

TEST(Corpus, AnEquivalentPuzzleHasTheSameRating) {
    const Ladder quick = QuickLadder();
    const auto ratingOf = [&](const Digits& puzzle) {
        Solver solver(Grid::FromClues(puzzle));
        const bool solved = RunToTheEnd(solver, quick);
        return std::pair(RatingOf(solver, solved), solver.EmptyCount());
    };
    std::mt19937 random(13);
    for (const Digits& puzzle : Corpus()) {
        EXPECT_EQ(ratingOf(RandomSymmetry(random).Of(puzzle)), ratingOf(puzzle));
        EXPECT_EQ(ratingOf(Orientation(4).Of(puzzle)), ratingOf(puzzle));
    }
}

// Asked where singles are still open, a failed trial leaves some of them filled and their peers
// as they were.
TEST(Corpus, NoTrialIsMisledByWhatAnEarlierOneLeft) {
    const Step& trial = StepOfSlot(kSlots - 1);
    PositionsOfCorpus positions;
    for (int tried = 0; tried < 60; ++tried) {
        const PositionsOfCorpus::Known known = positions.Next();
        for (const Find& find : SearchAll(trial, known.grid)) {
            const auto [cell, digit] = find.placements[0];
            ASSERT_EQ(known.solution[cell], digit) << LogLine(find);
        }
    }
}

}  // namespace
}  // namespace vemo
