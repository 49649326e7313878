// The panel beside the board that explains the hint: its title, the text box TextHint, the legend
// of its shapes, and the button that applies it.
#pragma once

#include <QFrame>

#include "game/game.h"
#include "qt/theme.h"

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace vemo {

class Legend;

class HintPanel final : public QFrame {
  public:
    // The game outlives the panel.
    HintPanel(Game& game, QWidget* parent);

    void ShowScreen(const Screen& screen, const BoardColors& colors);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Arrange();
    int TextHeight(int width) const;
    int WholeLines(int height) const;

    QLabel* caption_;
    QPlainTextEdit* text_;
    Legend* legend_;
    QPushButton* apply_;
};

}  // namespace vemo
