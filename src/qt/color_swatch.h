// A small picture of one of the colours that the player can change, drawn as boards draw it.
#pragma once

#include <QFont>
#include <QPixmap>

#include "qt/theme.h"

namespace vemo {

// Of a row of the colours. `size` in logical pixels, `scale` device pixels to one of them.
QPixmap ColorSwatch(int row, const BoardColors& colors, QSize size, double scale, QFont font);
// The plain colour.
QPixmap PlainSwatch(const QColor& fill, const QColor& border, QSize size, double scale);

}  // namespace vemo
