// Makes puzzles to order, on worker threads.
//
// The same settings make the same puzzles in the same order, on every machine and with any number
// of threads, unless time or the player ends the search: then what was made so far is a part of
// them.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "model/levels.h"
#include "tools/puzzle_search.h"

namespace vemo {

struct GeneratorSettings {
    std::uint64_t seed = 1;
    // How many, by level; at 0 those that are not rated.
    std::array<int, kLevels + 1> wanted{};
    Symmetry symmetry = Symmetry::None;
    // Nothing: what suits the level, from many clues for Easy down to as few as it takes.
    std::optional<ClueRange> clues{};
    Minimality minimality = Minimality::Any;
    // A puzzle needs a technique where those up to its hardest do not solve it without this one.
    // kNoSlot: whatever it needs.
    int neededSlot = kNoSlot;
    // Where the search ends although puzzles are missing. Rare ones take millions of tries.
    std::int64_t mostTries = 10'000'000;
    std::chrono::seconds mostTime{0};  // 0: as long as it takes
};

inline constexpr int kMostWanted = 1'000'000;  // of a level
inline constexpr std::int64_t kMostTries = 1'000'000'000'000;
inline constexpr std::chrono::seconds kMostTime{31'536'000};

// What cannot be made, as a sentence to the player; empty where all is well.
std::string SettingsError(const GeneratorSettings& settings);

enum class Ending : std::uint8_t {
    None,      // still searching
    Complete,  // all that was wanted is made
    Tries,
    Time,
    Stopped,
    NoThreads,  // the system had none left
};

struct GeneratorCounts {
    std::int64_t tried = 0;
    std::array<int, kLevels + 1> kept{};  // as `wanted`
    Ending ending = Ending::None;
};

class Generator {
  public:
    // Begins at once. The settings are free of errors; threads are 1 to kMostThreads, or as many
    // as the system has left. Puzzles equivalent to a known one, by their canonical forms, are not
    // made again; nor is any made twice.
    Generator(const GeneratorSettings& settings, int threads, std::set<Digits> known = {});
    // Stops, and waits for the workers' ends.
    ~Generator();
    Generator(const Generator&) = delete;
    Generator& operator=(const Generator&) = delete;

    // Ends the search within a fifth of a second. What was made is kept.
    void Stop();

    GeneratorCounts Counts() const;

    // The puzzles made since the last call. Once `Counts` tells of an ending and this was called
    // after, there will be no more.
    std::vector<RatedPuzzle> Take();

    // Waits until something was made, the search ended, or the time has passed.
    void Wait(std::chrono::milliseconds longest);

  private:
    class Work;
    std::unique_ptr<Work> work_;
};

}  // namespace vemo
