// Nine lines of a text that make a grid.
#include "tools/grid_block.h"

#include <algorithm>
#include <span>

#include "tools/puzzle_line.h"

namespace vemo {
namespace {

constexpr int kRows = static_cast<int>(kRowCells);
constexpr int kMostOfGap = 4;
// No row is longer, not one of candidates in the widest frame.
constexpr std::size_t kLongestRow = 512;

// Reads one line into a row of the block; false where it is none.
using RowReader = bool (*)(std::string_view line, int row, GridBlock& block);

template <auto kRead>
bool ReadCells(std::string_view line, int row, GridBlock& block) {
    const auto cells = kRead(line);
    if (cells && row < kRows) {
        std::ranges::transform(*cells, block.digits.begin() + row * kRows, DigitOf);
    }
    return cells.has_value();
}

template <auto kRead>
bool ReadCandidates(std::string_view line, int row, GridBlock& block) {
    const auto groups = kRead(line);
    if (!groups || row >= kRows) {
        return groups.has_value();
    }
    block.isOfCandidates = true;
    for (int column = 0; column < kRows; ++column) {
        const CandidateGroup& group = (*groups)[static_cast<std::size_t>(column)];
        const int cell = RowColumnCell(row, column);
        block.marks[static_cast<std::size_t>(cell)] = group.marks;
        if (group.isEntered) {
            block.entered.Add(cell);
            block.hasEntered = true;
        }
    }
    return true;
}

// One way of taking lines for rows and borders.
struct Reading {
    RowReader read;
    Borders borders;
};

constexpr std::array<Reading, 6> kCellReadings = {{
    {ReadCells<PlainRow>, Borders::None},
    {ReadCells<PlainRow>, Borders::WithCrossings},
    {ReadCells<PlainRow>, Borders::All},
    {ReadCells<RowWithBlanks>, Borders::WithCrossings},
    {ReadCells<RowWithBlanks>, Borders::All},
    {ReadCells<RowOfFields>, Borders::None},
}};
constexpr std::array<Reading, 2> kCandidateReadings = {{
    {ReadCandidates<RowOfCandidates>, Borders::All},
    {ReadCandidates<RowOfCandidateFields>, Borders::None},
}};

enum class LineKind : std::uint8_t { Row, Border, Gap, Other };

LineKind KindOf(std::string_view raw, const Reading& reading, int row, GridBlock& block) {
    if (raw.size() > kLongestRow) {
        return LineKind::Other;
    }
    std::string scratch;
    const std::string_view line = PlainLine(raw, scratch);
    if (IsBorder(line, reading.borders)) {
        return LineKind::Border;
    }
    if (reading.read(line, row, block) || reading.read(WithoutTrailingComment(line), row, block)) {
        return LineKind::Row;
    }
    return IsBlankOrComment(line) ? LineKind::Gap : LineKind::Other;
}

// Rows that stand right behind the ninth. Nine more are a grid of their own.
void CountFollowers(const Reading& reading, GridBlock& block) {
    LineCursor lines = block.after;
    GridBlock unused = block;
    int followers = 0;
    for (auto line = lines.Next(); line && followers < kRows; line = lines.Next()) {
        if (KindOf(*line, reading, kRows, unused) != LineKind::Row) {
            break;
        }
        ++followers;
        unused.after = lines;
    }
    if (followers > 0 && followers < kRows) {
        block.rows += followers;
        block.after = unused.after;
    }
}

void TakeClosingBorder(const Reading& reading, GridBlock& block) {
    LineCursor lines = block.after;
    const auto line = lines.Next();
    std::string scratch;
    if (line && line->size() <= kLongestRow &&
        IsBorder(PlainLine(*line, scratch), reading.borders)) {
        block.after = lines;
    }
}

GridBlock ReadAs(LineCursor lines, const Reading& reading) {
    GridBlock block{.after = lines};
    int gaps = 0;
    bool isAfterGap = false;
    while (block.rows < kRows) {
        const auto line = lines.Next();
        const LineKind kind = line ? KindOf(*line, reading, block.rows, block) : LineKind::Other;
        if (kind == LineKind::Row) {
            ++block.rows;
            block.after = lines;
            isAfterGap = false;
        } else if (kind == LineKind::Gap) {
            ++gaps;
            const bool isAllowed =
                block.rows > 0 && !isAfterGap && (block.rows % 3 == 0 || gaps == block.rows);
            if (!isAllowed) {
                return block;
            }
            isAfterGap = true;
        } else if (kind == LineKind::Other) {
            return block;
        }
    }
    CountFollowers(reading, block);
    TakeClosingBorder(reading, block);
    return block;
}

// The first reading that is whole, or else the one that got further than `best`.
GridBlock BestOf(GridBlock best, const LineCursor& lines, std::span<const Reading> readings) {
    for (const Reading& reading : readings) {
        if (best.IsWhole()) {
            return best;
        }
        GridBlock block = ReadAs(lines, reading);
        if (block.IsWhole() || block.rows > best.rows) {
            best = std::move(block);
        }
    }
    return best;
}

}  // namespace

GridBlock ReadBlock(const LineCursor& lines, BlockOf kind) {
    GridBlock block{.after = lines};
    LineCursor first = lines;
    const auto line = first.Next();
    std::string scratch;
    if (!line || line->size() > kLongestRow || !MayBeRow(PlainLine(*line, scratch))) {
        return block;
    }
    if (kind != BlockOf::Candidates) {
        block = BestOf(std::move(block), lines, kCellReadings);
    }
    if (kind != BlockOf::Cells) {
        block = BestOf(std::move(block), lines, kCandidateReadings);
    }
    return block;
}

LineCursor PastGap(LineCursor lines) {
    for (int passed = 0; passed < kMostOfGap; ++passed) {
        LineCursor next = lines;
        const auto line = next.Next();
        if (!line || !IsBlankOrComment(*line)) {
            break;
        }
        lines = next;
    }
    return lines;
}

std::string WrongRows(const GridBlock& block) {
    return std::to_string(block.rows) + (block.rows == 1 ? " row" : " rows") + " of nine " +
           (block.isOfCandidates ? "groups" : "cells") + " where a grid has nine rows";
}

}  // namespace vemo
