// A button that a click of either mouse button presses.
#pragma once

#include <functional>

#include <QPushButton>

#include "game/brushes.h"

namespace vemo {

class SolveButton final : public QPushButton {
  public:
    // `mouseUp` hears where a mouse button that went down on this one goes up; a click by the
    // keyboard is one with the left button.
    SolveButton(const QString& text, std::function<void(MouseButton, Released)> mouseUp,
                QWidget* parent);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    std::function<void(MouseButton, Released)> mouseUp_;
};

}  // namespace vemo
