// Shortest ways along the links of a graph.
#pragma once

#include <cstddef>
#include <vector>

#include "solver/bit_rows.h"
#include "solver/link_graph.h"

namespace vemo {

// The ways from one node, over links that are weak and strong in turn: first come, first served,
// neighbours in ascending order. A node is on after a strong link and off after a weak one.
class LinkWays {
  public:
    // From the start on, where the first link is weak, or off, where it is strong.
    LinkWays(const LinkGraph& graph, int start, LinkKind first);

    // The nodes from the start to one that is reached by a last link of this kind, both included;
    // nothing where there is no such way.
    std::vector<int> To(int node, LinkKind last);

  private:
    struct Step {
        int node;
        LinkKind last;
        std::size_t from;  // the step before; of the first, itself
    };

    void FollowNext();
    void Meet(const Step& step);

    const LinkGraph& graph_;
    BitRows met_;  // by the kind of the last link
    std::vector<Step> steps_;
    std::size_t followed_ = 0;  // steps whose links were followed
};

}  // namespace vemo
