// The canonical form of clues that no solution helps with: first the places of the clues are
// brought into the one order that puts the most of them first, then the digits, as far as several
// orders of rows and columns do so.
#include <algorithm>
#include <array>
#include <functional>
#include <numeric>
#include <vector>

#include "tools/canonical.h"
#include "tools/symmetry.h"

namespace vemo {
namespace {

constexpr std::size_t At(int number) {
    return static_cast<std::size_t>(number);
}

using Three = std::array<int, 3>;
using Nine = std::array<int, 9>;

// All orders of nine lines that keep bands together: 6 * 6 * 6 * 6.
std::vector<Nine> LineOrders() {
    std::vector<Three> threes;
    Three order = {0, 1, 2};
    do {
        threes.push_back(order);
    } while (std::ranges::next_permutation(order).found);
    std::vector<Nine> orders;
    for (const Three& bands : threes) {
        for (std::size_t within = 0; within < 216; ++within) {
            const std::array<std::size_t, 3> choices = {within / 36, within / 6 % 6, within % 6};
            Nine lines{};
            for (int place = 0; place < 9; ++place) {
                const std::size_t band = At(place / 3);
                lines[At(place)] = 3 * bands[band] + threes[choices[band]][At(place % 3)];
            }
            orders.push_back(lines);
        }
    }
    return orders;
}

// A column's clues as a number, the one in the top row counting most; with it the column.
struct Column {
    int clues = 0;
    int index = 0;
};
using Columns = std::array<Column, 9>;

// The columns in the order that puts the greatest first, whole stacks and within them.
Columns SortedColumns(const Digits& clues, const Nine& rows) {
    Columns columns;
    for (int column = 0; column < 9; ++column) {
        int places = 0;
        for (int row : rows) {
            places = 2 * places + (clues[At(RowColumnCell(row, column))] != 0 ? 1 : 0);
        }
        columns[At(column)] = {places, column};
    }
    std::array<std::array<Column, 3>, 3> stacks;
    for (std::size_t stack = 0; stack < 3; ++stack) {
        std::copy_n(columns.begin() + static_cast<std::ptrdiff_t>(3 * stack), 3,
                    stacks[stack].begin());
        std::ranges::sort(stacks[stack], std::greater(), &Column::clues);
    }
    std::ranges::sort(stacks, [](const auto& a, const auto& b) {
        return std::ranges::lexicographical_compare(b, a, {}, &Column::clues, &Column::clues);
    });
    for (std::size_t at = 0; at < 9; ++at) {
        columns[at] = stacks[at / 3][at % 3];
    }
    return columns;
}

// The digits called 1, 2, 3 as they come in reading order.
Digits Relabelled(const Digits& clues, const Nine& rows, const Nine& columns) {
    Digits seen{};
    std::array<std::uint8_t, kDigits + 1> labels{};
    std::uint8_t next = 1;
    for (int cell = 0; cell < kCells; ++cell) {
        const int from = RowColumnCell(rows[At(CellRow(cell))], columns[At(CellColumn(cell))]);
        const std::uint8_t digit = clues[At(from)];
        if (digit != 0 && labels[digit] == 0) {
            labels[digit] = next++;
        }
        seen[At(cell)] = labels[digit];
    }
    return seen;
}

Nine PlacesOf(const Columns& columns) {
    Nine places{};
    std::ranges::transform(columns, places.begin(), &Column::clues);
    return places;
}

struct Turn {
    Digits clues;
    Nine rows;
};

}  // namespace

Digits CanonicalClues(const Digits& clues) {
    static const std::vector<Nine> kOrders = LineOrders();
    Nine greatest{};
    std::vector<Turn> turns;  // that put the most clues first
    for (const Digits& turned : {clues, Transposed(clues)}) {
        for (const Nine& rows : kOrders) {
            const Nine places = PlacesOf(SortedColumns(turned, rows));
            if (turns.empty() || places > greatest) {
                greatest = places;
                turns.clear();
            }
            if (places == greatest) {
                turns.push_back({turned, rows});
            }
        }
    }
    Digits first;
    first.fill(kDigits + 1);
    for (const auto& [turned, rows] : turns) {
        const Columns sorted = SortedColumns(turned, rows);
        for (const Nine& order : kOrders) {
            Nine columns{};
            bool isAsGreat = true;
            for (std::size_t at = 0; at < 9 && isAsGreat; ++at) {
                const Column& column = sorted[At(order[at])];
                columns[at] = column.index;
                isAsGreat = column.clues == greatest[at];
            }
            if (isAsGreat) {
                first = std::min(first, Relabelled(turned, rows, columns));
            }
        }
    }
    return first;
}

}  // namespace vemo
