// Puzzles and positions for tests: reading them, building them, turning them into equivalent ones.
#pragma once

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <numeric>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "model/grid.h"

namespace vemo::test {

// Has one solution, to which no step of the ladder leads.
inline constexpr const char* kOutlawed =
    ".4......52..9...8.....6...7...4.2.5.5.681...........28.923.....7....1....5..7..3.";
// One clue more: of six trials four fail, one gets no further, and the last leads to the solution.
inline constexpr const char* kNeedsTrials =
    ".4......52..9...8.....6...7...4.2.5.5.681.........6.28.923.....7....1....5..7..3.";

// 81 characters, anything but 1..9 is an empty cell.
inline Digits ParseDigits(std::string_view text) {
    Digits digits{};
    for (std::size_t cell = 0; cell < kCells && cell < text.size(); ++cell) {
        const char c = text[cell];
        digits[cell] = static_cast<std::uint8_t>(c >= '1' && c <= '9' ? c - '0' : 0);
    }
    return digits;
}

// A complete grid that can be worked out in the head: row A is 123456789, row B 456789123, ...
inline Digits PlainSolution() {
    Digits digits{};
    for (std::size_t cell = 0; cell < kCells; ++cell) {
        const std::size_t row = cell / 9;
        digits[cell] = static_cast<std::uint8_t>((3 * row + row / 3 + cell % 9) % 9 + 1);
    }
    return digits;
}

// One puzzle a line; blank lines and lines that begin with '#' are none.
inline std::vector<Digits> LoadPuzzles(const std::filesystem::path& path) {
    std::vector<Digits> puzzles;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        if (line.size() >= kCells && line[0] != '#') {
            puzzles.push_back(ParseDigits(line));
        }
    }
    return puzzles;
}
inline std::vector<Digits> Corpus() {
    return LoadPuzzles(std::filesystem::path(VEMO_TEST_DATA) / "corpus.txt");
}

// "A1" and "A1 C3 J9", worked out apart from the names under test.
inline int CellNamed(std::string_view name) {
    const std::string_view rows = "ABCDEFGHJ";
    return static_cast<int>(9 * rows.find(name[0])) + (name[1] - '1');
}
inline CellSet CellsNamed(std::string_view names) {
    CellSet cells;
    for (std::size_t at = 0; at + 1 < names.size(); at += 3) {
        cells.Add(CellNamed(names.substr(at, 2)));
    }
    return cells;
}
// The plain solution with these cells open.
inline Digits SolutionWithout(std::string_view cells) {
    Digits digits = PlainSolution();
    for (int cell : CellsNamed(cells)) {
        digits[static_cast<std::size_t>(cell)] = 0;
    }
    return digits;
}
// "129" as a set of digits.
inline Marks DigitsNamed(std::string_view digits) {
    Marks marks = 0;
    for (char digit : digits) {
        marks |= MarkOf(digit - '0');
    }
    return marks;
}

// Takes these candidates from one cell.
inline void Discard(Grid& grid, int cell, Marks marks) {
    for (int digit = 1; digit <= kDigits; ++digit) {
        if (HasMark(marks, digit)) {
            grid.VerwijderKnop(cell, digit);
        }
    }
}

// A map of the cells and of the digits that turns a puzzle into an equivalent one.
struct Symmetry {
    std::array<int, kCells> cell;
    std::array<int, kDigits + 1> digit;

    Symmetry() {
        std::iota(cell.begin(), cell.end(), 0);
        std::iota(digit.begin(), digit.end(), 0);
    }

    Digits Of(const Digits& digits) const {
        Digits mapped{};
        for (std::size_t from = 0; from < kCells; ++from) {
            mapped[static_cast<std::size_t>(cell[from])] =
                static_cast<std::uint8_t>(digit[digits[from]]);
        }
        return mapped;
    }
    // The cells' map alone: digits, marks and what is a clue stay what they are.
    Grid Moved(const Grid& grid) const {
        Grid moved;
        for (std::size_t from = 0; from < kCells; ++from) {
            const int value = grid.Digit(static_cast<int>(from));
            if (value != 0) {
                moved.Zet(value, cell[from]);
            }
        }
        for (std::size_t from = 0; from < kCells; ++from) {
            Discard(moved, cell[from],
                    static_cast<Marks>(kAllMarks & ~grid.MarksAt(static_cast<int>(from))));
        }
        CellSet givens;
        for (int from : grid.Givens()) {
            givens.Add(cell[static_cast<std::size_t>(from)]);
        }
        moved.SetGivens(givens);
        return moved;
    }
};

// The eight orientations of the square, 0 the square as it is.
inline Symmetry Orientation(int number) {
    Symmetry symmetry;
    for (int from = 0; from < kCells; ++from) {
        int row = from / 9;
        int column = from % 9;
        row = (number & 1) != 0 ? 8 - row : row;
        column = (number & 2) != 0 ? 8 - column : column;
        symmetry.cell[static_cast<std::size_t>(from)] =
            (number & 4) != 0 ? 9 * column + row : 9 * row + column;
    }
    return symmetry;
}

// Nine lines in three bands: the bands, and the lines within each, in a random order.
inline std::array<int, 9> ShuffledLines(std::mt19937& random) {
    std::array<int, 3> bands = {0, 1, 2};
    std::shuffle(bands.begin(), bands.end(), random);
    std::array<int, 9> lines{};
    for (std::size_t band = 0; band < 3; ++band) {
        std::array<int, 3> within = {0, 1, 2};
        std::shuffle(within.begin(), within.end(), random);
        for (std::size_t k = 0; k < 3; ++k) {
            lines[3 * band + k] = 3 * bands[band] + within[k];
        }
    }
    return lines;
}

// Relabelled, transposed or not, bands, stacks and their lines exchanged.
inline Symmetry RandomSymmetry(std::mt19937& random) {
    Symmetry symmetry;
    const std::array<int, 9> rows = ShuffledLines(random);
    const std::array<int, 9> columns = ShuffledLines(random);
    const bool transposes = random() % 2 != 0;
    for (std::size_t from = 0; from < kCells; ++from) {
        const int row = rows[from / 9];
        const int column = columns[from % 9];
        symmetry.cell[from] = transposes ? 9 * column + row : 9 * row + column;
    }
    std::shuffle(symmetry.digit.begin() + 1, symmetry.digit.end(), random);
    return symmetry;
}

// A known position where the rule of the Bivalue Universal Grave takes all that is left of B3, the
// right 7 included.
inline Grid GraveThatIsWrong() {
    Grid grid = Grid::FromClues(ParseDigits(
        "184653792...4291..92.7185....93726.16715842392..961.7541.296.5..628.591..9.1.7.26"));
    struct Cell {
        const char* name;
        const char* marks;
    };
    const Cell cells[] = {{"B1", "37"}, {"B2", "35"}, {"B3", "567"}, {"B8", "68"}, {"B9", "38"},
                          {"C3", "36"}, {"C8", "46"}, {"C9", "34"},  {"D1", "58"}, {"D2", "45"},
                          {"D8", "48"}, {"F2", "34"}, {"F3", "38"},  {"F7", "48"}, {"G3", "37"},
                          {"G7", "38"}, {"G9", "78"}, {"H1", "37"},  {"H5", "34"}, {"H9", "47"},
                          {"J1", "58"}, {"J3", "58"}, {"J5", "34"},  {"J7", "34"}};
    for (const auto& [name, marks] : cells) {
        Discard(grid, CellNamed(name), static_cast<Marks>(kAllMarks & ~DigitsNamed(marks)));
    }
    return grid;
}

}  // namespace vemo::test
