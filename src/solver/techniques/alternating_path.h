// Paths through pairs of numbers that come to no pair twice.
#pragma once

#include <vector>

#include "solver/bit_rows.h"

namespace vemo {

// The numbers below `count` come in pairs, 2k and 2k + 1; `links` joins numbers of different pairs,
// both ways. A path goes by a link from a number to one of a pair that it has not come to yet, and
// goes on from the other number of this pair.
//
// Answers the numbers from which the path goes on, beginning with `from` and ending with `to`,
// three or more of them; nothing where there is no such path. It need not be the shortest.
std::vector<int> AlternatingPath(const BitRows& links, int count, int from, int to);

}  // namespace vemo
