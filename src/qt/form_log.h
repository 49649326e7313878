// The window of the solve log: the text of all runs so far, to be read, searched, copied, saved and
// printed.
#pragma once

#include <QTimer>

#include "qt/form_window.h"

class QAction;
class QMenu;

namespace vemo {

class FindBar;
class GrowingText;

class FormLog final : public FormWindow {
  public:
    FormLog(Game& game, QWidget* parent);

    // The log as it is now; a reader who stands in its midst stays there.
    void ShowScreen();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void MakeWindowMenu();
    void MakeEditMenu();
    void ShowText();
    void Print();

    GrowingText* text_;
    FindBar* find_;
    QAction* save_ = nullptr;
    QAction* print_ = nullptr;
    QAction* selectAll_ = nullptr;
    QAction* openFind_ = nullptr;
    QTimer delay_;  // a scan writes thousands of lines a second: they are shown in bundles
};

}  // namespace vemo
