// The list of the sudokus that the generator made.
#include "qt/made_list.h"

#include <array>

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>

#include "qt/row_table.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

enum Column : int { kLevel, kNumber, kClues, kSteps, kSymmetry, kHardest, kColumns };

constexpr std::array<RowTableColumn, kColumns> kColumnRows = {
    {{"Level", "Kamikaze"},
     {"Number", "not stored"},
     {"Clues", "00"},
     {"Steps", "000"},
     {"Symmetry", "Upright mirror"},
     {"Hardest technique", "Extended Aligned Triple"}}};

QVariant TextOf(const MadeSudoku& made, int column) {
    const RatedPuzzle& rated = made.rated;
    switch (column) {
    case kLevel:
        return ToQString(LevelName(rated.rating));
    case kNumber:
        return made.IsStored() ? QString::number(made.number) : u"not stored"_s;
    case kClues:
        return ClueCount(rated.puzzle.clues);
    case kSteps:
        return rated.steps;
    case kSymmetry:
        return ToQString(
            Symmetries()[static_cast<std::size_t>(SymmetryOf(rated.puzzle.clues))].caption);
    default:
        return HardestText(rated.rating, rated.hardestSlot);
    }
}

// Numbers stand apart from the texts beside them.
int AlignmentOf(int column) {
    const bool isNumber = column >= kNumber && column <= kSteps;
    return int(Qt::AlignVCenter | (isNumber ? Qt::AlignHCenter : Qt::AlignLeft));
}

}  // namespace

void MadeModel::Follow() {
    const GeneratorWindow& window = game_.CurrentGenerator();
    const int rows = static_cast<int>(window.Made().size());
    if (rows > rows_) {
        beginInsertRows({}, rows_, rows - 1);
        rows_ = rows;
        endInsertRows();
    }
    if (window.Unstored() != unstored_) {
        unstored_ = window.Unstored();
        Q_EMIT dataChanged(index(0, kNumber), index(rows_ - 1, kNumber));
    }
}

int MadeModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int MadeModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kColumns;
}

QVariant MadeModel::data(const QModelIndex& index, int role) const {
    const MadeSudoku& made = game_.CurrentGenerator().Made()[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return TextOf(made, index.column());
    case Qt::TextAlignmentRole:
        return AlignmentOf(index.column());
    default:
        return {};
    }
}

QVariant MadeModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return QString::fromLatin1(kColumnRows[static_cast<std::size_t>(section)].caption);
    case Qt::TextAlignmentRole:
        return AlignmentOf(section);
    default:
        return {};
    }
}

MadeList::MadeList(Game& game, QWidget* parent)
    : QTableView(parent), game_(game), model_(new MadeModel(game, this)) {
    setObjectName(u"ListMade"_s);
    setAccessibleName(u"Sudokus made"_s);
    setModel(model_);
    SetUpRows(*this);
    setSelectionMode(SingleSelection);
    horizontalHeader()->setSectionsClickable(false);
    FitColumns(*this, kColumnRows);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) {
                if (current.row() != game_.CurrentGenerator().Row()) {
                    game_.GeneratorSelect(current.row());
                }
            });
}

// Who looks at the newest sudoku goes on seeing the newest.
void MadeList::ShowMade(const GeneratorWindow& window) {
    const bool isAtEnd = verticalScrollBar()->value() == verticalScrollBar()->maximum();
    const int before = model_->rowCount();
    model_->Follow();
    if (window.Row() != currentIndex().row()) {
        selectRow(window.Row());
    }
    if (isAtEnd && model_->rowCount() != before) {
        scrollToBottom();
    }
}

void MadeList::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    FitLastColumn(*this, kColumnRows.back());
}

void MadeList::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        FitColumns(*this, kColumnRows);
    }
}

}  // namespace vemo
