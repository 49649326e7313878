// Any bytes as the three records: what was repaired while reading stays as it is when it is written
// and read again.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "model/records.h"
#include "target.h"

namespace vemo {
namespace {

// The first bytes of the input, zeros where it is shorter.
template <std::size_t kSize>
std::array<std::uint8_t, kSize> RecordOf(std::span<const std::uint8_t> input) {
    std::array<std::uint8_t, kSize> bytes{};
    std::ranges::copy(input.first(std::min(input.size(), kSize)), bytes.begin());
    return bytes;
}

}  // namespace

void Check(std::span<const std::uint8_t> input) {
    const PuzzleRecord puzzle = UnpackPuzzle(RecordOf<kPuzzleRecordSize>(input));
    const PlayState state = UnpackPlayState(RecordOf<kPlayStateRecordSize>(input));
    const LevelStatistics statistics = UnpackStatistics(RecordOf<kStatisticsRecordSize>(input));

    Require(UnpackPuzzle(Pack(puzzle)) == puzzle, "a puzzle reads as it was written");
    Require(UnpackPlayState(Pack(state)) == state, "a play state reads as it was written");
    Require(UnpackStatistics(Pack(statistics)) == statistics, "statistics read as written");

    Require(!HasClash(state.digits), "the digits of a play state do not clash");
    Require(state.undoCount >= 0 && state.undoCount <= kSavedSteps, "a history fits its record");
    if (IsWhole(puzzle)) {
        PlayState solved;
        solved.digits = puzzle.solution;
        Require(BelongsTo(solved, puzzle), "a whole puzzle's solution is a state of it");
    }
    BelongsTo(state, puzzle);
}

}  // namespace vemo
