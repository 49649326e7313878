// How things stand in a collection: the message, and the job with its progress.
#pragma once

#include <QWidget>

#include "game/game.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace vemo {

class CollectionFoot final : public QWidget {
  public:
    // The game outlives the widget.
    CollectionFoot(Game& game, QWidget* parent);

    void ShowState();
    QPushButton& CancelButton() const { return *cancel_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void ShowStatus();

    Game& game_;
    QProgressBar* progress_;
    QLabel* message_;
    QLabel* status_;
    QPushButton* cancel_;
};

}  // namespace vemo
