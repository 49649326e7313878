// The patterns and the colorings of a single digit overlook no find.
#include <array>

#include "thorough/completeness.h"

namespace vemo {
namespace {

using namespace test;

bool IsRow(int unit) {
    return unit < 9;
}
int OtherOf(CellSet pair, int cell) {
    return (pair - CellSet::Of(cell)).First();
}

// The unit of the nine from `first` on that the cell lies in.
int UnitFrom(int first, int cell) {
    int unit = first;
    while (!CellsOf(unit).Has(cell)) {
        ++unit;
    }
    return unit;
}

int CellAt(CellSet cells, int position) {
    for (; position > 0; --position) {
        cells.Remove(cells.First());
    }
    return cells.First();
}

// The target of a box whose places lie on the line `on` and the line `to`, and of a pair across
// `on`; nothing where the pair has no end on `on` outside the box or the target is in it.
CellSet TargetOfRectangle(CellSet box, CellSet pair, int on, int to) {
    const CellSet near = (pair & CellsOf(on)) - box;
    if (pair.Count() != 2 || near.Count() != 1) {
        return {};
    }
    const int far = OtherOf(pair, near.First());
    return (CellsOf(to) & CellsOf(UnitFrom(IsRow(on) ? 0 : 9, far))) - box;
}

EffectSet EmptyRectangles(const Grid& grid) {
    EffectSet all;
    for (int number = 0; number < 9 * 9 * 9; ++number) {
        const int digit = number / 81 + 1;
        const CellSet box = CellsOf(18 + number / 9 % 9);
        const CellSet places = Holders(grid, box, digit);
        const int crossing = CellAt(box, number % 9);
        const int row = crossing / 9;
        const int column = 9 + crossing % 9;
        const CellSet inRow = places & CellsOf(row);
        const CellSet inColumn = places & CellsOf(column);
        if (places.Count() < 3 || (inRow | inColumn) != places || !(inRow - inColumn).Any() ||
            !(inColumn - inRow).Any()) {
            continue;
        }
        for (int line = 0; line < 18; ++line) {
            const CellSet pair = Holders(grid, CellsOf(line), digit);
            const CellSet target = IsRow(line) ? TargetOfRectangle(box, pair, column, row)
                                               : TargetOfRectangle(box, pair, row, column);
            Put(all, Removals(grid, target, 1u << digit));
        }
    }
    return all;
}

// The kites of a row's pair and a column's pair: by which ends are in one box.
void PutKites(EffectSet& all, const Grid& grid, int digit, CellSet inRow, CellSet inColumn) {
    for (int r1 : inRow) {
        for (int c1 : inColumn) {
            const int r2 = OtherOf(inRow, r1);
            const int c2 = OtherOf(inColumn, c1);
            if (UnitFrom(18, r1) == UnitFrom(18, c1)) {
                Put(all, Removals(grid, CellSet::Of(9 * (c2 / 9) + r2 % 9), 1u << digit));
            }
        }
    }
}

EffectSet Kites(const Grid& grid) {
    EffectSet all;
    for (int number = 0; number < 9 * 9 * 9; ++number) {
        const int digit = number / 81 + 1;
        const CellSet inRow = Holders(grid, CellsOf(number / 9 % 9), digit);
        const CellSet inColumn = Holders(grid, CellsOf(9 + number % 9), digit);
        if (inRow.Count() == 2 && inColumn.Count() == 2 && !(inRow & inColumn).Any()) {
            PutKites(all, grid, digit, inRow, inColumn);
        }
    }
    return all;
}

// The holders of the digit that see a cell of each.
CellSet SeenByBoth(const Grid& grid, int digit, CellSet one, CellSet other) {
    CellSet seen;
    for (int cell : Holders(grid, CellSet::All(), digit)) {
        if ((SeenBy(cell) & one).Any() && (SeenBy(cell) & other).Any()) {
            seen.Add(cell);
        }
    }
    return seen;
}

// The skyscrapers of the pairs of two parallel lines; `crossing` is the first crossing line.
void PutSkyscrapers(EffectSet& all, const Grid& grid, int digit, CellSet one, CellSet other,
                    int crossing) {
    for (int base : one) {
        for (int opposite : other) {
            const int roof = OtherOf(one, base);
            const int otherRoof = OtherOf(other, opposite);
            if (UnitFrom(crossing, base) == UnitFrom(crossing, opposite) &&
                UnitFrom(crossing, roof) != UnitFrom(crossing, otherRoof)) {
                const CellSet losers =
                    SeenByBoth(grid, digit, CellSet::Of(roof), CellSet::Of(otherRoof));
                Put(all, Removals(grid, losers, 1u << digit));
            }
        }
    }
}

EffectSet Skyscrapers(const Grid& grid) {
    EffectSet all;
    for (int number = 0; number < 9 * 18 * 18; ++number) {
        const int digit = number / (18 * 18) + 1;
        const int one = number / 18 % 18;
        const int other = number % 18;
        if (one >= other || IsRow(one) != IsRow(other)) {
            continue;
        }
        const CellSet inOne = Holders(grid, CellsOf(one), digit);
        const CellSet inOther = Holders(grid, CellsOf(other), digit);
        if (inOne.Count() == 2 && inOther.Count() == 2) {
            PutSkyscrapers(all, grid, digit, inOne, inOther, IsRow(one) ? 9 : 0);
        }
    }
    return all;
}

using Colors = std::array<CellSet, 2>;

// Gives the cluster of this cell its colours, from pair to pair until nothing is new.
Colors ColorsFrom(const std::vector<CellSet>& pairs, int cell) {
    Colors colors = {CellSet::Of(cell), CellSet()};
    for (std::size_t round = 0; round < pairs.size(); ++round) {
        for (const CellSet pair : pairs) {
            for (int end : pair) {
                const int other = OtherOf(pair, end);
                for (std::size_t color = 0; color < 2; ++color) {
                    if (colors[color].Has(end)) {
                        colors[1 - color].Add(other);
                    }
                }
            }
        }
    }
    return colors;
}

std::vector<Colors> ClustersIn(const Grid& grid, int digit) {
    std::vector<CellSet> pairs;
    CellSet ends;
    for (int unit = 0; unit < 27; ++unit) {
        const CellSet holders = Holders(grid, CellsOf(unit), digit);
        if (holders.Count() == 2) {
            pairs.push_back(holders);
            ends |= holders;
        }
    }
    std::vector<Colors> clusters;
    while (ends.Any()) {
        clusters.push_back(ColorsFrom(pairs, ends.First()));
        ends -= clusters.back()[0] | clusters.back()[1];
    }
    return clusters;
}

bool SeeEachOther(CellSet one, CellSet other) {
    bool see = false;
    for (int cell : one) {
        see |= (SeenBy(cell) & other).Any();
    }
    return see;
}
// Do two cells of one set share a unit?
bool Clashes(CellSet cells) {
    return SeeEachOther(cells, cells);
}

// With a cell in both colours, as a contradictory grid can have, a cluster proves nothing.
bool IsTwoColored(const Colors& cluster) {
    return !(cluster[0] & cluster[1]).Any();
}

// What rules say of one cluster, or of two of the same digit.
using ClusterRule = void (*)(EffectSet&, const Grid&, int digit, const Colors&, const Colors&);

EffectSet OfEachCluster(const Grid& grid, ClusterRule rule) {
    EffectSet all;
    for (int digit = 1; digit <= 9; ++digit) {
        for (const Colors& cluster : ClustersIn(grid, digit)) {
            rule(all, grid, digit, cluster, cluster);
        }
    }
    return all;
}

EffectSet OfTwoClusters(const Grid& grid, ClusterRule rule) {
    EffectSet all;
    for (int digit = 1; digit <= 9; ++digit) {
        const std::vector<Colors> clusters = ClustersIn(grid, digit);
        for (const Colors& one : clusters) {
            for (const Colors& other : clusters) {
                if (one != other && IsTwoColored(one) && IsTwoColored(other)) {
                    rule(all, grid, digit, one, other);
                }
            }
        }
    }
    return all;
}

void PutWraps(EffectSet& all, const Grid& grid, int digit, const Colors& cluster, const Colors&) {
    for (const CellSet color : cluster) {
        Put(all, Clashes(color) ? Removals(grid, color, 1u << digit) : Effects());
    }
}

void PutTrap(EffectSet& all, const Grid& grid, int digit, const Colors& cluster, const Colors&) {
    const CellSet losers =
        SeenByBoth(grid, digit, cluster[0], cluster[1]) - cluster[0] - cluster[1];
    Put(all, Removals(grid, losers, 1u << digit));
}

void PutType1(EffectSet& all, const Grid& grid, int digit, const Colors& one, const Colors& other) {
    for (std::size_t a = 0; a < 2; ++a) {
        for (std::size_t c = 0; c < 2; ++c) {
            if (SeeEachOther(one[a], other[c])) {
                const CellSet losers = SeenByBoth(grid, digit, one[1 - a], other[1 - c]);
                Put(all, Removals(grid, losers, 1u << digit));
            }
        }
    }
}

// Placements, not removals: all cells of the partner hold the digit.
void PutType2(EffectSet& all, const Grid& grid, int digit, const Colors& one, const Colors& other) {
    for (std::size_t a = 0; a < 2; ++a) {
        const CellSet partner = one[1 - a];
        if (SeeEachOther(one[a], other[0]) && SeeEachOther(one[a], other[1]) && !Clashes(partner)) {
            Put(all, Removals(grid, partner, 1u << digit));
        }
    }
}

std::vector<Enumerator> Enumerators() {
    return {{"EmptyRectangle", StepOfSlot(11), EmptyRectangles},
            {"TwoStringKite", StepOfSlot(13), Kites},
            {"Skyscraper", StepOfSlot(14), Skyscrapers},
            {"ColorWrap", StepFor<SimpleColoring, HintKind::ColorWrap>(),
             [](const Grid& grid) { return OfEachCluster(grid, PutWraps); }},
            {"ColorTrap", StepFor<SimpleColoring, HintKind::ColorTrap>(),
             [](const Grid& grid) { return OfEachCluster(grid, PutTrap); }},
            {"MultiColor1", StepFor<MultiColor, HintKind::MultiColor1>(),
             [](const Grid& grid) { return OfTwoClusters(grid, PutType1); }},
            {"MultiColor2", StepFor<MultiColor, HintKind::MultiColor2>(),
             [](const Grid& grid) { return OfTwoClusters(grid, PutType2); }}};
}

TEST(SingleDigitCompleteness, EachKindIsFoundWhereItsDefinitionHolds) {
    ExpectComplete(Enumerators());
}

TEST(SingleDigitCompleteness, HoldsWhereThereIsNoSolution) {
    ExpectCompleteWithoutSolution(Enumerators(), 50, 1);
}

}  // namespace
}  // namespace vemo
