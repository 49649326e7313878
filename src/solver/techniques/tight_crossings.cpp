// Counting the room of all rows and columns.
#include "solver/techniques/tight_crossings.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <utility>

#include "model/units.h"

namespace vemo {
namespace {

constexpr int kFewestLines = 2;  // of the rows, and of the columns
constexpr int kMostLines = 5;

// A small number for each choice of columns. Sums over rows and digits are worked out for all
// choices at once, in plain loops over arrays: compilers turn these into wide operations.
constexpr std::size_t kChoices = 384;
using Tally = std::array<std::uint8_t, kChoices>;

constexpr std::uint8_t Plus(int a, int b) {
    return static_cast<std::uint8_t>(a + b);
}
constexpr std::uint8_t Minus(int a, int b) {
    return static_cast<std::uint8_t>(a - b);
}

// The choices, in ascending order; what is left over behind them is 0, no choice.
constexpr std::array<Lines, kChoices> kColumnChoices = [] {
    std::array<Lines, kChoices> choices{};
    std::size_t count = 0;
    for (unsigned columns = 0; columns < 512; ++columns) {
        if (BitCount(columns) >= kFewestLines && BitCount(columns) <= kMostLines) {
            choices[count++] = static_cast<Lines>(columns);
        }
    }
    return choices;
}();

// How many of some columns each choice has; by these columns, of which bit 0 is column `first`.
template <std::size_t kSets>
constexpr std::array<Tally, kSets> CountsFrom(int first) {
    std::array<Tally, kSets> counts{};
    for (unsigned columns = 0; columns < kSets; ++columns) {
        for (std::size_t at = 0; at < kChoices; ++at) {
            counts[columns][at] = Plus(BitCount(kColumnChoices[at] & columns << first), 0);
        }
    }
    return counts;
}
constexpr int kLeftColumns = 5;
constexpr auto kLeftCounts = CountsFrom<1u << kLeftColumns>(0);
constexpr auto kRightCounts = CountsFrom<1u << (9 - kLeftColumns)>(kLeftColumns);

const Tally& LeftCount(unsigned columns) {
    return kLeftCounts[columns % kLeftCounts.size()];
}
const Tally& RightCount(unsigned columns) {
    return kRightCounts[columns >> kLeftColumns];
}

// By row, the columns where it has one of these cells.
std::array<Lines, 9> ColumnsByRow(CellSet cells) {
    std::array<Lines, 9> columns{};
    for (const int cell : cells) {
        columns[static_cast<std::size_t>(CellRow(cell))] |=
            static_cast<Lines>(1u << CellColumn(cell));
    }
    return columns;
}

// The costs: how often a digit can stand at most where some rows meet each choice of columns. That
// is once in each of these rows that holds it there, and once in each of these columns; the
// smaller number counts. It depends on those rows alone that hold the digit at all, so that the
// sets of rows with different costs are few.
class CostTable {
  public:
    explicit CostTable(const Grid& grid) {
        std::size_t size = 0;
        for (std::size_t k = 0; k < kDigits; ++k) {
            DigitRows& digit = digits_[k];
            digit.columns = ColumnsByRow(grid.Candidates(static_cast<int>(k) + 1));
            for (std::size_t row = 0; row < 9; ++row) {
                digit.rows |= digit.columns[row] != 0 ? 1u << row : 0u;
            }
            size += 1u << BitCount(digit.rows);
        }
        growths_.reserve(size);
        for (DigitRows& digit : digits_) {
            AddDigit(digit);
        }
    }

    // Calls `visit(growth)` for each digit that the last of some rows holds: by how much this row
    // raises the digit's cost.
    template <typename Visit>
    void ForEachGrowth(unsigned rows, Visit visit) const {
        const std::size_t last = static_cast<std::size_t>(std::bit_width(rows)) - 1;
        for (const DigitRows& digit : digits_) {
            if (digit.columns[last] != 0) {
                visit(growths_[digit.numbers[rows & digit.rows]]);
            }
        }
    }

  private:
    struct DigitRows {
        unsigned rows = 0;                       // that hold the digit
        std::array<Lines, 9> columns;            // by row, where it does
        std::array<std::uint16_t, 512> numbers;  // by some of the rows, in `growths_`
    };
    // Some of the rows that hold a digit.
    struct RowSet {
        unsigned rows = 0;
        unsigned columns = 0;  // where they do
        Tally byRows;          // how many of the rows do so on each choice
        Tally cost;
    };

    void AddDigit(DigitRows& digit) {
        for (std::size_t row = 0; row < 9; ++row) {
            const Tally& left = LeftCount(digit.columns[row]);
            const Tally& right = RightCount(digit.columns[row]);
            for (std::size_t at = 0; at < kChoices; ++at) {
                inRow_[row][at] = std::min(Plus(left[at], right[at]), std::uint8_t{1});
            }
        }
        RowSet none;
        none.byRows.fill(0);
        none.cost.fill(0);
        Extend(digit, none, 0);
    }

    void Extend(DigitRows& digit, const RowSet& set, std::size_t firstRow) {
        RowSet larger;
        Tally growth;
        for (std::size_t row = firstRow; row < 9; ++row) {
            if (digit.columns[row] == 0) {
                continue;
            }
            larger.rows = set.rows | 1u << row;
            larger.columns = set.columns | digit.columns[row];
            const Tally& left = LeftCount(larger.columns);
            const Tally& right = RightCount(larger.columns);
            for (std::size_t at = 0; at < kChoices; ++at) {
                const std::uint8_t byRows = Plus(set.byRows[at], inRow_[row][at]);
                const std::uint8_t cost = std::min(byRows, Plus(left[at], right[at]));
                growth[at] = Minus(cost, set.cost[at]);
                larger.byRows[at] = byRows;
                larger.cost[at] = cost;
            }
            digit.numbers[larger.rows] = static_cast<std::uint16_t>(growths_.size());
            growths_.push_back(growth);
            if (BitCount(larger.rows) < kMostLines) {
                Extend(digit, larger, row + 1);
            }
        }
    }

    std::array<DigitRows, kDigits> digits_;
    std::array<Tally, 9> inRow_;  // of the digit being added: 1 where the row meets the choice
    std::vector<Tally> growths_;
};

// Goes through all sets of rows, each time with all choices of columns.
class TightSearch {
  public:
    explicit TightSearch(const Grid& grid) : open_(ColumnsByRow(grid.EmptyCells())), costs_(grid) {}

    std::vector<Crossing> Run() {
        Tally slack;
        for (std::size_t at = 0; at < kChoices; ++at) {
            slack[at] = kColumnChoices[at] != 0 ? 0 : 1;
        }
        Extend(0, slack, 0);
        return std::move(found_);
    }

  private:
    // `slack`: how much the costs exceed the common open cells, for each choice of columns. It
    // lies between -25 and 45, so that a byte tells it; where there is no choice it is 1.
    void Extend(unsigned rows, const Tally& slack, std::size_t firstRow) {
        for (std::size_t row = firstRow; row < 9; ++row) {
            const unsigned more = rows | 1u << row;
            const Tally larger = SlackOf(more, row, slack);
            if (BitCount(more) >= kFewestLines) {
                Collect(more, larger);
            }
            if (BitCount(more) < kMostLines) {
                Extend(more, larger, row + 1);
            }
        }
    }

    // From that without the last row. The sum is made where nothing else can refer to it, or the
    // loops could not be turned into wide operations; so it is copied in the end.
    Tally SlackOf(unsigned rows, std::size_t lastRow, const Tally& without) const {
        const Tally& left = LeftCount(open_[lastRow]);
        const Tally& right = RightCount(open_[lastRow]);
        Tally sum;
        for (std::size_t at = 0; at < kChoices; ++at) {
            sum[at] = Minus(without[at], left[at] + right[at]);
        }
        costs_.ForEachGrowth(rows, [&](const Tally& growth) {
            for (std::size_t at = 0; at < kChoices; ++at) {
                sum[at] = Plus(sum[at], growth[at]);
            }
        });
        return Tally(sum);
    }

    void Collect(unsigned rows, const Tally& slack) {
        for (std::size_t at = 0; at < kChoices; ++at) {
            const void* zero = std::memchr(slack.data() + at, 0, kChoices - at);
            if (zero == nullptr) {
                return;
            }
            at = static_cast<std::size_t>(static_cast<const std::uint8_t*>(zero) - slack.data());
            found_.push_back({static_cast<Lines>(rows), kColumnChoices[at]});
        }
    }

    std::array<Lines, 9> open_;  // by row, where it has open cells
    CostTable costs_;
    std::vector<Crossing> found_;
};

}  // namespace

std::vector<Crossing> TightCrossings(const Grid& grid) {
    return TightSearch(grid).Run();
}

}  // namespace vemo
