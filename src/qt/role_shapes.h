// The shapes of the roles that candidates play in a hint: told apart by shape first, by colour
// second. The board and its legend draw them alike.
#pragma once

#include <QFont>
#include <QPointF>

#include "game/screen.h"
#include "qt/theme.h"

class QPainter;

namespace vemo {

// A digit, or any short text, with the middle of its figures at `center`.
void DrawCentered(QPainter& painter, const QPointF& center, const QString& text);

// The shape of `role` around `center` and the digit in it; no digit for 0. `font` is that of a
// plain mark, `ground` the colour below.
void DrawRole(QPainter& painter, const QPointF& center, double radius, Role role, int digit,
              const QFont& font, const BoardColors& colors, const QColor& ground);

// What takes digits away looks like this wherever it is drawn.
void DrawStroke(QPainter& painter, const QPointF& center, double radius, const QColor& color);

}  // namespace vemo
