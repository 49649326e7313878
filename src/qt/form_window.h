// What the windows beside the main window share: each asks the game whether it may close and tells
// it when it has, goes with the main window, and closes on Esc.
#pragma once

#include <QMainWindow>

#include "game/game.h"

namespace vemo {

class FormWindow : public QMainWindow {
  public:
    // The game outlives the window. `parent` is the main window.
    FormWindow(Game& game, Form form, QWidget* parent);

    // Shows it, or brings it to the front.
    void Open(Keyboard keyboard);
    // Hides it where it covers some of the board, whose place on the desk this is.
    void GiveWay(const QRect& board);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    Game& CurrentGame() const { return game_; }

  private:
    void StandBeside();

    Game& game_;
    Form form_;
};

}  // namespace vemo
