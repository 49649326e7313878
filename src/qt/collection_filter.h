// The controls that say which sudokus of a collection are shown, and in which order.
#pragma once

#include <array>

#include <QWidget>

#include "game/game.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QPushButton;
class QSpinBox;

namespace vemo {

class CollectionFilter final : public QWidget {
  public:
    // The game outlives the controls.
    CollectionFilter(Game& game, QWidget* parent);

    void ShowOrder(const TableOrder& order);
    // How many of the filters let not everything pass.
    static int CountSet(const TableOrder& order);

  private:
    // From the least to the most.
    struct Range {
        QSpinBox* least = nullptr;
        QSpinBox* most = nullptr;
    };

    void AddKinds(QFormLayout& form);
    void AddOrder(QFormLayout& form);
    QWidget* MakeLevels();
    Range AddRange(QFormLayout& form, const QString& name, const QString& caption, int most);
    QComboBox* AddCombo(QFormLayout& form, const QString& name, const QString& caption);
    void Report();
    TableOrder Entered() const;

    Game& game_;
    QComboBox* kind_ = nullptr;
    QComboBox* symmetry_ = nullptr;
    QComboBox* technique_ = nullptr;
    Range clues_;
    Range digits_;
    Range emptyBoxes_;
    std::array<QCheckBox*, kLevels + 1> levels_{};  // 0: not rated
    QComboBox* column_ = nullptr;
    QCheckBox* descending_ = nullptr;
    QPushButton* showAll_ = nullptr;
};

}  // namespace vemo
