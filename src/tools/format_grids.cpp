// The formats that write a puzzle in nine lines, and in two or three times nine.
#include <algorithm>

#include "tools/file_formats.h"
#include "tools/grid_block.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

// A puzzle with fewer clues has no single solution: many a grid contains it by chance.
constexpr int kFewestClues = 17;

std::size_t Index(int cell) {
    return static_cast<std::size_t>(cell);
}

int CountOf(const Digits& digits) {
    return kCells - static_cast<int>(std::ranges::count(digits, 0));
}

// Every digit stands alone in its group.
bool AreCandidatesOf(const GridBlock& block, const Digits& digits) {
    for (int cell = 0; cell < kCells; ++cell) {
        const int digit = digits[Index(cell)];
        if (digit != 0 && block.marks[Index(cell)] != MarkOf(digit)) {
            return false;
        }
    }
    return true;
}

WrittenGrid Position(const Digits& clues, const Digits& digits) {
    WrittenGrid grid = OfClues(clues);
    grid.digits = digits;
    return grid;
}

FoundPuzzles OnePuzzle(FileFormat format, WrittenGrid grid, const LineCursor& after) {
    return {format, {{std::move(grid)}}, after.Offset()};
}

// The grid with the candidates that follow, if they are of its digits. Where each cell can be one
// digit alone, they look like cells.
std::optional<FoundPuzzles> ReadThirdGrid(const LineCursor& lines, WrittenGrid grid) {
    const GridBlock asCells = ReadBlock(PastGap(lines), BlockOf::Cells);
    if (asCells.IsWhole() && CountOf(asCells.digits) < kCells) {
        return std::nullopt;
    }
    const GridBlock block = ReadBlock(PastGap(lines), BlockOf::Candidates);
    if (!block.IsWhole() || !AreCandidatesOf(block, grid.digits)) {
        return std::nullopt;
    }
    for (int cell = 0; cell < kCells; ++cell) {
        if (grid.digits[Index(cell)] == 0) {
            grid.marks[Index(cell)] = block.marks[Index(cell)];
        }
    }
    return OnePuzzle(FileFormat::Ss, std::move(grid), block.after);
}

// A grid of cells, and what may follow it: its position, the candidates of that, or its solution.
FoundPuzzles ReadGridOfCells(const GridBlock& first) {
    const Digits& clues = first.digits;
    const GridBlock second = ReadBlock(PastGap(first.after), BlockOf::Cells);
    if (second.IsWhole() && Contains(second.digits, clues)) {
        if (auto found = ReadThirdGrid(second.after, Position(clues, second.digits))) {
            return *found;
        }
        const int count = CountOf(clues);
        const int countOfSecond = CountOf(second.digits);
        if (count >= kFewestClues && count < countOfSecond) {
            return countOfSecond == kCells
                       ? OnePuzzle(FileFormat::Rows, OfClues(clues), second.after)
                       : OnePuzzle(FileFormat::Ss, Position(clues, second.digits), second.after);
        }
    }
    if (!second.IsWhole()) {
        if (auto found = ReadThirdGrid(first.after, OfClues(clues))) {
            return *found;
        }
    }
    return OnePuzzle(FileFormat::Rows, OfClues(clues), first.after);
}

// "[Puzzle]" in any letters.
bool IsSection(std::string_view line, std::string_view name) {
    const std::string_view text = TrimLine(line);
    return text.size() == name.size() && std::ranges::equal(text, name, [](char left, char right) {
               return (left >= 'A' && left <= 'Z' ? left + ('a' - 'A') : left) == right;
           });
}

// The block of the section of this name, if it comes next and is whole.
std::optional<GridBlock> ReadSection(const LineCursor& lines, std::string_view name, BlockOf kind) {
    LineCursor head = PastGap(lines);
    const auto line = head.Next();
    if (!line || !IsSection(*line, name)) {
        return std::nullopt;
    }
    GridBlock block = ReadBlock(PastGap(head), kind);
    return block.IsWhole() ? std::optional(std::move(block)) : std::nullopt;
}

}  // namespace

std::optional<FoundPuzzles> ReadGrid(const LineCursor& lines) {
    const GridBlock block = ReadBlock(lines, BlockOf::Either);
    if (block.rows == 0) {
        return std::nullopt;
    }
    if (!block.IsWhole()) {
        return Rejected(WrongRows(block), block.after.Offset());
    }
    if (!block.isOfCandidates) {
        return ReadGridOfCells(block);
    }
    return OnePuzzle(block.hasEntered ? FileFormat::Sdx : FileFormat::PencilMarks,
                     OfCandidates(block.marks, block.entered), block.after);
}

std::optional<FoundPuzzles> ReadSections(const LineCursor& lines) {
    LineCursor head = lines;
    const auto line = head.Next();
    if (!line || !IsSection(*line, "[puzzle]")) {
        return std::nullopt;
    }
    const GridBlock puzzle = ReadBlock(PastGap(head), BlockOf::Cells);
    if (!puzzle.IsWhole()) {
        return Rejected("the [Puzzle] section has " + WrongRows(puzzle),
                        std::max(head.Offset(), puzzle.rows > 0 ? puzzle.after.Offset() : 0));
    }
    WrittenGrid grid = OfClues(puzzle.digits);
    LineCursor after = puzzle.after;
    if (const auto state = ReadSection(after, "[state]", BlockOf::Cells)) {
        for (int cell : CellSet::All() - grid.givens) {
            grid.digits[Index(cell)] = state->digits[Index(cell)];
        }
        after = state->after;
    }
    if (const auto marks = ReadSection(after, "[pencilmarks]", BlockOf::Candidates)) {
        for (int cell = 0; cell < kCells; ++cell) {
            if (grid.digits[Index(cell)] == 0) {
                grid.marks[Index(cell)] = marks->marks[Index(cell)];
            }
        }
        after = marks->after;
    }
    return OnePuzzle(FileFormat::Sdk, std::move(grid), after);
}

}  // namespace vemo
