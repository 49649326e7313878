// How fast puzzles are made: unrated ones, and those of each level, with one thread and with two.
//     bench_generator [options of the benchmark library]
// An item is a puzzle. The search for the rare levels takes its time to get anywhere: take
// --benchmark_min_time=60 for them.
#include <string>

#include <benchmark/benchmark.h>

#include "tools/canonical.h"
#include "tools/generator.h"

namespace vemo {
namespace {

void Generate(benchmark::State& state, int level, int threads) {
    GeneratorSettings settings;
    settings.wanted[static_cast<std::size_t>(level)] = kMostWanted;
    settings.mostTries = kMostTries;
    Generator generator(settings, threads);
    std::int64_t made = 0;
    for ([[maybe_unused]] auto round : state) {
        std::size_t taken = 0;
        while (taken == 0) {
            generator.Wait(std::chrono::milliseconds(100));
            taken = generator.Take().size();
        }
        made += static_cast<std::int64_t>(taken);
    }
    state.SetItemsProcessed(made);
}

void Canonical(benchmark::State& state) {
    Random random(1);
    std::vector<PuzzleRecord> puzzles;
    for (int k = 0; k < 200; ++k) {
        puzzles.push_back(DigPuzzle({}, Symmetry::None, random));
    }
    for ([[maybe_unused]] auto round : state) {
        for (const PuzzleRecord& puzzle : puzzles) {
            benchmark::DoNotOptimize(CanonicalForm(puzzle.clues, puzzle.solution));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(puzzles.size()));
}

int Main(int count, char** words) {
    benchmark::Initialize(&count, words);
    benchmark::RegisterBenchmark("canonical form", Canonical);
    for (int level = 0; level <= kLevels; ++level) {
        for (int threads : {1, 2}) {
            const std::string name = level == 0 ? "unrated" : std::string(LevelName(level));
            benchmark::RegisterBenchmark(
                (name + "/threads:" + std::to_string(threads)).c_str(),
                [](benchmark::State& state, int at, int used) { Generate(state, at, used); }, level,
                threads)
                ->UseRealTime();
        }
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

}  // namespace
}  // namespace vemo

int main(int count, char** words) {
    return vemo::Main(count, words);
}
