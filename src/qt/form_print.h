// The window "Print": the order on one side, the pages that it makes on the other.
#pragma once

#include "qt/form_window.h"

class QBoxLayout;
class QScrollArea;

namespace vemo {

class PrintControls;
class PrintPane;

class FormPrint final : public FormWindow {
  public:
    FormPrint(Game& game, QWidget* parent);

    void ShowScreen();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void ShowJob();

    QBoxLayout* sides_;
    QScrollArea* area_;
    PrintControls* controls_;
    PrintPane* pane_;
    int version_ = -1;  // of the job that is seen
};

}  // namespace vemo
