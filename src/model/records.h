// The three records of the game's files, packed little-endian field by field.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "model/grid.h"
#include "model/times.h"

namespace vemo {

inline constexpr std::size_t kPuzzleRecordSize = 166;
inline constexpr std::size_t kPlayStateRecordSize = 1449;
inline constexpr std::size_t kStatisticsRecordSize = 26;

// One puzzle of a level file.
struct PuzzleRecord {
    Digits clues{};
    Digits solution{};
    PlayTime best;  // 0:00: never solved

    bool operator==(const PuzzleRecord&) const = default;
};

inline constexpr int kSavedSteps = 100;

// One entry of the undo history as it is stored. What the numbers mean is the history's business.
struct UndoEntry {
    std::int16_t cell = 0;
    std::int16_t marks = 0;  // bit d-1 for digit d
    std::int16_t kindAndDigit = 0;
    std::int16_t rowMask = 0;  // bit k for the k-th cell of the unit
    std::int16_t columnMask = 0;
    std::int16_t boxMask = 0;

    bool operator==(const UndoEntry&) const = default;
};

// A puzzle in play, as saved. The default is the empty play state: all zero.
struct PlayState {
    Digits digits{};
    PlayTime elapsed;
    std::array<Marks, kCells> pencilMarks{};
    int undoCount = 0;                             // 0..100
    std::array<UndoEntry, kSavedSteps> history{};  // the first undoCount are valid

    bool operator==(const PlayState&) const = default;
};

// What is kept of a level.
struct LevelStatistics {
    std::int32_t lastNumber = 0;
    bool inProgress = false;
    PlayTime best;
    std::int32_t solvedCount = 0;
    std::int32_t totalMinutes = 0;
    std::int32_t totalSeconds = 0;
    PlayTime average;

    bool operator==(const LevelStatistics&) const = default;
};

using PuzzleBytes = std::array<std::uint8_t, kPuzzleRecordSize>;
using PlayStateBytes = std::array<std::uint8_t, kPlayStateRecordSize>;
using StatisticsBytes = std::array<std::uint8_t, kStatisticsRecordSize>;

PuzzleBytes Pack(const PuzzleRecord& record);
PlayStateBytes Pack(const PlayState& state);
StatisticsBytes Pack(const LevelStatistics& statistics);

// Unpacking never fails: it repairs what it safely can, so that one impossible value does not cost
// the good ones beside it.

// An impossible best time reads as none; the digits stay as they are (see IsWhole).
PuzzleRecord UnpackPuzzle(std::span<const std::uint8_t, kPuzzleRecordSize> bytes);

// An impossible time reads as 0:00, an impossible history as none; impossible digits or marks make
// the whole state the empty one.
PlayState UnpackPlayState(std::span<const std::uint8_t, kPlayStateRecordSize> bytes);

// Impossible times and counts read as zero.
LevelStatistics UnpackStatistics(std::span<const std::uint8_t, kStatisticsRecordSize> bytes);

// The solution is a complete grid and contains the clues.
bool IsWhole(const PuzzleRecord& record);

// The state is one of this puzzle: every clue stands in its cell, and not every cell is empty.
bool BelongsTo(const PlayState& state, const PuzzleRecord& puzzle);

}  // namespace vemo
