// The simple steps overlook no find.
#include "thorough/completeness.h"

namespace vemo {
namespace {

using namespace test;

EffectSet HiddenSingles(const Grid& grid) {
    EffectSet all;
    for (int unit = 0; unit < 27; ++unit) {
        for (int digit = 1; digit <= 9; ++digit) {
            const CellSet holders = Holders(grid, CellsOf(unit), digit);
            if (holders.Count() == 1) {
                all.insert({{holders.First(), digit}});
            }
        }
    }
    return all;
}

EffectSet NakedSingles(const Grid& grid) {
    EffectSet all;
    for (int cell = 0; cell < kCells; ++cell) {
        const Effects candidates = Removals(grid, CellSet::Of(cell), kAllMarks);
        if (candidates.size() == 1) {
            all.insert(candidates);
        }
    }
    return all;
}

// All places of a digit in one unit lie in a second one, of which just one of the two is a box.
EffectSet Intersections(const Grid& grid, bool fromBox) {
    EffectSet all;
    const auto isBox = [](int unit) { return unit >= 18; };
    for (int pair = 0; pair < 27 * 27; ++pair) {
        const int from = pair / 27;
        const int to = pair % 27;
        if (isBox(from) != fromBox || isBox(to) == fromBox) {
            continue;
        }
        for (int digit = 1; digit <= 9; ++digit) {
            const CellSet holders = Holders(grid, CellsOf(from), digit);
            if (holders.Any() && CellsOf(to).Contains(holders)) {
                all.insert(Removals(grid, CellsOf(to) - CellsOf(from), 1u << digit));
            }
        }
    }
    return all;
}

// As many cells of a unit as there are digits hold nothing but these, and something.
Effects NakedSubset(const Grid& grid, CellSet unit, unsigned digits) {
    CellSet subset;
    for (int cell : unit) {
        const unsigned marks = grid.MarksAt(cell);
        if (marks != 0 && (marks & ~digits) == 0) {
            subset.Add(cell);
        }
    }
    return subset.Count() == BitCount(digits) ? Removals(grid, unit - subset, digits) : Effects();
}

// The digits, each of which has a place, have as many cells of a unit between them as they are.
Effects HiddenSubset(const Grid& grid, CellSet unit, unsigned digits) {
    CellSet places;
    for (int digit = 1; digit <= 9; ++digit) {
        if ((digits >> digit & 1) != 0) {
            const CellSet holders = Holders(grid, unit, digit);
            if (!holders.Any()) {
                return {};
            }
            places |= holders;
        }
    }
    return places.Count() == BitCount(digits) ? Removals(grid, places, ~digits) : Effects();
}

using SubsetRule = Effects (*)(const Grid&, CellSet, unsigned);

EffectSet Subsets(const Grid& grid, SubsetRule rule, int size) {
    EffectSet all;
    for (int unit = 0; unit < 27; ++unit) {
        const CellSet cells = CellsOf(unit);
        for (unsigned digits = 2; digits <= 1022; digits += 2) {
            if (BitCount(digits) == size) {
                all.insert(rule(grid, cells, digits));
            }
        }
    }
    return all;
}

std::function<EffectSet(const Grid&)> SubsetsBy(SubsetRule rule, int size) {
    return [=](const Grid& grid) { return Subsets(grid, rule, size); };
}

TEST(BasicStepsCompleteness, EachStepFindsWhatItsDefinitionHolds) {
    const Enumerator rows[] = {
        {"HiddenSingle", StepAt(kHiddenSingle), HiddenSingles},
        {"NakedSingle", StepAt(kNakedSingle), NakedSingles},
        {"PointingPair", StepAt(kPointingPair),
         [](const Grid& grid) { return Intersections(grid, true); }},
        {"BoxLine", StepAt(kBoxLine), [](const Grid& grid) { return Intersections(grid, false); }},
        {"NakedPair", StepAt(kNakedPair), SubsetsBy(NakedSubset, 2)},
        {"NakedTriple", StepAt(kNakedTriple), SubsetsBy(NakedSubset, 3)},
        {"HiddenPair", StepAt(kHiddenPair), SubsetsBy(HiddenSubset, 2)},
        {"NakedQuad", StepAt(kNakedQuad), SubsetsBy(NakedSubset, 4)},
        {"HiddenTriple", StepAt(kHiddenTriple), SubsetsBy(HiddenSubset, 3)},
        {"NakedQuint", StepAt(kNakedQuint), SubsetsBy(NakedSubset, 5)}};
    ExpectComplete(rows);
}

}  // namespace
}  // namespace vemo
