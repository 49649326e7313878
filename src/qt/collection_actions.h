// What can be done with many sudokus of a collection at once.
#pragma once

#include <functional>

#include <QList>
#include <QWidget>

#include "game/game.h"

class QLabel;
class QMenu;
class QPushButton;

namespace vemo {

// A button that opens a menu; the menu is the button's.
QPushButton* MakeMenuButton(const QString& name, const QString& text, QMenu& menu, QWidget* parent);

class CollectionActions final : public QWidget {
  public:
    // The game outlives the buttons.
    CollectionActions(Game& game, QWidget* parent);

    void ShowUsable();

  private:
    void AddJob(const QString& name, const QString& text, const QString& toolTip,
                CollectionJob job);
    void AddButton(QPushButton* button, const QString& toolTip);
    QMenu* MakeRemoveMenu();
    QMenu* MakeExportMenu();

    Game& game_;
    QLabel* whatFor_;
    QList<QPushButton*> buttons_;
    QPushButton* putBack_;
};

}  // namespace vemo
