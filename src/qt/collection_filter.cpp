// The controls that say which sudokus of a collection are shown.
#include "qt/collection_filter.h"

#include <algorithm>

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QSpinBox>

#include "qt/form_controls.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kGap = 8;
constexpr int kLevelColumns = 2;

// One for each RowKind, in their order.
constexpr std::array<const char*, 8> kKindCaptions = {
    "All",        "Not checked",   "One solution",       "None or more solutions",
    "Duplicates", "No duplicates", "In the level files", "Not in the level files"};

// One for each TableColumn, in their order.
constexpr std::array<const char*, 8> kColumnCaptions = {
    "Number", "Clues", "Symmetry", "Level", "Hardest technique", "Steps", "Best time", "State"};

// Beside the symmetries: that none matters, and that any of them is wanted.
constexpr int kAnySymmetry = -1;
constexpr int kSymmetrical = -2;

int SymmetryData(const PuzzleFilter& filter) {
    if (filter.symmetry) {
        return static_cast<int>(*filter.symmetry);
    }
    return filter.isSymmetrical ? kSymmetrical : kAnySymmetry;
}

void Choose(QComboBox& combo, int data) {
    Put(combo, &QComboBox::currentIndex, &QComboBox::setCurrentIndex, combo.findData(data));
}

template <std::size_t size>
void AddCaptions(QComboBox& combo, const std::array<const char*, size>& captions) {
    for (const char* caption : captions) {
        combo.addItem(QString::fromLatin1(caption), combo.count());
    }
}

}  // namespace

CollectionFilter::CollectionFilter(Game& game, QWidget* parent) : QWidget(parent), game_(game) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGap);
    QFormLayout* form = MakeForm();
    column->addLayout(form);
    AddKinds(*form);
    form->addRow(MakeLevels());
    AddOrder(*form);
    showAll_ = new QPushButton(u"S&how All"_s, this);
    showAll_->setObjectName(u"CommandShowAll"_s);
    showAll_->setToolTip(u"Take all filters off"_s);
    connect(showAll_, &QPushButton::clicked, this, [this] {
        const TableOrder order = Entered();
        kind_->setFocus();
        game_.Collection().Show({{}, RowKind::All, order.column, order.isDescending});
    });
    column->addWidget(showAll_, 0, Qt::AlignLeft);
    column->addStretch(1);
    for (QComboBox* combo : {kind_, symmetry_, technique_, column_}) {
        connect(combo, &QComboBox::currentIndexChanged, this, [this] { Report(); });
    }
    ShowOrder(game.Collection().Window().Order());
}

void CollectionFilter::AddKinds(QFormLayout& form) {
    kind_ = AddCombo(form, u"ComboKind"_s, u"Show"_s);
    AddCaptions(*kind_, kKindCaptions);
    clues_ = AddRange(form, u"Clues"_s, u"Clues"_s, kCells);
    digits_ = AddRange(form, u"Digits"_s, u"Digits used"_s, kDigits);
    emptyBoxes_ = AddRange(form, u"EmptyBoxes"_s, u"Empty boxes"_s, kDigits);
    symmetry_ = AddCombo(form, u"ComboSymmetryShown"_s, u"Symmetry"_s);
    symmetry_->addItem(u"All"_s, kAnySymmetry);
    symmetry_->addItem(u"Any of them"_s, kSymmetrical);
    for (const SymmetryRow& row : Symmetries()) {
        symmetry_->addItem(ToQString(row.caption), static_cast<int>(row.symmetry));
    }
    technique_ = AddCombo(form, u"ComboTechniqueShown"_s, u"Needs"_s);
    AddTechniques(*technique_);
    technique_->setToolTip(
        u"Rated sudokus that cannot be solved without this technique: looking for them takes time"_s);
}

QWidget* CollectionFilter::MakeLevels() {
    auto* levels = new QWidget(this);
    auto* grid = new QGridLayout(levels);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(2 * kGap);
    grid->setVerticalSpacing(kGap / 2);
    grid->addWidget(MakeLabel(u"Levels (none checked: all)"_s, levels), 0, 0, 1, kLevelColumns);
    for (std::size_t level = 0; level < levels_.size(); ++level) {
        const QString name =
            level == 0 ? u"Not rated"_s : ToQString(LevelName(static_cast<int>(level)));
        auto* box = new QCheckBox(name, levels);
        box->setObjectName(u"CheckLevel%1"_s.arg(level));
        box->setAccessibleName(u"Show level: "_s + name);
        connect(box, &QCheckBox::toggled, this, [this] { Report(); });
        // The levels down the columns, and behind them what has none.
        const int place = static_cast<int>((level + kLevels) % levels_.size());
        const int rows = static_cast<int>(levels_.size()) / kLevelColumns;
        grid->addWidget(box, 1 + place % rows, place / rows);
        levels_[level] = box;
    }
    return levels;
}

void CollectionFilter::AddOrder(QFormLayout& form) {
    column_ = AddCombo(form, u"ComboOrder"_s, u"Sort by"_s);
    AddCaptions(*column_, kColumnCaptions);
    descending_ = new QCheckBox(u"The highest first"_s, this);
    descending_->setObjectName(u"CheckDescending"_s);
    connect(descending_, &QCheckBox::toggled, this, [this] { Report(); });
    form.addRow(QString(), descending_);
}

// What is typed counts when it is complete: on the way to 28, nobody asks for 2.
CollectionFilter::Range CollectionFilter::AddRange(QFormLayout& form, const QString& name,
                                                   const QString& caption, int most) {
    const Range range{MakeSpin(u"SpinLeast"_s + name, caption + u", at least"_s, 0, most, this),
                      MakeSpin(u"SpinMost"_s + name, caption + u", at most"_s, 0, most, this)};
    for (QSpinBox* spin : {range.least, range.most}) {
        spin->setKeyboardTracking(false);
    }
    // An end that is moved beyond the other one takes it along.
    connect(range.least, &QSpinBox::valueChanged, this, [this, range](int value) {
        Put(*range.most, &QSpinBox::value, &QSpinBox::setValue,
            std::max(range.most->value(), value));
        Report();
    });
    connect(range.most, &QSpinBox::valueChanged, this, [this, range](int value) {
        Put(*range.least, &QSpinBox::value, &QSpinBox::setValue,
            std::min(range.least->value(), value));
        Report();
    });
    auto* line = new QWidget(this);
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    row->addWidget(range.least, 1);
    row->addWidget(MakeLabel(u"to"_s, line));
    row->addWidget(range.most, 1);
    AddRow(form, caption, line);
    return range;
}

QComboBox* CollectionFilter::AddCombo(QFormLayout& form, const QString& name,
                                      const QString& caption) {
    QComboBox* combo = MakeCombo(name, caption, this);
    AddRow(form, caption, combo);
    return combo;
}

void CollectionFilter::Report() {
    game_.Collection().Show(Entered());
}

void CollectionFilter::ShowOrder(const TableOrder& order) {
    const auto showRange = [](const Range& range, int least, int most) {
        Put(*range.least, &QSpinBox::value, &QSpinBox::setValue, least);
        Put(*range.most, &QSpinBox::value, &QSpinBox::setValue, most);
    };
    const PuzzleFilter& filter = order.filter;
    Choose(*kind_, static_cast<int>(order.kind));
    showRange(clues_, filter.clues.fewest, filter.clues.most);
    showRange(digits_, filter.digits.least, filter.digits.most);
    showRange(emptyBoxes_, filter.emptyBoxes.least, filter.emptyBoxes.most);
    Choose(*symmetry_, SymmetryData(filter));
    Choose(*technique_, filter.neededSlot);
    for (std::size_t level = 0; level < levels_.size(); ++level) {
        Check(*levels_[level], filter.levels[level]);
    }
    Choose(*column_, static_cast<int>(order.column));
    Check(*descending_, order.isDescending);
    showAll_->setEnabled(!order.ShowsAll());
}

TableOrder CollectionFilter::Entered() const {
    TableOrder order;
    PuzzleFilter& filter = order.filter;
    order.kind = static_cast<RowKind>(kind_->currentData().toInt());
    filter.clues = {clues_.least->value(), clues_.most->value()};
    filter.digits = {digits_.least->value(), digits_.most->value()};
    filter.emptyBoxes = {emptyBoxes_.least->value(), emptyBoxes_.most->value()};
    const int symmetry = symmetry_->currentData().toInt();
    if (symmetry >= 0) {
        filter.symmetry = static_cast<Symmetry>(symmetry);
    }
    filter.isSymmetrical = symmetry == kSymmetrical;
    filter.neededSlot = technique_->currentData().toInt();
    for (std::size_t level = 0; level < levels_.size(); ++level) {
        filter.levels[level] = levels_[level]->isChecked();
    }
    order.column = static_cast<TableColumn>(column_->currentData().toInt());
    order.isDescending = descending_->isChecked();
    return order;
}

int CollectionFilter::CountSet(const TableOrder& order) {
    const PuzzleFilter& filter = order.filter;
    const PuzzleFilter all;
    const std::array<bool, 7> areSet = {
        order.kind != RowKind::All,           filter.clues != all.clues,
        filter.digits != all.digits,          filter.emptyBoxes != all.emptyBoxes,
        SymmetryData(filter) != kAnySymmetry, filter.levels.any(),
        filter.neededSlot != kNoSlot};
    return static_cast<int>(std::ranges::count(areSet, true));
}

}  // namespace vemo
