// How fast puzzles are solved, rated and hinted at, and what each step of the ladder costs.
//     bench_solver [LIST] [options of the benchmark library]
// LIST has one puzzle a line; without it the tests' corpus is taken.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>
#include <optional>
#include <string>
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

struct StepCost {
    long finds = 0;
    double total = 0;  // microseconds
    double longest = 0;
};

// The shortest of a few runs in microseconds: what else the machine does then hardly counts.
double TimeOf(const Step& step, Solver& solver, FirstFind& first) {
    using Clock = std::chrono::steady_clock;
    constexpr int kRuns = 3;
    double shortest = std::numeric_limits<double>::max();
    for (int run = 0; run < kRuns; ++run) {
        first = FirstFind();
        const Clock::time_point start = Clock::now();
        solver.Search(step, first);
        const std::chrono::duration<double, std::micro> time = Clock::now() - start;
        shortest = std::min(shortest, time.count());
    }
    return shortest;
}

StepCost CostOf(const Step& step, const std::vector<Grid>& positions) {
    StepCost cost;
    for (const Grid& grid : positions) {
        FirstFind first;
        Solver solver(grid);
        const double time = TimeOf(step, solver, first);
        cost.finds += first.any ? 1 : 0;
        cost.total += time;
        cost.longest = std::max(cost.longest, time);
    }
    return cost;
}

// Each step that searches, tried on every position, up to its first find.
void PrintStepTable(const std::vector<Grid>& positions) {
    std::printf("\n%4s  %-28s %10s %10s %10s %10s\n", "slot", "step", "calls", "finds", "mean us",
                "max us");
    for (const Step& step : Steps()) {
        if (!step.Finds()) {
            continue;
        }
        const StepCost cost = CostOf(step, positions);
        std::string name(Slots()[static_cast<std::size_t>(step.slot)].caption);
        if (step.args.size > 0) {
            name += (step.args.naked ? ", naked " : ", ") + std::to_string(step.args.size);
        }
        std::printf("%4d  %-28s %10zu %10ld %10.3f %10.1f\n", step.slot, name.c_str(),
                    positions.size(), cost.finds,
                    cost.total / static_cast<double>(std::max<std::size_t>(positions.size(), 1)),
                    cost.longest);
    }
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
    PrintStepTable(positions);
    return 0;
}

}  // namespace
}  // namespace vemo

int main(int count, char** words) {
    return vemo::Main(count, words);
}
