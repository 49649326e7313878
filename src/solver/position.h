// A grid under the solver, and what follows from its candidates alone.
#pragma once

#include "model/grid.h"

namespace vemo {

// A search reads a position and keeps nothing. What several searches would work out again belongs
// here: made on first use, dropped by Change.
class Position {
  public:
    explicit Position(const Grid& grid) : grid_(grid) {}

    const Grid& Cells() const { return grid_; }
    Grid& Change() { return grid_; }

  private:
    Grid grid_;
};

}  // namespace vemo
