// Which candidates of two cells go together.
#include "solver/techniques/pair_table.h"

#include <algorithm>

namespace vemo {

CandidateBits::CandidateBits(const Grid& grid) {
    candidates_.reserve(4 * 64);
    for (int cell : grid.EmptyCells()) {
        const Marks marks = grid.MarksAt(cell);
        if (marks == 0) {
            continue;
        }
        const std::size_t wanted = static_cast<std::size_t>(BitCount(marks)) + 1;
        if (candidates_.size() % 64 + wanted > 64) {
            candidates_.resize((candidates_.size() + 63) / 64 * 64);
        }
        for (int digit : DigitsOf(marks)) {
            AddBit(cell, digit);
        }
        AddBit(cell, 0);
    }
    fields_.resize(candidates_.size());
    masks_ = BitRows(kMaskRows, Size());
    for (int bit = 0; bit < Size(); ++bit) {
        const auto [cell, digit] = CandidateAt(bit);
        if (digit != 0) {
            masks_.Add(kAllRow, bit);
            masks_.Add(digit, bit);
            masks_.Add(kCellsRow, BitOf(cell));
            fields_[static_cast<std::size_t>(BitOf(cell))] |= std::uint64_t{1} << (bit % 64);
        }
    }
}

void CandidateBits::AddBit(int cell, int digit) {
    bits_[Index(cell, digit)] = static_cast<std::int16_t>(candidates_.size());
    candidates_.push_back(At(cell, digit));
}

void CandidateBits::AddRobbers(const Grid& grid, const AlmostLocked& set,
                               std::uint64_t* row) const {
    for (int digit : DigitsOf(set.digits)) {
        for (int cell : set.Kills(digit) & grid.Candidates(digit)) {
            const int bit = BitOf(At(cell, digit));
            row[bit / 64] |= std::uint64_t{1} << (bit % 64);
        }
    }
}

PairTable::PairTable(const Grid& grid, std::span<const AlmostLocked> excluders)
    : bits_(grid), partners_(bits_.Size(), bits_.Size()) {
    ExcludeRepeats(grid);
    BitRows work(1, bits_.Size());
    std::uint64_t* robbers = work.Row(0);
    for (const AlmostLocked& excluder : excluders) {
        std::fill_n(robbers, bits_.Words(), 0);
        bits_.AddRobbers(grid, excluder, robbers);
        Exclude(robbers);
    }
}

void PairTable::ExcludeRepeats(const Grid& grid) {
    ForEachBit(bits_.All(), bits_.Words(), [&](int bit) {
        const auto [own, digit] = bits_.CandidateAt(bit);
        std::uint64_t* partners = partners_.Row(bit);
        std::copy_n(bits_.All(), bits_.Words(), partners);
        for (int cell : Peers(own) & grid.Candidates(digit)) {
            const int same = bits_.BitOf(At(cell, digit));
            partners[same / 64] &= ~(std::uint64_t{1} << (same % 64));
        }
    });
}

// Two digits that are robbed are one too many. To rob a set of one digit twice is none.
void PairTable::Exclude(const std::uint64_t* robbers) {
    const int words = bits_.Words();
    ForEachBit(robbers, words, [&](int bit) {
        const std::uint64_t* same = bits_.OfDigit(bits_.CandidateAt(bit).digit);
        std::uint64_t* partners = partners_.Row(bit);
        for (int word = 0; word < words; ++word) {
            partners[word] &= ~robbers[word] | same[word];
        }
    });
}

Find ExclusionBy(HintKind kind, const Grid& grid, CellSet base, CellSet excluders) {
    Find find;
    find.kind = kind;
    find.AddCells(base);
    find.AddCells(excluders);
    find.firstColor = Find::CandidatesOf(grid, base, kAllMarks);
    find.secondColor = Find::CandidatesOf(grid, excluders, kAllMarks);
    return find;
}

}  // namespace vemo
