// The search for loops: it follows the links from all candidates at once, one step at a time, so
// that the shortest loop of all is met first. Its way is searched only when it is known to be
// there.
#include "solver/techniques/loop_search.h"

#include <algorithm>

#include "solver/techniques/chase.h"
#include "solver/techniques/link_ways.h"

namespace vemo {
namespace {

bool HasTwice(std::vector<int> nodes) {
    std::ranges::sort(nodes);
    return std::ranges::adjacent_find(nodes) != nodes.end();
}

class LoopSearch {
  public:
    LoopSearch(const LinkGraph& graph, const LoopVisitor& visit)
        : graph_(graph), visit_(visit), core_(graph) {
        for (int block = 0; block * kBlockBits < graph.Singles(); ++block) {
            blocks_.push_back({.firstStart = block * kBlockBits,
                               .fromOn = Chase(graph, core_, LinkKind::Weak, block),
                               .fromOff = Chase(graph, core_, LinkKind::Strong, block)});
        }
    }

    void Run(int longest) {
        for (int length = kShortest; length <= longest; ++length) {
            const bool isOdd = length % 2 != 0;
            for (Block& block : blocks_) {
                if (!(isOdd ? VisitDiscontinuities(block) : VisitCycles(block))) {
                    return;
                }
            }
            if (std::ranges::all_of(blocks_, &Block::IsOver)) {
                return;
            }
        }
    }

  private:
    static constexpr int kShortest = 3;  // links

    struct Block {
        int firstStart;
        // A link can be followed backwards with both states reversed. So of a chain from a start on
        // to the same start off the second half, too, leads away from the start on: to the opposite
        // of the state in the middle. There it is met, and this chase takes a step at every other
        // length only.
        Chase fromOn;
        // As long as the loops but for their last link.
        Chase fromOff;
        Starts withWeak{};  // starts of which the discontinuity was visited
        Starts withStrong{};

        bool IsOver() const { return fromOn.IsOver() && fromOff.IsOver(); }
    };

    bool VisitDiscontinuities(Block& block) {
        block.fromOn.Advance();
        block.fromOff.Advance();
        const Starts weak = block.fromOn.Clashing() - block.withWeak;
        const Starts strong = block.fromOff.Closing(LinkKind::Strong) - block.withStrong;
        block.withWeak |= weak;
        block.withStrong |= strong;
        const Starts any = weak | strong;
        for (int at = 0; any.Any() && at < kBlockBits; ++at) {
            const int start = block.firstStart + at;
            if (weak.Has(at) && !VisitDiscontinuity(LoopType::Weak, start, LinkKind::Weak)) {
                return false;
            }
            if (strong.Has(at) && !VisitDiscontinuity(LoopType::Strong, start, LinkKind::Strong)) {
                return false;
            }
        }
        return true;
    }

    bool VisitDiscontinuity(LoopType type, int start, LinkKind firstAndLast) {
        Loop loop{type, LinkWays(graph_, start, firstAndLast).To(start, firstAndLast)};
        loop.nodes.pop_back();
        return visit_(loop);
    }

    bool VisitCycles(Block& block) {
        block.fromOff.Advance();
        const Starts starts = block.fromOff.Closing(LinkKind::Weak);
        for (int at = 0; starts.Any() && at < kBlockBits; ++at) {
            if (starts.Has(at) && !VisitCyclesFrom(block, at)) {
                return false;
            }
        }
        return true;
    }

    // A last link that is strong, too, is met at the first step. So there is another candidate for
    // it to remove, and no need to ask whether a cycle removes any.
    bool VisitCyclesFrom(const Block& block, int at) {
        LinkWays ways(graph_, block.firstStart + at, LinkKind::Strong);
        for (int last : block.fromOff.LastNodes(at, LinkKind::Weak)) {
            const Loop loop{LoopType::Cycle, ways.To(last, LinkKind::Strong)};
            if (!HasTwice(loop.nodes) && !visit_(loop)) {
                return false;
            }
        }
        return true;
    }

    const LinkGraph& graph_;
    const LoopVisitor& visit_;
    ChainCore core_;
    std::vector<Block> blocks_;
};

}  // namespace

std::vector<int> RemovedBy(const Loop& loop, const LinkGraph& graph) {
    BitRows removed(1, graph.Size());
    const auto addCommon = [&](int one, int other) {
        for (int word = 0; word < removed.Words(); ++word) {
            removed.Row(0)[word] |= graph.Weak().Row(one)[word] & graph.Weak().Row(other)[word];
        }
    };
    if (loop.type == LoopType::Weak) {
        addCommon(loop.nodes[1], loop.nodes.back());
    }
    if (loop.type == LoopType::Cycle) {
        for (std::size_t at = 1; at < loop.nodes.size(); at += 2) {
            addCommon(loop.nodes[at], loop.nodes[(at + 1) % loop.nodes.size()]);
        }
    }
    std::vector<int> nodes;
    ForEachBit(removed.Row(0), removed.Words(), [&](int node) {
        if (node < graph.Singles()) {
            nodes.push_back(node);
        }
    });
    return nodes;
}

void SearchLoops(const LinkGraph& graph, int longest, const LoopVisitor& visit) {
    LoopSearch(graph, visit).Run(longest);
}

}  // namespace vemo
