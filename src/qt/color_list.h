// The list of the colours that the player can change: the brushes, then the colours of hints.
#pragma once

#include <array>

#include <QListWidget>

#include "game/game.h"
#include "qt/theme.h"

namespace vemo {

class ColorList final : public QListWidget {
  public:
    // The game outlives the list.
    ColorList(Game& game, QWidget* parent);

    // `shown` is drawn in the list, `colours` is the window's own.
    void ShowColors(const ColorWindow& window, const BoardColors& shown, const BoardColors& colors);

    QSize sizeHint() const override;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void Fill();
    void FillItem(int row, const ColorReport& report);

    Game& game_;
    std::array<QListWidgetItem*, kColorRows> items_{};
    std::array<QListWidgetItem*, 2> headings_{};
    BoardColors shown_;
    BoardColors colors_;
};

}  // namespace vemo
