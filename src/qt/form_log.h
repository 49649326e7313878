// The window of the solve log: the text of all runs so far, to be read, searched, copied, saved and
// printed.
#pragma once

#include <QTimer>

#include "qt/form_window.h"

class QAction;
class QMenu;
class QPlainTextEdit;

namespace vemo {

class FindBar;

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
    void AppendNew();
    void Print();

    QPlainTextEdit* text_;
    FindBar* find_;
    QAction* save_ = nullptr;
    QAction* print_ = nullptr;
    QAction* selectAll_ = nullptr;
    QAction* openFind_ = nullptr;
    QTimer delay_;           // a scan writes thousands of lines a second: they are shown in bundles
    std::size_t shown_ = 0;  // bytes of the log that the text box holds
};

}  // namespace vemo
