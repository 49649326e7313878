// Nice loops and AICs against the closure of the implications, counted in steps: a discontinuity is
// found exactly where its candidate leads to its own opposite within the bound. Of every loop the
// links are held against the plain ones, and what it does against its definition.
#include <map>
#include <random>
#include <set>
#include <tuple>

#include "thorough/plain_links.h"

namespace vemo {
namespace {

using namespace test;

constexpr int kStrong = 1;  // variants
constexpr int kWeak = 2;
constexpr int kCycle = 3;

struct LoopSlot {
    int slot;
    GraphNodes nodes;
    GraphDigits digits;
    int longest;
};

// The length of the shortest discontinuity of each candidate that has one, by variant and node.
using Lengths = std::map<std::pair<int, int>, int>;

Lengths DiscontinuitiesOf(const PlainLinks& links, int longest) {
    Lengths lengths;
    for (int node = 0; node < links.singles; ++node) {
        for (const auto& [variant, first] :
             {std::pair(kStrong, LinkKind::Strong), std::pair(kWeak, LinkKind::Weak)}) {
            const PlainLevels levels(links, node, first, longest);
            // The last link is of the kind of the first.
            for (int length = 3; length <= longest; length += 2) {
                if (levels.Has(length, node)) {
                    lengths[{variant, node}] = length;
                }
            }
        }
    }
    return lengths;
}

// The nodes of a loop, by their numbers.
std::vector<int> NodesOf(const Find& find, const PlainLinks& links) {
    std::vector<int> nodes;
    for (const ChainLink& link : find.links) {
        nodes.push_back(links.Find(link.from, link.fromDigit));
    }
    return nodes;
}

// The links follow each other all round, weak and strong in turn, and are links of the position.
void ExpectLinks(const Find& find, const PlainLinks& links) {
    const std::vector<int> nodes = NodesOf(find, links);
    const bool beginsStrong = find.variant != kWeak;
    for (std::size_t k = 0; k < nodes.size(); ++k) {
        const ChainLink& link = find.links[k];
        const ChainLink& next = find.links[(k + 1) % nodes.size()];
        const int from = nodes[k];
        const int to = nodes[(k + 1) % nodes.size()];
        ASSERT_GE(from, 0) << "no node";
        EXPECT_EQ(link.to, next.from);
        EXPECT_EQ(link.toDigit, next.fromDigit);
        EXPECT_EQ(link.strong, beginsStrong == (k % 2 == 0));
        EXPECT_TRUE(link.directed);
        EXPECT_TRUE(link.strong ? links.IsStrong(from, to) : links.IsWeak(from, to));
    }
    EXPECT_EQ(nodes.size() % 2 == 0, find.variant == kCycle);
    EXPECT_LT(nodes[0], links.singles);
    const std::set<int> different(nodes.begin(), nodes.end());
    EXPECT_TRUE(find.variant != kCycle || different.size() == nodes.size());
}

// The candidates that are weakly linked to both nodes.
void AddCommon(const PlainLinks& links, int one, int other, std::set<int>& common) {
    for (int node = 0; node < links.singles; ++node) {
        if (links.IsWeak(one, node) && links.IsWeak(other, node)) {
            common.insert(node);
        }
    }
}

void ExpectEffects(const Find& find, const PlainLinks& links) {
    const std::vector<int> nodes = NodesOf(find, links);
    std::set<int> changed;
    if (find.variant == kStrong) {
        changed.insert(nodes[0]);
    }
    if (find.variant == kWeak) {
        AddCommon(links, nodes[1], nodes.back(), changed);
        EXPECT_TRUE(changed.contains(nodes[0]));
    }
    for (std::size_t k = 1; find.variant == kCycle && k < nodes.size(); k += 2) {
        AddCommon(links, nodes[k], nodes[(k + 1) % nodes.size()], changed);
    }
    Effects expected;
    for (int node : changed) {
        const LinkNode& candidate = links.nodes[static_cast<std::size_t>(node)];
        expected.emplace_back(candidate.cells.First(), candidate.digit);
    }
    expected.resize(std::min(expected.size(), kMaxEffects));
    EXPECT_EQ(EffectsOf(find), expected);
    EXPECT_EQ(find.placements.Empty(), find.variant != kStrong);
}

// By length, first node, type and last node.
void ExpectInOrder(const std::vector<Find>& finds, const PlainLinks& links) {
    std::tuple<std::size_t, int, int, int> last;
    for (const Find& find : finds) {
        const std::vector<int> nodes = NodesOf(find, links);
        const int type = find.variant == kWeak ? 0 : find.variant;
        const int lastNode = find.variant == kCycle ? nodes.back() : 0;
        const std::tuple at(nodes.size(), nodes[0], type, lastNode);
        EXPECT_LT(last, at);
        last = at;
    }
}

void ExpectLoops(const LoopSlot& slot, const Grid& grid) {
    const PlainLinks links(grid, slot.nodes, slot.digits);
    EveryFind every;
    Solver(grid).Search(StepOfSlot(slot.slot), every);
    Lengths found;
    for (const Find& find : every.finds) {
        const int length = static_cast<int>(find.links.size());
        EXPECT_LE(length, slot.longest);
        EXPECT_TRUE(find.ChangesSomething());
        ExpectLinks(find, links);
        ExpectEffects(find, links);
        if (find.variant != kCycle) {
            found[{find.variant, NodesOf(find, links)[0]}] = length;
        }
    }
    EXPECT_EQ(found, DiscontinuitiesOf(links, slot.longest));
    ExpectInOrder(every.finds, links);
    const FirstFind first = SearchFirst(StepOfSlot(slot.slot), grid);
    ASSERT_EQ(first.any, !every.finds.empty());
    if (first.any) {
        EXPECT_EQ(first.found.links, every.finds[0].links);
    }
}

// Nice loops keep to one digit.
constexpr LoopSlot kLoopSlots[] = {{28, GraphNodes::Single, GraphDigits::One, 10},
                                   {29, GraphNodes::Single, GraphDigits::All, 10},
                                   {32, GraphNodes::Grouped, GraphDigits::One, 20},
                                   {33, GraphNodes::Grouped, GraphDigits::All, 20},
                                   {38, GraphNodes::AlmostLocked, GraphDigits::All, 30}};

class LoopsOfSlot : public testing::TestWithParam<LoopSlot> {};

TEST_P(LoopsOfSlot, AreFoundExactlyWhereTheClosureHasThem) {
    OnPositionsOf(GetParam().slot, [&](const Grid& grid) { ExpectLoops(GetParam(), grid); });
}
INSTANTIATE_TEST_SUITE_P(Loops, LoopsOfSlot, testing::ValuesIn(kLoopSlots));

// A chase takes so many starts at once: there are more here than one takes.
TEST(Loops, AreFoundFromAllCandidatesOfALargePosition) {
    WildPositions wild;
    for (int left = 3; left > 0;) {
        const Grid grid = wild.Next();
        const bool isLarge = CountCandidates(grid) > kBlockBits;
        if (isLarge && SearchFirst(StepOfSlot(38), grid).any) {
            --left;
            for (const LoopSlot& slot : kLoopSlots) {
                SCOPED_TRACE(slot.slot);
                ExpectLoops(slot, grid);
            }
        }
    }
}

// Where right candidates are gone chains cross themselves, which they hardly do elsewhere.
TEST(Loops, AreWhatTheyShouldBeInContradictoryGridsToo) {
    WildPositions wild;
    std::mt19937 random{29};
    for (int k = 0; k < 20; ++k) {
        Grid grid = wild.Next();
        DiscardSomeMarks(grid, random);
        for (const LoopSlot& slot : kLoopSlots) {
            SCOPED_TRACE(slot.slot);
            ExpectLoops(slot, grid);
        }
    }
}

}  // namespace
}  // namespace vemo
