// The window of the colours: the list, a board on which the selected colour is seen, and the
// controls that change it.
#pragma once

#include "qt/form_window.h"
#include "qt/theme.h"

class QBoxLayout;
class QPushButton;
class QRadioButton;

namespace vemo {

class BoardPicture;
class ColorEditor;
class ColorList;

class FormColors final : public FormWindow {
  public:
    FormColors(Game& game, QWidget* parent);
    ~FormColors() override;

    void ShowScreen(const BoardColors& colors);

  protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QWidget* MakePalettes();
    QWidget* MakeBoard();
    QWidget* MakeFoot();
    QPushButton* MakeButton(const QString& name, const QString& text, void (Game::*handler)());
    QRadioButton* MakeOption(const QString& name, const QString& text, Tone tone);
    void ShowBoard(const BoardColors& shown);
    void Arrange();
    // That show the board, the list beside it, and the controls beside both.
    int WidthOfOne() const;
    int WidthOfTwo() const;
    int WidthOfThree() const;

    QWidget* palettes_;
    QBoxLayout* sides_;
    QBoxLayout* selected_;  // the board and the controls
    QRadioButton* light_;
    QRadioButton* dark_;
    ColorList* list_;
    QWidget* desk_;  // the window of the shown palette, below its board
    BoardPicture* board_;
    ColorEditor* editor_;
    QPushButton* resetAll_;
    QPushButton* ok_;
    QPushButton* cancel_;
};

}  // namespace vemo
