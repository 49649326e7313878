// The three records of the game's files.
#include "model/records.h"

#include <algorithm>

namespace vemo {
namespace {

constexpr int kMaxSeconds = 59;
constexpr std::int16_t kTrue = -1;

// Writes or reads packed little-endian fields one after the other.
class Packer {
  public:
    explicit Packer(std::span<std::uint8_t> bytes) : bytes_(bytes) {}

    void Put(std::uint32_t value, int size) {
        for (int k = 0; k < size; ++k) {
            bytes_[at_++] = static_cast<std::uint8_t>(value >> (8 * k));
        }
    }
    void Put8(int value) { Put(static_cast<std::uint32_t>(value), 1); }
    void Put16(int value) { Put(static_cast<std::uint32_t>(value), 2); }
    void Put32(std::int32_t value) { Put(static_cast<std::uint32_t>(value), 4); }
    void PutTime(PlayTime time) {
        Put16(time.minutes);
        Put16(time.seconds);
    }

  private:
    std::span<std::uint8_t> bytes_;
    std::size_t at_ = 0;
};

class Unpacker {
  public:
    explicit Unpacker(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    std::uint32_t Get(int size) {
        std::uint32_t value = 0;
        for (int k = 0; k < size; ++k) {
            value |= static_cast<std::uint32_t>(bytes_[at_++]) << (8 * k);
        }
        return value;
    }
    std::uint8_t Get8() { return static_cast<std::uint8_t>(Get(1)); }
    std::int16_t Get16() { return static_cast<std::int16_t>(Get(2)); }
    std::int32_t Get32() { return static_cast<std::int32_t>(Get(4)); }
    // An impossible time reads as none.
    PlayTime GetTime() {
        const int minutes = Get16();
        const int seconds = Get16();
        return minutes < 0 || seconds < 0 || seconds > kMaxSeconds ? PlayTime{}
                                                                   : PlayTime{minutes, seconds};
    }

  private:
    std::span<const std::uint8_t> bytes_;
    std::size_t at_ = 0;
};

bool AllDigitsPossible(const Digits& digits) {
    return std::ranges::all_of(digits, [](int digit) { return digit <= kDigits; });
}

bool IsPossible(const PlayState& state) {
    for (std::size_t cell = 0; cell < kCells; ++cell) {
        const Marks marks = state.pencilMarks[cell];
        if ((marks & ~kAllMarks) != 0 || (state.digits[cell] != 0 && marks != 0)) {
            return false;
        }
    }
    return AllDigitsPossible(state.digits) && !HasClash(state.digits);
}

// The six arrays of the history stand one after the other in the record.
constexpr std::array kHistoryFields = {&UndoEntry::cell,         &UndoEntry::marks,
                                       &UndoEntry::kindAndDigit, &UndoEntry::rowMask,
                                       &UndoEntry::columnMask,   &UndoEntry::boxMask};

bool IsPossible(const UndoEntry& entry) {
    constexpr int kNine = 511;
    const auto isMask = [](int mask) { return mask >= 0 && mask <= kNine; };
    return entry.cell >= 0 && entry.cell < kCells && isMask(entry.marks) && isMask(entry.rowMask) &&
           isMask(entry.columnMask) && isMask(entry.boxMask) && entry.kindAndDigit >= 0 &&
           (entry.kindAndDigit & 15) <= kDigits;
}

bool HasPossibleHistory(const PlayState& state) {
    return state.undoCount >= 0 && state.undoCount <= kSavedSteps &&
           std::all_of(state.history.begin(), state.history.begin() + state.undoCount,
                       [](const UndoEntry& entry) { return IsPossible(entry); });
}

}  // namespace

PuzzleBytes Pack(const PuzzleRecord& record) {
    PuzzleBytes bytes;
    Packer packer(bytes);
    std::ranges::for_each(record.clues, [&](int digit) { packer.Put8(digit); });
    std::ranges::for_each(record.solution, [&](int digit) { packer.Put8(digit); });
    packer.PutTime(record.best);
    return bytes;
}

PlayStateBytes Pack(const PlayState& state) {
    PlayStateBytes bytes;
    Packer packer(bytes);
    std::ranges::for_each(state.digits, [&](int digit) { packer.Put8(digit); });
    packer.PutTime(state.elapsed);
    std::ranges::for_each(state.pencilMarks, [&](int marks) { packer.Put16(marks); });
    packer.Put16(state.undoCount);
    for (const auto field : kHistoryFields) {
        for (const UndoEntry& entry : state.history) {
            packer.Put16(entry.*field);
        }
    }
    return bytes;
}

StatisticsBytes Pack(const LevelStatistics& statistics) {
    StatisticsBytes bytes;
    Packer packer(bytes);
    packer.Put32(statistics.lastNumber);
    packer.Put16(statistics.inProgress ? kTrue : 0);
    packer.PutTime(statistics.best);
    packer.Put32(statistics.solvedCount);
    packer.Put32(statistics.totalMinutes);
    packer.Put32(statistics.totalSeconds);
    packer.PutTime(statistics.average);
    return bytes;
}

PuzzleRecord UnpackPuzzle(std::span<const std::uint8_t, kPuzzleRecordSize> bytes) {
    Unpacker unpacker(bytes);
    PuzzleRecord record;
    std::ranges::generate(record.clues, [&] { return unpacker.Get8(); });
    std::ranges::generate(record.solution, [&] { return unpacker.Get8(); });
    record.best = unpacker.GetTime();
    return record;
}

PlayState UnpackPlayState(std::span<const std::uint8_t, kPlayStateRecordSize> bytes) {
    Unpacker unpacker(bytes);
    PlayState state;
    std::ranges::generate(state.digits, [&] { return unpacker.Get8(); });
    state.elapsed = unpacker.GetTime();
    std::ranges::generate(state.pencilMarks, [&] { return static_cast<Marks>(unpacker.Get16()); });
    state.undoCount = unpacker.Get16();
    for (const auto field : kHistoryFields) {
        for (UndoEntry& entry : state.history) {
            entry.*field = unpacker.Get16();
        }
    }
    if (!IsPossible(state)) {
        return {};
    }
    if (!HasPossibleHistory(state)) {
        state.undoCount = 0;
        state.history = {};
    }
    return state;
}

LevelStatistics UnpackStatistics(std::span<const std::uint8_t, kStatisticsRecordSize> bytes) {
    Unpacker unpacker(bytes);
    LevelStatistics statistics;
    const auto count = [&] { return std::max(unpacker.Get32(), std::int32_t{0}); };
    statistics.lastNumber = count();
    statistics.inProgress = unpacker.Get16() != 0;
    statistics.best = unpacker.GetTime();
    statistics.solvedCount = count();
    statistics.totalMinutes = count();
    statistics.totalSeconds = count();
    statistics.average = unpacker.GetTime();
    return statistics;
}

bool IsWhole(const PuzzleRecord& record) {
    if (!AllDigitsPossible(record.clues) || !AllDigitsPossible(record.solution) ||
        std::ranges::count(record.solution, 0) != 0 || HasClash(record.solution)) {
        return false;
    }
    return std::ranges::equal(record.clues, record.solution,
                              [](int clue, int digit) { return clue == 0 || clue == digit; });
}

bool BelongsTo(const PlayState& state, const PuzzleRecord& puzzle) {
    return state.digits != Digits{} &&
           std::ranges::equal(puzzle.clues, state.digits,
                              [](int clue, int digit) { return clue == 0 || clue == digit; });
}

}  // namespace vemo
