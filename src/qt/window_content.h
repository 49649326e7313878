// Everything below the menu bar: the board with its column beside or below it, and the status bar.
#pragma once

#include <QWidget>

#include "game/game.h"
#include "qt/theme.h"

namespace vemo {

class BoardWidget;
class LevelCards;
class SideColumn;
class StatusPanels;

class WindowContent final : public QWidget {
  public:
    // The game outlives the content.
    WindowContent(Game& game, QWidget* parent);

    void ShowScreen(const Screen& screen, const BoardColors& colors);
    BoardWidget& Board() const { return *board_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Arrange();

    BoardWidget* board_;
    LevelCards* cards_;
    SideColumn* column_;
    StatusPanels* status_;
};

}  // namespace vemo
