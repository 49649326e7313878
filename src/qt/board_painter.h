// Paints a screen's board. It works in whole device pixels and keeps nothing: the window's board,
// and every other picture of a board, are painted by it.
#pragma once

#include <QFont>
#include <QRect>

#include "game/screen.h"
#include "qt/board_geometry.h"
#include "qt/theme.h"

class QPainter;

namespace vemo {

// What the player's hands do to the board, beside the game.
struct BoardTouch {
    bool hasFocus = false;
    BoardTarget pointed;  // what is under the mouse
};

// Makes the painter's unit one device pixel, `scale` of them to a logical one, and its origin a
// whole one.
void WorkInDevicePixels(QPainter& painter, double scale);

// The wells' room is kept while there is nothing to show in them, so that the board stays where it
// is.
WellsRoom WellsRoomOf(const Screen& screen);

class BoardPainter {
  public:
    // All references outlive the painter. `font` names the family; the sizes are the board's.
    BoardPainter(QPainter& painter, const BoardGeometry& board, const BoardColors& colors,
                 const QFont& font);

    // Only what touches `dirty` needs to be painted.
    void Paint(const Screen& screen, const QRect& dirty, const BoardTouch& touch);

    // The colour behind a cell's digit or marks.
    static QColor FillOf(const CellView& cell, const BoardColors& colors);

  private:
    void PaintCell(const Screen& screen, int number, const BoardTouch& touch);
    void PaintPointed(const BoardTarget& pointed);
    QColor TextOn(const CellView& cell, const QColor& plain) const;
    void PaintDigit(const CellView& cell, const QRect& place);
    void PaintMarks(const Screen& screen, int number);
    void PaintFilteredMark(const QPointF& center, int digit);
    void PaintLines();
    void PaintSelection(int number, bool hasFocus);
    void PaintStrip(const Screen& screen, UnitKind kind, int index);
    void PaintWell(Marks well, UnitKind kind, int index);
    void PaintCover();
    QFont FontOf(int pixels, QFont::Weight weight) const;

    QPainter& painter_;
    const BoardGeometry& board_;
    const BoardColors& colors_;
    QFont font_;
};

}  // namespace vemo
