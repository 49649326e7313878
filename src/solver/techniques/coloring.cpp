// Colorings of a single digit: its conjugate pairs tie its places together into clusters of two
// colours, and exactly one colour of each cluster is right.
#include <array>
#include <vector>

#include "solver/techniques/families.h"
#include "solver/text.h"

namespace vemo {
namespace {

// One cluster of a digit, and one colour of it.
struct Color {
    const Cluster& cluster;
    std::size_t at;  // 0 or 1

    CellSet Cells() const { return cluster.color[at]; }
    CellSet Seen() const { return cluster.seen[at]; }
    Color Partner() const { return {cluster, 1 - at}; }
};

void AddStrongLinks(Find& find, const Grid& grid, const Cluster& cluster, int digit) {
    for (const CellSet pair : ConjugatePairsOf(grid, digit)) {
        if (cluster.Cells().Contains(pair)) {
            const int first = pair.First();
            const int second = (pair - CellSet::Of(first)).First();
            find.AddLink(At(first, digit), At(second, digit), Find::Strength::Strong);
        }
    }
}

// Between the first two cells of the colours that see each other.
void AddWeakLink(Find& find, const Color& from, const Color& to, int digit) {
    const int end = (from.Seen() & to.Cells()).First();
    const int start = (Peers(end) & from.Cells()).First();
    find.AddLink(At(start, digit), At(end, digit), Find::Strength::Weak);
}

bool SeeEachOther(const Color& a, const Color& b) {
    return (a.Seen() & b.Cells()).Any();
}

// A find on one cluster, its colours in the two colours; without effects yet.
Find ClusterFind(const Grid& grid, HintKind kind, const Cluster& cluster, int digit) {
    Find find;
    find.kind = kind;
    find.AddCells(cluster.Cells());
    find.AddDigit(digit);
    find.firstColor = Find::CandidatesOf(grid, cluster.color[0], MarkOf(digit));
    find.secondColor = Find::CandidatesOf(grid, cluster.color[1], MarkOf(digit));
    AddStrongLinks(find, grid, cluster, digit);
    return find;
}

// The find's unit: where the colour that goes would stand twice.
bool OfferWraps(const Grid& grid, const Cluster& cluster, int digit, FindSink& sink) {
    for (std::size_t color : {0u, 1u}) {
        if (!cluster.Clashes(color)) {
            continue;
        }
        Find find = ClusterFind(grid, HintKind::ColorWrap, cluster, digit);
        find.AddUnit(UnitOfTwo(cluster.color[color]));
        if (find.Remove(grid, cluster.color[color], MarkOf(digit)) && !sink.Offer(find)) {
            return false;
        }
    }
    return true;
}

bool OfferTrap(const Grid& grid, const Cluster& cluster, int digit, FindSink& sink) {
    const CellSet losers =
        (cluster.seen[0] & cluster.seen[1] & grid.Candidates(digit)) - cluster.Cells();
    if (!losers.Any()) {
        return true;
    }
    Find find = ClusterFind(grid, HintKind::ColorTrap, cluster, digit);
    return !find.Remove(grid, losers, MarkOf(digit)) || sink.Offer(find);
}

// The colour sees both colours of the other cluster: its partner comes, unless that would stand
// twice in a unit. The other cluster is drawn in the two colours that the text speaks of, the
// partner as placed; those of the find's cells that are neither are the colour that goes.
bool OfferType2(const Grid& grid, int digit, const Color& color, const Cluster& other,
                FindSink& sink) {
    const Color partner = color.Partner();
    const bool seesBoth = SeeEachOther(color, {other, 0}) && SeeEachOther(color, {other, 1});
    if (!seesBoth || partner.cluster.Clashes(partner.at)) {
        return true;
    }
    Find find = ClusterFind(grid, HintKind::MultiColor2, other, digit);
    find.AddCells(color.cluster.Cells());
    AddStrongLinks(find, grid, color.cluster, digit);
    AddWeakLink(find, color, {other, 0}, digit);
    AddWeakLink(find, color, {other, 1}, digit);
    for (int cell : partner.Cells()) {
        find.placements.Add(At(cell, digit));
    }
    return sink.Offer(find);
}

// The two colours see each other: one of their partners is right. The partners are drawn in the
// first colour. The find's cells: partner and colour of the one, partner and colour of the other.
bool OfferType1(const Grid& grid, int digit, const Color& one, const Color& other, FindSink& sink) {
    if (!SeeEachOther(one, other)) {
        return true;
    }
    const std::array partners = {one.Partner(), other.Partner()};
    const CellSet losers = partners[0].Seen() & partners[1].Seen() & grid.Candidates(digit);
    if (!losers.Any()) {
        return true;
    }
    Find find;
    find.kind = HintKind::MultiColor1;
    find.AddDigit(digit);
    for (const Color& partner : partners) {
        find.AddCells(partner.Cells());
        find.AddCells(partner.Partner().Cells());
        AddStrongLinks(find, grid, partner.cluster, digit);
    }
    find.firstColor =
        Find::CandidatesOf(grid, partners[0].Cells() | partners[1].Cells(), MarkOf(digit));
    find.secondColor = Find::CandidatesOf(grid, one.Cells() | other.Cells(), MarkOf(digit));
    AddWeakLink(find, one, other, digit);
    return !find.Remove(grid, losers, MarkOf(digit)) || sink.Offer(find);
}

// A cluster of a contradictory grid proves nothing about another one.
bool CanMeet(const Cluster& one, const Cluster& other) {
    return &one != &other && one.IsTwoColored() && other.IsTwoColored();
}

bool SearchType2(const Grid& grid, int digit, const std::vector<Cluster>& clusters,
                 FindSink& sink) {
    for (const Cluster& one : clusters) {
        for (const Cluster& other : clusters) {
            if (!CanMeet(one, other)) {
                continue;
            }
            if (!OfferType2(grid, digit, {one, 0}, other, sink) ||
                !OfferType2(grid, digit, {one, 1}, other, sink)) {
                return false;
            }
        }
    }
    return true;
}

bool OfferTypes1(const Grid& grid, int digit, const Cluster& one, const Cluster& other,
                 FindSink& sink) {
    for (std::size_t a : {0u, 1u}) {
        for (std::size_t c : {0u, 1u}) {
            if (!OfferType1(grid, digit, {one, a}, {other, c}, sink)) {
                return false;
            }
        }
    }
    return true;
}

bool SearchType1(const Grid& grid, int digit, const std::vector<Cluster>& clusters,
                 FindSink& sink) {
    for (std::size_t i = 0; i < clusters.size(); ++i) {
        for (std::size_t j = i + 1; j < clusters.size(); ++j) {
            if (CanMeet(clusters[i], clusters[j]) &&
                !OfferTypes1(grid, digit, clusters[i], clusters[j], sink)) {
                return false;
            }
        }
    }
    return true;
}

// Of type 1, the cells of each of the four colours: partner and colour of the one cluster, then of
// the other. In the find's cells the partners, all in the first colour, take turns with the rest.
std::array<CellSet, 4> FourColors(const Find& find) {
    std::array<CellSet, 4> colors;
    const CellSet partners = CellsOf(find.firstColor);
    std::size_t at = 0;
    for (int cell : find.cells) {
        const bool isPartner = at % 2 == 0;
        at += partners.Has(cell) == isPartner ? 0 : 1;
        colors[at].Add(cell);
    }
    return colors;
}

// Of type 2, the colour that sees both colours of the other cluster.
CellSet ColorThatGoes(const Find& find) {
    return CellsOf(Items(find.cells)) - CellsOf(find.firstColor) - CellsOf(find.secondColor) -
           CellsOf(Items(find.placements));
}

}  // namespace

// Along a conjugate pair exactly one end is right, so that in a cluster all cells of one colour are
// right and all of the other are wrong. Wrap: a colour with two cells in a unit is the wrong one,
// the digit goes from all its cells. Trap: a cell outside the cluster that sees cells of both
// colours sees one that is right, the digit goes from it. By digit, then by the cluster's lowest
// cell; the wraps of a cluster, that cell's colour first, before its trap.
void SimpleColoring(const Position& position, const Args&, FindSink& sink) {
    const Grid& grid = position.Cells();
    for (int digit = 1; digit <= kDigits; ++digit) {
        for (const Cluster& cluster : position.Clusters(digit)) {
            if (!OfferWraps(grid, cluster, digit, sink) || !OfferTrap(grid, cluster, digit, sink)) {
                return;
            }
        }
    }
}

std::string ColorTrapLog(const Find& find) {
    return "Simple Colors (Color Trap): Cells " + JoinCells(Items(find.cells)) + RemovedInLog(find);
}

std::string ColorTrapHint(const Find& find) {
    return "SIMPLE COLORS (COLOR TRAP): Since number " + JoinDigits(Items(find.digits)) +
           " must be either in " + CellsInHint(CellsOf(find.firstColor)) + " or in " +
           CellsInHint(CellsOf(find.secondColor)) +
           ", it can't be in any other cell that sees a cell of both colors";
}

std::string ColorWrapLog(const Find& find) {
    return "Simple Colors (Color Wrap): Cells " + JoinCells(Items(find.cells)) + RemovedInLog(find);
}

std::string ColorWrapHint(const Find& find) {
    return "SIMPLE COLORS (COLOR WRAP): Since number " + JoinDigits(Items(find.digits)) +
           " must be in all cells of one of the two colors, and the color of " +
           CellsInHint(CellsOf(Items(find.removals))) + " would place it twice" +
           UnitInHint(find.UnitAt(0)) + ", this number can't be in any cell of that color";
}

// Type 2: a colour of one cluster sees both colours of another one, of which one is right. So it
// is wrong, and its partner right: the digit is placed in all cells of that. Type 1: colours of two
// clusters see each other. They are not both right, so the partner of one is: every cell that sees
// cells of both partners loses the digit, those of the two clusters not excepted. By digit; first
// type 2, by the cluster that gets digits, the other, and the colour; then type 1, by the first
// cluster, the second, and the colour of each. Clusters by their lowest cell, its colour first.
void MultiColor(const Position& position, const Args&, FindSink& sink) {
    const Grid& grid = position.Cells();
    for (int digit = 1; digit <= kDigits; ++digit) {
        const std::vector<Cluster>& clusters = position.Clusters(digit);
        if (!SearchType2(grid, digit, clusters, sink) ||
            !SearchType1(grid, digit, clusters, sink)) {
            return;
        }
    }
}

std::string MultiColor1Log(const Find& find) {
    const std::array<CellSet, 4> colors = FourColors(find);
    return "Multi Coloring Type 1: Cells " + JoinCells(colors[0]) + " and cells " +
           JoinCells(colors[2]) + RemovedInLog(find);
}

std::string MultiColor1Hint(const Find& find) {
    const std::array<CellSet, 4> colors = FourColors(find);
    return "MULTI COLORING TYPE 1: Since number " + JoinDigits(Items(find.digits)) +
           " can't be both in " + CellsInHint(colors[1]) + " and in " + CellsInHint(colors[3]) +
           ", it must be in " + CellsInHint(colors[0]) + " or in " + CellsInHint(colors[2]) +
           " (or in both), and can't be in any cell that sees one of each";
}

std::string MultiColor2Log(const Find& find) {
    return "Multi Coloring Type 2: Cells " + JoinCells(ColorThatGoes(find)) + " against cells " +
           JoinCells(CellsOf(find.firstColor)) + " and against cells " +
           JoinCells(CellsOf(find.secondColor)) + PlacedInLog(find);
}

std::string MultiColor2Hint(const Find& find) {
    return "MULTI COLORING TYPE 2: Since number " + JoinDigits(Items(find.digits)) + " in " +
           CellsInHint(ColorThatGoes(find)) + " sees both colors of another chain (" +
           CellsInHint(CellsOf(find.firstColor)) + " and " +
           CellsInHint(CellsOf(find.secondColor)) +
           "), one of which must be true, it can't be there and must be in " +
           CellsInHint(CellsOf(Items(find.placements)));
}

}  // namespace vemo
