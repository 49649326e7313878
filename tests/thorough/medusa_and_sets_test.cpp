// 3D Medusa, Sue-de-Coq and MultiFish overlook none.
#include <algorithm>
#include <array>
#include <bit>
#include <queue>
#include <utility>
#include <vector>

#include "thorough/completeness.h"

namespace vemo {
namespace {

using namespace test;

// A candidate's number is 9 times its cell and its digit - 1.
constexpr int kCandidates = 729;
using Ties = std::vector<std::vector<int>>;

void Tie(Ties& ties, int one, int other) {
    ties[static_cast<std::size_t>(one)].push_back(other);
    ties[static_cast<std::size_t>(other)].push_back(one);
}

// Which candidates are the only two of a cell, or of a unit and digit.
Ties TiesOf(const Grid& grid) {
    Ties ties(kCandidates);
    for (int cell = 0; cell < kCells; ++cell) {
        const Effects both = Removals(grid, CellSet::Of(cell), kAllMarks);
        if (both.size() == 2) {
            Tie(ties, 9 * cell + both[0].second - 1, 9 * cell + both[1].second - 1);
        }
    }
    for (int unit = 0; unit < 27; ++unit) {
        for (int digit = 1; digit <= 9; ++digit) {
            const Effects both = Removals(grid, CellsOf(unit), 1u << digit);
            if (both.size() == 2) {
                Tie(ties, 9 * both[0].first + digit - 1, 9 * both[1].first + digit - 1);
            }
        }
    }
    return ties;
}

// What is tied to a candidate, by color; both empty where a candidate has both colors.
std::array<Effects, 2> ColorsFrom(const Ties& ties, int first, std::vector<int>& colorOf) {
    std::array<Effects, 2> colors;
    std::queue<int> waiting({first});
    colorOf[static_cast<std::size_t>(first)] = 0;
    bool isOdd = false;
    while (!waiting.empty()) {
        const std::size_t from = static_cast<std::size_t>(waiting.front());
        waiting.pop();
        colors[static_cast<std::size_t>(colorOf[from])].emplace_back(from / 9, from % 9 + 1);
        for (const int to : ties[from]) {
            int& color = colorOf[static_cast<std::size_t>(to)];
            isOdd |= color == colorOf[from];
            if (color == -1) {
                color = 1 - colorOf[from];
                waiting.push(to);
            }
        }
    }
    return isOdd ? std::array<Effects, 2>() : colors;
}

// By cell, some digits.
using DigitsByCell = std::array<unsigned, kCells>;

// A color by cell: its own candidates, and those that it takes.
struct Reach {
    DigitsByCell own{};
    DigitsByCell taken{};

    explicit Reach(const Effects& color) {
        for (const auto& [cell, digit] : color) {
            const unsigned bit = 1u << digit;
            own[static_cast<std::size_t>(cell)] |= bit;
            taken[static_cast<std::size_t>(cell)] |= kAllMarks & ~bit;
            for (int other = 0; other < kCells; ++other) {
                taken[static_cast<std::size_t>(other)] |= Sees(cell, other) ? bit : 0u;
            }
        }
    }
};

bool IsWrong(const Grid& grid, const Reach& color) {
    for (std::size_t cell = 0; cell < kCells; ++cell) {
        const unsigned own = color.own[cell];
        const unsigned taken = color.taken[cell];
        const unsigned marks = grid.MarksAt(static_cast<int>(cell));
        // Two numbers in a cell or a number twice in a unit; or a cell that loses all of its.
        if ((own & taken) != 0 || (own == 0 && marks != 0 && (marks & ~taken) == 0)) {
            return true;
        }
    }
    return false;
}

// What goes whichever of the two colors is right.
Effects TakenByBoth(const Grid& grid, const Reach& one, const Reach& other) {
    Effects taken;
    for (const auto& [cell, digit] : Removals(grid, CellSet::All(), kAllMarks)) {
        const auto at = static_cast<std::size_t>(cell);
        const unsigned going = one.taken[at] & other.taken[at] & ~one.own[at] & ~other.own[at];
        if ((going >> digit & 1) != 0) {
            taken.emplace_back(cell, digit);
        }
    }
    return taken;
}

Effects InOrder(Effects effects) {
    std::ranges::sort(effects);
    return effects;
}

EffectSet Medusas(const Grid& grid) {
    EffectSet all;
    const Ties ties = TiesOf(grid);
    std::vector<int> colorOf(kCandidates, -1);
    for (int first = 0; first < kCandidates; ++first) {
        const std::size_t at = static_cast<std::size_t>(first);
        if (colorOf[at] != -1 || ties[at].empty()) {
            continue;
        }
        const auto [one, other] = ColorsFrom(ties, first, colorOf);
        const Reach reachOfOne(one);
        const Reach reachOfOther(other);
        const bool isOneWrong = IsWrong(grid, reachOfOne);
        const bool isOtherWrong = IsWrong(grid, reachOfOther);
        if (isOneWrong) {
            Put(all, InOrder(one));
        }
        if (isOtherWrong) {
            Put(all, InOrder(other));
        }
        if (!isOneWrong && !isOtherWrong) {
            Put(all, TakenByBoth(grid, reachOfOne, reachOfOther));
        }
    }
    return all;
}

// Some open cells and the digits that they hold.
struct Group {
    CellSet cells;
    unsigned digits = 0;

    int Size() const { return cells.Count(); }
    int DigitCount() const { return BitCount(digits); }
};

std::vector<Group> GroupsOf(const Grid& grid, CellSet from) {
    std::vector<Group> groups = {{}};
    for (const int cell : from) {
        const std::size_t count = grid.Digit(cell) == 0 ? groups.size() : 0;
        for (std::size_t k = 0; k < count; ++k) {
            Group larger = groups[k];
            larger.cells.Add(cell);
            larger.digits |= grid.MarksAt(cell);
            groups.push_back(larger);
        }
    }
    return groups;
}

// The arms that go with a group of the crossing.
std::vector<Group> ArmsFor(const Group& common, const std::vector<Group>& groups) {
    std::vector<Group> arms;
    for (const Group& group : groups) {
        if (group.DigitCount() > group.Size() && (group.digits & common.digits) != 0) {
            arms.push_back(group);
        }
    }
    return arms;
}

// The two removals, in order of cell.
Effects Joined(Effects one, const Effects& other) {
    one.insert(one.end(), other.begin(), other.end());
    one = InOrder(std::move(one));
    one.erase(std::unique(one.begin(), one.end()), one.end());
    return one;
}

void PutSueDeCoqs(const Grid& grid, CellSet line, CellSet box, const Group& common,
                  EffectSet& all) {
    const std::vector<Group> inLine = ArmsFor(common, GroupsOf(grid, line - box));
    const std::vector<Group> inBox = ArmsFor(common, GroupsOf(grid, box - line));
    for (const Group& a : inLine) {
        for (const Group& e : inBox) {
            const unsigned digits = common.digits | a.digits | e.digits;
            if ((a.digits & e.digits) == 0 &&
                BitCount(digits) == common.Size() + a.Size() + e.Size()) {
                Put(all, Joined(Removals(grid, line - a.cells - common.cells, digits & ~e.digits),
                                Removals(grid, box - e.cells - common.cells, digits & ~a.digits)));
            }
        }
    }
}

EffectSet SueDeCoqs(const Grid& grid) {
    EffectSet all;
    for (int line = 0; line < 18; ++line) {
        for (int box = 18; box < 27; ++box) {
            const CellSet lineCells = CellsOf(line);
            const CellSet boxCells = CellsOf(box);
            for (const Group& common : GroupsOf(grid, lineCells & boxCells)) {
                if (common.Size() >= 2 && common.DigitCount() >= common.Size() + 2) {
                    PutSueDeCoqs(grid, lineCells, boxCells, common, all);
                }
            }
        }
    }
    return all;
}

// Where each digit stands: the rows that hold it on some columns, and the columns that do on some
// rows; lines are bits.
struct DigitLines {
    using ByDigit = std::array<unsigned, 10>;

    std::array<ByDigit, 512> rows{};     // by columns
    std::array<ByDigit, 512> columns{};  // by rows

    explicit DigitLines(const Grid& grid) {
        for (const auto& [cell, number] : Removals(grid, CellSet::All(), kAllMarks)) {
            const auto digit = static_cast<std::size_t>(number);
            const unsigned row = 1u << cell / 9;
            const unsigned column = 1u << cell % 9;
            for (std::size_t set = 0; set < 512; ++set) {
                rows[set][digit] |= (set & column) != 0 ? row : 0;
                columns[set][digit] |= (set & row) != 0 ? column : 0;
            }
        }
    }
};

int CountOf(unsigned lines) {
    return std::popcount(lines);
}

// By choice, the cells of some rows, the first of them unit 0, or columns, the first of them
// unit 9.
template <int kFirstUnit>
CellSet CellsOn(unsigned lines) {
    static const auto kCellsOn = [] {
        std::array<CellSet, 512> cells;
        for (std::size_t set = 1; set < cells.size(); ++set) {
            cells[set] = cells[set & (set - 1)] | CellsOf(kFirstUnit + std::countr_zero(set));
        }
        return cells;
    }();
    return kCellsOn[lines];
}
CellSet OnRows(unsigned rows) {
    return CellsOn<0>(rows);
}
CellSet OnColumns(unsigned columns) {
    return CellsOn<9>(columns);
}

void PutMultiFish(const Grid& grid, const DigitLines& lines, unsigned rows, unsigned columns,
                  EffectSet& all) {
    const CellSet meeting = OnRows(rows) & OnColumns(columns);
    Effects taken;
    for (int digit = 1; digit <= 9; ++digit) {
        const auto at = static_cast<std::size_t>(digit);
        const unsigned itsRows = lines.rows[columns][at] & rows;
        const unsigned itsColumns = lines.columns[rows][at] & columns;
        CellSet cells;
        if (CountOf(itsRows) <= CountOf(itsColumns)) {
            cells |= OnRows(itsRows);
        }
        if (CountOf(itsColumns) <= CountOf(itsRows)) {
            cells |= OnColumns(itsColumns);
        }
        for (const int cell : Holders(grid, cells - meeting, digit)) {
            taken.emplace_back(cell, digit);
        }
    }
    Put(all, InOrder(std::move(taken)));
}

// Whether the costs of all digits add up to so much.
bool IsTight(const DigitLines& lines, unsigned rows, unsigned columns, int count) {
    int cost = 0;
    for (std::size_t digit = 1; digit <= 9 && cost <= count; ++digit) {
        cost += std::min(CountOf(lines.rows[columns][digit] & rows),
                         CountOf(lines.columns[rows][digit] & columns));
    }
    return cost == count;
}

// On some rows, how many cells are open, by choice of columns.
std::array<int, 512> OpenOn(const Grid& grid, unsigned rows) {
    std::array<int, 9> openIn{};  // by column
    for (const int cell : OnRows(rows) & grid.EmptyCells()) {
        ++openIn[static_cast<std::size_t>(cell % 9)];
    }
    std::array<int, 512> open{};
    for (std::size_t columns = 1; columns < open.size(); ++columns) {
        const auto last = static_cast<std::size_t>(std::countr_zero(columns));
        open[columns] = open[columns & (columns - 1)] + openIn[last];
    }
    return open;
}

EffectSet MultiFishes(const Grid& grid) {
    EffectSet all;
    const DigitLines lines(grid);
    const auto isChoice = [](unsigned set) { return CountOf(set) >= 2 && CountOf(set) <= 5; };
    for (unsigned rows = 0; rows < 512; ++rows) {
        const std::array<int, 512> open = OpenOn(grid, rows);
        for (unsigned columns = 0; isChoice(rows) && columns < 512; ++columns) {
            if (isChoice(columns) && open[columns] >= 4 &&
                IsTight(lines, rows, columns, open[columns])) {
                PutMultiFish(grid, lines, rows, columns, all);
            }
        }
    }
    return all;
}

TEST(SetsCompleteness, EachStepFindsWhatItsDefinitionHolds) {
    const Enumerator rows[] = {{"Medusa", StepOfSlot(21), Medusas},
                               {"SueDeCoq", StepOfSlot(22), SueDeCoqs},
                               {"MultiFish", StepOfSlot(35), MultiFishes, 45}};
    ExpectComplete(rows);
}

// There whole lines are filled, and most crossings have room for no more than their cells.
TEST(SetsCompleteness, EveryMultiFishIsFoundOnNearlyFullGrids) {
    WildPositions wild;
    for (int tried = 0; tried < 16;) {
        const Grid grid = Orientation(tried % 8).Moved(wild.Next());
        if (grid.EmptyCount() < 45) {
            ++tried;
            ASSERT_EQ(FoundBy(StepOfSlot(35), grid), MultiFishes(grid));
        }
    }
}

}  // namespace
}  // namespace vemo
