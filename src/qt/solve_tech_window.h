// The window "Solving Techniques Manager".
#pragma once

#include "qt/form_window.h"

class QGridLayout;
class QLayout;
class QPushButton;

namespace vemo {

class TechniqueRows;

class SolveTechWindow final : public FormWindow {
  public:
    SolveTechWindow(Game& game, QWidget* parent);

    void ShowScreen();

  protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QWidget* MakeCaptions();
    QLayout* MakeButtons();
    void AlignColumns();
    void Enable(QPushButton& button, bool isUseful);

    TechniqueRows* rows_;
    QGridLayout* captions_;
    QPushButton* up_;
    QPushButton* down_;
    QPushButton* defaults_;
    QPushButton* ok_;
    QWidget* focusBeforeBusy_ = nullptr;  // what is off cannot keep the keyboard
};

}  // namespace vemo
