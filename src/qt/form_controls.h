// What the forms full of controls share.
#pragma once

#include <chrono>

#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>

class QAbstractButton;
class QComboBox;
class QSpinBox;

namespace vemo {

// Shows a value without reporting it as the player's; sets only what differs, so that a cursor in
// the midst of a number stays there.
template <typename Control, typename Value>
void Put(Control& control, Value (Control::*shown)() const, void (Control::*show)(Value),
         Value value) {
    if ((control.*shown)() != value) {
        const QSignalBlocker blocker(control);
        (control.*show)(value);
    }
}
void Check(QAbstractButton& button, bool isChecked);

QLabel* MakeLabel(const QString& text, QWidget* parent);
// A plain text of any length, below no control.
QLabel* MakeText(const QString& name, QWidget* parent);

// "1:02:03", hours first.
QString TimeText(std::chrono::milliseconds passed);

// The controls change by the wheel only while they have the keyboard; `spoken` is their name for
// those who hear them.
QSpinBox* MakeSpin(const QString& name, const QString& spoken, int least, int most,
                   QWidget* parent);
QComboBox* MakeCombo(const QString& name, const QString& spoken, QWidget* parent);
// "Any", whose data is kNoSlot, and the techniques of the ladder, each with its slot.
void AddTechniques(QComboBox& combo);

// Narrow windows put each label above its control.
QFormLayout* MakeForm();

// A label stands in the middle of its row, however high its control is.
template <typename Control>
void AddRow(QFormLayout& form, const QString& text, Control* control) {
    QLabel* label = MakeLabel(text, form.parentWidget());
    label->setMinimumHeight(control->sizeHint().height());
    form.addRow(label, control);
}

// Who turns the wheel over the controls wants to see the others: only the one with the keyboard is
// changed.
void KeepFromWheel(QWidget& control);

}  // namespace vemo
