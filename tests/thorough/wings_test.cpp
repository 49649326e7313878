// Wings, rings and bent sets overlook no find, nor find any that is none.
#include <array>

#include "thorough/completeness.h"

namespace vemo {
namespace {

using namespace test;

// By set of digits the cells that hold just these.
using CellsByMarks = std::array<CellSet, 1024>;

CellsByMarks ByMarks(const Grid& grid) {
    CellsByMarks cells;
    for (int cell = 0; cell < kCells; ++cell) {
        cells[grid.MarksAt(cell)].Add(cell);
    }
    return cells;
}

// The digits, equal ones too, that belong to a number from 0 on.
template <std::size_t kCount>
std::array<int, kCount> DigitsOf(int number) {
    std::array<int, kCount> digits;
    for (int& digit : digits) {
        digit = number % 9 + 1;
        number /= 9;
    }
    return digits;
}

// One cell of each of the sets, in every way.
template <std::size_t kCount>
void ForEachChoice(const std::array<CellSet, kCount>& sets,
                   const std::function<void(const std::array<int, kCount>&)>& visit,
                   std::array<int, kCount> chosen = {}, std::size_t count = 0) {
    if (count == kCount) {
        visit(chosen);
        return;
    }
    for (int cell : sets[count]) {
        chosen[count] = cell;
        ForEachChoice(sets, visit, chosen, count + 1);
    }
}

enum class Pivot { WithTwo, WithThree };

// A pivot of x and y, or of x, y and z, sees a wing of x and z and a wing of y and z.
EffectSet Wings(const Grid& grid, Pivot form) {
    EffectSet all;
    const CellsByMarks cells = ByMarks(grid);
    for (int number = 0; number < 9 * 9 * 9; ++number) {
        const auto [x, y, z] = DigitsOf<3>(number);
        if (x == y || y == z || x == z) {
            continue;
        }
        const unsigned going = 1u << z;
        const unsigned own = 1u << x | 1u << y | (form == Pivot::WithThree ? going : 0u);
        const std::array<CellSet, 3> places = {cells[own], cells[1u << x | going],
                                               cells[1u << y | going]};
        ForEachChoice<3>(places, [&](const std::array<int, 3>& wing) {
            CellSet holders = CellSet::Of(wing[1]) | CellSet::Of(wing[2]);
            if (form == Pivot::WithThree) {
                holders.Add(wing[0]);
            }
            if (Sees(wing[0], wing[1]) && Sees(wing[0], wing[2])) {
                Put(all, Removals(grid, SeenByAll(holders), going));
            }
        });
    }
    return all;
}

// What the sides of a ring take from the cells outside it.
Effects TakenByRing(const Grid& grid, const std::array<int, 4>& ring,
                    const std::array<int, 4>& sides) {
    Effects taken;
    for (int cell = 0; cell < kCells; ++cell) {
        unsigned digits = 0;
        bool isOfRing = false;
        for (std::size_t k = 0; k < 4; ++k) {
            isOfRing = isOfRing || cell == ring[k];
            if (Sees(cell, ring[k]) && Sees(cell, ring[(k + 1) % 4])) {
                digits |= 1u << sides[k];
            }
        }
        const Effects own = isOfRing ? Effects() : Removals(grid, CellSet::Of(cell), digits);
        taken.insert(taken.end(), own.begin(), own.end());
    }
    return taken;
}

// Cell k of a ring sees cell k + 1 and holds the digits of sides k - 1 and k.
EffectSet Rings(const Grid& grid) {
    EffectSet all;
    const CellsByMarks cells = ByMarks(grid);
    for (int number = 0; number < 9 * 9 * 9 * 9; ++number) {
        const std::array<int, 4> sides = DigitsOf<4>(number);
        std::array<CellSet, 4> places;
        for (std::size_t k = 0; k < 4; ++k) {
            const int before = sides[(k + 3) % 4];
            places[k] = before == sides[k] ? CellSet() : cells[1u << before | 1u << sides[k]];
        }
        ForEachChoice<4>(places, [&](const std::array<int, 4>& ring) {
            const auto& [a, b, c, d] = ring;
            if (Sees(a, b) && Sees(b, c) && Sees(c, d) && Sees(d, a) && a != c && b != d) {
                Put(all, TakenByRing(grid, ring, sides));
            }
        });
    }
    return all;
}

// Is a digit with these holders in a set free: can it be in two of them?
using FreeTest = std::function<bool(CellSet holders)>;

// Four cells with four digits, of which just one is free: it goes from all cells that see each of
// its holders.
Effects TakenByFour(const Grid& grid, const std::array<int, 4>& cells, const FreeTest& isFree) {
    unsigned digits = 0;
    CellSet set;
    for (int cell : cells) {
        digits |= grid.MarksAt(cell);
        set.Add(cell);
    }
    std::vector<int> free;
    for (int digit = 1; digit <= 9; ++digit) {
        if (isFree(Holders(grid, set, digit))) {
            free.push_back(digit);
        }
    }
    if (BitCount(digits) != 4 || free.size() != 1) {
        return {};
    }
    return Removals(grid, SeenByAll(Holders(grid, set, free[0])) - set, 1u << free[0]);
}

// All fours of the pool that have four digits at most.
void ForEachFour(const Grid& grid, CellSet pool,
                 const std::function<void(const std::array<int, 4>&)>& visit) {
    std::vector<int> cells;
    for (int cell : pool) {
        if (grid.MarksAt(cell) != 0 && BitCount(grid.MarksAt(cell)) <= 4) {
            cells.push_back(cell);
        }
    }
    for (std::size_t a = 0; a < cells.size(); ++a) {
        for (std::size_t b = 0; b < a; ++b) {
            const int two = grid.MarksAt(cells[a]) | grid.MarksAt(cells[b]);
            for (std::size_t c = 0; c < b && BitCount(two) <= 4; ++c) {
                const int three = two | grid.MarksAt(cells[c]);
                for (std::size_t d = 0; d < c && BitCount(three) <= 4; ++d) {
                    if (BitCount(three | grid.MarksAt(cells[d])) == 4) {
                        visit({cells[a], cells[b], cells[c], cells[d]});
                    }
                }
            }
        }
    }
}

// On a line and a box: one cell or more in both, in the line alone and in the box alone; free is
// what stands in the line alone and in the box alone.
EffectSet BentSets(const Grid& grid) {
    EffectSet all;
    for (int pair = 0; pair < 18 * 9; ++pair) {
        const CellSet line = CellsOf(pair / 9);
        const CellSet box = CellsOf(18 + pair % 9);
        if (!(line & box).Any()) {
            continue;
        }
        const FreeTest isFree = [&](CellSet holders) {
            return (holders & (line - box)).Any() && (holders & (box - line)).Any();
        };
        ForEachFour(grid, line | box, [&](const std::array<int, 4>& cells) {
            CellSet set;
            for (int cell : cells) {
                set.Add(cell);
            }
            if ((set & line & box).Any() && (set - box).Any() && (set - line).Any()) {
                Put(all, TakenByFour(grid, cells, isFree));
            }
        });
    }
    return all;
}

// Anywhere; free is what stands in two cells that do not see each other.
EffectSet ExtendedBentSets(const Grid& grid) {
    EffectSet all;
    const FreeTest standApart = [](CellSet holders) {
        bool any = false;
        for (int cell : holders) {
            any |= (holders - CellSet::Of(cell) - SeenBy(cell)).Any();
        }
        return any;
    };
    ForEachFour(grid, CellSet::All(), [&](const std::array<int, 4>& cells) {
        Put(all, TakenByFour(grid, cells, standApart));
    });
    return all;
}

std::vector<Enumerator> Enumerators() {
    return {
        {"XYWing", StepOfSlot(12), [](const Grid& grid) { return Wings(grid, Pivot::WithTwo); }},
        {"XYZWing", StepOfSlot(15), [](const Grid& grid) { return Wings(grid, Pivot::WithThree); }},
        {"MultiXWing", StepOfSlot(10), Rings},
        {"WXYZWing", StepOfSlot(18), BentSets},
        {"ExtendedWXYZWing", StepsOutsideTheLadder()[0], ExtendedBentSets}};
}

TEST(WingsCompleteness, EachStepFindsWhatItsDefinitionHolds) {
    ExpectComplete(Enumerators());
}

TEST(WingsCompleteness, HoldsWhereThereIsNoSolution) {
    ExpectCompleteWithoutSolution(Enumerators(), 30, 1);
}

}  // namespace
}  // namespace vemo
