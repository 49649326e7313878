// The big hint window: the board as it was when the hint was given, the explanation beside it.
#pragma once

#include "qt/form_window.h"
#include "qt/theme.h"

class QAction;

namespace vemo {

class HintContent;

class FormHint final : public FormWindow {
  public:
    FormHint(Game& game, QWidget* parent);

    void ShowScreen(const BoardColors& colors);
    // The window's content as a BMP file, in device pixels; higher than the window where that shows
    // a part of the explanation only.
    Bytes Picture() const;

  private:
    void MakeMenu();
    void Print();

    BoardColors colors_;
    HintContent* content_;
    QAction* refresh_ = nullptr;
    QAction* save_ = nullptr;
    QAction* print_ = nullptr;
    QAction* more_ = nullptr;
};

}  // namespace vemo
