// The list of almost locked sets is what it promises, and what is built on it overlooks no find,
// nor finds any that is none.
#include <array>
#include <bit>
#include <bitset>

#include "thorough/plain_links.h"

namespace vemo {
namespace {

using namespace test;

struct PlainSet {
    CellSet cells;
    unsigned digits = 0;
    std::array<CellSet, 10> places;
    std::array<CellSet, 10> kills;
};

PlainSet WithDigits(const Grid& grid, CellSet cells) {
    PlainSet set{cells, 0, {}, {}};
    for (int digit = 1; digit <= 9; ++digit) {
        const CellSet places = Holders(grid, cells, digit);
        set.places[Index(digit)] = places;
        if (places.Any()) {
            set.digits |= 1u << digit;
            set.kills[Index(digit)] = SeenByAll(places) - cells;
        }
    }
    return set;
}

// Visits the choices of so many cells with candidates, in lexicographic order, with their digits.
template <typename Visit>
void ForEachChoice(const Grid& grid, CellSet from, int size, Visit visit, CellSet chosen = {},
                   unsigned digits = 0) {
    if (size == 0) {
        visit(chosen, digits);
        return;
    }
    for (int cell : from) {
        from.Remove(cell);
        if (const unsigned marks = grid.MarksAt(cell); marks != 0) {
            ForEachChoice(grid, from, size - 1, visit, chosen | CellSet::Of(cell), digits | marks);
        }
    }
}

// By size, unit and cells; each set at its first unit.
std::vector<PlainSet> PlainSets(const Grid& grid, int largest, int excess) {
    std::vector<PlainSet> sets;
    for (int size = 1; size <= largest; ++size) {
        for (int unit = 0; unit < 27; ++unit) {
            ForEachChoice(grid, CellsOf(unit), size, [&](CellSet cells, unsigned digits) {
                int first = 0;
                while (!CellsOf(first).Contains(cells)) {
                    ++first;
                }
                if (BitCount(digits) == size + excess && first == unit) {
                    sets.push_back(WithDigits(grid, cells));
                }
            });
        }
    }
    return sets;
}

void ExpectList(const Grid& grid, int largest, int excess) {
    const AlmostLockedList list(grid, largest, excess);
    const std::vector<PlainSet> plain = PlainSets(grid, largest, excess);
    ASSERT_EQ(list.All().size(), plain.size());
    for (std::size_t k = 0; k < plain.size(); ++k) {
        ASSERT_EQ(list.All()[k].cells, plain[k].cells);
        ASSERT_EQ(list.All()[k].digits, plain[k].digits);
        for (int digit = 1; digit <= 9; ++digit) {
            ASSERT_EQ(list.All()[k].Places(digit), plain[k].places[Index(digit)]);
            ASSERT_EQ(list.All()[k].Kills(digit), plain[k].kills[Index(digit)]);
        }
    }
    for (int size = 1; size <= largest; ++size) {
        const auto isSmall = [&](const PlainSet& set) { return set.cells.Count() <= size; };
        EXPECT_EQ(static_cast<long>(list.UpTo(size).size()), std::ranges::count_if(plain, isSmall));
    }
}

TEST(AlmostLockedList, HoldsEverySetOnceInItsOrder) {
    MixedPositions positions;
    std::mt19937 random(31);
    for (int tried = 0; tried < 60; ++tried) {
        const Grid grid = tried % 3 == 2 ? GridWithoutSolution(random, 3) : positions.Next();
        ExpectList(grid, 5, 1);
        ExpectList(grid, 3, 2);
        ExpectList(grid, 1, 2);
    }
}

// What a pair of sets takes, by cell, then digit.
Effects TakenByPair(const Grid& grid, const PlainSet& a, const PlainSet& b) {
    unsigned restricted = 0;
    for (std::size_t x = 1; x <= 9; ++x) {
        const bool isCommon = a.places[x].Any() && b.places[x].Any();
        restricted |= isCommon && a.kills[x].Contains(b.places[x]) ? 1u << x : 0u;
    }
    Effects taken;
    for (std::size_t z = 1; restricted != 0 && z <= 9; ++z) {
        const bool isDouble = BitCount(restricted) > 1;
        const bool isRestricted = (restricted >> z & 1) != 0;
        CellSet losers;
        if (isDouble || !isRestricted) {
            losers |= a.kills[z] & b.kills[z];
        }
        if (isDouble && !isRestricted) {
            losers |= a.kills[z] | b.kills[z];
        }
        for (int cell : Holders(grid, losers, static_cast<int>(z))) {
            taken.emplace_back(cell, static_cast<int>(z));
        }
    }
    std::ranges::sort(taken);
    return taken;
}

EffectSet AlsPairs(const Grid& grid) {
    EffectSet all;
    const std::vector<PlainSet> sets = PlainSets(grid, 5, 1);
    for (std::size_t i = 0; i < sets.size(); ++i) {
        for (std::size_t j = i + 1; j < sets.size(); ++j) {
            const bool areBothCells = sets[i].cells.Count() == 1 && sets[j].cells.Count() == 1;
            if (!areBothCells && !(sets[i].cells & sets[j].cells).Any() &&
                BitCount(sets[i].digits & sets[j].digits) >= 2) {
                Put(all, TakenByPair(grid, sets[i], sets[j]));
            }
        }
    }
    return all;
}

std::vector<int> CellsWithCandidates(const Grid& grid) {
    std::vector<int> cells;
    for (int cell = 0; cell < kCells; ++cell) {
        if (grid.MarksAt(cell) != 0) {
            cells.push_back(cell);
        }
    }
    return cells;
}

std::size_t Number(int cell, int digit) {
    return Index(10 * cell + digit);
}

// By candidate and cell, the candidates of the cell that go with it: those that do not repeat it,
// and that leave no set too little together with it.
class PossiblePairs {
  public:
    PossiblePairs(const Grid& grid, const std::vector<PlainSet>& excluders) {
        std::array<Marks, kCells> marks{};
        for (int cell : CellsWithCandidates(grid)) {
            marks[Index(cell)] = grid.MarksAt(cell);
        }
        possible_.assign(10 * kCells, marks);
        for (int cell = 0; cell < kCells; ++cell) {
            for (int digit = 1; digit <= 9; ++digit) {
                ExcludeAll(CellSet::Of(cell), digit, SeenBy(cell), digit);
            }
        }
        for (const PlainSet& set : excluders) {
            for (int a = 1; a <= 9; ++a) {
                for (int b = 1; b <= 9; ++b) {
                    ExcludeAll(a == b ? CellSet() : set.kills[Index(a)], a, set.kills[Index(b)], b);
                }
            }
        }
    }

    unsigned With(int cell, int digit, int other) const {
        return possible_[Number(cell, digit)][Index(other)];
    }

  private:
    Marks& At(int cell, int digit, int other) {
        return possible_[Number(cell, digit)][Index(other)];
    }
    void ExcludeAll(CellSet cells, int digit, CellSet others, int otherDigit) {
        for (int cell : cells) {
            for (int other : others) {
                At(cell, digit, other) &= static_cast<Marks>(~(1u << otherDigit));
            }
        }
    }

    std::vector<std::array<Marks, kCells>> possible_;  // by candidate, then cell
};

// The candidates of a cell that no candidate of another is possible with.
Effects ExcludedByPair(const Grid& grid, const PossiblePairs& possible, int cell, int other) {
    Effects excluded;
    for (int digit = 1; digit <= 9; ++digit) {
        if (grid.KnopAan(cell, digit) && possible.With(cell, digit, other) == 0) {
            excluded.emplace_back(cell, digit);
        }
    }
    return excluded;
}

enum class BaseCells { Any, Aligned };

EffectSet Pairs(const Grid& grid, int largest, BaseCells which) {
    EffectSet all;
    const PossiblePairs possible(grid, PlainSets(grid, largest, 1));
    const std::vector<int> cells = CellsWithCandidates(grid);
    for (int x : cells) {
        for (int y : cells) {
            if (x < y && (which == BaseCells::Any || Sees(x, y))) {
                Effects excluded = ExcludedByPair(grid, possible, x, y);
                const Effects ofOther = ExcludedByPair(grid, possible, y, x);
                excluded.insert(excluded.end(), ofOther.begin(), ofOther.end());
                Put(all, excluded);
            }
        }
    }
    return all;
}

constexpr std::size_t kMostTripleSets = 1024;

// The exclusions of triples on one grid.
class PlainTriples {
  public:
    PlainTriples(const Grid& grid, int largestOfPairs, int largestOfTriples)
        : grid_(grid), possible_(grid, PlainSets(grid, largestOfPairs, 1)), robbed_(10 * kCells) {
        for (int few : CellsWithCandidates(grid)) {
            const int count = BitCount(grid.MarksAt(few));
            for (int cell : count == 2 || count == 3 ? SeenBy(few) : CellSet()) {
                fewSeenBy_[Index(cell)].Add(few);
            }
        }
        std::vector<PlainSet> sets = PlainSets(grid, largestOfTriples, 2);
        sets.resize(std::min(sets.size(), kMostTripleSets));
        for (std::size_t k = 0; k < sets.size(); ++k) {
            for (int digit = 1; digit <= 9; ++digit) {
                for (int cell : sets[k].kills[Index(digit)]) {
                    robbed_[Number(cell, digit)].set(k);
                    robbing_.set(Number(cell, digit));
                }
            }
        }
    }

    EffectSet All() const {
        EffectSet all;
        const std::vector<int> cells = CellsWithCandidates(grid_);
        for (int x : cells) {
            for (int y : cells) {
                const CellSet seen = x < y ? FewSeenBy(x) & FewSeenBy(y) : CellSet();
                for (int z : seen.Any() ? cells : std::vector<int>()) {
                    if (y < z && (seen & FewSeenBy(z)).Any()) {
                        Effects excluded = ExcludedAt(x, y, z);
                        Append(excluded, ExcludedAt(y, x, z));
                        Append(excluded, ExcludedAt(z, x, y));
                        Put(all, excluded);
                    }
                }
            }
        }
        return all;
    }

  private:
    static void Append(Effects& to, const Effects& more) {
        to.insert(to.end(), more.begin(), more.end());
    }

    CellSet FewSeenBy(int cell) const { return fewSeenBy_[Index(cell)]; }

    Effects ExcludedAt(int cell, int y, int z) const {
        Effects excluded;
        for (unsigned left = grid_.MarksAt(cell); left != 0; left &= left - 1) {
            const int digit = std::countr_zero(left);
            if (!IsPossible(cell, digit, y, z)) {
                excluded.emplace_back(cell, digit);
            }
        }
        return excluded;
    }

    bool IsPossible(int x, int a, int y, int z) const {
        for (unsigned left = possible_.With(x, a, y); left != 0; left &= left - 1) {
            const int b = std::countr_zero(left);
            unsigned thirds = possible_.With(x, a, z) & possible_.With(y, b, z);
            // To rob a set of three digits takes three candidates that rob it of one each.
            const bool mayRob = a != b && Robs(x, a) && Robs(y, b);
            if ((mayRob ? thirds & (1u << a | 1u << b) : thirds) != 0) {
                return true;
            }
            for (; thirds != 0; thirds &= thirds - 1) {
                if (!IsRobbed(x, a, y, b, z, std::countr_zero(thirds))) {
                    return true;
                }
            }
        }
        return false;
    }
    bool Robs(int cell, int digit) const { return robbing_.test(Number(cell, digit)); }
    bool IsRobbed(int x, int a, int y, int b, int z, int c) const {
        return (robbed_[Number(x, a)] & robbed_[Number(y, b)] & robbed_[Number(z, c)]).any();
    }

    const Grid& grid_;
    PossiblePairs possible_;
    std::vector<std::bitset<kMostTripleSets>> robbed_;  // by candidate, sets
    std::bitset<10 * kCells> robbing_;                  // the candidates that rob any
    std::array<CellSet, kCells> fewSeenBy_;  // by cell, those with two or three candidates
};

std::vector<Enumerator> Enumerators() {
    return {
        {"ALSxz", StepOfSlot(34), AlsPairs},
        {"APE", StepOfSlot(23), [](const Grid& grid) { return Pairs(grid, 2, BaseCells::Any); }},
        {"ExtendedAPE", StepOfSlot(26),
         [](const Grid& grid) { return Pairs(grid, 3, BaseCells::Aligned); }},
        {"ATE", StepOfSlot(31), [](const Grid& grid) { return PlainTriples(grid, 1, 1).All(); }},
        {"ExtendedATE", StepOfSlot(37),
         [](const Grid& grid) { return PlainTriples(grid, 4, 3).All(); }}};
}

TEST(AlsCompleteness, EachStepFindsWhatItsDefinitionHolds) {
    ExpectComplete(Enumerators());
}

TEST(AlsCompleteness, HoldsWhereThereIsNoSolution) {
    ExpectCompleteWithoutSolution(Enumerators(), 20, 3);
}

}  // namespace
}  // namespace vemo
