// What an empty board offers: the nine levels, one in each box.
#pragma once

#include <array>

#include <QWidget>

#include "game/game.h"
#include "model/levels.h"
#include "qt/theme.h"

class QPushButton;

namespace vemo {

class LevelCards final : public QWidget {
  public:
    // The game outlives the cards.
    LevelCards(Game& game, QWidget* parent);

    // Shown while no puzzle is open.
    void ShowScreen(const Screen& screen, const BoardColors& colors);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    std::array<QPushButton*, kLevels> cards_{};
    QColor board_;
};

}  // namespace vemo
