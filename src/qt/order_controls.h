// The controls with which a player orders sudokus from the generator.
#pragma once

#include <array>

#include <QList>
#include <QWidget>

#include "game/game.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QRadioButton;
class QSpinBox;

namespace vemo {

class OrderControls final : public QWidget {
  public:
    // The game outlives the controls.
    OrderControls(Game& game, QWidget* parent);

    void ShowOrder(const GeneratorWindow& window);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    QWidget* MakeLevels();
    void AddKinds(QFormLayout& form);
    void AddClues(QFormLayout& form);
    void AddEnds(QFormLayout& form);
    QSpinBox* AddSpin(const QString& name, const QString& spoken, int least, int most);
    template <typename Control, typename Signal>
    void Report(Control* control, Signal changed);

    void ShowUsable(const GeneratorWindow& window);
    void ShowProgress(const GeneratorWindow& window);
    void ShowError(const GeneratorWindow& window);
    GeneratorOrder Entered() const;

    Game& game_;
    QList<QWidget*> inputs_;
    std::array<QSpinBox*, kLevels> wanted_{};
    std::array<QLabel*, kLevels> kept_{};
    QComboBox* symmetry_ = nullptr;
    QRadioButton* suiting_ = nullptr;
    QRadioButton* fromTo_ = nullptr;
    QSpinBox* fewest_ = nullptr;
    QSpinBox* most_ = nullptr;
    QCheckBox* minimal_ = nullptr;
    QComboBox* technique_ = nullptr;
    QLineEdit* seed_ = nullptr;
    QDoubleSpinBox* tries_ = nullptr;
    QSpinBox* minutes_ = nullptr;
    QLabel* error_ = nullptr;
};

}  // namespace vemo
