// A small source of random numbers that gives the same ones on every machine.
#include "tools/random.h"

#include <cassert>

namespace vemo {

std::uint64_t Random::Next() {
    state_ += 0x9E3779B97F4A7C15u;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    return mixed ^ (mixed >> 31);
}

int Random::Below(int bound) {
    assert(bound >= 1 && "there is no number below 0 to choose");
    // The upper half times the bound; for bounds this small the bias is far below what shows.
    return static_cast<int>((Next() >> 32) * static_cast<std::uint64_t>(bound) >> 32);
}

}  // namespace vemo
