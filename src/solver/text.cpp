// Joining digits, cells and units into texts.
#include "solver/text.h"

namespace vemo {

std::string Join(const std::vector<std::string>& items, std::string_view last) {
    std::string text;
    for (std::size_t k = 0; k < items.size(); ++k) {
        if (k > 0) {
            text += k + 1 == items.size() ? last : std::string_view(", ");
        }
        text += items[k];
    }
    return text;
}

std::string JoinDigits(std::span<const std::uint8_t> digits, std::string_view last) {
    std::vector<std::string> items;
    for (int digit : digits) {
        items.push_back(std::to_string(digit));
    }
    return Join(items, last);
}

std::string JoinDigits(Marks digits, std::string_view last) {
    std::vector<std::string> items;
    for (int digit : DigitsOf(digits)) {
        items.push_back(std::to_string(digit));
    }
    return Join(items, last);
}

std::string JoinCells(std::span<const std::uint8_t> cells) {
    std::vector<std::string> items;
    for (int cell : cells) {
        items.push_back(CellName(cell));
    }
    return Join(items);
}

std::string JoinCells(CellSet cells) {
    std::vector<std::string> items;
    for (int cell : cells) {
        items.push_back(CellName(cell));
    }
    return Join(items);
}

std::string CellsInHint(CellSet cells) {
    return (cells.Count() == 1 ? "cell " : "cells ") + JoinCells(cells);
}

std::string JoinUnits(const Find& find, std::size_t first, std::size_t count) {
    std::vector<std::string> labels;
    for (std::size_t k = first; k < first + count; ++k) {
        labels.push_back(UnitLabel(find.UnitAt(k)));
    }
    return Join(labels);
}

std::string_view LinesWord(const Unit& line) {
    return line.kind == UnitKind::Row ? "rows" : "columns";
}

std::string UnitLabel(const Unit& unit) {
    return {unit.kind == UnitKind::Row ? RowLetter(unit.index) : ColumnDigit(unit.index)};
}

std::string UnitInLog(const Unit& unit) {
    const std::string_view word = unit.kind == UnitKind::Row      ? "Row "
                                  : unit.kind == UnitKind::Column ? "Column "
                                                                  : "Box ";
    return std::string(word) + UnitLabel(unit);
}

std::string UnitInHint(const Unit& unit) {
    if (unit.kind == UnitKind::Box) {
        return " in the " + std::string(BoxName(unit.index)) + " block";
    }
    return " in " + std::string(UnitWord(unit)) + " " + UnitLabel(unit);
}

std::string_view UnitWord(const Unit& unit) {
    return unit.kind == UnitKind::Row ? "row" : unit.kind == UnitKind::Column ? "column" : "block";
}

std::string SpacedCells(std::span<const std::uint8_t> cells) {
    std::string text;
    for (int cell : cells) {
        text += " " + CellName(cell);
    }
    return text;
}

std::string SpacedCells(std::span<const CellDigit> effects) {
    std::string text;
    for (int cell : CellsOf(effects)) {
        text += " " + CellName(cell);
    }
    return text;
}

std::string RemovedInLog(const Find& find) {
    std::string text;
    for (int digit = 1; digit <= kDigits; ++digit) {
        std::string cells;
        for (const CellDigit& removal : find.removals) {
            if (removal.digit == digit) {
                cells += " " + CellName(removal.cell);
            }
        }
        if (!cells.empty()) {
            text += text.empty() ? " => Removed candidate " : ", candidate ";
            text += std::to_string(digit) + " from cell(s)" + cells;
        }
    }
    return text;
}

std::string PlacedInLog(const Find& find) {
    return " => Candidate " + std::to_string(find.placements[0].digit) + " placed at cell(s)" +
           SpacedCells(Items(find.placements));
}

}  // namespace vemo
