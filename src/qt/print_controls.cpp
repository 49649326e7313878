// The controls with which a player orders what is printed.
#include "qt/print_controls.h"

#include <algorithm>
#include <utility>

#include <QBoxLayout>
#include <QComboBox>
#include <QRadioButton>
#include <QSpinBox>

#include "qt/form_controls.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kGap = 8;

QStringList LevelNames() {
    QStringList names;
    for (const std::string_view name : kLevelNames) {
        names << ToQString(name);
    }
    return names;
}

QStringList PerPageNames() {
    QStringList names;
    for (const int count : kPerPage) {
        names << (count == 1 ? u"1 sudoku"_s : u"%1 sudokus"_s.arg(count));
    }
    return names;
}

int PerPageIndex(int perPage) {
    return static_cast<int>(std::ranges::find(kPerPage, perPage) - kPerPage.begin());
}

// Labels and controls that belong together, indented below their option button.
QLayout* Indented(const QList<QWidget*>& widgets) {
    auto* line = new QHBoxLayout;
    line->setSpacing(kGap);
    line->setContentsMargins(3 * kGap, 0, 0, 0);
    for (QWidget* widget : widgets) {
        line->addWidget(widget);
    }
    line->addStretch(1);
    return line;
}

}  // namespace

QStringList PaperNames() {
    return {u"A4"_s, u"Letter"_s};
}

PrintControls::PrintControls(Game& game, QWidget* parent) : QWidget(parent), game_(game) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGap);
    AddSources(*column);
    column->addSpacing(kGap);
    QFormLayout* form = MakeForm();
    column->addLayout(form);
    AddStyle(*form);
    column->addStretch(1);
    ShowOrder(game.CurrentPrint());
}

void PrintControls::AddSources(QBoxLayout& column) {
    column.addWidget(MakeLabel(u"What to print"_s, this));
    current_ = MakeSource(u"OptionCurrent"_s, u"The sudoku in the main window"_s);
    run_ = MakeSource(u"OptionRun"_s, u"Numbers of a level"_s);
    selection_ = MakeSource(u"OptionSelection"_s, QString());
    level_ = AddCombo(u"ComboLevel"_s, u"Level"_s, LevelNames());
    first_ = AddSpin(u"SpinFirst"_s, u"First number"_s);
    last_ = AddSpin(u"SpinLast"_s, u"Last number"_s);
    count_ = MakeLabel(QString(), this);
    count_->setForegroundRole(QPalette::PlaceholderText);
    column.addWidget(current_);
    column.addWidget(run_);
    column.addLayout(Indented({level_}));
    column.addLayout(Indented({first_, MakeLabel(u"to"_s, this), last_, count_}));
    column.addWidget(selection_);
}

void PrintControls::AddStyle(QFormLayout& form) {
    content_ = AddCombo(u"ComboContent"_s, u"In the grids"_s,
                        {u"The puzzle"_s, u"The puzzle with pencil marks"_s, u"The current state"_s,
                         u"The solution"_s});
    content_->setItemData(static_cast<int>(PrintContent::PencilMarks),
                          u"All digits that the clues leave possible"_s, Qt::ToolTipRole);
    content_->setItemData(static_cast<int>(PrintContent::CurrentState),
                          u"With your digits and pencil marks, as played or saved"_s,
                          Qt::ToolTipRole);
    perPage_ = AddCombo(u"ComboPerPage"_s, u"On a page"_s, PerPageNames());
    perPage_->setToolTip(u"Fewer ones are printed larger"_s);
    solutions_ = AddCombo(u"ComboSolutions"_s, u"Solutions"_s,
                          {u"None"_s, u"Upside down below"_s, u"On the last pages"_s});
    paper_ = AddCombo(u"ComboPaper"_s, u"Paper"_s, PaperNames());
    AddRow(form, u"In the grids"_s, content_);
    AddRow(form, u"On a page"_s, perPage_);
    AddRow(form, u"Solutions"_s, solutions_);
    AddRow(form, u"Paper"_s, paper_);
}

QRadioButton* PrintControls::MakeSource(const QString& name, const QString& text) {
    auto* option = new QRadioButton(text, this);
    option->setObjectName(name);
    connect(option, &QRadioButton::clicked, this, [this] { Report(); });
    return option;
}

QComboBox* PrintControls::AddCombo(const QString& name, const QString& spoken,
                                   const QStringList& choices) {
    QComboBox* combo = MakeCombo(name, spoken, this);
    combo->addItems(choices);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(combo, &QComboBox::currentIndexChanged, this, [this] { Report(); });
    return combo;
}

QSpinBox* PrintControls::AddSpin(const QString& name, const QString& spoken) {
    QSpinBox* spin = MakeSpin(name, spoken, 1, 1, this);
    connect(spin, &QSpinBox::valueChanged, this, [this] { Report(); });
    return spin;
}

void PrintControls::Report() {
    game_.PrintChange(Entered());
}

void PrintControls::ShowOrder(const PrintWindow& window) {
    const PrintOrder& order = window.Order();
    Check(*current_, order.source == PrintSource::Current);
    Check(*run_, order.source == PrintSource::Run);
    Check(*selection_, order.source == PrintSource::Selection);
    selection_->setVisible(window.HasSelection());
    selection_->setText(ToQString(window.SelectionName()));
    const auto choose = [](QComboBox& combo, int index) {
        Put(combo, &QComboBox::currentIndex, &QComboBox::setCurrentIndex, index);
    };
    choose(*level_, order.level - 1);
    const int most = std::max(1, window.LevelCount());
    count_->setText(u"of %1"_s.arg(window.LevelCount()));
    for (const auto& [spin, number] : {std::pair{first_, order.first}, {last_, order.last}}) {
        const QSignalBlocker blocker(spin);
        spin->setRange(1, std::max(most, number));
        Put(*spin, &QSpinBox::value, &QSpinBox::setValue, number);
    }
    for (QWidget* input : {static_cast<QWidget*>(level_), static_cast<QWidget*>(first_),
                           static_cast<QWidget*>(last_)}) {
        input->setEnabled(order.source == PrintSource::Run);
    }
    choose(*content_, static_cast<int>(order.style.content));
    choose(*perPage_, PerPageIndex(order.style.perPage));
    choose(*solutions_, static_cast<int>(order.style.solutions));
    solutions_->setEnabled(order.style.content != PrintContent::Solution);
    choose(*paper_, static_cast<int>(order.style.paper));
}

PrintOrder PrintControls::Entered() const {
    PrintOrder order;
    order.source = run_->isChecked()         ? PrintSource::Run
                   : selection_->isChecked() ? PrintSource::Selection
                                             : PrintSource::Current;
    order.level = level_->currentIndex() + 1;
    order.first = first_->value();
    order.last = last_->value();
    order.style.content = static_cast<PrintContent>(content_->currentIndex());
    order.style.perPage = kPerPage[static_cast<std::size_t>(perPage_->currentIndex())];
    order.style.solutions = static_cast<SolutionPlace>(solutions_->currentIndex());
    order.style.paper = static_cast<Paper>(paper_->currentIndex());
    return order;
}

}  // namespace vemo
