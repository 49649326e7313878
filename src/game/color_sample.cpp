// Small boards on which the colours are seen.
#include "game/color_sample.h"

#include <algorithm>
#include <array>

#include "game/color_check.h"
#include "game/hint_colors.h"
#include "model/grid.h"

namespace vemo {
namespace {

// The brush's row; the row above it has the other nine.
constexpr int kPaintedRow = 5;
// Digits of this value are open in the hint's sample, so that its candidates can be anywhere.
constexpr int kHintDigit = 5;

int SolutionDigit(int cell) {
    const int row = CellRow(cell);
    return (3 * (row % 3) + row / 3 + CellColumn(cell)) % kDigits + 1;
}

// What stands in the cells, mixed so that each row has all kinds.
enum class Content : std::uint8_t { Clue, Own, Open };

Content ContentOf(int cell) {
    const int row = CellRow(cell);
    const int column = CellColumn(cell);
    switch ((2 * row + 3 * column + row * column) % 5) {
    case 0:
    case 1:
        return Content::Clue;
    case 2:
        return Content::Own;
    default:
        return Content::Open;
    }
}

template <typename IsOpen>
Screen PlayedBoard(IsOpen isOpen) {
    Grid grid;
    Screen screen;
    for (int cell = 0; cell < kCells; ++cell) {
        if (!isOpen(cell)) {
            grid.Zet(SolutionDigit(cell), cell);
        }
    }
    for (int cell = 0; cell < kCells; ++cell) {
        const auto at = static_cast<std::size_t>(cell);
        screen.cells[at].digit = grid.Digit(cell);
        screen.cells[at].isClue = grid.Digit(cell) != 0 && ContentOf(cell) == Content::Clue;
        for (int digit = 1; digit <= kDigits; ++digit) {
            screen.marks[at][static_cast<std::size_t>(digit - 1)].isShown =
                grid.KnopAan(cell, digit);
        }
    }
    return screen;
}

Screen BrushSample(int brush) {
    Screen screen = PlayedBoard([](int cell) { return ContentOf(cell) == Content::Open; });
    screen.rowLabels[kPaintedRow].brush = brush;
    for (int column = 0; column < kDigits; ++column) {
        const auto cell = static_cast<std::size_t>(kPaintedRow * kDigits + column);
        screen.cells[cell].brush = brush;
        screen.cells[cell - kDigits].brush = column < brush ? column : column + 1;
    }
    return screen;
}

LinkView Link(int from, int to, bool isStrong) {
    return {.fromCell = from,
            .fromDigit = kHintDigit,
            .toCell = to,
            .toDigit = kHintDigit,
            .isStrong = isStrong,
            .isDirected = true};
}

Screen HintSample() {
    // The corners of a chain, then what it takes away and what it places.
    constexpr int kB2 = 10;
    constexpr int kB8 = 16;
    constexpr int kE8 = 43;
    constexpr int kE5 = 40;
    constexpr int kE2 = 37;
    constexpr int kH5 = 67;
    constexpr std::array kOpen = {kB2, kB8, kE8, kE5, kE2, kH5};
    Screen screen = PlayedBoard([&](int cell) {
        return ContentOf(cell) == Content::Open || SolutionDigit(cell) == kHintDigit ||
               std::ranges::find(kOpen, cell) != kOpen.end();
    });
    HintColors hint;
    hint.ZetHintRij(CellRow(kB2));
    hint.ZetHintKolom(CellColumn(kE5));
    for (const int cell : {kB2, kB8, kE8, kE5}) {
        hint.ZetHintVak(cell);
    }
    for (const int cell : {kB2, kE8}) {
        hint.ZetHintNummer(cell, kHintDigit, Role::Pattern);
    }
    for (const int cell : {kB8, kE5}) {
        hint.ZetHintNummer(cell, kHintDigit, Role::Second);
    }
    hint.ZetAttackedCell(kE2, kHintDigit);
    hint.ZetHintNummer(kH5, kHintDigit, Role::Placed);
    hint.PaintOn(screen);
    screen.links = {Link(kB2, kB8, true), Link(kB8, kE8, false), Link(kE8, kE5, true)};
    return screen;
}

}  // namespace

Screen ColorSample(int row) {
    return IsBrush(row) ? BrushSample(row) : HintSample();
}

}  // namespace vemo
