// Checks every find of every step against the puzzle's solution.
//     soundness [--seed N] [--one-in N] [--random COUNT] [FILE...]
// The puzzles are those of the files, and COUNT made at random. Each is walked with the fixed
// ladder, and what the walk takes is checked. At every state, or at one in N chosen at random, all
// steps search for all that they find, the one outside the ladder too: on the candidates as they
// are, and once more without some wrong candidates chosen at random, as a player may have removed
// them. Prints a table by technique; exits with 1 where any find contradicts a solution
// (the Bivalue Universal Grave is counted, but no fault: its rule is known to fail in rare
// positions).
#include <array>
#include <cstdio>
#include <string>
#include <vector>

#include "cli/options.h"
#include "main.h"
#include "puzzle_list.h"
#include "random_puzzles.h"
#include "solver/brute_force.h"
#include "solver/solver.h"

namespace vemo {
namespace {

struct Tally {
    long finds = 0;
    long effects = 0;
    long wrong = 0;  // finds with an effect that contradicts the solution
};

// By kind, then variant.
using Tallies = std::array<std::vector<Tally>, kHintKinds + 1>;

bool IsExempt(HintKind kind) {
    return kind == HintKind::BivalueGrave;
}

// Holds all finds of one position against the solution.
class Judge final : public FindSink {
  public:
    Judge(const Grid& grid, const Digits& solution, Tallies& tallies)
        : grid_(grid), solution_(solution), tallies_(tallies) {}

    bool Offer(const Find& find) override {
        const auto isTrue = [&](CellDigit at) { return solution_[at.cell] == at.digit; };
        bool isWrong = false;
        for (const CellDigit& at : find.placements) {
            isWrong |= !isTrue(at);
        }
        for (const CellDigit& at : find.removals) {
            isWrong |= isTrue(at);
        }
        Tally& tally = TallyOf(find);
        ++tally.finds;
        tally.effects += static_cast<long>(find.placements.Size() + find.removals.Size());
        tally.wrong += isWrong ? 1 : 0;
        if (isWrong && !IsExempt(find.kind)) {
            std::cerr << "wrong: " << LogLine(find) << "\n  on " << WritePositionLine(grid_)
                      << '\n';
        }
        return true;
    }

  private:
    Tally& TallyOf(const Find& find) {
        std::vector<Tally>& tallies = tallies_[static_cast<std::size_t>(find.kind)];
        tallies.resize(HintTitles(find.kind).size());
        const std::size_t variant = static_cast<std::size_t>(find.variant);
        const bool isListed = variant >= 1 && variant <= tallies.size();
        return tallies[isListed ? variant - 1 : tallies.size() - 1];
    }

    const Grid& grid_;
    const Digits& solution_;
    Tallies& tallies_;
};

void JudgeAllSteps(const Grid& grid, const Digits& solution, Tallies& tallies) {
    Solver solver(grid);
    Judge judge(grid, solution, tallies);
    for (const std::span<const Step> steps : {Steps(), StepsOutsideTheLadder()}) {
        for (const Step& step : steps) {
            solver.Search(step, judge);
        }
    }
}

// A position that a player may have come to: one wrong candidate in two, four, eight or sixteen
// is gone.
Grid Thinned(const Grid& grid, const Digits& solution, Random& random) {
    Grid thinned = grid;
    const int oneIn = 2 << random.Below(4);
    for (int cell : grid.EmptyCells()) {
        for (int digit = 1; digit <= kDigits; ++digit) {
            const bool isWrong = solution[static_cast<std::size_t>(cell)] != digit;
            if (grid.KnopAan(cell, digit) && isWrong && random.Below(oneIn) == 0) {
                thinned.VerwijderKnop(cell, digit);
            }
        }
    }
    return thinned;
}

// Answers how many finds were wrong that may not be.
long PrintTable(const Tallies& tallies) {
    long faults = 0;
    std::printf("%-34s %12s %12s %8s\n", "technique", "finds", "effects", "wrong");
    for (std::size_t number = 1; number < tallies.size(); ++number) {
        const HintKind kind = static_cast<HintKind>(number);
        for (std::size_t at = 0; at < tallies[number].size(); ++at) {
            const Tally& tally = tallies[number][at];
            std::printf("%-34s %12ld %12ld %8ld\n", std::string(HintTitles(kind)[at]).c_str(),
                        tally.finds, tally.effects, tally.wrong);
            faults += IsExempt(kind) ? 0 : tally.wrong;
        }
    }
    return faults;
}

int Usage(const std::string& error) {
    std::cerr << error << "\nusage: soundness [--seed N] [--one-in N] [--random COUNT] [FILE...]\n";
    return 2;
}

// A whole run over some puzzles.
struct Run {
    void Walk(const Digits& clues, const Digits& solution);

    Random random;
    int oneIn = 1;
    Ladder ladder = FixedLadder();
    Tallies tallies{};
    long puzzles = 0;
    long states = 0;
};

void Run::Walk(const Digits& clues, const Digits& solution) {
    ++puzzles;
    Solver solver(Grid::FromClues(clues));
    solver.SetSolution(solution);
    Grid before = solver.State().Cells();
    bool isJudged = true;
    // What was found at a state that was judged stands in its tally already.
    const auto judgeWhatWasTaken = [&] {
        if (!isJudged) {
            Judge(before, solution, tallies).Offer(solver.LastFind());
        }
    };
    const bool isSolved = RunToTheEnd(solver, ladder, [&] {
        judgeWhatWasTaken();
        // Behind a step that was wrong there is nothing left to judge.
        if (solver.UnsoundFinds() > 0) {
            isJudged = true;
            return false;
        }
        before = solver.State().Cells();
        isJudged = random.Below(oneIn) == 0;
        if (isJudged) {
            JudgeAllSteps(before, solution, tallies);
            JudgeAllSteps(Thinned(before, solution, random), solution, tallies);
            states += 2;
        }
        return true;
    });
    if (isSolved) {
        judgeWhatWasTaken();
    }
}

bool JudgeFile(const std::string& name, Run& run) {
    const auto puzzles = ReadPuzzleList(name);
    if (!puzzles) {
        return false;
    }
    for (const Digits& clues : *puzzles) {
        const BruteForceResult known = BruteForceSolve(clues);
        if (known.IsUnique()) {
            run.Walk(clues, known.solution);
        } else {
            std::cerr << name << ": passed over, not one solution: " << WriteGrid81(clues) << '\n';
        }
    }
    return true;
}

void JudgeRandomPuzzles(std::uint64_t count, Run& run) {
    for (std::uint64_t made = 0; made < count; ++made) {
        const RandomPuzzle puzzle = MakeRandomPuzzle(made, run.random);
        run.Walk(puzzle.clues, puzzle.solution);
    }
}

}  // namespace

int Main(const std::vector<std::string>& words) {
    static constexpr Option kOptions[] = {
        {"--seed", "N", ""}, {"--one-in", "N", ""}, {"--random", "COUNT", ""}};
    const ParsedArguments parsed = ParseArguments(words, kOptions);
    const auto numberOf = [&](const char* option, const char* fallback, std::uint64_t fewest,
                              std::uint64_t most) {
        return WholeNumber(parsed.arguments.ValueOf(option).value_or(fallback), fewest, most);
    };
    const auto seed = numberOf("--seed", "1", 0, ~std::uint64_t{0});
    const auto oneIn = numberOf("--one-in", "1", 1, 1'000'000);
    const auto count = numberOf("--random", "0", 0, ~std::uint64_t{0});
    if (!parsed.error.empty() || !seed || !oneIn || !count) {
        return Usage(parsed.error.empty() ? "--seed, --one-in and --random are numbers"
                                          : parsed.error);
    }
    if (*count == 0 && parsed.arguments.operands.empty()) {
        return Usage("FILE is missing");
    }
    Run run{.random = Random(*seed), .oneIn = static_cast<int>(*oneIn)};
    for (const std::string& name : parsed.arguments.operands) {
        if (!JudgeFile(name, run)) {
            return 3;
        }
    }
    JudgeRandomPuzzles(*count, run);
    const long faults = PrintTable(run.tallies);
    std::printf("%ld puzzles, %ld positions, %ld wrong finds\n", run.puzzles, run.states, faults);
    return faults == 0 ? 0 : 1;
}

}  // namespace vemo
