// Writing chains: as the links of a find, and as text.
#pragma once

#include <span>
#include <string>

#include "solver/find.h"
#include "solver/link_graph.h"

namespace vemo {

// The link of the graph from one node to another, as a chain follows it.
ChainLink LinkAlong(const LinkGraph& graph, int from, int to, Find::Strength strength);

// "A1/A2/A3": the cells of a node.
std::string SlashedCells(CellSet cells);

// "A1/A2(5)".
std::string NodeText(CellSet cells, int digit);

// "A1(3) - A1/A2(5) = B2(5) =ALS B2/B3= B3(7)": each link begins where the one before it ends.
std::string ChainText(std::span<const ChainLink> chain);

}  // namespace vemo
