// Where the parts of the column beside the board stand, worked out from its size and its texts.
#pragma once

#include <array>

#include <QRect>

#include "game/options.h"

namespace vemo {

inline constexpr int kCommandButtons = 6;
inline constexpr int kDigitButtons = 9;

// What the plan needs to know of the texts, in the column's font.
struct ColumnTexts {
    int line = 0;     // height of a line
    int command = 0;  // width of the widest of the six command buttons' captions
    int link = 0;     // width of the Link button's caption
};

struct ColumnPlan {
    QRect clock;
    QRect hint;
    std::array<QRect, kCommandButtons> commands;
    QRect digitCaption;
    std::array<QRect, kDigitButtons> digits;
    QRect colorCaption;
    std::array<QRect, kBrushColors> colors;
    QRect link;

    // While a puzzle is made, in the room of the hint and all buttons.
    QRect hintOfMaking;
    QRect making;  // the text box
    QRect validate;
    QRect cancel;
};

// One above the other; side by side in two halves where the column is wide and low.
ColumnPlan PlanColumn(QSize size, const ColumnTexts& texts);

}  // namespace vemo
