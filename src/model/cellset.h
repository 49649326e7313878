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
    constexpr int Count() const { return std::popcount(low_) + std::popcount(high_); }
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

    std::uint64_t low_ = 0;
    std::uint64_t high_ = 0;
};

}  // namespace vemo
