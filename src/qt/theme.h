// The colours of the window, light and dark.
#pragma once

#include <QColor>
#include <QPalette>

#include "game/color_sight.h"
#include "game/options.h"

namespace vemo {

struct Theme {
    QColor window;
    QColor panel;
    QColor board;
    QColor thickLine;  // around boxes
    QColor thinLine;   // between cells
    QColor clue;
    QColor own;  // the player's digits
    QColor mark;
    QColor sameDigit;  // behind the digit that is highlighted
    QColor text;
    QColor softText;
    QColor line;  // around panels and buttons
    QColor button;
    QColor accent;  // what to press next, the selected cell, the focus
    QColor accentText;
    QColor wrong;  // what is struck through or reported

    bool operator==(const Theme&) const = default;
};

Theme ThemeOf(Tone tone);

// Dark where the text is lighter than the window that it stands on.
Tone ToneOf(const QPalette& palette);
// The player's choice; `system` where it is left to the system.
Tone ToneOf(Appearance appearance, Tone system);

// The theme for the toolkit's own widgets: menus, boxes, text boxes.
QPalette PaletteOf(const Theme& theme);

// What a board is painted with: the theme, and the colours that the player can change.
struct BoardColors {
    Theme theme;
    ColorSet chosen;

    QColor Brush(int brush) const;
    // Readable on it, as far as any colour is.
    QColor BrushText(int brush) const;
    QColor Hint(HintColor color) const;
    bool operator==(const BoardColors& other) const = default;
};

// As ReadableOn of plain colours.
QColor ReadableOn(const QColor& fill);
// `color`, moved towards black or white as far as it takes to be read on `ground`.
QColor MadeReadable(const QColor& color, const QColor& ground);
// `share` of `top` over `base`: 0 is the base alone, 1 the top alone.
QColor Mixed(const QColor& base, const QColor& top, double share);
// As Contrast of plain colours.
double Contrast(const QColor& first, const QColor& second);

}  // namespace vemo
