// What follows from candidates by chains of bounded length, counted in rounds of two links.
#pragma once

#include <cstdint>
#include <vector>

#include "solver/bit_rows.h"
#include "solver/link_graph.h"

namespace vemo {

// The states of candidates as bits of a row: on in its first half, off in its second.
class StateBits {
  public:
    explicit StateBits(const LinkGraph& graph) : half_((graph.Singles() + 63) / 64) {}

    int HalfWords() const { return half_; }
    int Count() const { return 2 * 64 * half_; }
    int On(int node) const { return node; }
    int Off(int node) const { return 64 * half_ + node; }

  private:
    int half_;
};

// What follows from each node on. A round leads over a weak link to nodes that are off then, and
// from these over a strong link to nodes that are on: so many rounds lead to a state that is off
// by twice as many links but one, and to one that is on by twice as many.
class Consequences {
  public:
    // Knows of no round yet; `most` bounds them.
    Consequences(const LinkGraph& graph, int most);

    const StateBits& Bits() const { return bits_; }
    int Words() const { return afterOff_.Words(); }

    // Follows one round more, unless it is over: no further round adds anything, or is allowed.
    void Advance();
    bool IsOver() const { return isOver_; }
    int Rounds() const { return static_cast<int>(rounds_.size()); }

    // The states of candidates that follow from a node on within so many rounds, or within those
    // known if they are fewer. Bits of no candidate mean nothing.
    const std::uint64_t* Within(int rounds, int node) const {
        const int known = rounds < Rounds() ? rounds : Rounds();
        return rounds_[static_cast<std::size_t>(known - 1)].Row(node);
    }

  private:
    void FollowStrong();
    BitRows FollowWeak() const;

    const LinkGraph& graph_;
    int most_;
    StateBits bits_;
    BitRows weakToLinked_;  // the weak links to nodes that have strong ones
    BitRows afterOff_;      // what follows from each node off within a strong link and the rounds
    std::vector<BitRows> rounds_;
    bool isOver_ = false;
};

}  // namespace vemo
