// Shortest ways along the links of a graph.
#include "solver/techniques/link_ways.h"

#include <algorithm>

namespace vemo {

LinkWays::LinkWays(const LinkGraph& graph, int start, LinkKind first)
    : graph_(graph), met_(2, graph.Size()) {
    Meet({start, Other(first), 0});
}

std::vector<int> LinkWays::To(int node, LinkKind last) {
    std::size_t at = 0;
    while (at < steps_.size() && (steps_[at].node != node || steps_[at].last != last)) {
        ++at;
        while (at == steps_.size() && followed_ < at) {
            FollowNext();
        }
    }
    if (at == steps_.size()) {
        return {};
    }
    std::vector<int> nodes = {node};
    while (at != 0) {
        at = steps_[at].from;
        nodes.push_back(steps_[at].node);
    }
    std::ranges::reverse(nodes);
    return nodes;
}

void LinkWays::FollowNext() {
    const std::size_t from = followed_++;
    const LinkKind kind = Other(steps_[from].last);
    const BitRows& rows = RowsOf(graph_, kind);
    ForEachBit(rows.Row(steps_[from].node), rows.Words(), [&](int node) {
        if (!met_.Has(static_cast<int>(kind), node)) {
            Meet({node, kind, from});
        }
    });
}

void LinkWays::Meet(const Step& step) {
    met_.Add(static_cast<int>(step.last), step.node);
    steps_.push_back(step);
}

}  // namespace vemo
