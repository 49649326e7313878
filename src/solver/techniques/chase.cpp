// The steps of a chase.
#include "solver/techniques/chase.h"

#include <algorithm>

namespace vemo {

ChainCore::ChainCore(const LinkGraph& graph) {
    std::vector<std::int16_t> numbers(static_cast<std::size_t>(graph.Size()));
    BitRows isIn(1, graph.Size());
    for (int node = 0; node < graph.Size(); ++node) {
        if (graph.Strong().HasAny(node) && graph.Weak().HasAny(node)) {
            numbers[static_cast<std::size_t>(node)] = static_cast<std::int16_t>(nodes_.size());
            nodes_.push_back(static_cast<std::int16_t>(node));
            isIn.Add(0, node);
        }
    }
    for (const LinkKind kind : {LinkKind::Weak, LinkKind::Strong}) {
        lists_[static_cast<std::size_t>(kind)] = ListsOf(RowsOf(graph, kind), isIn, numbers);
    }
}

ChainCore::Lists ChainCore::ListsOf(const BitRows& rows, const BitRows& isIn,
                                    Neighbours numbers) const {
    Lists lists;
    lists.ends.reserve(nodes_.size());
    for (int node : nodes_) {
        for (int word = 0; word < rows.Words(); ++word) {
            const std::uint64_t both = rows.Row(node)[word] & isIn.Row(0)[word];
            ForEachBit(&both, 1, [&](int bit) {
                lists.neighbours.push_back(numbers[static_cast<std::size_t>(64 * word + bit)]);
            });
        }
        lists.ends.push_back(lists.neighbours.size());
    }
    return lists;
}

Chase::Chase(const LinkGraph& graph, const ChainCore& core, LinkKind first, int block)
    : graph_(graph),
      core_(core),
      block_(block),
      last_(first),
      now_(core.Size()),
      before_(core.Size()) {
    reached_.fill(now_);
    Starts starts;
    for (int at = 0; at < std::min(graph.Singles() - block * kBlockBits, kBlockBits); ++at) {
        starts.Add(at);
    }
    for (std::size_t at = 0; at < core.Size(); ++at) {
        now_[at] = RowOf(at, first) & starts;
    }
    Reached(first) = now_;
}

void Chase::Advance() {
    last_ = Other(last_);
    now_.swap(before_);
    std::fill(now_.begin(), now_.end(), Starts());
    for (std::size_t from = 0; from < core_.Size(); ++from) {
        if (before_[from].Any()) {
            const Starts starts = before_[from];
            for (int to : core_.Of(from, last_)) {
                now_[static_cast<std::size_t>(to)] |= starts;
            }
        }
    }
    std::vector<Starts>& reached = Reached(last_);
    Starts any;
    for (std::size_t at = 0; at < core_.Size(); ++at) {
        now_[at] = now_[at] - reached[at];
        reached[at] |= now_[at];
        any |= now_[at];
    }
    isOver_ = !any.Any();
}

Starts Chase::Clashing() const {
    Starts clashing;
    for (std::size_t at = 0; at < core_.Size(); ++at) {
        clashing |= now_[at] & before_[at];
    }
    return clashing;
}

Starts Chase::Closing(LinkKind kind) const {
    Starts closing;
    for (std::size_t at = 0; at < core_.Size(); ++at) {
        closing |= now_[at] & RowOf(at, kind);
    }
    return closing;
}

std::vector<int> Chase::LastNodes(int start, LinkKind kind) const {
    std::vector<int> nodes;
    for (std::size_t at = 0; at < core_.Size(); ++at) {
        if (now_[at].Has(start) && RowOf(at, kind).Has(start)) {
            nodes.push_back(core_.Node(at));
        }
    }
    return nodes;
}

// The candidates of the block that are linked to a node.
Starts Chase::RowOf(std::size_t at, LinkKind kind) const {
    const std::uint64_t* row = RowsOf(graph_, kind).Row(core_.Node(at)) + block_ * kBlockWords;
    return {{row[0], row[1], row[2], row[3]}};
}

}  // namespace vemo
