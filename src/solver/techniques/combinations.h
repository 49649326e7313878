// Choosing members that share few bits: the common core of subsets and fish.
#pragma once

#include <array>

#include "model/units.h"

namespace vemo {

// Nine members, each with the bits that it can take: cells with digits, digits with cells, or lines
// with crossing lines.
using Members = std::array<unsigned, 9>;

// Offers every choice of `size` members, each with at least one bit, that have exactly `size` bits
// between them; in lexicographic order. `visit(chosen, bits)` answers whether to go on, with bit m
// of `chosen` for member m. Answers whether every visit did.
template <typename Visit>
bool ForEachSubset(const Members& members, int size, Visit visit, int first = 0,
                   unsigned chosen = 0, unsigned bits = 0, int count = 0) {
    if (count == size) {
        return BitCount(bits) != size || visit(chosen, bits);
    }
    for (int m = first; m <= 9 - (size - count); ++m) {
        const unsigned own = members[static_cast<std::size_t>(m)];
        if (own == 0 || BitCount(bits | own) > size) {
            continue;
        }
        if (!ForEachSubset(members, size, visit, m + 1, chosen | 1u << m, bits | own, count + 1)) {
            return false;
        }
    }
    return true;
}

}  // namespace vemo
