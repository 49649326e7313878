// The 81 cells, their 27 units, and how both are named to the player.
//
// A cell is 0..80 in reading order; rows, columns, boxes and positions within a unit are 0..8,
// boxes and the positions in a box in reading order; digits are 1..9.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <string>
#include <string_view>

#include "model/cellset.h"

namespace vemo {

inline constexpr int kCells = 81;
inline constexpr int kDigits = 9;

// A set of digits: bit d for digit d. Bit 0 is never set.
using Marks = std::uint16_t;
inline constexpr Marks kAllMarks = 1022;

constexpr Marks MarkOf(int digit) {
    return static_cast<Marks>(1u << digit);
}
constexpr bool HasMark(Marks marks, int digit) {
    return (marks >> digit & 1) != 0;
}
// In groups of growing width, without a call; see CellSet::Count.
constexpr int BitCount(unsigned mask) {
    mask -= mask >> 1 & 0x55555555u;
    mask = (mask & 0x33333333u) + (mask >> 2 & 0x33333333u);
    return static_cast<int>(((mask + (mask >> 4)) & 0x0f0f0f0fu) * 0x01010101u >> 24);
}
// The lowest digit of a set that is not empty.
constexpr int FirstDigit(Marks marks) {
    return std::countr_zero(marks);
}

// The digits of a set in ascending order, for loops.
class DigitsOf {
  public:
    constexpr explicit DigitsOf(Marks marks) : marks_(marks) {}

    class Iterator {
      public:
        constexpr explicit Iterator(unsigned left) : left_(left) {}
        constexpr int operator*() const { return std::countr_zero(left_); }
        constexpr Iterator& operator++() {
            left_ &= left_ - 1;
            return *this;
        }
        constexpr bool operator==(const Iterator&) const = default;

      private:
        unsigned left_;
    };
    constexpr Iterator begin() const { return Iterator(marks_); }
    constexpr Iterator end() const { return Iterator(0); }

  private:
    Marks marks_;
};

constexpr int CellRow(int cell) {
    return cell / 9;
}
constexpr int CellColumn(int cell) {
    return cell % 9;
}
constexpr int CellBox(int cell) {
    return 3 * (cell / 27) + cell % 9 / 3;
}
constexpr int CellBoxStart(int cell) {
    return 27 * (cell / 27) + 3 * (cell % 9 / 3);
}
constexpr int RowColumnCell(int row, int column) {
    return 9 * row + column;
}
constexpr int BoxStart(int box) {
    return 27 * (box / 3) + 3 * (box % 3);
}
constexpr int BoxCell(int box, int position) {
    return BoxStart(box) + 9 * (position / 3) + position % 3;
}
// The position of a cell within its own box.
constexpr int BoxPosition(int cell) {
    return 3 * (CellRow(cell) % 3) + CellColumn(cell) % 3;
}

enum class UnitKind : std::uint8_t { Row, Column, Box };

constexpr UnitKind CrossingKind(UnitKind line) {
    return line == UnitKind::Row ? UnitKind::Column : UnitKind::Row;
}

struct Unit {
    UnitKind kind;
    int index;                 // 0..8 among the units of its kind
    std::array<int, 9> cells;  // in the unit's own order
    CellSet set;
};

inline constexpr int kUnitCount = 27;
inline constexpr std::array<UnitKind, 3> kUnitKinds = {UnitKind::Row, UnitKind::Column,
                                                       UnitKind::Box};
inline constexpr std::array<UnitKind, 2> kLineKinds = {UnitKind::Row, UnitKind::Column};

// Where a kind's nine units stand in kUnits: rows, columns, boxes.
constexpr int UnitNumber(UnitKind kind, int index) {
    return 9 * static_cast<int>(kind) + index;
}
constexpr int UnitIndexOf(UnitKind kind, int cell) {
    return kind == UnitKind::Row      ? CellRow(cell)
           : kind == UnitKind::Column ? CellColumn(cell)
                                      : CellBox(cell);
}

struct UnitTables {
    std::array<Unit, kUnitCount> units;
    std::array<CellSet, kCells> peers;  // the 20 other cells of a cell's three units
};

// Works out every table; what it returns is a constant of the program.
constexpr UnitTables InitConversionArrays() {
    UnitTables tables{};
    for (int number = 0; number < kUnitCount; ++number) {
        Unit& unit = tables.units[static_cast<std::size_t>(number)];
        unit.kind = static_cast<UnitKind>(number / 9);
        unit.index = number % 9;
        for (int k = 0; k < 9; ++k) {
            const int cell = unit.kind == UnitKind::Row      ? RowColumnCell(unit.index, k)
                             : unit.kind == UnitKind::Column ? RowColumnCell(k, unit.index)
                                                             : BoxCell(unit.index, k);
            unit.cells[static_cast<std::size_t>(k)] = cell;
            unit.set.Add(cell);
        }
    }
    for (const Unit& unit : tables.units) {
        for (int cell : unit.cells) {
            CellSet& peers = tables.peers[static_cast<std::size_t>(cell)];
            peers |= unit.set;
            peers.Remove(cell);
        }
    }
    return tables;
}

inline constexpr UnitTables kTables = InitConversionArrays();
inline constexpr const std::array<Unit, kUnitCount>& kUnits = kTables.units;

constexpr const Unit& UnitOf(UnitKind kind, int index) {
    return kUnits[static_cast<std::size_t>(UnitNumber(kind, index))];
}
constexpr const Unit& UnitAround(UnitKind kind, int cell) {
    return UnitOf(kind, UnitIndexOf(kind, cell));
}
constexpr CellSet Peers(int cell) {
    return kTables.peers[static_cast<std::size_t>(cell)];
}

// The cells that see every one of these; none of them is among these. Of no cells: all.
constexpr CellSet CommonPeers(CellSet cells) {
    CellSet common = CellSet::All();
    for (int cell : cells) {
        common &= Peers(cell);
    }
    return common;
}
// The cells that see at least one of these.
constexpr CellSet AllPeers(CellSet cells) {
    CellSet all;
    for (int cell : cells) {
        all |= Peers(cell);
    }
    return all;
}

// "A".."H", then "J": no text ever names a row "I".
constexpr char RowLetter(int row) {
    return static_cast<char>('A' + row + (row == 8 ? 1 : 0));
}
constexpr char ColumnDigit(int column) {
    return static_cast<char>('1' + column);
}

// Row letter and column digit: "A1" is top left, "J9" bottom right.
std::string CellName(int cell);

// "top left" .. "bottom right"; box 4 is "centre".
std::string_view BoxName(int box);

}  // namespace vemo
