// What the hint window shows: the copy of the board, and the explanation on a card beside it.
#pragma once

#include <QWidget>

#include "game/hint_window.h"
#include "qt/hint_plan.h"
#include "qt/theme.h"

namespace vemo {

class BoardPicture;
class HintCard;
class ReadingBox;

class HintContent final : public QWidget {
  public:
    explicit HintContent(QWidget* parent);

    void ShowHint(const HintWindow& window, const BoardColors& colors);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Arrange();
    int NoteHeight(int width) const;

    BoardPicture* board_;
    HintCard* card_;
    ReadingBox* note_;
};

}  // namespace vemo
