// The menu bar, built from the game's menu table.
#pragma once

#include <array>

#include <QMenuBar>

#include "game/game.h"
#include "game/menu_ids.h"

class QAction;

namespace vemo {

class MenuBar final : public QMenuBar {
  public:
    // The game outlives the menu bar.
    MenuBar(Game& game, QWidget* parent);

    void ShowScreen(const Screen& screen);

    QAction* ActionOf(CommandId id) const { return actions_[static_cast<std::size_t>(id)]; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QMenu* MenuNamed(const QString& title, QWidget* parent);

    std::array<QAction*, kCommands> actions_{};
};

}  // namespace vemo
