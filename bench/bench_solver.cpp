// How fast puzzles are solved, rated and hinted at.
//     bench_solver [LIST] [options of the benchmark library]
// LIST has one puzzle a line; without it the tests' corpus is taken.
#include <cstdio>
#include <optional>
#include <vector>

#include <benchmark/benchmark.h>

#include "puzzle_list.h"
#include "solver/brute_force.h"
#include "solver/solver.h"

namespace vemo {
namespace {

// The steps whose pattern is one unit or two: a hint of these shall come at once.
Ladder SimpleHintLadder() {
    Ladder ladder = HintLadder(TechniqueSettings());
    std::erase_if(ladder, [](const LadderStep& at) { return at.step->slot >= kFirstMovableSlot; });
    return ladder;
}

// Every position that the rating of these puzzles goes through.
std::vector<Grid> PositionsOf(const std::vector<Digits>& puzzles) {
    const Ladder ladder = FixedLadder();
    std::vector<Grid> positions;
    for (const Digits& puzzle : puzzles) {
        Solver solver(Grid::FromClues(puzzle));
        RunToTheEnd(solver, ladder, [&] {
            positions.push_back(solver.State().Cells());
            return true;
        });
    }
    return positions;
}

void Solve(benchmark::State& state, const std::vector<Digits>& puzzles) {
    for ([[maybe_unused]] auto round : state) {
        for (const Digits& puzzle : puzzles) {
            benchmark::DoNotOptimize(BruteForceSolve(puzzle));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(puzzles.size()));
}

void Rate(benchmark::State& state, const std::vector<Digits>& puzzles) {
    const Ladder ladder = FixedLadder();
    for ([[maybe_unused]] auto round : state) {
        for (const Digits& puzzle : puzzles) {
            Solver solver(Grid::FromClues(puzzle));
            benchmark::DoNotOptimize(RatingOf(solver, RunToTheEnd(solver, ladder)));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(puzzles.size()));
}

void Hint(benchmark::State& state, const std::vector<Grid>& positions) {
    const Ladder ladder = SimpleHintLadder();
    for ([[maybe_unused]] auto round : state) {
        for (const Grid& position : positions) {
            Solver solver(position);
            benchmark::DoNotOptimize(solver.Pass(ladder));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(positions.size()));
}

int Main(int count, char** words) {
    benchmark::Initialize(&count, words);
    if (count > 2) {
        std::fprintf(stderr, "unexpected word %s\n", words[2]);
        return 2;
    }
    const std::optional<std::vector<Digits>> puzzles =
        ReadPuzzleList(count > 1 ? words[1] : VEMO_CORPUS);
    if (!puzzles) {
        return 3;
    }
    const std::vector<Grid> positions = PositionsOf(*puzzles);
    benchmark::RegisterBenchmark("solve", [&](benchmark::State& state) { Solve(state, *puzzles); });
    benchmark::RegisterBenchmark("rate", [&](benchmark::State& state) { Rate(state, *puzzles); });
    benchmark::RegisterBenchmark("hint", [&](benchmark::State& state) { Hint(state, positions); });
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

}  // namespace
}  // namespace vemo

int main(int count, char** words) {
    return vemo::Main(count, words);
}
