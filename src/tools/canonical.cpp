// The canonical form: of all looks of the solution the first in reading order, and of the clues
// that go with it the first again.
//
// The top row of the first look is 1 to 9 in order, for its digits may be called so. Which row
// comes on top, which row of its band comes second, and in which order the columns stand, decides
// all that is left: the labels, and the order of the other rows, by their first digits. A column
// that the second row does not place is tried at each place left, so that a few hundred looks are
// compared instead of a million millions.
#include "tools/canonical.h"

#include <algorithm>
#include <array>
#include <compare>
#include <utility>
#include <vector>

#include "tools/symmetry.h"

namespace vemo {
namespace {

constexpr std::int8_t kNowhere = -1;

using Nine = std::array<int, 9>;

constexpr std::size_t At(int number) {
    return static_cast<std::size_t>(number);
}

// A way to look at a grid: which of its rows and columns stand where, and what its digits are
// called.
struct Look {
    Nine rows{};
    Nine columns{};
    std::array<std::uint8_t, 10> labels{};  // 0 stays 0

    std::uint8_t DigitAt(const Digits& digits, int cell) const {
        return labels[digits[At(
            RowColumnCell(rows[At(CellRow(cell))], columns[At(CellColumn(cell))]))]];
    }
    Digits Of(const Digits& digits) const {
        Digits seen{};
        for (int cell = 0; cell < kCells; ++cell) {
            seen[At(cell)] = DigitAt(digits, cell);
        }
        return seen;
    }
    // How the grid seen so compares with another; most often a few cells tell.
    std::strong_ordering Compare(const Digits& digits, const Digits& other) const {
        for (int cell = 0; cell < kCells; ++cell) {
            const std::uint8_t digit = DigitAt(digits, cell);
            if (digit != other[At(cell)]) {
                return digit <=> other[At(cell)];
            }
        }
        return std::strong_ordering::equal;
    }
};

// Goes through the looks of one grid that may be the first of all, and offers each.
template <typename Offer>
class Looks {
  public:
    // `best` is the least second row of all looks so far; the looks of several grids share it.
    Looks(const Digits& solution, Nine& best, Offer offer)
        : solution_(solution), best_(best), offer_(offer) {}

    void Go() {
        for (int top = 0; top < 9; ++top) {
            for (int second = top - top % 3; second < top - top % 3 + 3; ++second) {
                if (second != top) {
                    OfRows(top, second);
                }
            }
        }
    }

  private:
    // Columns by place, and places by column, as far as they are decided; and the same of stacks.
    // Small, for it is copied at each choice.
    struct Columns {
        std::array<std::int8_t, 9> byPlace{};
        std::array<std::int8_t, 9> places;
        std::array<std::int8_t, 3> stacksByPlace{};
        std::array<std::int8_t, 3> free;  // the next free place of a stack
        std::int8_t stacks = 0;           // that have a place

        Columns() {
            places.fill(kNowhere);
            free.fill(kNowhere);
        }
    };

    int DigitAt(int row, int column) const { return solution_[At(RowColumnCell(row, column))]; }

    void OfRows(int top, int second) {
        top_ = top;
        second_ = second;
        for (int column = 0; column < 9; ++column) {
            columnOf_[At(DigitAt(top, column))] = column;
        }
        for (int stack = 0; stack < 3; ++stack) {
            // The second row begins 4 5 6 where its digits there come from one stack of the top
            // row, else 4 5 7.
            const auto stackOf = [&](int column) {
                return columnOf_[At(DigitAt(second_, column))] / 3;
            };
            const bool isWhole = stackOf(3 * stack) == stackOf(3 * stack + 1) &&
                                 stackOf(3 * stack) == stackOf(3 * stack + 2);
            if ((isWhole ? 6 : 7) <= best_[2]) {
                Columns columns;
                PlaceStack(columns, stack);
                From(columns, 0);
            }
        }
    }

    static void PlaceStack(Columns& columns, int stack) {
        columns.stacksByPlace[At(columns.stacks)] = static_cast<std::int8_t>(stack);
        columns.free[At(stack)] = static_cast<std::int8_t>(3 * columns.stacks++);
    }
    // Where the column stands; it gets the first place that its stack has left.
    static int PlaceOf(Columns& columns, int column) {
        if (columns.places[At(column)] == kNowhere) {
            const int stack = column / 3;
            if (columns.free[At(stack)] == kNowhere) {
                PlaceStack(columns, stack);
            }
            const std::int8_t place = columns.free[At(stack)]++;
            columns.places[At(column)] = place;
            columns.byPlace[At(place)] = static_cast<std::int8_t>(column);
        }
        return columns.places[At(column)];
    }

    // Decides which column stands at a place, and on to the last. The digit that the second row
    // has in it was called by its place in the top row: the earlier, the better.
    void From(const Columns& columns, int place) {
        const int stack = columns.stacksByPlace[At(place / 3)];
        for (int column = 3 * stack; column < 3 * stack + 3; ++column) {
            const int at = columns.places[At(column)];
            if (at != place && (at != kNowhere || columns.free[At(stack)] != place)) {
                continue;
            }
            Columns next = columns;
            PlaceOf(next, column);
            const int label = PlaceOf(next, columnOf_[At(DigitAt(second_, column))]) + 1;
            if (label > best_[At(place)]) {
                continue;
            }
            if (label < best_[At(place)]) {
                best_[At(place)] = label;
                std::fill(best_.begin() + place + 1, best_.end(), kDigits + 1);
            }
            if (place == 8) {
                OfColumns(next);
            } else {
                From(next, place + 1);
            }
        }
    }

    void OfColumns(const Columns& columns) {
        Look look;
        for (int place = 0; place < 9; ++place) {
            const int column = columns.byPlace[At(place)];
            look.columns[At(place)] = column;
            look.labels[At(DigitAt(top_, column))] = static_cast<std::uint8_t>(place + 1);
        }
        const auto first = [&](int row) { return look.labels[At(DigitAt(row, look.columns[0]))]; };
        const int band = top_ / 3;
        std::array<std::array<int, 3>, 3> bands;
        for (int at = 0; at < 3; ++at) {
            bands[At(at)] = {3 * at, 3 * at + 1, 3 * at + 2};
            std::ranges::sort(bands[At(at)], {}, first);
        }
        bands[At(band)] = {top_, second_, 9 * band + 3 - top_ - second_};
        std::swap(bands[0], bands[At(band)]);
        if (first(bands[2][0]) < first(bands[1][0])) {
            std::swap(bands[1], bands[2]);
        }
        for (int place = 0; place < 9; ++place) {
            look.rows[At(place)] = bands[At(place / 3)][At(place % 3)];
        }
        offer_(look);
    }

    const Digits& solution_;
    Nine& best_;
    Offer offer_;
    int top_ = 0;
    int second_ = 0;
    std::array<int, 10> columnOf_{};  // of a digit in the top row
};

}  // namespace

Digits CanonicalForm(const Digits& clues, const Digits& solution) {
    struct Grids {
        Digits clues;
        Digits solution;
    };
    const std::array<Grids, 2> turns = {
        {{clues, solution}, {Transposed(clues), Transposed(solution)}}};
    Nine secondRow;
    secondRow.fill(kDigits + 1);
    Digits firstSolution;
    firstSolution.fill(kDigits + 1);
    Digits firstClues{};
    for (const Grids& grids : turns) {
        Looks looks(grids.solution, secondRow, [&](const Look& look) {
            const std::strong_ordering order = look.Compare(grids.solution, firstSolution);
            if (order < 0) {
                firstSolution = look.Of(grids.solution);
                firstClues = look.Of(grids.clues);
            } else if (order == 0) {
                firstClues = std::min(firstClues, look.Of(grids.clues));
            }
        });
        looks.Go();
    }
    return firstClues;
}

void AddCanonicalForms(RecordFiles& records, int level, std::set<Digits>& forms) {
    for (const auto& [number, puzzle] : records.ReadPuzzles(level)) {
        forms.insert(CanonicalForm(puzzle.clues, puzzle.solution));
    }
}

}  // namespace vemo
