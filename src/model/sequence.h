// A short list that lives where it is declared, without the heap.
#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <initializer_list>

namespace vemo {

template <typename T, std::size_t kCapacity>
class Sequence {
  public:
    constexpr Sequence() = default;
    constexpr Sequence(std::initializer_list<T> items) {
        for (const T& item : items) {
            Add(item);
        }
    }

    constexpr void Add(const T& item) {
        assert(count_ < kCapacity && "a sequence holds no more than its capacity");
        items_[count_++] = item;
    }
    constexpr bool IsFull() const { return count_ == kCapacity; }
    constexpr bool Empty() const { return count_ == 0; }
    constexpr std::size_t Size() const { return count_; }
    constexpr const T& operator[](std::size_t at) const { return items_[at]; }
    constexpr const T* begin() const { return items_.data(); }
    constexpr const T* end() const { return items_.data() + count_; }

    friend constexpr bool operator==(const Sequence& a, const Sequence& b) {
        if (a.count_ != b.count_) {
            return false;
        }
        for (std::size_t k = 0; k < a.count_; ++k) {
            if (!(a.items_[k] == b.items_[k])) {
                return false;
            }
        }
        return true;
    }

  private:
    std::array<T, kCapacity> items_{};
    std::size_t count_ = 0;
};

}  // namespace vemo
