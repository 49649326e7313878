// Joining digits, cells and units into the texts of log lines and hints.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "solver/find.h"

namespace vemo {

// "a", "a and b", "a, b and c"; the last joint can be another word.
std::string Join(const std::vector<std::string>& items, std::string_view last = " and ");
std::string JoinDigits(std::span<const std::uint8_t> digits, std::string_view last = " and ");
std::string JoinDigits(Marks digits, std::string_view last = " and ");
std::string JoinCells(std::span<const std::uint8_t> cells);
std::string JoinCells(CellSet cells);
// "cell A1", "cells A1 and B2".
std::string CellsInHint(CellSet cells);
// The labels of units of one kind, "A and D", "3, 4 and 7"; all from `first` on, `count` of them.
std::string JoinUnits(const Find& find, std::size_t first, std::size_t count);
// "rows" or "columns".
std::string_view LinesWord(const Unit& line);

template <typename T, std::size_t kCapacity>
std::span<const T> Items(const Sequence<T, kCapacity>& sequence) {
    return {sequence.begin(), sequence.Size()};
}

// "A" for a row, "3" for a column, "5" for a box (1..9).
std::string UnitLabel(const Unit& unit);
// "Row A", "Column 3", "Box 5": the units of log lines.
std::string UnitInLog(const Unit& unit);
// " in row A", " in column 3", " in the top left block": the units of hint texts.
std::string UnitInHint(const Unit& unit);
// "row", "column" or "block".
std::string_view UnitWord(const Unit& unit);

// " A1 B2": one blank before each name.
std::string SpacedCells(std::span<const std::uint8_t> cells);
// The cells that lose or get something, each once, in ascending order: " A1 B2".
std::string SpacedCells(std::span<const CellDigit> effects);

// " => Removed candidate 4 from cell(s) A1 B2"; several digits: a clause each, joined by ",
// candidate ".
std::string RemovedInLog(const Find& find);
// " => Candidate 4 placed at cell(s) A1 B2", for a find that places one digit.
std::string PlacedInLog(const Find& find);

}  // namespace vemo
