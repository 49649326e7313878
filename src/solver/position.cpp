// What follows from the candidates of a position.
#include "solver/position.h"

namespace vemo {

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
    std::vector<Cluster>& clusters = clusters_[static_cast<std::size_t>(digit - 1)];
    if (!HasMark(clustersMade_, digit)) {
        clusters = ClustersOf(grid_, digit);
        clustersMade_ |= MarkOf(digit);
    }
    return clusters;
}

}  // namespace vemo
