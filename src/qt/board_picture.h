// A picture of a board, as large as its widget allows: nothing can be done on it.
#pragma once

#include <QRect>
#include <QWidget>

#include "game/screen.h"
#include "qt/theme.h"

class QPainter;

namespace vemo {

// The largest board that fits into `room`, without its wells where they would run into each other.
// The painter's unit is one device pixel, `scale` of them to a logical one; `font` names the
// family.
void PaintBoardPicture(QPainter& painter, const QRect& room, double scale, const Screen& screen,
                       const BoardColors& colors, const QFont& font);

class BoardPicture final : public QWidget {
  public:
    explicit BoardPicture(QWidget* parent);

    // The board's part of a screen.
    void ShowBoard(const Screen& screen, const BoardColors& colors);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Screen screen_;
    BoardColors colors_;
};

}  // namespace vemo
