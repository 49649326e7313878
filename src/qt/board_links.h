// The lines between marks. They run around digits, not through them.
#pragma once

#include <QPainterPath>

#include "game/screen.h"
#include "qt/board_geometry.h"
#include "qt/theme.h"

class QPainter;

namespace vemo {

// The curve from the edge of one mark to the edge of the other, bent to the side and as far as
// lies clearest of the digits and marks of `screen`.
QPainterPath LinkPath(const LinkView& link, const BoardGeometry& board, const Screen& screen);

// All links: strong ones solid, weak ones dashed, directed ones with an arrow head.
void DrawLinks(QPainter& painter, const BoardGeometry& board, const Screen& screen,
               const BoardColors& colors);

// A straight one, as it looks on a board with cells of this side.
void DrawLinkSample(QPainter& painter, const QPointF& from, const QPointF& to, LinkLook look,
                    double cell, const BoardColors& colors);

}  // namespace vemo
