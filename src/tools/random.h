// A small source of random numbers that gives the same ones on every machine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

namespace vemo {

// SplitMix64 (Steele, Lea and Flood, 2014).
class Random {
  public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    std::uint64_t Next();

    // 0..bound-1; the bound is 1 or more.
    int Below(int bound);
    int Between(int least, int most) { return least + Below(most - least + 1); }

    template <typename Items>
    void Shuffle(Items& items) {
        for (std::size_t left = items.size(); left > 1; --left) {
            std::swap(items[left - 1],
                      items[static_cast<std::size_t>(Below(static_cast<int>(left)))]);
        }
    }

  private:
    std::uint64_t state_;
};

}  // namespace vemo
