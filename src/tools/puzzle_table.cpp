// The puzzles of a collection.
#include "tools/puzzle_table.h"

#include <algorithm>

namespace vemo {
namespace {

constexpr int kMostSteps = (1 << 10) - 1;
constexpr int kMostSeconds = (1 << 16) - 1;
constexpr int kSymmetryShift = 1;  // bit 0 of the facts is that of no symmetry, and never set

Digits Unpacked(std::span<const std::uint8_t> packed) {
    Digits clues{};
    for (std::size_t cell = 0; cell < clues.size(); ++cell) {
        clues[cell] = static_cast<std::uint8_t>(packed[cell / 2] >> (cell % 2 * 4) & 0xF);
    }
    return clues;
}

}  // namespace

Solutions SolutionsOf(const SolutionCount& count) {
    return count.count == 0   ? Solutions::None
           : count.IsUnique() ? Solutions::One
                              : Solutions::Several;
}

TableRow::TableRow(const ClueFacts& facts)
    : clues_(static_cast<unsigned>(facts.clues) & 0x7F),
      symmetries_(static_cast<unsigned>(facts.symmetries >> kSymmetryShift) & 0x3F),
      digits_(static_cast<unsigned>(facts.digits) & 0xF),
      emptyBoxes_(static_cast<unsigned>(facts.emptyBoxes) & 0xF) {}

ClueFacts TableRow::Facts() const {
    return {static_cast<int>(clues_), static_cast<int>(digits_), static_cast<int>(emptyBoxes_),
            static_cast<std::uint8_t>(symmetries_ << kSymmetryShift)};
}

void TableRow::SetRating(const RatedPuzzle& rated) {
    level_ = static_cast<unsigned>(rated.rating) & 0xF;
    slot_ = static_cast<unsigned>(std::max(rated.hardestSlot, 0)) & 0x3F;
    steps_ = static_cast<unsigned>(std::min(rated.steps, kMostSteps)) & 0x3FF;
}

void TableRow::SetBest(const PlayTime& best) {
    best_ = static_cast<unsigned>(std::min(best.InSeconds(), kMostSeconds)) & 0xFFFF;
}

void TableRow::SetNote(RowNote note, std::uint32_t other) {
    note_ = static_cast<std::uint32_t>(note);
    other_ = other;
}

void TableRow::SetStored(int level, std::uint32_t number) {
    level_ = static_cast<unsigned>(level) & 0xF;
    SetNote(RowNote::Stored, number);
}

PuzzleTable::Packed PuzzleTable::Pack(const Digits& clues) {
    Packed packed{};
    for (std::size_t cell = 0; cell < clues.size(); ++cell) {
        packed[cell / 2] =
            static_cast<std::uint8_t>(packed[cell / 2] | clues[cell] << (cell % 2 * 4));
    }
    return packed;
}

std::optional<FileError> PuzzleTable::Add(std::span<const NewRow> rows) {
    Bytes bytes;
    bytes.reserve(rows.size() * kPackedSize);
    for (const NewRow& row : rows) {
        bytes.insert(bytes.end(), row.clues.begin(), row.clues.end());
    }
    if (auto error = clues_.Append(bytes)) {
        return error;
    }
    for (const NewRow& row : rows) {
        rows_.push_back(row.row);
    }
    return std::nullopt;
}

std::optional<Digits> PuzzleTable::Clues(std::uint32_t row) const {
    const std::vector<Digits> clues = CluesOf(row, 1);
    return clues.empty() ? std::nullopt : std::optional(clues.front());
}

std::vector<Digits> PuzzleTable::CluesOf(std::uint32_t first, std::size_t count) const {
    Bytes bytes(count * kPackedSize);
    std::vector<Digits> clues;
    if (clues_.ReadAt(std::uint64_t{first} * kPackedSize, bytes)) {
        for (std::size_t at = 0; at < bytes.size(); at += kPackedSize) {
            clues.push_back(Unpacked(std::span(bytes).subspan(at, kPackedSize)));
        }
    }
    return clues;
}

}  // namespace vemo
