// Following chains from all nodes at once, a round at a time: what follows from a node is united
// from what follows from its neighbours.
#include "solver/techniques/consequences.h"

#include <algorithm>
#include <utility>

namespace vemo {

Consequences::Consequences(const LinkGraph& graph, int most)
    : graph_(graph),
      most_(most),
      bits_(graph),
      weakToLinked_(graph.Weak()),
      afterOff_(graph.Size(), bits_.Count()) {
    BitRows linked(1, graph.Size());
    for (int node = 0; node < graph.Size(); ++node) {
        if (graph.Strong().HasAny(node)) {
            linked.Add(0, node);
        }
    }
    for (int node = 0; node < graph.Size(); ++node) {
        for (int word = 0; word < linked.Words(); ++word) {
            weakToLinked_.Row(node)[word] &= linked.Row(0)[word];
        }
    }
}

void Consequences::Advance() {
    if (isOver_) {
        return;
    }
    FollowStrong();
    BitRows next = FollowWeak();
    const bool isNew = rounds_.empty() || !std::equal(std::as_const(next).Row(0),
                                                      std::as_const(next).Row(graph_.Size()),
                                                      std::as_const(rounds_.back()).Row(0));
    if (isNew) {
        rounds_.push_back(std::move(next));
    }
    isOver_ = !isNew || Rounds() == most_;
}

// What follows only grows from round to round, so that it can be added to what is there.
void Consequences::FollowStrong() {
    for (int node = 0; node < graph_.Size(); ++node) {
        const std::uint64_t* strong = graph_.Strong().Row(node);
        std::uint64_t* after = afterOff_.Row(node);
        if (rounds_.empty()) {
            std::copy_n(strong, bits_.HalfWords(), after);
            continue;
        }
        const BitRows& known = rounds_.back();
        ForEachBit(strong, graph_.Strong().Words(),
                   [&](int on) { Unite(after, known.Row(on), Words()); });
    }
}

BitRows Consequences::FollowWeak() const {
    BitRows next(graph_.Size(), bits_.Count());
    for (int node = 0; node < graph_.Size(); ++node) {
        std::uint64_t* row = next.Row(node);
        std::copy_n(graph_.Weak().Row(node), bits_.HalfWords(), row + bits_.HalfWords());
        ForEachBit(weakToLinked_.Row(node), weakToLinked_.Words(),
                   [&](int off) { Unite(row, afterOff_.Row(off), Words()); });
    }
    return next;
}

}  // namespace vemo
