// A grid under the solver, and what follows from its candidates alone.
#pragma once

#include <vector>

#include "model/grid.h"
#include "solver/clusters.h"

namespace vemo {

// A search reads a position and keeps nothing. What several searches would work out again belongs
// here: made on first use, dropped by Change.
class Position {
  public:
    explicit Position(const Grid& grid) : grid_(grid) {}

    const Grid& Cells() const { return grid_; }
    Grid& Change() {
        clustersMade_ = 0;
        return grid_;
    }

    // The cells with exactly two candidates.
    CellSet BivalueCells() const;
    const std::vector<Cluster>& Clusters(int digit) const;

  private:
    Grid grid_;
    mutable std::array<std::vector<Cluster>, kDigits> clusters_;
    mutable Marks clustersMade_ = 0;  // of which digits
};

}  // namespace vemo
