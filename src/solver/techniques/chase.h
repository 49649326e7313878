// Following links from all candidates at once.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "solver/link_graph.h"

namespace vemo {

// A set of candidates where chains start: a block of them, as wide as that of a row of links.
struct Starts {
    std::array<std::uint64_t, kBlockWords> words{};

    bool Any() const { return (words[0] | words[1] | words[2] | words[3]) != 0; }
    bool Has(int at) const {
        return (words[static_cast<std::size_t>(at / 64)] >> at % 64 & 1) != 0;
    }
    void Add(int at) { words[static_cast<std::size_t>(at / 64)] |= std::uint64_t{1} << at % 64; }

    Starts& operator|=(const Starts& other) {
        return *this = Merged(*this, other, std::bit_or<>());
    }
    friend Starts operator|(const Starts& one, const Starts& other) {
        return Merged(one, other, std::bit_or<>());
    }
    friend Starts operator&(const Starts& one, const Starts& other) {
        return Merged(one, other, std::bit_and<>());
    }
    friend Starts operator-(const Starts& one, const Starts& other) {
        return Merged(one, other, [](std::uint64_t a, std::uint64_t b) { return a & ~b; });
    }

  private:
    // Without a loop: then it stays in registers.
    template <typename Operation>
    static Starts Merged(const Starts& one, const Starts& other, Operation operation) {
        static_assert(kBlockWords == 4);
        return {{operation(one.words[0], other.words[0]), operation(one.words[1], other.words[1]),
                 operation(one.words[2], other.words[2]), operation(one.words[3], other.words[3])}};
    }
};

// The nodes that a chain can pass behind its start, which are those with links of both kinds:
// numbered without gaps, with their links among each other.
class ChainCore {
  public:
    using Neighbours = std::span<const std::int16_t>;

    explicit ChainCore(const LinkGraph& graph);

    std::size_t Size() const { return nodes_.size(); }
    // The graph's number of a node.
    int Node(std::size_t at) const { return nodes_[at]; }
    Neighbours Of(std::size_t at, LinkKind kind) const {
        return lists_[static_cast<std::size_t>(kind)].Of(at);
    }

  private:
    struct Lists {
        Neighbours Of(std::size_t at) const {
            const std::size_t begin = at == 0 ? 0 : ends[at - 1];
            return {neighbours.data() + begin, ends[at] - begin};
        }

        std::vector<std::int16_t> neighbours;  // of all nodes, one node after the other
        std::vector<std::size_t> ends;
    };

    // `numbers`: by those of the graph.
    Lists ListsOf(const BitRows& rows, const BitRows& isIn, Neighbours numbers) const;

    std::vector<std::int16_t> nodes_;
    std::array<Lists, 2> lists_;  // by kind
};

// Which states of the core's nodes follow from each start of a block, in as many steps as were
// taken and no fewer: from the start on where the first link is weak, from the start off where it
// is strong. A weak link leads to a node that is off then, a strong link to one that is on.
// (After M. Then and others, The more the merrier: efficient multi-source graph traversal, 2014.)
class Chase {
  public:
    // Takes the first step.
    Chase(const LinkGraph& graph, const ChainCore& core, LinkKind first, int block);

    void Advance();
    // Nothing new was reached by the last step.
    bool IsOver() const { return isOver_; }

    // The starts from which a state is reached by the last step, and by the one before that its
    // opposite.
    Starts Clashing() const;
    // The starts that one more link leads back to.
    Starts Closing(LinkKind kind) const;
    // The nodes from which it leads back to this one, in ascending order.
    std::vector<int> LastNodes(int start, LinkKind kind) const;

  private:
    Starts RowOf(std::size_t at, LinkKind kind) const;
    // The states reached so far that such a link leads to.
    std::vector<Starts>& Reached(LinkKind kind) { return reached_[static_cast<std::size_t>(kind)]; }

    const LinkGraph& graph_;
    const ChainCore& core_;
    int block_;
    LinkKind last_;  // of the last step
    bool isOver_ = false;
    // By node: the starts from which it is reached by the last step, by the one before, and by any.
    std::vector<Starts> now_;
    std::vector<Starts> before_;
    std::array<std::vector<Starts>, 2> reached_;
};

}  // namespace vemo
