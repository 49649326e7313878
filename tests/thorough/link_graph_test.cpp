// The graph of links against one built plainly from the definition.
#include <array>

#include "solver/position.h"
#include "thorough/plain_links.h"

namespace vemo {
namespace {

using namespace test;

struct GraphKind {
    const char* name;
    GraphNodes nodes;
    GraphDigits digits;
};

constexpr GraphKind kGraphKinds[] = {
    {"candidates, one digit", GraphNodes::Single, GraphDigits::One},
    {"candidates, all digits", GraphNodes::Single, GraphDigits::All},
    {"groups, one digit", GraphNodes::Grouped, GraphDigits::One},
    {"groups, all digits", GraphNodes::Grouped, GraphDigits::All},
    {"almost locked sets", GraphNodes::AlmostLocked, GraphDigits::All},
};

void ExpectSameLinks(const LinkGraph& graph, const PlainLinks& plain) {
    ASSERT_EQ(graph.Size(), plain.Size());
    EXPECT_EQ(graph.Singles(), plain.singles);
    for (int one = 0; one < graph.Size(); ++one) {
        const LinkNode& node = graph.Node(one);
        ASSERT_EQ(node, plain.nodes[Index(one)]);
        for (int other = 0; other < graph.Size(); ++other) {
            ASSERT_EQ(graph.Weak().Has(one, other), plain.IsWeak(one, other));
            ASSERT_EQ(graph.Strong().Has(one, other), plain.IsStrong(one, other));
        }
    }
    for (int cell = 0; cell < kCells; ++cell) {
        for (int digit = 1; digit <= 9; ++digit) {
            ASSERT_EQ(graph.NodeOf(cell, digit), plain.Find(CellSet::Of(cell), digit));
        }
    }
}

void ExpectSetsOfLinks(const Grid& grid, const LinkGraph& graph, const PlainLinks& plain) {
    for (int one = 0; one < graph.Size(); ++one) {
        for (int other = 0; other < graph.Size(); ++other) {
            const LinkNode& from = graph.Node(one);
            const LinkNode& to = graph.Node(other);
            if (from.digit == to.digit || !graph.Strong().Has(one, other)) {
                continue;
            }
            const auto gives = [&](CellSet set) {
                return Holders(grid, set, from.digit) == from.cells &&
                       Holders(grid, set, to.digit) == to.cells;
            };
            const auto set = std::ranges::find_if(plain.sets, gives);
            ASSERT_EQ(graph.AlmostLockedBetween(one, other),
                      set == plain.sets.end() ? CellSet() : *set);
        }
    }
}

TEST(LinkGraph, HasTheNodesAndLinksOfItsDefinition) {
    MixedPositions positions;
    for (int tried = 0; tried < 60; ++tried) {
        const Grid grid = positions.Next();
        const Position position(grid);
        for (const GraphKind& kind : kGraphKinds) {
            SCOPED_TRACE(kind.name);
            const LinkGraph& graph = position.Links(kind.nodes, kind.digits);
            const PlainLinks plain(grid, kind.nodes, kind.digits);
            ExpectSameLinks(graph, plain);
            ExpectSetsOfLinks(grid, graph, plain);
        }
    }
}

// All cells of a full grid are open and hold their digit and another one, the same everywhere: any
// two to four cells of a unit that do not hold it alone are almost locked.
TEST(LinkGraph, HoldsThousandsOfSetsAndNoLinkIsWrong) {
    const Digits solution = PlainSolution();
    Grid grid;
    for (int cell = 0; cell < kCells; ++cell) {
        const Marks held = MarkOf(solution[Index(cell)]) | MarkOf(1);
        Discard(grid, cell, static_cast<Marks>(kAllMarks & ~held));
    }
    const Position position(grid);
    const LinkGraph& graph = position.Links(GraphNodes::AlmostLocked, GraphDigits::All);
    EXPECT_GT(graph.Size(), 3000);
    std::array<CellSet, 10> right;  // cells, by digit
    for (int cell = 0; cell < kCells; ++cell) {
        right[solution[Index(cell)]].Add(cell);
    }
    std::vector<bool> isOn;
    for (int node = 0; node < graph.Size(); ++node) {
        const LinkNode& at = graph.Node(node);
        isOn.push_back((at.cells & right[Index(at.digit)]).Any());
    }
    for (std::size_t node = 0; node < isOn.size(); ++node) {
        const LinkKind kind = isOn[node] ? LinkKind::Weak : LinkKind::Strong;
        const BitRows& rows = RowsOf(graph, kind);
        ForEachBit(rows.Row(static_cast<int>(node)), rows.Words(), [&](int other) {
            ASSERT_NE(isOn[node], isOn[Index(other)]) << "nodes " << node << " and " << other;
        });
    }
}

// Any four cells of a unit are almost locked and have a node for each digit.
TEST(LinkGraph, HoldsAllNodesOfAGridFullOfSets) {
    Grid grid;
    for (int cell = 0; cell < kCells; ++cell) {
        Discard(grid, cell, static_cast<Marks>(kAllMarks & ~DigitsNamed("12345")));
    }
    const Position position(grid);
    const LinkGraph& graph = position.Links(GraphNodes::AlmostLocked, GraphDigits::All);
    const int choices = 126;  // of four cells out of nine
    EXPECT_EQ(graph.Size(), 5 * (81 + 18 * 3 + 27 * choices));
    const LinkNode& last = graph.Node(graph.Size() - 1);
    EXPECT_EQ(last, (LinkNode{CellsNamed("H9 J7 J8 J9"), 5}));
    EXPECT_EQ(graph.AlmostLockedBetween(graph.Size() - 2, graph.Size() - 1), last.cells);
}

}  // namespace
}  // namespace vemo
