// The controls with which a player orders what is printed.
#pragma once

#include <QWidget>

#include "game/game.h"

class QBoxLayout;
class QComboBox;
class QFormLayout;
class QLabel;
class QRadioButton;
class QSpinBox;

namespace vemo {

// As they stand in a list of choices, by `Paper`.
QStringList PaperNames();

class PrintControls final : public QWidget {
  public:
    // The game outlives the controls.
    PrintControls(Game& game, QWidget* parent);

    void ShowOrder(const PrintWindow& window);

  private:
    void AddSources(QBoxLayout& column);
    void AddStyle(QFormLayout& form);
    QRadioButton* MakeSource(const QString& name, const QString& text);
    QComboBox* AddCombo(const QString& name, const QString& spoken, const QStringList& choices);
    QSpinBox* AddSpin(const QString& name, const QString& spoken);
    void Report();
    PrintOrder Entered() const;

    Game& game_;
    QRadioButton* current_ = nullptr;
    QRadioButton* run_ = nullptr;
    QRadioButton* selection_ = nullptr;
    QComboBox* level_ = nullptr;
    QSpinBox* first_ = nullptr;
    QSpinBox* last_ = nullptr;
    QLabel* count_ = nullptr;
    QComboBox* content_ = nullptr;
    QComboBox* perPage_ = nullptr;
    QComboBox* solutions_ = nullptr;
    QComboBox* paper_ = nullptr;
};

}  // namespace vemo
