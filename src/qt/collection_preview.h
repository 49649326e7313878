// The sudoku of a collection that is looked at: its board, what is known of it, and what to do
// with it.
#pragma once

#include <QWidget>

#include "game/game.h"
#include "qt/theme.h"

class QLabel;
class QPushButton;

namespace vemo {

class BoardPicture;
class SolveButton;

class CollectionPreview final : public QWidget {
    Q_OBJECT

  public:
    // The game outlives the widget.
    CollectionPreview(Game& game, QWidget* parent);

    void ShowSelected(const BoardColors& colors);
    // To the clipboard.
    void Copy();

  Q_SIGNALS:
    void PlayWanted();

  private:
    void ShowButtons();

    Game& game_;
    BoardPicture* board_;
    QLabel* name_;
    QPushButton* play_;
    SolveButton* solve_;
    QPushButton* copy_;
};

}  // namespace vemo
