// A grid under the solver, and what follows from its candidates alone.
#pragma once

#include <memory>
#include <vector>

#include "model/grid.h"
#include "solver/almost_locked.h"
#include "solver/clusters.h"
#include "solver/link_graph.h"

namespace vemo {

// A search reads a position and keeps nothing. What several searches would work out again belongs
// here: made on first use, dropped by Change.
class Position {
  public:
    explicit Position(const Grid& grid) : grid_(grid) {}

    const Grid& Cells() const { return grid_; }
    Grid& Change() {
        derived_.reset();
        return grid_;
    }

    // The cells with exactly two candidates.
    CellSet BivalueCells() const;
    const std::vector<Cluster>& Clusters(int digit) const;
    // Of one to five cells, with one digit more than cells.
    const AlmostLockedList& AlmostLockedSets() const;
    const LinkGraph& Links(GraphNodes nodes, GraphDigits digits) const;

  private:
    struct Derived;

    Derived& Made() const;
    LinkGraph MakeLinks(GraphNodes nodes, GraphDigits digits) const;

    Grid grid_;
    mutable std::shared_ptr<Derived> derived_;  // as long as the grid stays as it is
};

}  // namespace vemo
