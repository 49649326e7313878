// Building the links between candidates.
//
// A cell that sees all cells of a node lies in a unit with all of them. So whatever is linked by
// its digit lies in one unit, where nodes are listed and compared by their positions.
#include "solver/link_graph.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <limits>

#include "model/units.h"

namespace vemo {
namespace {

constexpr bool IsOne(unsigned bits) {
    return (bits & (bits - 1)) == 0;
}

// Calls `visit(unit, positions)` for each unit that holds all these cells.
template <typename Visit>
void ForEachUnitAround(CellSet cells, Visit visit) {
    unsigned rows = 0;
    unsigned columns = 0;
    unsigned boxes = 0;
    unsigned inBox = 0;
    for (int cell : cells) {
        rows |= 1u << CellRow(cell);
        columns |= 1u << CellColumn(cell);
        boxes |= 1u << CellBox(cell);
        inBox |= 1u << BoxPosition(cell);
    }
    if (IsOne(rows)) {
        visit(UnitNumber(UnitKind::Row, std::countr_zero(rows)), columns);
    }
    if (IsOne(columns)) {
        visit(UnitNumber(UnitKind::Column, std::countr_zero(columns)), rows);
    }
    if (IsOne(boxes)) {
        visit(UnitNumber(UnitKind::Box, std::countr_zero(boxes)), inBox);
    }
}

void Link(BitRows& rows, int one, int other) {
    rows.Add(one, other);
    rows.Add(other, one);
}

BitRows Grown(const BitRows& rows, int oldSize, int newSize) {
    BitRows grown(newSize, newSize);
    for (int row = 0; row < oldSize; ++row) {
        std::copy_n(rows.Row(row), rows.Words(), grown.Row(row));
    }
    return grown;
}

}  // namespace

LinkGraph::LinkGraph(const Grid& grid) {
    single_.fill(kNone);
    lastInside_.fill(kNone);
    for (int cell : grid.EmptyCells()) {
        for (int digit : DigitsOf(grid.MarksAt(cell))) {
            single_[static_cast<std::size_t>(cell * kDigits + digit - 1)] =
                AddNode({CellSet::Of(cell), digit});
        }
    }
    singles_ = Size();
    LinkNodesFrom(0);
}

LinkGraph LinkGraph::WithGroups(const Grid& grid) const {
    LinkGraph graph = *this;
    for (int digit = 1; digit <= kDigits; ++digit) {
        for (int line = 0; line < UnitNumber(UnitKind::Box, 0); ++line) {
            const Unit& unit = kUnits[static_cast<std::size_t>(line)];
            const CellSet inLine = unit.set & grid.Candidates(digit);
            for (std::size_t third = 0; third < 3; ++third) {
                const Unit& box = UnitAround(UnitKind::Box, unit.cells[3 * third]);
                const CellSet places = inLine & box.set;
                if (places.Count() >= 2) {
                    graph.AddNode({places, digit});
                }
            }
        }
    }
    graph.LinkNodesFrom(Size());
    return graph;
}

LinkGraph LinkGraph::WithLinksInCells(const Grid& grid) const {
    LinkGraph graph = *this;
    graph.LinkInCells(grid);
    return graph;
}

LinkGraph LinkGraph::WithAlmostLocked(std::span<const AlmostLocked> sets) const {
    LinkGraph graph = *this;
    for (const AlmostLocked& set : sets) {
        if (set.cells.Count() == 1) {
            continue;
        }
        SetNodes& nodes = graph.sets_.emplace_back();
        nodes.cells = set.cells;
        for (int digit : DigitsOf(set.digits)) {
            nodes.nodes[nodes.count++] = graph.FindOrAdd({set.Places(digit), digit});
        }
    }
    graph.LinkNodesFrom(Size());
    for (const SetNodes& set : graph.sets_) {
        graph.LinkInSet(set);
    }
    return graph;
}

CellSet LinkGraph::AlmostLockedBetween(int from, int to) const {
    const auto joins = [&](const SetNodes& set) {
        return std::ranges::count(set.Nodes(), from) + std::ranges::count(set.Nodes(), to) == 2;
    };
    const auto set = std::ranges::find_if(sets_, joins);
    return set == sets_.end() ? CellSet() : set->cells;
}

std::int16_t LinkGraph::AddNode(const LinkNode& node) {
    const auto number = static_cast<std::int16_t>(Size());
    nodes_.push_back(node);
    ForEachUnitAround(node.cells, [&](int unit, unsigned positions) {
        std::int16_t& last = LastInside(unit, node.digit);
        inside_.push_back({static_cast<std::uint16_t>(positions), number, last});
        last = static_cast<std::int16_t>(inside_.size() - 1);
    });
    assert(inside_.size() <= std::numeric_limits<std::int16_t>::max() &&
           "not even all cells with the same five candidates make so many nodes");
    return number;
}

std::int16_t LinkGraph::FindOrAdd(const LinkNode& node) {
    if (node.IsSingle()) {
        return static_cast<std::int16_t>(NodeOf(node.cells.First(), node.digit));
    }
    std::int16_t found = kNone;
    ForEachUnitAround(node.cells, [&](int unit, unsigned positions) {
        std::int16_t at = found == kNone ? LastInside(unit, node.digit) : kNone;
        while (at != kNone && InsideAt(at).positions != positions) {
            at = InsideAt(at).next;
        }
        found = at == kNone ? found : InsideAt(at).node;
    });
    return found == kNone ? AddNode(node) : found;
}

// Links the nodes from this number on, among each other and with those before them.
void LinkGraph::LinkNodesFrom(int firstNew) {
    weak_ = Grown(weak_, firstNew, Size());
    strong_ = Grown(strong_, firstNew, Size());
    for (const std::int16_t last : lastInside_) {
        if (last != kNone) {
            LinkInUnit(last, firstNew);
        }
    }
}

void LinkGraph::LinkInUnit(int last, int firstNew) {
    unsigned all = 0;
    for (int at = last; at != kNone; at = InsideAt(at).next) {
        all |= InsideAt(at).positions;
    }
    // The lists begin with the highest numbers.
    for (int at = last; at != kNone && InsideAt(at).node >= firstNew; at = InsideAt(at).next) {
        const Inside one = InsideAt(at);
        for (int before = one.next; before != kNone; before = InsideAt(before).next) {
            const Inside& other = InsideAt(before);
            if ((one.positions & other.positions) == 0) {
                Link(weak_, one.node, other.node);
            }
            if ((one.positions | other.positions) == all && one.positions != all &&
                other.positions != all) {
                Link(strong_, one.node, other.node);
            }
        }
    }
}

void LinkGraph::LinkInCells(const Grid& grid) {
    for (int cell : grid.EmptyCells()) {
        const Marks marks = grid.MarksAt(cell);
        const int count = BitCount(marks);
        const int first = marks == 0 ? 0 : NodeOf(cell, FirstDigit(marks));
        for (int one = first; one < first + count; ++one) {
            for (int other = one + 1; other < first + count; ++other) {
                Link(weak_, one, other);
            }
        }
        if (count == 2) {
            Link(strong_, first, first + 1);
        }
    }
}

void LinkGraph::LinkInSet(const SetNodes& set) {
    for (const std::int16_t one : set.Nodes()) {
        for (const std::int16_t other : set.Nodes()) {
            if (one != other) {
                strong_.Add(one, other);
            }
        }
    }
}

}  // namespace vemo
