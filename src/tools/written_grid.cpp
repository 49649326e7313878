// What a text says of the 81 cells, made into a grid.
#include <algorithm>

#include "tools/file_formats.h"

namespace vemo {
namespace {

std::size_t Index(int cell) {
    return static_cast<std::size_t>(cell);
}

void SetMarks(Grid& grid, int cell, Marks marks) {
    for (int digit = 1; digit <= kDigits; ++digit) {
        if (HasMark(marks, digit)) {
            grid.GiveBack(cell, digit);
        } else {
            grid.VerwijderKnop(cell, digit);
        }
    }
}

}  // namespace

std::string_view NameOf(FileFormat format) {
    static constexpr std::array<std::string_view, 12> kNames = {
        "lines of 81", "a table of puzzles", "links",     "lines of 729",
        "positions",   "library lines",      "nine rows", "pencil-mark grids",
        ".sdk files",  ".sdx files",         ".ss files", ".opensudoku files"};
    return kNames[static_cast<std::size_t>(format)];
}

WrittenGrid OfClues(const Digits& clues) {
    WrittenGrid written;
    written.digits = clues;
    for (int cell = 0; cell < kCells; ++cell) {
        if (clues[Index(cell)] != 0) {
            written.givens.Add(cell);
        }
    }
    return written;
}

Digits CluesOf(const WrittenGrid& written) {
    Digits clues{};
    for (int cell : written.givens) {
        clues[Index(cell)] = written.digits[Index(cell)];
    }
    return clues;
}

bool Contains(const Digits& digits, const Digits& clues) {
    return std::ranges::equal(digits, clues,
                              [](int digit, int clue) { return clue == 0 || digit == clue; });
}

Grid MakeGrid(const WrittenGrid& written) {
    Grid grid = Grid::FromClues(written.digits);
    grid.SetGivens(written.givens);
    for (int cell : grid.EmptyCells()) {
        if (const auto marks = written.marks[Index(cell)]) {
            SetMarks(grid, cell, *marks);
        }
    }
    return grid;
}

WrittenGrid OfCandidates(const std::array<std::optional<Marks>, kCells>& table, CellSet entered) {
    const auto marksAt = [&](int cell) { return table[Index(cell)].value_or(Marks{0}); };
    const auto isAlone = [&](int cell) {
        Marks ofPeers = 0;
        for (int peer : Peers(cell)) {
            ofPeers |= marksAt(peer);
        }
        return BitCount(marksAt(cell)) == 1 && (marksAt(cell) & ofPeers) == 0;
    };
    WrittenGrid written;
    for (int cell = 0; cell < kCells; ++cell) {
        const bool isEntered = entered.Has(cell);
        if (isEntered || isAlone(cell)) {
            written.digits[Index(cell)] = static_cast<std::uint8_t>(FirstDigit(marksAt(cell)));
        } else {
            written.marks[Index(cell)] = table[Index(cell)];
        }
        if (written.digits[Index(cell)] != 0 && !isEntered) {
            written.givens.Add(cell);
        }
    }
    return written;
}

}  // namespace vemo
