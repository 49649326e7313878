// Sets of small numbers as rows of words, for sets that are united and searched by the hundred.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace vemo {

// A row is a whole number of blocks, so that loops over its words can be unrolled.
inline constexpr int kBlockWords = 4;
inline constexpr int kBlockBits = 64 * kBlockWords;

// Sets of numbers below `bits`, one a row, all of them empty at first.
class BitRows {
  public:
    BitRows() = default;
    BitRows(int rows, int bits)
        : words_((bits + kBlockBits - 1) / kBlockBits * kBlockWords),
          bits_(static_cast<std::size_t>(rows * words_)) {}

    int Words() const { return words_; }
    std::uint64_t* Row(int row) { return bits_.data() + row * words_; }
    const std::uint64_t* Row(int row) const { return bits_.data() + row * words_; }
    void Add(int row, int bit) { Row(row)[bit / 64] |= std::uint64_t{1} << (bit % 64); }
    bool Has(int row, int bit) const { return (Row(row)[bit / 64] >> (bit % 64) & 1) != 0; }
    bool HasAny(int row) const {
        std::uint64_t any = 0;
        for (int word = 0; word < words_; ++word) {
            any |= Row(row)[word];
        }
        return any != 0;
    }

  private:
    int words_ = 0;
    std::vector<std::uint64_t> bits_;
};

// Adds the one set to the other; `words` as of their rows.
inline void Unite(std::uint64_t* to, const std::uint64_t* from, int words) {
    static_assert(kBlockWords == 4);
    for (int at = 0; at < words; at += kBlockWords) {
        const std::uint64_t a = to[at] | from[at];
        const std::uint64_t b = to[at + 1] | from[at + 1];
        const std::uint64_t c = to[at + 2] | from[at + 2];
        const std::uint64_t d = to[at + 3] | from[at + 3];
        to[at] = a;
        to[at + 1] = b;
        to[at + 2] = c;
        to[at + 3] = d;
    }
}

// Calls `visit(bit)` for every bit of the words, in ascending order.
template <typename Visit>
void ForEachBit(const std::uint64_t* words, int count, Visit visit) {
    for (int word = 0; word < count; ++word) {
        for (std::uint64_t left = words[word]; left != 0; left &= left - 1) {
            visit(64 * word + std::countr_zero(left));
        }
    }
}

}  // namespace vemo
