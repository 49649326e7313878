// The line above the hint panel: the clock, its button, and the step counter.
#pragma once

#include <QLabel>
#include <QWidget>

#include "game/game.h"

class QPushButton;

namespace vemo {

class ClockBar final : public QWidget {
  public:
    // The game outlives the bar.
    ClockBar(Game& game, QWidget* parent);

    void ShowScreen(const Screen& screen);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Arrange();

    QLabel* time_;
    QPushButton* pause_;
    QLabel* step_;
};

}  // namespace vemo
