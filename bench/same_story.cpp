// Do rating, batch check, autosolve and hints tell the same story?
//     same_story [--seed N] [--random COUNT] [FILE...]
// Solves each puzzle of the files, and COUNT made at random, in five ways: by the rating, by the
// batch check, by hints applied one after the other to a grid, by the game's Autosolve, and by the
// game's hints, each applied. Whoever finds a step logs it: with default settings all must take the
// same steps in the same order and come to the same end. Exits with 1 where they do not.
#include <algorithm>
#include <array>
#include <cstdio>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/options.h"
#include "game/game.h"
#include "game/view_without_window.h"
#include "main.h"
#include "model/files.h"
#include "platform/memory_settings.h"
#include "platform/plain_files.h"
#include "puzzle_list.h"
#include "random_puzzles.h"
#include "solver/brute_force.h"
#include "solver/solver.h"
#include "support/temp_folder.h"
#include "support/test_folders.h"

namespace vemo {
namespace {

struct Story {
    std::vector<std::string> lines;  // of the log
    bool isSolved = false;

    bool operator==(const Story&) const = default;
};

// Without what a bifurcation logs of its trials, their steps included, and without the graves that
// take nothing.
Story StepsOf(const Story& story) {
    Story steps{.lines = {}, .isSolved = story.isSolved};
    bool isTrial = false;
    for (const std::string& line : story.lines) {
        isTrial |= line.starts_with("Bifurcation attempt");
        isTrial &= !line.starts_with("Bifurcation placed");
        const bool isFailure = line.starts_with("Current Bifurcation attempt failed");
        if (!isTrial && !isFailure && !line.empty() && !line.ends_with(" :")) {
            steps.lines.push_back(line);
        }
        isTrial &= !isFailure;
    }
    return steps;
}

// A run that applies its steps itself.
struct Run {
    Story story;
    int rating = 0;
    bool isSound = true;
};

Run RunOf(const PuzzleRecord& puzzle, const Ladder& ladder) {
    Run run;
    Solver solver(Grid::FromClues(puzzle.clues));
    solver.SetSolution(puzzle.solution);
    solver.SetLog([&](std::string_view line) { run.story.lines.emplace_back(line); });
    run.story.isSolved = RunToTheEnd(solver, ladder);
    run.rating = RatingOf(solver, run.story.isSolved);
    run.isSound = solver.UnsoundFinds() == 0;
    return run;
}

// Each hint from a new start, on a grid that only the hints have changed.
Story HintsOf(const PuzzleRecord& puzzle) {
    const Ladder ladder = HintLadder(TechniqueSettings());
    Story story;
    Grid grid = Grid::FromClues(puzzle.clues);
    for (;;) {
        Solver solver(grid);
        if (solver.Pass(ladder) != PassResult::Hint) {
            story.isSolved = grid.EmptyCount() == 0;
            return story;
        }
        const Find& find = solver.LastFind();
        story.lines.push_back(LogLine(find));
        for (const auto& [cell, digit] : find.placements) {
            grid.Zet(digit, cell);
        }
        for (const auto& [cell, digit] : find.removals) {
            grid.VerwijderKnop(cell, digit);
        }
    }
}

class StillClock final : public Clock {
  public:
    int SecondOfDay() override { return 0; }
};

// The game of a new player, every level of which has these puzzles.
class Player {
  public:
    // Opens no puzzle yet; the level is one without the simple display.
    Player(const std::vector<PuzzleRecord>& puzzles, int level) {
        Bytes content;
        for (const PuzzleRecord& puzzle : puzzles) {
            const PuzzleBytes bytes = Pack(puzzle);
            content.insert(content.end(), bytes.begin(), bytes.end());
        }
        files_.MakeFolder(folder_ / "program");
        for (int each = 1; each <= kLevels; ++each) {
            files_.Replace(folder_ / "program" / PuzzleFileName(each), content);
        }
        game_.FormLoad();
        game_.mnuLevelNr(level);
    }

    Story AutosolveNext() {
        game_.mnuSudokuNext();
        const std::size_t begin = game_.SolveLogText().size();
        game_.mnuSolveAutoSolve();
        Story story;
        std::string_view text = std::string_view(game_.SolveLogText()).substr(begin);
        for (std::size_t end; (end = text.find("\r\n")) != text.npos; text.remove_prefix(end + 2)) {
            story.lines.emplace_back(text.substr(0, end));
        }
        // A blank line and "Start Solving", and at the end what became of it.
        if (story.lines.size() >= 3) {
            story.isSolved = story.lines.back() == "SUDOKU SOLVED";
            story.lines.pop_back();
            story.lines.erase(story.lines.begin(), story.lines.begin() + 2);
        }
        return story;
    }

    Story HintsOfNext() {
        game_.mnuSudokuNext();
        Story story;
        for (;;) {
            game_.mnuSolveHint();
            if (!game_.CurrentSession().hint) {
                story.isSolved = game_.CurrentSession().phase == PlayPhase::Finished;
                return story;
            }
            story.lines.push_back(LogLine(*game_.CurrentSession().hint));
            game_.CommandApplyClick();
        }
    }

  private:
    test::TempFolder folder_;
    MemorySettings settings_;
    PlainFiles files_;
    test::TestFolders folders_{folder_ / "program", folder_ / "data"};
    Silence sounds_;
    StillClock clock_;
    ViewWithoutWindow view_;
    Game game_{{settings_, folders_, files_, sounds_, clock_}, view_};
};

// Says where the two part. Answers whether they do.
bool Differ(const char* who, const Story& told, const Story& rating, const PuzzleRecord& puzzle) {
    if (told == rating) {
        return false;
    }
    const auto [one, other] = std::ranges::mismatch(told.lines, rating.lines);
    const auto lineOf = [](const Story& story, auto at) {
        return at != story.lines.end() ? *at : story.isSolved ? "solved" : "not solved";
    };
    std::cerr << WriteGrid81(puzzle.clues) << ": " << who << " goes on with\n  "
              << lineOf(told, one) << "\nthe rating with\n  " << lineOf(rating, other) << '\n';
    return true;
}

struct Tally {
    int differing = 0;
    int unsound = 0;
    std::size_t steps = 0;
    std::array<int, kLevels + 1> byLevel{};
};

Tally Compare(const std::vector<PuzzleRecord>& puzzles) {
    Tally tally;
    Player autosolver(puzzles, kOutlaw);
    Player asker(puzzles, kOutlaw);
    for (const PuzzleRecord& puzzle : puzzles) {
        const Run rating = RunOf(puzzle, FixedLadder());
        const Run batch = RunOf(puzzle, BatchLadder(TechniqueSettings()));
        const Story autosolve = autosolver.AutosolveNext();
        // Applying a grave that contradicts the solution, the game leaves the right digit.
        const Story asked = rating.isSound ? asker.HintsOfNext() : Story();
        const Story steps = StepsOf(rating.story);
        bool differs = Differ("the batch check", batch.story, rating.story, puzzle);
        differs |= batch.rating != rating.rating;
        differs |= Differ("Autosolve", autosolve, rating.story, puzzle);
        differs |= Differ("a line of hints", HintsOf(puzzle), steps, puzzle);
        differs |= rating.isSound && Differ("a player with hints", asked, steps, puzzle);
        tally.differing += differs ? 1 : 0;
        tally.unsound += rating.isSound ? 0 : 1;
        tally.steps += steps.lines.size();
        ++tally.byLevel[static_cast<std::size_t>(rating.rating)];
    }
    return tally;
}

void Add(const Digits& clues, std::vector<PuzzleRecord>& puzzles) {
    const BruteForceResult known = BruteForceSolve(clues);
    if (known.IsUnique()) {
        puzzles.push_back({.clues = clues, .solution = known.solution, .best = {}});
    } else {
        std::cerr << "passed over, not one solution: " << WriteGrid81(clues) << '\n';
    }
}

}  // namespace

int Main(const std::vector<std::string>& words) {
    static constexpr Option kOptions[] = {{"--seed", "N", ""}, {"--random", "COUNT", ""}};
    const ParsedArguments parsed = ParseArguments(words, kOptions);
    const auto numberOf = [&](const char* option, const char* fallback, std::uint64_t most) {
        return WholeNumber(parsed.arguments.ValueOf(option).value_or(fallback), 0, most);
    };
    const auto seed = numberOf("--seed", "1", ~std::uint64_t{0});
    const auto count = numberOf("--random", "0", 1'000'000);
    if (!parsed.error.empty() || !seed || !count ||
        (*count == 0 && parsed.arguments.operands.empty())) {
        std::cerr << "usage: same_story [--seed N] [--random COUNT] [FILE...]\n";
        return 2;
    }
    std::vector<PuzzleRecord> puzzles;
    for (const std::string& name : parsed.arguments.operands) {
        const auto list = ReadPuzzleList(name);
        if (!list) {
            return 3;
        }
        std::ranges::for_each(*list, [&](const Digits& clues) { Add(clues, puzzles); });
    }
    Random random(*seed);
    for (std::uint64_t made = 0; made < *count; ++made) {
        Add(MakeRandomPuzzle(made, random).clues, puzzles);
    }
    const Tally tally = Compare(puzzles);
    for (int level = 1; level <= kLevels; ++level) {
        std::printf("%-9s %6d\n", std::string(LevelName(level)).c_str(),
                    tally.byLevel[static_cast<std::size_t>(level)]);
    }
    std::printf("%zu puzzles, %zu steps, %d puzzles told differently, %d with an unsound grave\n",
                puzzles.size(), tally.steps, tally.differing, tally.unsound);
    return tally.differing == 0 ? 0 : 1;
}

}  // namespace vemo
