// The panel beside the board that explains the hint: its title, the text box TextHint, the legend
// of its shapes, the button that applies it and the one that leads to the help on it.
#pragma once

#include <QFrame>

#include "game/game.h"
#include "qt/theme.h"

class QLabel;
class QPushButton;

namespace vemo {

class Legend;
class ReadingBox;

class HintPanel final : public QFrame {
  public:
    // The game outlives the panel.
    HintPanel(Game& game, QWidget* parent);

    void ShowScreen(const Screen& screen, const BoardColors& colors);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    void Arrange();
    void PlaceButtons(const QRect& row, int gap);

    Game& game_;
    QLabel* caption_;
    ReadingBox* text_;
    Legend* legend_;
    QPushButton* apply_;
    QPushButton* more_;  // leads to the help
};

}  // namespace vemo
