// What the forms full of controls share.
#include "qt/form_controls.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QEvent>
#include <QSpinBox>

#include "qt/screen_text.h"
#include "solver/catalogue.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kGap = 8;
constexpr int kComboCharacters = 12;  // that are seen at least

class WheelFilter final : public QObject {
  public:
    explicit WheelFilter(QWidget& control) : QObject(&control), control_(control) {}

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Wheel && !control_.hasFocus()) {
            event->ignore();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    QWidget& control_;
};

}  // namespace

void Check(QAbstractButton& button, bool isChecked) {
    const QSignalBlocker blocker(button);
    button.setChecked(isChecked);
}

QLabel* MakeLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* MakeText(const QString& name, QWidget* parent) {
    QLabel* label = MakeLabel(QString(), parent);
    label->setObjectName(name);
    label->setWordWrap(true);
    return label;
}

QString TimeText(std::chrono::milliseconds passed) {
    const auto seconds = passed.count() / 1000;
    const auto two = [](qint64 number) { return u"%1"_s.arg(number, 2, 10, QLatin1Char('0')); };
    return u"%1:%2:%3"_s.arg(seconds / 3600).arg(two(seconds / 60 % 60), two(seconds % 60));
}

QSpinBox* MakeSpin(const QString& name, const QString& spoken, int least, int most,
                   QWidget* parent) {
    auto* spin = new QSpinBox(parent);
    spin->setObjectName(name);
    spin->setAccessibleName(spoken);
    spin->setRange(least, most);
    KeepFromWheel(*spin);
    return spin;
}

QComboBox* MakeCombo(const QString& name, const QString& spoken, QWidget* parent) {
    auto* combo = new QComboBox(parent);
    combo->setObjectName(name);
    combo->setAccessibleName(spoken);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(kComboCharacters);
    KeepFromWheel(*combo);
    return combo;
}

void AddTechniques(QComboBox& combo) {
    combo.addItem(u"Any"_s, kNoSlot);
    for (int slot = kFirstTechniqueSlot; slot < kSlots; ++slot) {
        const Slot& row = Slots()[static_cast<std::size_t>(slot)];
        combo.addItem(ToQString(row.caption), slot);
        combo.setItemData(combo.count() - 1, ToQString(row.tooltip), Qt::ToolTipRole);
    }
}

QFormLayout* MakeForm() {
    auto* form = new QFormLayout;
    form->setHorizontalSpacing(2 * kGap);
    form->setVerticalSpacing(kGap);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    return form;
}

void KeepFromWheel(QWidget& control) {
    control.setFocusPolicy(Qt::StrongFocus);
    control.installEventFilter(new WheelFilter(control));
}

}  // namespace vemo
