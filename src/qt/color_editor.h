// The controls that change one colour, and what there is to say of it.
#pragma once

#include <array>

#include <QWidget>

#include "game/game.h"
#include "qt/theme.h"

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace vemo {

class ColorEditor final : public QWidget {
  public:
    // The game outlives the controls.
    ColorEditor(Game& game, QWidget* parent);

    void ShowColors(const ColorWindow& window, const BoardColors& colors);
    // Asks for the colour in a box of its own; the boards follow it.
    void Choose(ColorPart part);

  private:
    struct Line {
        QLabel* label = nullptr;
        QLineEdit* edit = nullptr;
        QPushButton* choose = nullptr;
    };

    QWidget* MakeNotes();
    Line MakeLine(ColorPart part, QGridLayout& grid);
    Line& LineOf(ColorPart part) { return lines_[static_cast<std::size_t>(part)]; }
    void ShowLine(ColorPart part, const ColorWindow& window, const BoardColors& colors);

    Game& game_;
    QLabel* name_;
    QLabel* use_;
    std::array<Line, 2> lines_;
    QLabel* error_;
    QLabel* figure_;
    QLabel* warnings_;
    QPushButton* reset_;
};

}  // namespace vemo
