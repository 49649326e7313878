// The puzzles of a collection of any size: a few bytes of each in memory, their clues in a file
// without a name.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <vector>

#include "platform/scratch_file.h"
#include "tools/duplicates.h"
#include "tools/puzzle_filter.h"

namespace vemo {

enum class Solutions : std::uint8_t { Unknown, None, One, Several };
Solutions SolutionsOf(const SolutionCount& count);

// What has been found out beside.
enum class RowNote : std::uint8_t {
    None,
    Exact,       // the same puzzle stands in an earlier row
    Equivalent,  // one that can be turned into it does
    Stored,      // in the level file of its level
};

// Whether a puzzle needs the technique that is asked for.
enum class Needs : std::uint8_t { Unknown, No, Yes };

// 12 bytes: a million of them are to be at hand.
class TableRow {
  public:
    explicit TableRow(const ClueFacts& facts);

    ClueFacts Facts() const;
    Solutions HasSolutions() const { return static_cast<Solutions>(solutions_); }
    int Level() const { return static_cast<int>(level_); }  // 0: not rated
    int HardestSlot() const { return static_cast<int>(slot_); }
    int Steps() const { return static_cast<int>(steps_); }
    PlayTime Best() const { return TimeOfSeconds(static_cast<int>(best_)); }
    RowNote Note() const { return static_cast<RowNote>(note_); }
    // The earlier row, from 0, or the number in the level file: by the note.
    std::uint32_t Other() const { return other_; }
    Needs NeedsIt() const { return static_cast<Needs>(needs_); }
    bool IsRemoved() const { return isRemoved_ != 0; }

    void SetSolutions(Solutions solutions) { solutions_ = static_cast<std::uint32_t>(solutions); }
    void SetRating(const RatedPuzzle& rated);
    void ClearRating() {
        level_ = 0;
        SetNeeds(Needs::Unknown);
    }
    void SetBest(const PlayTime& best);
    void SetNote(RowNote note, std::uint32_t other);
    void SetStored(int level, std::uint32_t number);
    void SetNeeds(Needs needs) { needs_ = static_cast<std::uint32_t>(needs); }
    void Remove() { isRemoved_ = 1; }
    void PutBack() { isRemoved_ = 0; }

  private:
    std::uint32_t clues_ : 7;
    std::uint32_t symmetries_ : 6;
    std::uint32_t digits_ : 4;
    std::uint32_t emptyBoxes_ : 4;
    std::uint32_t solutions_ : 2 = 0;
    std::uint32_t level_ : 4 = 0;
    std::uint32_t note_ : 2 = 0;
    std::uint32_t needs_ : 2 = 0;
    std::uint32_t isRemoved_ : 1 = 0;
    std::uint32_t slot_ : 6 = 0;
    std::uint32_t steps_ : 10 = 0;  // each takes one of 729 candidates, or more
    std::uint32_t best_ : 16 = 0;   // seconds, up to 18 hours
    std::uint32_t other_ = 0;
};
static_assert(sizeof(TableRow) == 12);

// Rows are numbered from 0. One thread changes the table; others may read clues meanwhile.
class PuzzleTable {
  public:
    // The clues four bits a cell.
    static constexpr std::size_t kPackedSize = 41;
    using Packed = std::array<std::uint8_t, kPackedSize>;
    static Packed Pack(const Digits& clues);

    // New rows at the end. On an error none is added.
    struct NewRow {
        TableRow row;
        Packed clues;
    };
    std::optional<FileError> Add(std::span<const NewRow> rows);

    std::uint32_t Size() const { return static_cast<std::uint32_t>(rows_.size()); }
    const TableRow& Row(std::uint32_t row) const { return rows_[row]; }
    TableRow& Row(std::uint32_t row) { return rows_[row]; }

    // Nothing where the file cannot be read.
    std::optional<Digits> Clues(std::uint32_t row) const;
    // The clues of neighbouring rows in one reading; of none where the file cannot be read.
    std::vector<Digits> CluesOf(std::uint32_t first, std::size_t count) const;

  private:
    std::deque<TableRow> rows_;
    ScratchFile clues_;
};

}  // namespace vemo
