// Rows and columns whose common open cells have room for just as many placements as they are.
#pragma once

#include <cstdint>
#include <vector>

#include "model/grid.h"

namespace vemo {

// Some of the nine rows or of the nine columns, bit k for the k-th.
using Lines = std::uint16_t;

struct Crossing {
    Lines rows = 0;
    Lines columns = 0;
};

// All choices of two to five rows and two to five columns with this sum: a digit counts with the
// rows that hold it where they meet the columns, or with the columns that do, whichever are fewer;
// and all digits count as much as there are open cells. In no promised order.
std::vector<Crossing> TightCrossings(const Grid& grid);

}  // namespace vemo
