// The rows of the technique manager: the forty techniques by position, each with an option button
// that selects it and its two check boxes.
#pragma once

#include <array>
#include <cstdint>

#include <QWidget>

#include "game/game.h"

class QAbstractButton;
class QCheckBox;
class QGridLayout;
class QLabel;
class QRadioButton;
class QScrollArea;

namespace vemo {

enum class TechniqueColumn : std::uint8_t { Number, Technique, Level, Include, Halt };
inline constexpr int kTechniqueColumns = 5;

// What the column says of a technique, for tool tips; empty where that is plain.
QString MeaningOf(TechniqueColumn column);

class TechniqueRows final : public QWidget {
  public:
    // The game outlives the rows; `area` shows as many of them as it has room for.
    TechniqueRows(Game& game, QScrollArea& area);

    void ShowScreen();
    // Gives the keyboard to the selected row and brings it into view.
    void FocusSelected();
    // Scrolls the selected row into view.
    void RevealSelected();

    // What the column's widest cell needs, and the width that it gets.
    int WantedWidth(TechniqueColumn column) const;
    void SetWidth(TechniqueColumn column, int width);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void AddPosition(int position, const TechniqueRow& row);
    void AddBoxes(const TechniqueRow& row);
    QCheckBox* MakeBox(int index);
    void ShowRow(int position, const TechniqueRow& row);
    void ShowBoxes(const TechniqueRow& row);
    void PlaceBoxes();
    void Select(int position);

    // The control of a row in one of its three columns; null where a fixed row has none.
    QAbstractButton* ControlAt(int position, TechniqueColumn column) const;
    bool MoveFocus(const QObject* from, int key);
    int PositionOf(const QObject* control) const;
    QRect RowRect(int position) const;
    void Reveal(int position);

    Game& game_;
    QScrollArea& area_;
    QGridLayout* grid_;
    // By position; those of the fixed rows are null.
    std::array<QRadioButton*, kSlots> options_{};
    std::array<QLabel*, kSlots> levels_{};
    std::array<QCheckBox*, 2 * kSlots> boxes_{};  // by slot: included, then halting
    std::array<int, kSlots> slotAt_{};            // by position, as shown
    int selected_ = 0;
};

}  // namespace vemo
