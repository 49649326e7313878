// How fast solutions are counted.
//     bench_count [LIST...] [options of the benchmark library]
// A LIST has one puzzle a line; without any the tests' corpus is taken. The rows of a list:
//     count/LIST   a puzzle, counted to two
//     dig/LIST     a clue of a puzzle: is it needed?
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "puzzle_list.h"
#include "solver/fast_count.h"

namespace vemo {
namespace {

using Puzzles = std::vector<Digits>;

void Count(benchmark::State& state, const Puzzles& puzzles) {
    for ([[maybe_unused]] auto round : state) {
        for (const Digits& puzzle : puzzles) {
            benchmark::DoNotOptimize(FastCount(puzzle));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(puzzles.size()));
}

void Dig(benchmark::State& state, const Puzzles& puzzles) {
    std::int64_t asked = 0;
    for ([[maybe_unused]] auto round : state) {
        for (const Digits& puzzle : puzzles) {
            for (int cell = 0; cell < kCells; ++cell) {
                if (puzzle[static_cast<std::size_t>(cell)] != 0) {
                    benchmark::DoNotOptimize(NeedsClue(puzzle, cell));
                    ++asked;
                }
            }
        }
    }
    state.SetItemsProcessed(asked);
}

int Main(int count, char** words) {
    benchmark::Initialize(&count, words);
    std::vector<std::string> lists(words + (count > 0 ? 1 : 0), words + count);
    if (lists.empty()) {
        lists = {VEMO_CORPUS};
    }
    for (const std::string& list : lists) {
        const std::optional<Puzzles> read = ReadPuzzleList(list);
        if (!read) {
            return 3;
        }
        const std::string name = std::filesystem::path(list).stem().string();
        benchmark::RegisterBenchmark(
            ("count/" + name).c_str(),
            [](benchmark::State& state, const Puzzles& puzzles) { Count(state, puzzles); }, *read);
        benchmark::RegisterBenchmark(
            ("dig/" + name).c_str(),
            [](benchmark::State& state, const Puzzles& puzzles) { Dig(state, puzzles); }, *read);
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

}  // namespace
}  // namespace vemo

int main(int count, char** words) {
    return vemo::Main(count, words);
}
