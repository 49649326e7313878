// XY-Chains and forcing chains against matrices: what they find is all that there is, and each of
// their chains is one.
#include <cstdint>
#include <random>
#include <set>

#include "thorough/plain_links.h"

namespace vemo {
namespace {

using namespace test;

constexpr int kXYChain = 30;
constexpr int kForcing = 36;

// Square matrices of numbers below a prime.
using Matrix = std::vector<std::vector<std::uint64_t>>;
constexpr std::uint64_t kPrime = 2147483647;

std::uint64_t Inverse(std::uint64_t number) {
    std::uint64_t inverse = 1;
    for (std::uint64_t power = kPrime - 2; power > 0; power /= 2) {
        inverse = power % 2 != 0 ? inverse * number % kPrime : inverse;
        number = number * number % kPrime;
    }
    return inverse;
}

// By elimination; the matrix must have one.
Matrix Inverse(Matrix matrix) {
    const std::size_t size = matrix.size();
    Matrix inverse(size, std::vector<std::uint64_t>(size));
    for (std::size_t k = 0; k < size; ++k) {
        inverse[k][k] = 1;
    }
    const auto addRow = [size](Matrix& to, std::size_t row, std::size_t from, std::uint64_t times) {
        for (std::size_t k = 0; k < size; ++k) {
            to[row][k] = (to[row][k] + times * to[from][k]) % kPrime;
        }
    };
    for (std::size_t column = 0; column < size; ++column) {
        std::size_t pivot = column;
        while (matrix[pivot][column] == 0) {
            ++pivot;
        }
        std::swap(matrix[pivot], matrix[column]);
        std::swap(inverse[pivot], inverse[column]);
        const std::uint64_t reciprocal = Inverse(matrix[column][column]);
        for (std::size_t row = 0; row < size; ++row) {
            if (row != column && matrix[row][column] != 0) {
                const std::uint64_t times = (kPrime - matrix[row][column]) * reciprocal % kPrime;
                addRow(matrix, row, column, times);
                addRow(inverse, row, column, times);
            }
        }
    }
    for (std::size_t row = 0; row < size; ++row) {
        const std::uint64_t reciprocal = Inverse(matrix[row][row]);
        for (std::uint64_t& number : inverse[row]) {
            number = number * reciprocal % kPrime;
        }
    }
    return inverse;
}

// The candidates of the bivalue cells, and which of them cannot be together.
class BivalueMatrix {
  public:
    explicit BivalueMatrix(const Grid& grid) {
        for (int cell = 0; cell < kCells; ++cell) {
            for (int digit = 1; digit <= 9 && BitCount(grid.MarksAt(cell)) == 2; ++digit) {
                if (grid.KnopAan(cell, digit)) {
                    candidates.push_back(At(cell, digit));
                }
            }
        }
        matrix_.assign(candidates.size(), std::vector<std::uint64_t>(candidates.size()));
        std::mt19937 random{5};
        for (std::size_t one = 0; one < candidates.size(); ++one) {
            for (std::size_t other = one + 1; other < candidates.size(); ++other) {
                const auto& [cell, digit] = candidates[one];
                const auto& [otherCell, otherDigit] = candidates[other];
                if (cell == otherCell || (digit == otherDigit && Sees(cell, otherCell))) {
                    Set(one, other, 1 + random() % (kPrime - 1));
                }
            }
        }
        inverse_ = Inverse(matrix_);
    }

    // Whether a chain of three or more cells, each but once, leads from the one candidate to the
    // other. The candidates can be paired off, cell by cell; without these two they still can if
    // and only if a chain joins them, since the pairs can be exchanged along it. And they can if
    // a skew-symmetric matrix, random where two may be paired, is invertible (W. T. Tutte, The
    // factorization of linear graphs, 1947); the inverse of the whole one answers that for any two
    // that are left out (M. O. Rabin and V. V. Vazirani, Maximum matchings in general graphs
    // through randomization, 1989).
    bool AreJoined(std::size_t one, std::size_t other) const {
        const std::size_t mate = one ^ 1;
        const std::size_t otherMate = other ^ 1;
        if (inverse_[one][other] == 0 || matrix_[mate][otherMate] == 0) {
            return inverse_[one][other] != 0;
        }
        // A pair of cells is a chain of two: only another way counts.
        BivalueMatrix without = *this;
        without.Set(mate, otherMate, 0);
        return Inverse(without.matrix_)[one][other] != 0;
    }

    std::vector<CellDigit> candidates;  // those of a cell one after the other

  private:
    void Set(std::size_t one, std::size_t other, std::uint64_t number) {
        matrix_[one][other] = number;
        matrix_[other][one] = (kPrime - number) % kPrime;
    }

    Matrix matrix_;
    Matrix inverse_;
};

EffectSet XYChains(const Grid& grid) {
    EffectSet all;
    const BivalueMatrix matrix(grid);
    for (std::size_t one = 0; one < matrix.candidates.size(); ++one) {
        for (std::size_t other = one + 1; other < matrix.candidates.size(); ++other) {
            const auto& [cell, digit] = matrix.candidates[one];
            const auto& [otherCell, otherDigit] = matrix.candidates[other];
            if (cell == otherCell || digit != otherDigit || !matrix.AreJoined(one, other)) {
                continue;
            }
            Put(all, Removals(grid, SeenBy(cell) & SeenBy(otherCell), 1u << digit));
        }
    }
    return all;
}

TEST(XYChain, IsFoundWhereverTwoEndsAreJoined) {
    const Enumerator rows[] = {{"XYChain", StepOfSlot(kXYChain), XYChains}};
    ExpectComplete(rows);
}

void ExpectXYChain(const Grid& grid, const Find& find) {
    std::set<int> cells;
    int lost = find.digits[0];
    for (std::size_t k = 0; k < find.cells.Size(); ++k) {
        const int cell = find.cells[k];
        EXPECT_TRUE(k == 0 || Sees(cell, find.cells[k - 1]));
        EXPECT_TRUE(cells.insert(cell).second) << "a cell comes twice";
        ASSERT_TRUE(grid.KnopAan(cell, lost));
        ASSERT_EQ(BitCount(grid.MarksAt(cell)), 2);
        lost = FirstDigit(static_cast<Marks>(grid.MarksAt(cell) & ~MarkOf(lost)));
    }
    EXPECT_EQ(lost, find.digits[0]);
    EXPECT_GE(find.cells.Size(), 3u);
    EXPECT_TRUE(std::ranges::all_of(find.links, &ChainLink::directed));
}

TEST(XYChain, IsAChainAndTheShortestComeFirst) {
    WildPositions wild;
    for (int tried = 0; tried < 300; ++tried) {
        const Grid grid = wild.Next();
        EveryFind every;
        Solver(grid).Search(StepOfSlot(kXYChain), every);
        std::size_t length = 0;
        for (const Find& find : every.finds) {
            ExpectXYChain(grid, find);
            EXPECT_GE(find.cells.Size(), length);
            length = find.cells.Size();
        }
    }
}

constexpr int kLongestChain = 20;  // links
constexpr int kNever = 0;

enum class State : std::uint8_t { Off, On };

// By candidate on, then node: the fewest links that lead to it off, and on; at least one.
struct Depths {
    explicit Depths(const PlainLinks& links)
        : off(Index(links.singles), std::vector<int>(links.nodes.size(), kNever)), on(off) {
        for (int start = 0; start < links.singles; ++start) {
            const PlainLevels levels(links, start, LinkKind::Weak, kLongestChain);
            for (int depth = 1; depth <= kLongestChain; ++depth) {
                auto& depths = (depth % 2 != 0 ? off : on)[Index(start)];
                levels.ForEachNode(depth, [&](int node) { depths[Index(node)] = depth; });
            }
        }
    }

    int Of(int start, int node, State state) const {
        return (state == State::On ? on : off)[Index(start)][Index(node)];
    }

    std::vector<std::vector<int>> off;
    std::vector<std::vector<int>> on;
};

struct Sources {
    HintKind kind;
    int unit = 0;
    std::vector<int> nodes;
};

// Cells, then units by digit.
std::vector<Sources> AllSources(const Grid& grid, const PlainLinks& links) {
    std::vector<Sources> all;
    for (int cell = 0; cell < kCells; ++cell) {
        Sources sources{HintKind::ForcingFromCell, 0, {}};
        for (int digit = 1; digit <= 9; ++digit) {
            if (grid.KnopAan(cell, digit)) {
                sources.nodes.push_back(links.Find(CellSet::Of(cell), digit));
            }
        }
        all.push_back(sources);
    }
    for (int digit = 1; digit <= 9; ++digit) {
        for (int unit = 0; unit < 27; ++unit) {
            Sources sources{HintKind::ForcingFromUnit, unit, {}};
            for (int cell : Holders(grid, CellsOf(unit), digit)) {
                sources.nodes.push_back(links.Find(CellSet::Of(cell), digit));
            }
            all.push_back(sources);
        }
    }
    std::erase_if(all, [](const Sources& sources) { return sources.nodes.size() < 3; });
    return all;
}

// What a set of sources leads to: a candidate off, or on.
struct Forced {
    int total;  // links
    int set;    // of sources
    int node;
    State state;

    auto operator<=>(const Forced&) const = default;
};

class PlainForcing {
  public:
    PlainForcing(const Grid& grid, GraphNodes kinds)
        : links(grid, kinds, GraphDigits::All), depths(links), sets(AllSources(grid, links)) {
        for (int node = 0; node < links.singles; ++node) {
            const int cell = links.nodes[Index(node)].cells.First();
            AddFirst(node, State::Off);
            if (BitCount(grid.MarksAt(cell)) > 1) {
                AddFirst(node, State::On);
            }
        }
        std::ranges::sort(forced);
    }

    PlainLinks links;
    Depths depths;
    std::vector<Sources> sets;
    std::vector<Forced> forced;  // each result once; in order

  private:
    // Of all sets that lead to a result, the one of the fewest links.
    void AddFirst(int node, State state) {
        std::vector<Forced> all;
        for (int set = 0; set < static_cast<int>(sets.size()); ++set) {
            const int total = TotalOf(sets[Index(set)], node, state);
            if (total != kNever) {
                all.push_back({total, set, node, state});
            }
        }
        if (!all.empty()) {
            forced.push_back(std::ranges::min(all));
        }
    }
    int TotalOf(const Sources& set, int node, State state) const {
        int total = 0;
        for (int source : set.nodes) {
            const int depth = depths.Of(source, node, state);
            if (source == node || depth == kNever) {
                return kNever;
            }
            total += depth;
        }
        return total;
    }
};

// The chains of the find, one after the other, are shortest ones from the sources to the result.
void ExpectChains(const PlainForcing& plain, const Forced& forced, const Find& find) {
    std::size_t at = 0;
    for (int source : plain.sets[Index(forced.set)].nodes) {
        int node = source;
        const int length = plain.depths.Of(source, forced.node, forced.state);
        for (int k = 0; k < length; ++k, ++at) {
            ASSERT_LT(at, find.links.size());
            const ChainLink& link = find.links[at];
            const int next = plain.links.Find(link.to, link.toDigit);
            ASSERT_GE(next, 0);
            EXPECT_EQ(plain.links.Find(link.from, link.fromDigit), node);
            EXPECT_EQ(link.strong, k % 2 == 1);
            EXPECT_TRUE(link.directed);
            EXPECT_TRUE(link.strong ? plain.links.IsStrong(node, next)
                                    : plain.links.IsWeak(node, next));
            node = next;
        }
        EXPECT_EQ(node, forced.node);
    }
    EXPECT_EQ(at, find.links.size());
    EXPECT_EQ(std::ranges::count(LogLine(find), ';') + 1,
              static_cast<long>(plain.sets[Index(forced.set)].nodes.size()));
}

void ExpectFind(const Grid& grid, const PlainForcing& plain, const Forced& forced,
                const Find& find) {
    const Sources& sources = plain.sets[Index(forced.set)];
    EXPECT_EQ(find.kind, sources.kind);
    EXPECT_TRUE(find.units.Empty() || find.units[0] == sources.unit);
    std::vector<CellDigit> places;
    for (int node : sources.nodes) {
        const LinkNode& source = plain.links.nodes[Index(node)];
        places.push_back(At(source.cells.First(), source.digit));
    }
    EXPECT_EQ(find.firstColor, places);
    const LinkNode& target = plain.links.nodes[Index(forced.node)];
    const unsigned own = 1u << target.digit;
    const bool isOn = forced.state == State::On;
    EXPECT_EQ(EffectsOf(find), Removals(grid, target.cells, isOn ? 1022u & ~own : own));
    EXPECT_TRUE(find.placements.Empty());
    EXPECT_EQ(find.secondColor,
              Find::CandidatesOf(grid, target.cells, isOn ? MarkOf(target.digit) : Marks{0}));
    ExpectChains(plain, forced, find);
}

// First by candidates and groups, then what almost locked sets add.
void ExpectForcing(const Grid& grid) {
    EveryFind every;
    Solver(grid).Search(StepOfSlot(kForcing), every);
    auto find = every.finds.begin();
    std::set<std::pair<int, State>> offered;
    for (GraphNodes nodes : {GraphNodes::Grouped, GraphNodes::AlmostLocked}) {
        const PlainForcing plain(grid, nodes);
        for (const Forced& forced : plain.forced) {
            if (!offered.insert({forced.node, forced.state}).second) {
                continue;
            }
            ASSERT_TRUE(find != every.finds.end()) << "one is missing";
            ExpectFind(grid, plain, forced, *find++);
        }
    }
    EXPECT_TRUE(find == every.finds.end()) << "one too many";
}

TEST(ForcingChain, IsFoundExactlyWhereTheStepsLead) {
    OnPositionsOf(kForcing, ExpectForcing);
}

}  // namespace
}  // namespace vemo
