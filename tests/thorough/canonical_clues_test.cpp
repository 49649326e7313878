// The one form of clues against all looks that they can have.
#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

#include <gtest/gtest.h>

#include "tools/canonical.h"
#include "tools/dig.h"

namespace vemo {
namespace {

std::size_t At(int number) {
    return static_cast<std::size_t>(number);
}

// All 1,296 orders of nine lines that keep the bands together.
std::vector<std::array<int, 9>> LineOrders() {
    std::vector<std::array<int, 9>> orders;
    std::array<int, 9> lines;
    std::iota(lines.begin(), lines.end(), 0);
    do {
        const auto isInBand = [&](int place) {
            return lines[At(place)] / 3 == lines[At(place / 3 * 3)] / 3;
        };
        bool keepsBands = true;
        for (int place = 0; place < 9; ++place) {
            keepsBands = keepsBands && isInBand(place);
        }
        if (keepsBands) {
            orders.push_back(lines);
        }
    } while (std::ranges::next_permutation(lines).found);
    return orders;
}

Digits RelabelledByPlace(const Digits& digits) {
    std::array<std::uint8_t, 10> labels{};
    std::uint8_t used = 0;
    Digits named = digits;
    for (std::uint8_t& digit : named) {
        if (digit != 0) {
            labels[digit] = labels[digit] == 0 ? ++used : labels[digit];
            digit = labels[digit];
        }
    }
    return named;
}

// Whether one of all 3,359,232 looks, its digits named as they come, is the other.
bool AreEquivalent(const Digits& one, const Digits& other) {
    static const auto kOrders = LineOrders();
    const Digits wanted = RelabelledByPlace(other);
    for (const Digits& turned : {one, Transposed(one)}) {
        for (const auto& rows : kOrders) {
            for (const auto& columns : kOrders) {
                Digits look{};
                bool hasSamePlaces = true;
                for (int cell = 0; cell < kCells && hasSamePlaces; ++cell) {
                    const int from =
                        RowColumnCell(rows[At(CellRow(cell))], columns[At(CellColumn(cell))]);
                    look[At(cell)] = turned[At(from)];
                    hasSamePlaces = (look[At(cell)] == 0) == (wanted[At(cell)] == 0);
                }
                if (hasSamePlaces && RelabelledByPlace(look) == wanted) {
                    return true;
                }
            }
        }
    }
    return false;
}

TEST(CanonicalClues, AreEqualWhereOneOfAllLooksIsTheOtherPuzzle) {
    Random random(5);
    std::vector<Digits> puzzles;
    while (puzzles.size() < 6) {
        Digits puzzle{};
        for (int clue = 0; clue < 3; ++clue) {
            puzzle[At(random.Below(kCells))] = static_cast<std::uint8_t>(random.Between(1, 2));
        }
        puzzles.push_back(puzzle);
    }
    int equivalent = 0;
    for (std::size_t a = 0; a < puzzles.size(); ++a) {
        for (std::size_t b = 0; b < a; ++b) {
            const bool areEqual = CanonicalClues(puzzles[a]) == CanonicalClues(puzzles[b]);
            EXPECT_EQ(areEqual, AreEquivalent(puzzles[a], puzzles[b])) << a << ' ' << b;
            equivalent += areEqual ? 1 : 0;
        }
    }
    EXPECT_GT(equivalent, 0);
    EXPECT_LT(equivalent, 15);
}

}  // namespace
}  // namespace vemo
