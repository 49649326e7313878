// The column beside the board: clock, hint, command buttons, digit filters, colours; while a puzzle
// is made, its text box with the buttons of the making.
#pragma once

#include <array>
#include <vector>

#include <QTimer>
#include <QWidget>

#include "game/game.h"
#include "qt/column_plan.h"
#include "qt/theme.h"

class QLabel;
class QPushButton;

namespace vemo {

class ClockBar;
class ColorLabel;
class HintPanel;
class SudTekst;
class TextPanel;

class SideColumn final : public QWidget {
  public:
    // The game outlives the column.
    SideColumn(Game& game, QWidget* parent);

    void ShowScreen(const Screen& screen, const BoardColors& colors);
    // Texts are `scale` times as large as the system's.
    void SetScale(double scale);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void MakeCommands(Game& game);
    void MakeDigits(Game& game);
    void MakeColors(Game& game);
    void MakeMaking(Game& game);
    void ShowCommands(const Screen& screen);
    void ShowParts(const Screen& screen);
    // All that a making hides but the Hint button.
    std::vector<QWidget*> PartsOfPlay() const;
    ColumnTexts Texts() const;
    void Arrange();

    ClockBar* clock_;
    HintPanel* hint_;
    std::array<QPushButton*, kCommandButtons> commands_{};
    QLabel* digitCaption_;
    std::array<QPushButton*, kDigitButtons> digits_{};
    QLabel* colorCaption_;
    std::array<ColorLabel*, kBrushColors> colors_{};
    QPushButton* link_;
    SudTekst* sudTekst_;
    TextPanel* making_;
    QPushButton* validate_;
    QPushButton* cancel_;
    QPushButton* stop_;
    QTimer stopDelay_;
    bool isMaking_ = false;
    double scale_ = 1;
};

}  // namespace vemo
