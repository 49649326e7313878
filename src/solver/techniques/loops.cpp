// Loops of links: nice loops keep to one digit, AICs (alternating inference chains) lead through
// several.
#include <algorithm>

#include "solver/techniques/chain_text.h"
#include "solver/techniques/families.h"
#include "solver/techniques/loop_search.h"
#include "solver/text.h"

namespace vemo {
namespace {

// Their names in log lines and hints.
struct LoopNames {
    const char* log;
    const char* cycleInLog;
    const char* hint;
    const char* cycleInHint;
};

constexpr LoopNames kNiceLoop = {"Nice Loop", "Alternating X-Cycle", "NICE LOOP",
                                 "ALTERNATING X-CYCLE"};
constexpr LoopNames kAIC = {"AIC", "Alternating Cycle", "AIC", "ALTERNATING CYCLE"};

// From this length on loops pass groups, from the other on almost locked sets, too.
constexpr int kMedium = 20;
constexpr int kLong = 30;

void AddCandidates(std::vector<CellDigit>& color, const LinkNode& node) {
    for (int cell : node.cells) {
        color.push_back(At(cell, node.digit));
    }
}

// Along the loop from its first strong link on, every other node is on: these have the first
// colour, and so has the node that is off at first and on at last.
void Color(Find& find, const LinkGraph& graph, const Loop& loop) {
    for (std::size_t at = 0; at < loop.nodes.size(); ++at) {
        const bool isOn =
            at == 0 ? loop.type == LoopType::Strong : (at % 2 == 1) == loop.BeginsStrong();
        AddCandidates(isOn ? find.firstColor : find.secondColor, graph.Node(loop.nodes[at]));
    }
    std::erase_if(find.secondColor, [&](const CellDigit& candidate) {
        return std::ranges::find(find.firstColor, candidate) != find.firstColor.end();
    });
}

void AddLinks(Find& find, const LinkGraph& graph, const Loop& loop) {
    CellSet cells;
    for (std::size_t at = 0; at < loop.nodes.size(); ++at) {
        const int from = loop.nodes[at];
        const int to = loop.nodes[(at + 1) % loop.nodes.size()];
        const bool isStrong = (at % 2 == 0) == loop.BeginsStrong();
        find.links.push_back(
            LinkAlong(graph, from, to, isStrong ? Find::Strength::Strong : Find::Strength::Weak));
        cells |= graph.Node(from).cells;
    }
    find.AddCells(cells);
}

Find FindOf(HintKind kind, const LinkGraph& graph, const Loop& loop) {
    Find find;
    find.kind = kind;
    find.variant = static_cast<int>(loop.type);
    AddLinks(find, graph, loop);
    Color(find, graph, loop);
    for (int node : RemovedBy(loop, graph)) {
        if (!find.removals.IsFull()) {
            find.removals.Add(At(graph.Node(node).cells.First(), graph.Node(node).digit));
        }
    }
    if (loop.type == LoopType::Strong) {
        const LinkNode& first = graph.Node(loop.nodes[0]);
        find.placements.Add(At(first.cells.First(), first.digit));
    }
    return find;
}

void OfferLoops(const Position& position, GraphDigits digits, HintKind kind, int longest,
                FindSink& sink) {
    const GraphNodes nodes = longest >= kLong     ? GraphNodes::AlmostLocked
                             : longest >= kMedium ? GraphNodes::Grouped
                                                  : GraphNodes::Single;
    const LinkGraph& graph = position.Links(nodes, digits);
    SearchLoops(graph, longest,
                [&](const Loop& loop) { return sink.Offer(FindOf(kind, graph, loop)); });
}

LoopType TypeOf(const Find& find) {
    return static_cast<LoopType>(find.variant);
}

std::string LoopLog(const Find& find, const LoopNames& names) {
    const std::string chain = ": " + ChainText(find.links);
    const std::string name = std::string(names.log) + " - ";
    switch (TypeOf(find)) {
    case LoopType::Strong:
        return name + "Strong Discontinuity" + chain + PlacedInLog(find);
    case LoopType::Weak:
        return name + "Weak Discontinuity" + chain + RemovedInLog(find);
    case LoopType::Cycle:
        break;
    }
    return name + names.cycleInLog + chain + RemovedInLog(find);
}

// "5 in A1/A2".
std::string PlaceInHint(CellSet cells, int digit) {
    return std::to_string(digit) + " in " + SlashedCells(cells);
}

std::string WeakHint(const Find& find) {
    const ChainLink& first = find.links.front();
    const ChainLink& last = find.links.back();
    return " - WEAK DISCONTINUITY: Since number " + std::to_string(first.fromDigit) + " at cell " +
           SlashedCells(first.from) + " would lead along the chain " + ChainText(find.links) +
           " to its own removal, either " + PlaceInHint(first.to, first.toDigit) + " or " +
           PlaceInHint(last.from, last.fromDigit) +
           " must be true and every candidate that conflicts with both can be discarded";
}

std::string StrongHint(const Find& find) {
    const ChainLink& first = find.links.front();
    return " - STRONG DISCONTINUITY: Since leaving number " + std::to_string(first.fromDigit) +
           " out of cell " + SlashedCells(first.from) + " would lead along the chain " +
           ChainText(find.links) + " to its own placement, it must be there";
}

std::string LoopHint(const Find& find, const LoopNames& names) {
    switch (TypeOf(find)) {
    case LoopType::Strong:
        return names.hint + StrongHint(find);
    case LoopType::Weak:
        return names.hint + WeakHint(find);
    case LoopType::Cycle:
        break;
    }
    return std::string(names.hint) + " - " + names.cycleInHint + ": Since the loop " +
           ChainText(find.links) +
           " alternates without a break, one of the two candidates of each weak link must be true "
           "and every other candidate that conflicts with both can be discarded";
}

}  // namespace

// A chain of weak and strong links, in turn: from a node that is on a weak link leads to one that
// is off, from one that is off a strong link to one that is on. Where a chain leads from a
// candidate on to the same candidate off, that is off, and the chain between its two weak links
// says that one of its ends is on: whatever conflicts with both goes. Where it leads from a
// candidate off to the same candidate on, that is placed. Where it leads all round without a break,
// exactly one end of each weak link is on: whatever conflicts with both ends goes. The shortest
// loop first, then by its first candidate; SearchLoops says the rest.
void NiceLoops(const Position& position, const Args& args, FindSink& sink) {
    OfferLoops(position, GraphDigits::One, HintKind::NiceLoop, args.length, sink);
}

std::string NiceLoopLog(const Find& find) {
    return LoopLog(find, kNiceLoop);
}

std::string NiceLoopHint(const Find& find) {
    return LoopHint(find, kNiceLoop);
}

// The same with links from digit to digit, in cells with two candidates and, where the longest are
// asked for, in almost locked sets.
void AIC(const Position& position, const Args& args, FindSink& sink) {
    OfferLoops(position, GraphDigits::All, HintKind::AlternatingChain, args.length, sink);
}

std::string AlternatingChainLog(const Find& find) {
    return LoopLog(find, kAIC);
}

std::string AlternatingChainHint(const Find& find) {
    return LoopHint(find, kAIC);
}

}  // namespace vemo
