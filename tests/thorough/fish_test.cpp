// The fish, plain and finned, overlook none.
#include <algorithm>
#include <array>

#include "thorough/completeness.h"

namespace vemo {
namespace {

using namespace test;

// The first line of a kind and the first that crosses it, by number of unit.
struct Directions {
    int first;
    int firstCrossing;
};
constexpr Directions kDirections[] = {{0, 9}, {9, 0}};

using Lines = std::array<CellSet, 9>;
Lines LinesFrom(int unit) {
    Lines lines;
    for (CellSet& line : lines) {
        line = CellsOf(unit++);
    }
    return lines;
}

// The chosen lines, bit k for the k-th of their kind, are `size` lines that hold the digit in two
// cells or more each, and in just `size` crossing lines between them. Three lines on two crossing
// lines contradict each other, and are no X-Wing.
Effects FishOn(const Grid& grid, const Lines& lines, const Lines& crossings, int digit,
               unsigned chosen, int size) {
    if (BitCount(chosen) != size) {
        return {};
    }
    CellSet base;
    for (unsigned k = 0; k < 9; ++k) {
        if ((chosen >> k & 1) != 0) {
            if (Holders(grid, lines[k], digit).Count() < 2) {
                return {};
            }
            base |= lines[k];
        }
    }
    CellSet cover;
    for (const CellSet crossing : crossings) {
        cover |= Holders(grid, crossing & base, digit).Any() ? crossing : CellSet();
    }
    const auto isCovered = [&](CellSet line) {
        const CellSet holders = Holders(grid, line, digit);
        return holders.Count() >= 2 && cover.Contains(holders);
    };
    const bool isFish = size > 2 || std::ranges::count_if(lines, isCovered) == 2;
    return isFish && cover.Count() == 9 * size ? Removals(grid, cover - base, 1u << digit)
                                               : Effects();
}

EffectSet Fish(const Grid& grid, int size) {
    EffectSet all;
    for (const auto [first, firstCrossing] : kDirections) {
        const Lines lines = LinesFrom(first);
        const Lines crossings = LinesFrom(firstCrossing);
        for (int digit = 1; digit <= 9; ++digit) {
            for (unsigned chosen = 0; chosen < 512; ++chosen) {
                all.insert(FishOn(grid, lines, crossings, digit, chosen, size));
            }
        }
    }
    return all;
}

// The exact line holds the digit where it crosses the two others and nowhere else. The finned line
// holds it on `plain`; wherever else it does is in the box of its crossing with `beside`, and
// somewhere not on `beside`.
Effects FinnedOn(const Grid& grid, int digit, CellSet exact, CellSet finned, CellSet plain,
                 CellSet beside) {
    if (exact == finned || plain == beside ||
        Holders(grid, exact, digit) != (exact & (plain | beside)) ||
        !Holders(grid, finned & plain, digit).Any()) {
        return {};
    }
    CellSet box;
    for (int unit = 18; unit < 27; ++unit) {
        box |= CellsOf(unit).Contains(finned & beside) ? CellsOf(unit) : CellSet();
    }
    const CellSet others = Holders(grid, finned - plain, digit);
    if (!box.Contains(others) || !(others - beside).Any()) {
        return {};
    }
    return Removals(grid, (beside & box) - exact - finned, 1u << digit);
}

// With any line as the finned one and any two crossing lines.
void AddFinnedWith(const Grid& grid, const Lines& lines, const Lines& crossings, int digit,
                   CellSet exact, EffectSet& all) {
    for (const CellSet finned : lines) {
        for (const CellSet plain : crossings) {
            for (const CellSet beside : crossings) {
                all.insert(FinnedOn(grid, digit, exact, finned, plain, beside));
            }
        }
    }
}

EffectSet FinnedXWings(const Grid& grid) {
    EffectSet all;
    for (const auto [first, firstCrossing] : kDirections) {
        const Lines lines = LinesFrom(first);
        const Lines crossings = LinesFrom(firstCrossing);
        for (const CellSet exact : lines) {
            for (int digit = 1; digit <= 9; ++digit) {
                AddFinnedWith(grid, lines, crossings, digit, exact, all);
            }
        }
    }
    return all;
}

std::vector<Enumerator> Enumerators() {
    return {{"XWing", StepOfSlot(8), [](const Grid& grid) { return Fish(grid, 2); }},
            {"Swordfish", StepOfSlot(9), [](const Grid& grid) { return Fish(grid, 3); }},
            {"Jellyfish", StepOfSlot(17), [](const Grid& grid) { return Fish(grid, 4); }},
            {"FinnedXWing", StepOfSlot(20), FinnedXWings}};
}

TEST(FishCompleteness, EachStepFindsWhatItsDefinitionHolds) {
    ExpectComplete(Enumerators());
}

TEST(FishCompleteness, HoldsWhereThereIsNoSolution) {
    ExpectCompleteWithoutSolution(Enumerators(), 20, 1);
}

}  // namespace
}  // namespace vemo
