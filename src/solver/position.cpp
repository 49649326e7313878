// What follows from the candidates of a position.
#include "solver/position.h"

#include <array>
#include <optional>

namespace vemo {

struct Position::Derived {
    std::array<std::optional<std::vector<Cluster>>, kDigits> clusters;
    std::optional<AlmostLockedList> almostLocked;
    std::array<std::array<std::optional<LinkGraph>, 2>, 3> links;  // by nodes, then digits
};

Position::Derived& Position::Made() const {
    if (!derived_) {
        derived_ = std::make_shared<Derived>();
    }
    return *derived_;
}

// Counts the candidates of all cells at once, one digit after the other.
CellSet Position::BivalueCells() const {
    CellSet one;
    CellSet two;
    CellSet more;
    for (int digit = 1; digit <= kDigits; ++digit) {
        const CellSet places = grid_.Candidates(digit);
        more |= two & places;
        two = (two | (one & places)) - more;
        one |= places;
    }
    return two - more;
}

const std::vector<Cluster>& Position::Clusters(int digit) const {
    auto& clusters = Made().clusters[static_cast<std::size_t>(digit - 1)];
    if (!clusters) {
        clusters = ClustersOf(grid_, digit);
    }
    return *clusters;
}

const AlmostLockedList& Position::AlmostLockedSets() const {
    auto& sets = Made().almostLocked;
    if (!sets) {
        sets.emplace(grid_, kLargestAlmostLocked, 1);
    }
    return *sets;
}

const LinkGraph& Position::Links(GraphNodes nodes, GraphDigits digits) const {
    auto& links = Made().links[static_cast<std::size_t>(nodes)][static_cast<std::size_t>(digits)];
    if (!links) {
        links.emplace(MakeLinks(nodes, digits));
    }
    return *links;
}

// From a smaller graph, which an earlier step of the ladder has asked for as a rule.
LinkGraph Position::MakeLinks(GraphNodes nodes, GraphDigits digits) const {
    if (nodes == GraphNodes::AlmostLocked) {
        return Links(GraphNodes::Grouped, digits)
            .WithAlmostLocked(AlmostLockedSets().UpTo(kLargestSetNode));
    }
    if (digits == GraphDigits::All) {
        return Links(nodes, GraphDigits::One).WithLinksInCells(grid_);
    }
    return nodes == GraphNodes::Grouped ? Links(GraphNodes::Single, digits).WithGroups(grid_)
                                        : LinkGraph(grid_);
}

}  // namespace vemo
