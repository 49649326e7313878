// One of the ten colour labels: armed as the left or the right brush by that mouse button.
#pragma once

#include <functional>

#include <QAbstractButton>

#include "game/game.h"
#include "qt/theme.h"

namespace vemo {

class ColorLabel final : public QAbstractButton {
  public:
    // `arm` hears the button; on the keyboard Space is the left one, Shift+Space the right one.
    ColorLabel(int color, std::function<void(MouseButton)> arm, QWidget* parent);

    void ShowState(const Screen& screen, const BoardColors& colors);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    int color_;
    std::function<void(MouseButton)> arm_;
    BoardColors colors_;
};

}  // namespace vemo
