// The puzzles that the game is shipped with, and a list of mixed ones for tests.
//
// The list in tests/data comes from
//     vemosud make-levels --corpus tests/data/corpus.txt --corpus-count 400 --seed 2026
// and assets/levels/README.md says where the level files come from.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "model/levels.h"
#include "model/records.h"

namespace vemo {

struct LevelSettings {
    std::uint64_t seed = 1;
    std::array<int, kLevels> counts{};  // puzzles, by level - 1
    // Where the search for one kind of puzzle ends although some are missing.
    std::int64_t mostTries = 1'000'000'000;
    int threads = 1;
};

// By level - 1, from gentle to hard.
using LevelPuzzles = std::array<std::vector<PuzzleRecord>, kLevels>;

// Told now and then how many puzzles stand and how many are wanted; answers whether to go on.
using MakerProgress = std::function<bool(int made, int wanted)>;

// Half of the puzzles of the first five levels have a symmetry, each of the six as often. No two
// are equivalent. The same settings make the same puzzles, with any number of threads. A level
// stays short where its kind of puzzle is too rare for so many tries. Nothing where it was not to
// go on, and where the system has no thread left.
std::optional<LevelPuzzles> MakeLevels(const LevelSettings& settings,
                                       const MakerProgress& progress = {});

// Puzzles of the levels 1, 2, 3 and above in turn, all different. Nothing where it was not to go
// on.
std::optional<std::vector<Digits>> MakeCorpus(std::uint64_t seed, int count,
                                              const MakerProgress& progress = {});

}  // namespace vemo
