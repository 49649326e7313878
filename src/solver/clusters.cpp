// Clusters of one digit.
#include "solver/clusters.h"

#include <algorithm>

namespace vemo {
namespace {

CellSet OtherEnds(const ConjugatePairs& pairs, CellSet cells) {
    CellSet ends;
    for (const CellSet pair : pairs) {
        const CellSet held = pair & cells;
        if (held.Any()) {
            ends |= held == pair ? pair : pair - held;
        }
    }
    return ends;
}

// Grows both colours until neither gains a cell.
Cluster ClusterFrom(const ConjugatePairs& pairs, int first) {
    Cluster cluster;
    std::array<CellSet, 2> fresh = {CellSet::Of(first), CellSet()};
    while (fresh[0].Any() || fresh[1].Any()) {
        cluster.color[0] |= fresh[0];
        cluster.color[1] |= fresh[1];
        const CellSet next = OtherEnds(pairs, fresh[1]) - cluster.color[0];
        fresh[1] = OtherEnds(pairs, fresh[0]) - cluster.color[1];
        fresh[0] = next;
    }
    cluster.seen = {AllPeers(cluster.color[0]), AllPeers(cluster.color[1])};
    return cluster;
}

}  // namespace

ConjugatePairs ConjugatePairsOf(const Grid& grid, int digit) {
    ConjugatePairs pairs;
    for (const Unit& unit : kUnits) {
        const CellSet places = unit.set & grid.Candidates(digit);
        if (places.Count() == 2 && std::ranges::find(pairs, places) == pairs.end()) {
            pairs.Add(places);
        }
    }
    return pairs;
}

const Unit& UnitOfTwo(CellSet cells) {
    return *std::ranges::find_if(kUnits,
                                 [&](const Unit& unit) { return (unit.set & cells).Count() >= 2; });
}

std::vector<Cluster> ClustersOf(const Grid& grid, int digit) {
    const ConjugatePairs pairs = ConjugatePairsOf(grid, digit);
    CellSet linked;
    for (const CellSet pair : pairs) {
        linked |= pair;
    }
    std::vector<Cluster> clusters;
    while (linked.Any()) {
        clusters.push_back(ClusterFrom(pairs, linked.First()));
        linked -= clusters.back().Cells();
    }
    return clusters;
}

}  // namespace vemo
