// Random puzzles with exactly one solution, and the nine levels that they are sorted into.
//
// The shipped level files and the corpus of the tests come from
//     vemosud make-levels --output assets --seed 2026 --tries 1500
//     vemosud make-levels --corpus tests/data/corpus.txt --corpus-count 400 --seed 2026
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

#include "model/levels.h"
#include "model/records.h"
#include "tools/random.h"

namespace vemo {

// A full grid without a clash.
Digits RandomSolution(Random& random);

// Whether the clues look the same after half a turn.
enum class Symmetry : std::uint8_t { None, HalfTurn };

// Takes clues out of a full grid, or out of a puzzle, as long as its solution stays the only one
// and at least `fewest` clues stay. What is left has more clues where no other can go.
Digits DigClues(const Digits& from, Symmetry symmetry, int fewest, Random& random);

struct LevelSettings {
    std::uint64_t seed = 1;
    int count = 60;  // puzzles a level
    // Where the search ends, on the average of all levels.
    int triesPerPuzzle = 500;
};

// By level, from easier to harder; all different.
using LevelPuzzles = std::array<std::vector<PuzzleRecord>, kLevels>;

// Told now and then how many puzzles stand and how many are wanted.
using MakerProgress = std::function<void(int made, int wanted)>;

// The fixed ladder sorts them. The same settings and the same ladder make the same puzzles. A level
// stays short, or empty, where its kind of puzzle is too rare for a search of bounded length.
LevelPuzzles MakeLevels(const LevelSettings& settings, const MakerProgress& progress = {});

// Puzzles of the levels 1, 2, 3 and above in turn, all different.
std::vector<Digits> MakeCorpus(std::uint64_t seed, int count, const MakerProgress& progress = {});

}  // namespace vemo
