// A set of the 81 cells in two words, iterated in cell order.
#pragma once

#include <bit>
#include <cstdint>

namespace vemo {

class CellSet {
  public:
    constexpr CellSet() = default;

    static constexpr CellSet Of(int cell) {
        CellSet set;
        set.Add(cell);
        return set;
    }
    static constexpr CellSet All() { return {~std::uint64_t{0}, (std::uint64_t{1} << 17) - 1}; }

    constexpr void Add(int cell) { Word(cell) |= Bit(cell); }
    constexpr void Remove(int cell) { Word(cell) &= ~Bit(cell); }
    constexpr bool Has(int cell) const { return ((cell < 64 ? low_ : high_) & Bit(cell)) != 0; }
    constexpr bool Any() const { return (low_ | high_) != 0; }
    // Both words at once, in halves of growing width: a call of the library's count, where the
    // processor's own may not be taken for granted, costs twice as much.
    constexpr int Count() const {
        const std::uint64_t sum = InFours(low_) + InFours(high_);
        const std::uint64_t inEights = (sum & kEights) + (sum >> 4 & kEights);
        return static_cast<int>(inEights * kOnes >> 56);
    }
    constexpr bool Contains(CellSet other) const { return !(other - *this).Any(); }

    // The lowest cell; the set must not be empty.
    constexpr int First() const {
        return low_ != 0 ? std::countr_zero(low_) : 64 + std::countr_zero(high_);
    }

    friend constexpr CellSet operator&(CellSet a, CellSet b) {
        return {a.low_ & b.low_, a.high_ & b.high_};
    }
    friend constexpr CellSet operator|(CellSet a, CellSet b) {
        return {a.low_ | b.low_, a.high_ | b.high_};
    }
    friend constexpr CellSet operator-(CellSet a, CellSet b) {
        return {a.low_ & ~b.low_, a.high_ & ~b.high_};
    }
    constexpr CellSet& operator&=(CellSet other) { return *this = *this & other; }
    constexpr CellSet& operator|=(CellSet other) { return *this = *this | other; }
    constexpr CellSet& operator-=(CellSet other) { return *this = *this - other; }
    constexpr bool operator==(const CellSet&) const = default;

    class Iterator {
      public:
        constexpr Iterator(std::uint64_t low, std::uint64_t high) : low_(low), high_(high) {}
        constexpr int operator*() const {
            return low_ != 0 ? std::countr_zero(low_) : 64 + std::countr_zero(high_);
        }
        constexpr Iterator& operator++() {
            (low_ != 0 ? low_ : high_) &= (low_ != 0 ? low_ : high_) - 1;
            return *this;
        }
        constexpr bool operator==(const Iterator&) const = default;

      private:
        std::uint64_t low_;
        std::uint64_t high_;
    };
    constexpr Iterator begin() const { return {low_, high_}; }
    constexpr Iterator end() const { return {0, 0}; }

  private:
    constexpr CellSet(std::uint64_t low, std::uint64_t high) : low_(low), high_(high) {}
    constexpr std::uint64_t& Word(int cell) { return cell < 64 ? low_ : high_; }
    static constexpr std::uint64_t Bit(int cell) { return std::uint64_t{1} << (cell & 63); }

    static constexpr std::uint64_t kPairs = 0x5555555555555555;
    static constexpr std::uint64_t kFours = 0x3333333333333333;
    static constexpr std::uint64_t kEights = 0x0f0f0f0f0f0f0f0f;
    static constexpr std::uint64_t kOnes = 0x0101010101010101;
    // In each group of four bits, how many of them are set.
    static constexpr std::uint64_t InFours(std::uint64_t word) {
        word -= word >> 1 & kPairs;
        return (word & kFours) + (word >> 2 & kFours);
    }

    std::uint64_t low_ = 0;
    std::uint64_t high_ = 0;
};

}  // namespace vemo
