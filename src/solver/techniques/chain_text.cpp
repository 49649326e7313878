// Writing chains.
#include "solver/techniques/chain_text.h"

namespace vemo {
namespace {

std::string JointText(const ChainLink& link) {
    if (link.set.Any()) {
        return " =ALS " + SlashedCells(link.set) + "= ";
    }
    return link.strong ? " = " : " - ";
}

}  // namespace

std::string SlashedCells(CellSet cells) {
    std::string text;
    for (int cell : cells) {
        text += (text.empty() ? "" : "/") + CellName(cell);
    }
    return text;
}

ChainLink LinkAlong(const LinkGraph& graph, int from, int to, Find::Strength strength) {
    const LinkNode& start = graph.Node(from);
    const LinkNode& end = graph.Node(to);
    const bool isStrong = strength == Find::Strength::Strong;
    return {.from = start.cells,
            .to = end.cells,
            .fromDigit = static_cast<std::uint8_t>(start.digit),
            .toDigit = static_cast<std::uint8_t>(end.digit),
            .strong = isStrong,
            .directed = true,
            .set = isStrong ? graph.AlmostLockedBetween(from, to) : CellSet()};
}

std::string NodeText(CellSet cells, int digit) {
    return SlashedCells(cells) + "(" + std::to_string(digit) + ")";
}

std::string ChainText(std::span<const ChainLink> chain) {
    std::string text = NodeText(chain.front().from, chain.front().fromDigit);
    for (const ChainLink& link : chain) {
        text += JointText(link) + NodeText(link.to, link.toDigit);
    }
    return text;
}

}  // namespace vemo
