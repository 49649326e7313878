// Rectangles: two rows and two columns in exactly two boxes, so that two digits which fill the four
// corners can change places. What the unique and the avoidable ones have in common.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "model/sequence.h"
#include "solver/find.h"

namespace vemo {

// Corners are numbered in reading order: k ^ 1 is in the row of corner k, k ^ 2 in its column, k ^
// 3 across.
struct Rectangle {
    std::array<int, 4> corners;
    CellSet cells;
};

inline constexpr std::size_t kRectangleCount = 486;

// By row pair, then column pair.
constexpr std::array<Rectangle, kRectangleCount> AllRectangles() {
    std::array<Rectangle, kRectangleCount> all{};
    std::size_t count = 0;
    for (int number = 0; number < kCells * kCells; ++number) {
        const int row1 = number / 729;
        const int row2 = number / 81 % 9;
        const int column1 = number / 9 % 9;
        const int column2 = number % 9;
        const bool isInTwoBoxes = (row1 / 3 == row2 / 3) != (column1 / 3 == column2 / 3);
        if (row1 >= row2 || column1 >= column2 || !isInTwoBoxes) {
            continue;
        }
        Rectangle& rectangle = all[count++];
        rectangle.corners = {RowColumnCell(row1, column1), RowColumnCell(row1, column2),
                             RowColumnCell(row2, column1), RowColumnCell(row2, column2)};
        for (int cell : rectangle.corners) {
            rectangle.cells.Add(cell);
        }
    }
    return all;
}

inline constexpr std::array<Rectangle, kRectangleCount> kRectangles = AllRectangles();
static_assert(kRectangles.back().cells.Any() && kRectangles.back().corners[3] == kCells - 1);

// A side of a rectangle, by the numbers of its corners; facing[k] is the neighbour of corners[k]
// on the side across.
struct Side {
    std::array<std::size_t, 2> corners;
    std::array<std::size_t, 2> facing;
};

// Top row, bottom row, left column, right column.
inline constexpr std::array<Side, 4> kSides = {
    {{{0, 1}, {2, 3}}, {{2, 3}, {0, 1}}, {{0, 2}, {1, 3}}, {{1, 3}, {0, 2}}}};

// The numbers of the units that hold both cells, two different ones, in the order of units.
Sequence<std::uint8_t, 2> UnitsOfBoth(int one, int other);

// A grid, and the digits that two cells of a unit keep to themselves. The grid must stay.
class Confinement {
  public:
    explicit Confinement(const Grid& grid);

    const Grid& Cells() const { return grid_; }
    // The digits that stand in this unit, and in no cell of it but these two. A digit of which the
    // one cell has lost its candidate already is among them.
    Marks DigitsIn(int unit, int one, int other) const;
    // The same in any unit that holds both cells.
    Marks Digits(int one, int other) const;
    // The first of these units for a digit.
    std::optional<int> UnitOf(int digit, int one, int other) const;

  private:
    const Grid& grid_;
    std::array<Marks, kUnitCount> once_{};
    std::array<Marks, kUnitCount> twice_{};
};

// The variants of a unique rectangle, in the order of the titles.
enum class UniqueType : std::uint8_t { Type1 = 1, Type2, Type3, Type4, Hidden };

// The part that all unique rectangles have in common, if these removals change anything. The find
// has the four corners in the order given, then the two digits of `pair`; these in the one colour,
// what else the corners hold in the other.
std::optional<Find> UniqueRectangleFind(const Grid& grid, UniqueType type,
                                        const std::array<int, 4>& corners, Marks pair, CellSet from,
                                        Marks going);

// The first four cells of a find, whatever their order there.
CellSet CornersOf(const Find& find);
// "B7, B8, H7 and H8".
std::string JoinCorners(const Find& find);

// The last type of the unique rectangle's search. Answers whether the search shall go on.
bool SearchHiddenRectangles(const Confinement& confinement, FindSink& sink);
std::string HiddenRectangleHint(const Find& find);

}  // namespace vemo
