// The board of the main window: paints the screen's board and tells the game of the mouse.
#pragma once

#include <QWidget>

#include "game/game.h"
#include "qt/board_diff.h"
#include "qt/board_geometry.h"
#include "qt/theme.h"

namespace vemo {

class BoardWidget final : public QWidget {
    Q_OBJECT

  public:
    // The game outlives the widget.
    BoardWidget(Game& game, QWidget* parent);

    void ShowScreen(const Screen& screen, const BoardColors& colors);
    const Screen& Shown() const { return screen_; }

    // Logical pixels within the widget.
    QRect CellRect(int cell) const;
    QRect BoardRect() const;
    QPointF MarkCenter(int cell, int digit) const;
    // kNoCell where there is none.
    int CellAt(const QPoint& point) const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    enum class Pointer : std::uint8_t { Plain, Brush, Link };

    void Fit();
    BoardTarget TargetAt(const QPointF& point) const;
    void UpdateCell(int cell);
    void Hover(const BoardTarget& target);
    void UpdatePointer();
    void Announce(const Screen& before, const BoardDiff& diff);

    Game& game_;
    Screen screen_;
    BoardColors colors_;
    BoardGeometry board_;
    double scale_ = 0;  // device pixels to a logical one, of board_
    BoardTarget pressed_;
    BoardTarget hovered_;
    Pointer pointer_ = Pointer::Plain;
};

}  // namespace vemo
