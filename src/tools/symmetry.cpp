// The symmetries of a grid, as a table of what each does to a cell.
#include "tools/symmetry.h"

#include <algorithm>
#include <array>

namespace vemo {
namespace {

constexpr std::array<SymmetryRow, 7> kRows = {{
    {Symmetry::None, "none", "None"},
    {Symmetry::HalfTurn, "half-turn", "Half turn"},
    {Symmetry::QuarterTurn, "quarter-turn", "Quarter turn"},
    {Symmetry::UprightMirror, "upright-mirror", "Upright mirror"},
    {Symmetry::FlatMirror, "flat-mirror", "Flat mirror"},
    {Symmetry::MainDiagonal, "main-diagonal", "Main diagonal"},
    {Symmetry::OtherDiagonal, "other-diagonal", "Other diagonal"},
}};

// Where the cell goes when the symmetry is carried out once.
int Moved(int cell, Symmetry symmetry) {
    const int row = CellRow(cell);
    const int column = CellColumn(cell);
    switch (symmetry) {
    case Symmetry::None:
        break;
    case Symmetry::HalfTurn:
        return RowColumnCell(8 - row, 8 - column);
    case Symmetry::QuarterTurn:
        return RowColumnCell(column, 8 - row);
    case Symmetry::UprightMirror:
        return RowColumnCell(row, 8 - column);
    case Symmetry::FlatMirror:
        return RowColumnCell(8 - row, column);
    case Symmetry::MainDiagonal:
        return RowColumnCell(column, row);
    case Symmetry::OtherDiagonal:
        return RowColumnCell(8 - column, 8 - row);
    }
    return cell;
}

}  // namespace

std::span<const SymmetryRow> Symmetries() {
    return kRows;
}

std::optional<Symmetry> SymmetryNamed(std::string_view word) {
    const auto* row = std::ranges::find(kRows, word, &SymmetryRow::word);
    return row == kRows.end() ? std::nullopt : std::optional(row->symmetry);
}

Orbit OrbitOf(int cell, Symmetry symmetry) {
    Orbit orbit = {cell};
    for (int next = Moved(cell, symmetry); next != cell; next = Moved(next, symmetry)) {
        orbit.Add(next);
    }
    return orbit;
}

Digits Transposed(const Digits& digits) {
    Digits turned{};
    for (int cell = 0; cell < kCells; ++cell) {
        turned[static_cast<std::size_t>(Moved(cell, Symmetry::MainDiagonal))] =
            digits[static_cast<std::size_t>(cell)];
    }
    return turned;
}

bool HasSymmetry(const Digits& clues, Symmetry symmetry) {
    for (int cell = 0; cell < kCells; ++cell) {
        const auto from = static_cast<std::size_t>(cell);
        const auto to = static_cast<std::size_t>(Moved(cell, symmetry));
        if ((clues[from] == 0) != (clues[to] == 0)) {
            return false;
        }
    }
    return true;
}

Symmetry SymmetryOf(const Digits& clues) {
    return MainSymmetry([&](Symmetry symmetry) { return HasSymmetry(clues, symmetry); });
}

}  // namespace vemo
