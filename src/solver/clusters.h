// Clusters: the places of one digit that conjugate pairs tie together, in two colours.
#pragma once

#include <array>
#include <vector>

#include "model/cellset.h"
#include "model/grid.h"
#include "model/sequence.h"
#include "model/units.h"

namespace vemo {

// The two places of a digit in a unit where it has no others: exactly one of them is right.
using ConjugatePairs = Sequence<CellSet, kUnitCount>;

// In the order of their units, each once: a box and a line can have the same.
ConjugatePairs ConjugatePairsOf(const Grid& grid, int digit);

// Exactly one of the two colours holds the digit in all its cells. The lowest cell of the cluster
// has colour 0. In a contradictory grid a cell can have both colours.
struct Cluster {
    std::array<CellSet, 2> color;
    std::array<CellSet, 2> seen;  // by colour, the cells that see one of its cells

    CellSet Cells() const { return color[0] | color[1]; }
    bool IsTwoColored() const { return !(color[0] & color[1]).Any(); }
    // Two cells of the colour share a unit: it is not the one that holds the digit.
    bool Clashes(std::size_t of) const { return (color[of] & seen[of]).Any(); }
};

// The first unit that holds two of these cells; there is one.
const Unit& UnitOfTwo(CellSet cells);

// The connected parts of the graph whose edges are the conjugate pairs; in the order of their
// lowest cells.
std::vector<Cluster> ClustersOf(const Grid& grid, int digit);

}  // namespace vemo
