// Which candidates of two cells go together: the table behind the aligned exclusions.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "solver/almost_locked.h"
#include "solver/bit_rows.h"
#include "solver/find.h"

namespace vemo {

// The candidates of a grid as the bits of a row. Those of a cell stand side by side in one word,
// by digit, and next above them the cell's own bit; the cells stand in order.
class CandidateBits {
  public:
    explicit CandidateBits(const Grid& grid);

    // Bits of a row, not all of them used, and the words that hold them.
    int Size() const { return static_cast<int>(candidates_.size()); }
    int Words() const { return (Size() + 63) / 64; }

    int BitOf(CellDigit candidate) const { return bits_[Index(candidate.cell, candidate.digit)]; }
    int BitOf(int cell) const { return bits_[Index(cell, 0)]; }
    // Digit 0: no candidate's bit but a cell's, or none.
    CellDigit CandidateAt(int bit) const { return candidates_[static_cast<std::size_t>(bit)]; }
    int CellAt(int bit) const { return CandidateAt(bit).cell; }
    // In their word, the candidates of the cell that has this own bit.
    std::uint64_t FieldOf(int own) const { return fields_[static_cast<std::size_t>(own)]; }

    const std::uint64_t* All() const { return masks_.Row(kAllRow); }
    const std::uint64_t* OfDigit(int digit) const { return masks_.Row(digit); }
    // The own bits of the cells that have candidates.
    const std::uint64_t* Cells() const { return masks_.Row(kCellsRow); }

    // The own bits of the cells of a word that have some of these candidates, or none of them. To
    // add all that a cell has carries into its own bit where there is any, and no further.
    std::uint64_t CellsWith(std::uint64_t candidates, int word) const {
        return (candidates + All()[word]) & Cells()[word];
    }
    std::uint64_t CellsWithout(std::uint64_t candidates, int word) const {
        return ~(candidates + All()[word]) & Cells()[word];
    }

    // Adds the candidates that rob a set of their digit: it cannot be there when they are true.
    void AddRobbers(const Grid& grid, const AlmostLocked& set, std::uint64_t* row) const;

  private:
    enum MaskRow { kAllRow = 0, kCellsRow = kDigits + 1, kMaskRows };  // between them the digits

    static std::size_t Index(int cell, int digit) {
        return static_cast<std::size_t>(cell * (kDigits + 1) + digit);
    }
    void AddBit(int cell, int digit);

    std::array<std::int16_t, kCells*(kDigits + 1)> bits_{};  // by cell, then digit or 0
    std::vector<CellDigit> candidates_;                      // by bit
    std::vector<std::uint64_t> fields_;                      // by own bit
    BitRows masks_;
};

// Two candidates of different cells do not go together where they repeat a digit in a unit, or
// where they rob an almost locked set of two digits.
class PairTable {
  public:
    PairTable(const Grid& grid, std::span<const AlmostLocked> excluders);

    const CandidateBits& Bits() const { return bits_; }
    // The candidates that go with this one. Of those of its own cell it is there itself, and
    // whether the others are means nothing.
    const std::uint64_t* PartnersOf(int bit) const { return partners_.Row(bit); }
    // The own bits of the cells of a word none of whose candidates goes with this one.
    std::uint64_t CellsWithoutPartner(int bit, int word) const {
        return bits_.CellsWithout(PartnersOf(bit)[word], word);
    }

  private:
    void ExcludeRepeats(const Grid& grid);
    void Exclude(const std::uint64_t* robbers);

    CandidateBits bits_;
    BitRows partners_;
};

// An exclusion as far as its texts need it, without what it removes: its base cells in the one
// colour, behind them its excluders in the other.
Find ExclusionBy(HintKind kind, const Grid& grid, CellSet base, CellSet excluders);

}  // namespace vemo
