// Searching a link graph for loops.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "solver/link_graph.h"

namespace vemo {

// The numbers are the variants of their kinds of hint.
enum class LoopType : std::uint8_t { Strong = 1, Weak, Cycle };

// Nodes tied to a ring by links that are strong and weak in turn. At the first node, a candidate,
// two strong links can meet, or two weak ones: a discontinuity. The shortest one of a position has
// each node once; a longer one can lead from its first node to a shorter one and the same way back.
// A cycle has no discontinuity, each node once, and begins with a strong link. The length is the
// number of links.
struct Loop {
    LoopType type;
    std::vector<int> nodes;

    bool BeginsStrong() const { return type != LoopType::Weak; }
};

// The candidates that lose to a loop, as nodes in ascending order. Where two weak links meet: all
// that are weakly linked to both neighbours of the first node, itself among them. Of a cycle: all
// that are weakly linked to both ends of one of its weak links. Where two strong links meet: none.
std::vector<int> RemovedBy(const Loop& loop, const LinkGraph& graph);

// Answers whether to go on.
using LoopVisitor = std::function<bool(const Loop&)>;

// Visits the loops of at most `longest` links in the order of their length, then of their first
// node; weak discontinuities before strong ones and these before cycles, which are ordered by their
// last node. For each first node one loop of each type, the shortest; cycles with one for each last
// node. Which of several shortest ones is fixed by going along the links from the first node on,
// first come, first served, neighbours in ascending order. A cycle that passes a node twice or
// removes nothing is none.
void SearchLoops(const LinkGraph& graph, int longest, const LoopVisitor& visit);

}  // namespace vemo
