// The colours that a player can change, one by one: what each is for, how well it can be read and
// told apart, and what to warn of.
#pragma once

#include <string>
#include <vector>

#include "game/color_sight.h"
#include "game/options.h"

namespace vemo {

// What a board is drawn with beside the colours that the player can change.
struct BoardInks {
    Rgb board;
    Rgb sameDigit;  // behind the digit that is highlighted
    Rgb clue;
    Rgb own;  // the player's digits
    Rgb mark;
};
BoardInks InksOf(Tone tone);

// The colours of a palette in one row: the ten brushes, then the hint colours.
inline constexpr int kColorRows = kBrushColors + kHintColors;
constexpr bool IsBrush(int row) {
    return row < kBrushColors;
}
constexpr HintColor HintColorAt(int row) {
    return static_cast<HintColor>(row - kBrushColors);
}
constexpr int RowOf(HintColor color) {
    return kBrushColors + static_cast<int>(color);
}
// "Color 3", "Hint cell".
std::string ColorName(int row);
// What it is drawn for, as a sentence.
std::string ColorUse(int row);

// The colour of a row itself.
Rgb ColorAt(const ColorSet& set, int row);
Rgb& ColorAt(ColorSet& set, int row);

struct ColorWarning {
    std::string brief;  // "hard to read"
    std::string text;   // a sentence, with the figures

    bool operator==(const ColorWarning&) const = default;
};

struct ColorReport {
    std::string figure;  // "Digits on this color: 9.2 to 1, 4.5 needed"
    std::vector<ColorWarning> warnings;

    bool operator==(const ColorReport&) const = default;
};
ColorReport ReportOn(const ColorSet& set, Tone tone, int row);

// How different two colours must be that nothing else tells apart; and how different a tint must be
// from the board, which says little.
inline constexpr double kToldApart = 5;
inline constexpr double kNoticed = 2;

// The colour from which it is hardest to tell the one of `row`, for those who find it hardest.
struct NearestColor {
    std::string name;  // "Color 4", "the empty board"
    double difference = 0;
    double needed = 0;
    Vision vision = Vision::Full;

    bool IsTooNear() const { return difference < needed; }
};
// Nothing has a name where the row is told from all others by its shape.
NearestColor NearestTo(const ColorSet& set, Tone tone, int row);

}  // namespace vemo
