// The links between the candidates of a position: what all chains run along.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "model/cellset.h"
#include "model/grid.h"
#include "solver/almost_locked.h"
#include "solver/bit_rows.h"

namespace vemo {

// A digit in one of some cells of a unit: on where one of them holds it, off where none does.
struct LinkNode {
    CellSet cells;
    int digit = 0;

    bool IsSingle() const { return cells.Count() == 1; }
    bool operator==(const LinkNode&) const = default;
};

// Which nodes a graph has; each kind has those of the one before it.
enum class GraphNodes : std::uint8_t {
    Single,        // candidates
    Grouped,       // two or three places of a digit where a line crosses a box
    AlmostLocked,  // the places of a digit in an almost locked set of two to four cells
};
inline constexpr int kLargestSetNode = 4;  // cells of such a set
// Whether links lead from digit to digit.
enum class GraphDigits : std::uint8_t { One, All };

// Nodes are numbered: candidates by cell, then digit; groups by digit, line (rows, columns) and
// box; almost locked ones by set, then digit, each node once.
//
// Weak link: not both on. Same digit, every cell of the one seeing every cell of the other; or two
// candidates of a cell. Strong link: not both off. Same digit, both in one unit, all places there
// between them and neither having all; or the two candidates of a cell; or two digits of an almost
// locked set. Every link is a fact about the position by itself.
//
// A graph with more nodes or links is made from one with fewer, all of which it keeps: candidates,
// then groups, then sets, and at any time the links in cells.
class LinkGraph {
  public:
    // The candidates, each digit by itself.
    explicit LinkGraph(const Grid& grid);
    LinkGraph WithGroups(const Grid& grid) const;
    LinkGraph WithLinksInCells(const Grid& grid) const;
    // Sets of up to kLargestSetNode cells; those of one cell add nothing.
    LinkGraph WithAlmostLocked(std::span<const AlmostLocked> sets) const;

    int Size() const { return static_cast<int>(nodes_.size()); }
    // The candidates, which come first.
    int Singles() const { return singles_; }
    const LinkNode& Node(int node) const { return nodes_[static_cast<std::size_t>(node)]; }
    // The node of a candidate; -1 where it is none.
    int NodeOf(int cell, int digit) const {
        return single_[static_cast<std::size_t>(cell * kDigits + digit - 1)];
    }

    const BitRows& Weak() const { return weak_; }
    const BitRows& Strong() const { return strong_; }
    // The set that links two nodes, the first in list order; no cells where there is none. The two
    // candidates of a cell can be linked by a set as well.
    CellSet AlmostLockedBetween(int from, int to) const;

  private:
    // A node in a unit that holds it whole.
    struct Inside {
        std::uint16_t positions;  // of its cells among the nine of the unit
        std::int16_t node;
        std::int16_t next;  // the one listed before it, of the same unit and digit; kNone: no more
    };
    struct SetNodes {
        CellSet cells;
        std::array<std::int16_t, kLargestSetNode + 1> nodes{};  // one a digit
        std::size_t count = 0;

        std::span<const std::int16_t> Nodes() const { return {nodes.data(), count}; }
    };
    static constexpr std::int16_t kNone = -1;

    std::int16_t& LastInside(int unit, int digit) {
        return lastInside_[static_cast<std::size_t>(unit * kDigits + digit - 1)];
    }
    const Inside& InsideAt(int at) const { return inside_[static_cast<std::size_t>(at)]; }
    std::int16_t AddNode(const LinkNode& node);
    std::int16_t FindOrAdd(const LinkNode& node);
    void LinkNodesFrom(int firstNew);
    void LinkInUnit(int last, int firstNew);
    void LinkInCells(const Grid& grid);
    void LinkInSet(const SetNodes& set);

    std::vector<LinkNode> nodes_;
    int singles_ = 0;
    std::array<std::int16_t, kCells * kDigits> single_;
    std::array<std::int16_t, kUnitCount * kDigits> lastInside_;
    std::vector<Inside> inside_;
    std::vector<SetNodes> sets_;
    BitRows weak_;
    BitRows strong_;
};

enum class LinkKind : std::uint8_t { Weak, Strong };

constexpr LinkKind Other(LinkKind kind) {
    return kind == LinkKind::Weak ? LinkKind::Strong : LinkKind::Weak;
}
inline const BitRows& RowsOf(const LinkGraph& graph, LinkKind kind) {
    return kind == LinkKind::Weak ? graph.Weak() : graph.Strong();
}

}  // namespace vemo
