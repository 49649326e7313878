// The window of the generator: the order on one side, the search and what it made on the other.
#pragma once

#include <QTimer>

#include "qt/form_window.h"
#include "qt/theme.h"

class QBoxLayout;
class QLabel;
class QPushButton;
class QScrollArea;

namespace vemo {

class BoardPicture;
class MadeList;
class OrderControls;

class FormGenerator final : public FormWindow {
  public:
    FormGenerator(Game& game, QWidget* parent);

    void ShowScreen(const BoardColors& colors);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QWidget* MakeResults();
    QWidget* MakeSelected();
    QWidget* MakeFoot();
    QPushButton* MakeButton(const QString& name, const QString& text, void (Game::*handler)());
    void ShowCounts();
    void ShowSelected(const BoardColors& colors);
    void ShowButtons();
    void MoveFocus(bool isSearching);
    void Arrange();
    // That shows the order, and so many characters of the list beside it.
    int WidthBeside(int characters) const;

    QScrollArea* area_;
    QBoxLayout* sides_;
    OrderControls* order_;
    QWidget* results_;
    QLabel* counts_;
    MadeList* list_;
    BoardPicture* board_;
    QLabel* selected_;
    QPushButton* play_;
    QLabel* message_;
    QPushButton* start_;
    QPushButton* cancel_;
    QPushButton* store_;
    QTimer timer_;  // the search goes on while the window is closed
};

}  // namespace vemo
