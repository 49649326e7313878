// Puzzles to order.
#include "tools/generator.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "solver/brute_force.h"
#include "support/puzzles.h"
#include "tools/canonical.h"

namespace vemo {
namespace {

struct Search {
    std::vector<RatedPuzzle> puzzles;
    GeneratorCounts counts;
};

Search Generate(const GeneratorSettings& settings, int threads,
                const std::set<Digits>& known = {}) {
    EXPECT_EQ(SettingsError(settings), "");
    Generator generator(settings, threads, known);
    Search run;
    while (run.counts.ending == Ending::None) {
        generator.Wait(std::chrono::milliseconds(50));
        run.counts = generator.Counts();
        const std::vector<RatedPuzzle> taken = generator.Take();
        run.puzzles.insert(run.puzzles.end(), taken.begin(), taken.end());
    }
    return run;
}

std::vector<Digits> CluesOf(const Search& run, int level) {
    std::vector<Digits> clues;
    for (const RatedPuzzle& rated : run.puzzles) {
        if (rated.rating == level) {
            clues.push_back(rated.puzzle.clues);
        }
    }
    return clues;
}

GeneratorSettings Wanting(std::initializer_list<std::pair<int, int>> levels) {
    GeneratorSettings settings;
    settings.seed = 5;
    for (const auto& [level, count] : levels) {
        settings.wanted[static_cast<std::size_t>(level)] = count;
    }
    return settings;
}

TEST(Generator, MakesTheSamePuzzlesWithAnyNumberOfThreadsAndWhateverElseIsWanted) {
    const GeneratorSettings settings = Wanting({{0, 3}, {1, 5}, {3, 4}, {5, 6}, {7, 2}});
    const Search one = Generate(settings, 1);
    const Search many = Generate(settings, 7);
    EXPECT_EQ(one.counts.ending, Ending::Complete);
    EXPECT_EQ(one.counts.kept, settings.wanted);
    EXPECT_EQ(one.counts.tried, many.counts.tried);
    std::set<Digits> forms;
    for (std::size_t at = 0; at < std::min(one.puzzles.size(), many.puzzles.size()); ++at) {
        const RatedPuzzle& rated = one.puzzles[at];
        const PuzzleRecord& puzzle = rated.puzzle;
        EXPECT_EQ(puzzle, many.puzzles[at].puzzle) << at;
        EXPECT_EQ(UniqueSud(puzzle.clues).solution, puzzle.solution);
        EXPECT_TRUE(rated.rating == 0 || Rate(puzzle).rating == rated.rating);
        forms.insert(CanonicalForm(puzzle.clues, puzzle.solution));
    }
    EXPECT_EQ(forms.size(), 20u);
    EXPECT_EQ(CluesOf(Generate(Wanting({{3, 4}}), 2), 3), CluesOf(one, 3));

    // What is known is not made again.
    const Search others = Generate(Wanting({{3, 4}}), 2, forms);
    for (const RatedPuzzle& rated : others.puzzles) {
        EXPECT_FALSE(forms.contains(CanonicalForm(rated.puzzle.clues, rated.puzzle.solution)));
    }
    GeneratorSettings otherSeed = Wanting({{3, 4}});
    otherSeed.seed = 6;
    EXPECT_NE(CluesOf(Generate(otherSeed, 1), 3), CluesOf(one, 3));
}

TEST(Generator, WalksToTheRareLevels) {
    GeneratorSettings settings = Wanting({{8, 2}});
    settings.mostTries = 20'000;
    const Search run = Generate(settings, 2);
    EXPECT_EQ(run.counts.ending, Ending::Complete);
    for (const RatedPuzzle& rated : run.puzzles) {
        EXPECT_EQ(Rate(rated.puzzle).rating, 8);
        EXPECT_TRUE(IsMinimal(rated.puzzle.clues));
    }
}

TEST(Generator, KeepsToWhatIsWished) {
    GeneratorSettings settings = Wanting({{2, 3}});
    settings.symmetry = Symmetry::QuarterTurn;
    settings.clues = {34, 36};
    for (const RatedPuzzle& rated : Generate(settings, 2).puzzles) {
        EXPECT_TRUE(HasSymmetry(rated.puzzle.clues, Symmetry::QuarterTurn));
        EXPECT_TRUE(settings.clues->Holds(ClueCount(rated.puzzle.clues)));
    }

    settings = Wanting({{1, 3}});
    settings.symmetry = Symmetry::HalfTurn;
    settings.minimality = Minimality::Minimal;
    for (const RatedPuzzle& rated : Generate(settings, 2).puzzles) {
        EXPECT_TRUE(IsMinimal(rated.puzzle.clues));
        EXPECT_TRUE(HasSymmetry(rated.puzzle.clues, Symmetry::HalfTurn));
    }

    constexpr int kSkyscraper = 14;
    settings = Wanting({{5, 2}, {6, 2}});
    settings.neededSlot = kSkyscraper;
    const Search run = Generate(settings, 2);
    EXPECT_EQ(run.counts.ending, Ending::Complete);
    for (const RatedPuzzle& rated : run.puzzles) {
        EXPECT_TRUE(NeedsTechnique(rated, kSkyscraper, FixedLadder()));
        EXPECT_FALSE(NeedsTechnique(rated, rated.hardestSlot + 1, FixedLadder()));
    }
}

// Whatever is left out, the ladder does not solve it.
TEST(NeedsTechnique, AnOutlawNeedsNone) {
    const RatedPuzzle outlaw = Rate({test::ParseDigits(test::kOutlawed), {}, {}});
    ASSERT_EQ(outlaw.rating, kOutlaw);
    for (int slot = kFirstTechniqueSlot; slot < kSlots; ++slot) {
        EXPECT_FALSE(NeedsTechnique(outlaw, slot, FixedLadder())) << slot;
    }
}

TEST(Generator, EndsByTriesByTimeAndWhenItIsStopped) {
    GeneratorSettings settings = Wanting({{4, 100'000}});
    settings.mostTries = 777;
    const Search tries = Generate(settings, 1);
    EXPECT_EQ(tries.counts.ending, Ending::Tries);
    EXPECT_EQ(tries.counts.tried, 777);
    EXPECT_EQ(CluesOf(Generate(settings, 5), 4), CluesOf(tries, 4));

    settings.mostTries = kMostTries;
    settings.mostTime = std::chrono::seconds(1);
    const Search time = Generate(settings, 2);
    EXPECT_EQ(time.counts.ending, Ending::Time);
    EXPECT_EQ(static_cast<int>(time.puzzles.size()), time.counts.kept[4]);
    EXPECT_GT(time.counts.kept[4], 0);

    settings.mostTime = {};
    Generator generator(settings, 2);
    generator.Wait(std::chrono::seconds(60));
    generator.Stop();
    EXPECT_EQ(generator.Counts().ending, Ending::Stopped);
    EXPECT_EQ(static_cast<int>(generator.Take().size()), generator.Counts().kept[4]);
    EXPECT_GT(generator.Counts().kept[4], 0);
}

TEST(Generator, SaysWhatCannotBeMade) {
    struct Case {
        const char* part;  // of the sentence
        GeneratorSettings settings;
    };
    std::vector<Case> cases = {
        {"No sudoku", Wanting({})},
        {"0 to 1000000", Wanting({{2, -1}})},
        {"0 to 1000000", Wanting({{2, kMostWanted + 1}})},
    };
    const auto add = [&](const char* part, int level, auto change) {
        cases.push_back({part, Wanting({{level, 1}})});
        change(cases.back().settings);
    };
    add("tries", 1, [](auto& settings) { settings.mostTries = 0; });
    add("a year", 1, [](auto& settings) { settings.mostTime = std::chrono::seconds(-1); });
    add("fewer than 17", 1, [](auto& settings) { settings.clues = {0, 16}; });
    add("more than the most, 29", 1, [](auto& settings) { settings.clues = {30, 29}; });
    add("between 0 and 81", 1, [](auto& settings) { settings.clues = {30, 82}; });
    add("no technique number 40", 1, [](auto& settings) { settings.neededSlot = 40; });
    add("Only rated", 0, [](auto& settings) { settings.neededSlot = 8; });
    add("Outlaw", 9, [](auto& settings) { settings.neededSlot = 38; });
    add("no Hard sudoku", 3, [](auto& settings) { settings.neededSlot = 8; });
    for (const Case& at : cases) {
        EXPECT_NE(SettingsError(at.settings).find(at.part), std::string::npos)
            << at.part << ": " << SettingsError(at.settings);
    }
}

}  // namespace
}  // namespace vemo
