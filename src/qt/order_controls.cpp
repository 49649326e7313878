// The controls of the generator.
#include "qt/order_controls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>

#include "qt/form_controls.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kGap = 8;
constexpr int kSeedCharacters = 12;  // of the line that are seen at least

}  // namespace

OrderControls::OrderControls(Game& game, QWidget* parent) : QWidget(parent), game_(game) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGap);
    column->addWidget(MakeLevels());
    QFormLayout* form = MakeForm();
    column->addLayout(form);
    AddKinds(*form);
    AddClues(*form);
    AddEnds(*form);
    error_ = MakeLabel(QString(), this);
    error_->setObjectName(u"LabelOrderError"_s);
    error_->setWordWrap(true);
    column->addWidget(error_);
    column->addStretch(1);
    ShowOrder(game.CurrentGenerator());
    wanted_.front()->setFocus();
}

QWidget* OrderControls::MakeLevels() {
    auto* levels = new QWidget(this);
    auto* grid = new QGridLayout(levels);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(2 * kGap);
    grid->setVerticalSpacing(kGap / 2);
    grid->setColumnStretch(2, 1);
    grid->addWidget(MakeLabel(u"How many sudokus of which level"_s, levels), 0, 0, 1, 3);
    for (int level = 1; level <= kLevels; ++level) {
        const QString name = ToQString(LevelName(level));
        const auto at = static_cast<std::size_t>(level - 1);
        wanted_[at] = AddSpin(u"SpinWanted%1"_s.arg(level), name + u" sudokus"_s, 0, kMostWanted);
        wanted_[at]->setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
        kept_[at] = MakeLabel(QString(), levels);
        kept_[at]->setObjectName(u"LabelKept%1"_s.arg(level));
        kept_[at]->setAccessibleName(name + u" sudokus made"_s);
        grid->addWidget(MakeLabel(name, levels), level, 0);
        grid->addWidget(wanted_[at], level, 1);
        grid->addWidget(kept_[at], level, 2);
    }
    return levels;
}

void OrderControls::AddKinds(QFormLayout& form) {
    symmetry_ = MakeCombo(u"ComboSymmetry"_s, u"Symmetry"_s, this);
    for (const SymmetryRow& row : Symmetries()) {
        symmetry_->addItem(ToQString(row.caption));
    }
    Report(symmetry_, &QComboBox::currentIndexChanged);
    AddRow(form, u"Symmetry"_s, symmetry_);
    technique_ = MakeCombo(u"ComboTechnique"_s, u"Technique that must be needed"_s, this);
    AddTechniques(*technique_);
    technique_->setToolTip(u"A technique without which the sudoku cannot be solved"_s);
    Report(technique_, &QComboBox::currentIndexChanged);
    AddRow(form, u"Must need"_s, technique_);
}

void OrderControls::AddClues(QFormLayout& form) {
    suiting_ = new QRadioButton(u"What suits the level"_s, this);
    suiting_->setObjectName(u"OptionSuiting"_s);
    fromTo_ = new QRadioButton(u"From"_s, this);
    fromTo_->setObjectName(u"OptionFromTo"_s);
    fromTo_->setAccessibleName(u"From a fewest to a most number of clues"_s);
    inputs_ << suiting_;
    Report(fromTo_, &QRadioButton::toggled);
    fewest_ = AddSpin(u"SpinFewest"_s, u"Fewest clues"_s, kFewestClues, kCells);
    most_ = AddSpin(u"SpinMost"_s, u"Most clues"_s, kFewestClues, kCells);
    auto* range = new QHBoxLayout;
    range->setSpacing(kGap);
    range->addWidget(fromTo_);
    range->addWidget(fewest_);
    range->addWidget(MakeLabel(u"to"_s, this));
    range->addWidget(most_);
    range->addStretch(1);
    minimal_ = new QCheckBox(u"Minimal: each one is needed"_s, this);
    minimal_->setObjectName(u"CheckMinimal"_s);
    minimal_->setToolTip(u"Without any one of its clues, a sudoku would have more solutions"_s);
    Report(minimal_, &QCheckBox::toggled);
    AddRow(form, u"Clues"_s, suiting_);
    form.addRow(QString(), range);
    form.addRow(QString(), minimal_);
}

void OrderControls::AddEnds(QFormLayout& form) {
    tries_ = new QDoubleSpinBox(this);
    tries_->setObjectName(u"SpinTries"_s);
    tries_->setAccessibleName(u"Most tries"_s);
    tries_->setToolTip(u"The search ends after so many tries, whatever is missing"_s);
    tries_->setDecimals(0);
    tries_->setRange(1, static_cast<double>(kMostTries));
    tries_->setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    tries_->setLocale(QLocale(QLocale::English));
    tries_->setGroupSeparatorShown(true);
    KeepFromWheel(*tries_);
    Report(tries_, &QDoubleSpinBox::valueChanged);
    AddRow(form, u"Most tries"_s, tries_);
    minutes_ = AddSpin(u"SpinMinutes"_s, u"Most minutes"_s, 0, kMostMinutes);
    minutes_->setSpecialValueText(u"as long as it takes"_s);
    minutes_->setToolTip(u"The search ends after so many minutes, whatever is missing"_s);
    AddRow(form, u"Most minutes"_s, minutes_);
    seed_ = new QLineEdit(this);
    seed_->setObjectName(u"EditSeed"_s);
    seed_->setAccessibleName(u"Seed"_s);
    seed_->setPlaceholderText(u"a new one"_s);
    seed_->setToolTip(u"The same seed and the same order make the same sudokus again"_s);
    seed_->setMinimumWidth(fontMetrics().averageCharWidth() * kSeedCharacters);
    Report(seed_, &QLineEdit::textChanged);
    AddRow(form, u"Seed"_s, seed_);
}

QSpinBox* OrderControls::AddSpin(const QString& name, const QString& spoken, int least, int most) {
    QSpinBox* spin = MakeSpin(name, spoken, least, most, this);
    Report(spin, &QSpinBox::valueChanged);
    return spin;
}

template <typename Control, typename Signal>
void OrderControls::Report(Control* control, Signal changed) {
    inputs_ << control;
    connect(control, changed, this, [this] { game_.GeneratorChange(Entered()); });
}

void OrderControls::ShowOrder(const GeneratorWindow& window) {
    const GeneratorOrder& order = window.Order();
    for (std::size_t at = 0; at < wanted_.size(); ++at) {
        Put(*wanted_[at], &QSpinBox::value, &QSpinBox::setValue, order.wanted[at]);
    }
    Put(*symmetry_, &QComboBox::currentIndex, &QComboBox::setCurrentIndex,
        static_cast<int>(order.symmetry));
    Put(*technique_, &QComboBox::currentIndex, &QComboBox::setCurrentIndex,
        technique_->findData(order.neededSlot));
    const bool isFromTo = order.clues == ClueChoice::FromTo;
    Check(*suiting_, !isFromTo);
    Check(*fromTo_, isFromTo);
    Put(*fewest_, &QSpinBox::value, &QSpinBox::setValue, order.fewestClues);
    Put(*most_, &QSpinBox::value, &QSpinBox::setValue, order.mostClues);
    Check(*minimal_, order.minimality == Minimality::Minimal);
    Put(*tries_, &QDoubleSpinBox::value, &QDoubleSpinBox::setValue,
        static_cast<double>(order.mostTries));
    Put(*minutes_, &QSpinBox::value, &QSpinBox::setValue, order.mostMinutes);
    if (seed_->text() != ToQString(order.seed)) {
        const QSignalBlocker blocker(seed_);
        seed_->setText(ToQString(order.seed));
    }
    ShowUsable(window);
    ShowProgress(window);
    ShowError(window);
}

void OrderControls::ShowUsable(const GeneratorWindow& window) {
    const bool isFromTo = window.Order().clues == ClueChoice::FromTo;
    for (QWidget* input : inputs_) {
        const bool isOfRange = input == fewest_ || input == most_;
        input->setEnabled(!window.IsSearching() && (isFromTo || !isOfRange));
    }
}

void OrderControls::ShowProgress(const GeneratorWindow& window) {
    for (std::size_t at = 0; at < kept_.size(); ++at) {
        const int wanted = window.Searched().wanted[at + 1];
        kept_[at]->setText(wanted == 0
                               ? QString()
                               : u"%1 of %2 made"_s.arg(window.Counts().kept[at + 1]).arg(wanted));
    }
}

// Nothing chosen yet is no mistake.
void OrderControls::ShowError(const GeneratorWindow& window) {
    error_->setText(ToQString(window.Error()));
    error_->setVisible(!window.Error().empty());
    error_->setForegroundRole(window.Order().Wanted() == 0 ? QPalette::PlaceholderText
                                                           : QPalette::BrightText);
}

GeneratorOrder OrderControls::Entered() const {
    GeneratorOrder order;
    for (std::size_t at = 0; at < wanted_.size(); ++at) {
        order.wanted[at] = wanted_[at]->value();
    }
    order.symmetry = static_cast<Symmetry>(symmetry_->currentIndex());
    order.neededSlot = technique_->currentData().toInt();
    order.clues = fromTo_->isChecked() ? ClueChoice::FromTo : ClueChoice::SuitsTheLevel;
    order.fewestClues = fewest_->value();
    order.mostClues = most_->value();
    order.minimality = minimal_->isChecked() ? Minimality::Minimal : Minimality::Any;
    order.mostTries = static_cast<std::int64_t>(tries_->value());
    order.mostMinutes = minutes_->value();
    order.seed = seed_->text().trimmed().toStdString();
    return order;
}

// Typing replaces the number that has the keyboard at first.
void OrderControls::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    wanted_.front()->selectAll();
}

}  // namespace vemo
