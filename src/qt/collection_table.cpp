// The table of a collection's sudokus.
#include "qt/collection_table.h"

#include <algorithm>
#include <array>

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>

#include "game/collection_texts.h"
#include "model/times.h"
#include "qt/row_table.h"
#include "qt/screen_text.h"
#include "tools/puzzle_table.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

// One for each TableColumn, in their order.
constexpr std::array<RowTableColumn, 8> kColumnRows = {{{"Number", "1,000,000"},
                                                        {"Clues", "00"},
                                                        {"Symmetry", "Upright mirror"},
                                                        {"Level", "Kamikaze"},
                                                        {"Hardest technique", "Short Nice Loops"},
                                                        {"Steps", "0000"},
                                                        {"Best time", "00:00"},
                                                        {"State", "more than one solution"}}};
constexpr int kColumns = static_cast<int>(kColumnRows.size());

QString TextOf(const CollectionWindow& window, std::uint32_t number, TableColumn column) {
    const TableRow& row = window.Table().Row(number);
    const bool isRated = row.Level() != 0;
    switch (column) {
    case TableColumn::Number:
        return ToQString(Grouped(std::size_t{number} + 1));
    case TableColumn::Clues:
        return QString::number(row.Facts().clues);
    case TableColumn::Symmetry:
        return ToQString(Symmetries()[static_cast<std::size_t>(row.Facts().Main())].caption);
    case TableColumn::Level:
        return isRated ? ToQString(LevelName(row.Level())) : QString();
    case TableColumn::Hardest:
        return isRated ? HardestText(row.Level(), row.HardestSlot()) : QString();
    case TableColumn::Steps:
        return isRated ? QString::number(row.Steps()) : QString();
    case TableColumn::Best:
        return row.Best().IsNone() ? QString() : ToQString(FormatTime(row.Best()));
    case TableColumn::State:
        return ToQString(window.StateOf(number));
    }
    return {};
}

// Numbers stand below each other by their last digit.
int AlignmentOf(int section) {
    const auto column = static_cast<TableColumn>(section);
    const bool isNumber = column == TableColumn::Number;
    const bool isCentred =
        column == TableColumn::Clues || column == TableColumn::Steps || column == TableColumn::Best;
    return int(Qt::AlignVCenter | (isNumber    ? Qt::AlignRight
                                   : isCentred ? Qt::AlignHCenter
                                               : Qt::AlignLeft));
}

}  // namespace

bool CollectionModel::Follow() {
    const int rows = static_cast<int>(window_.Shown().Size());
    const bool areOthers = window_.ShownVersion() != version_ || rows < rows_;
    if (areOthers) {
        beginResetModel();
        version_ = window_.ShownVersion();
        rows_ = rows;
        endResetModel();
    } else if (rows > rows_) {
        beginInsertRows({}, rows_, rows - 1);
        rows_ = rows;
        endInsertRows();
    }
    return areOthers;
}

int CollectionModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int CollectionModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kColumns;
}

QVariant CollectionModel::data(const QModelIndex& index, int role) const {
    const auto at = static_cast<std::size_t>(index.row());
    // The game's list may be ahead of the model, and shorter.
    if (!index.isValid() || at >= window_.Shown().Size()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return TextOf(window_, window_.Shown()[at], static_cast<TableColumn>(index.column()));
    case Qt::TextAlignmentRole:
        return AlignmentOf(index.column());
    default:
        return {};
    }
}

QVariant CollectionModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return QString::fromLatin1(kColumnRows[static_cast<std::size_t>(section)].caption);
    case Qt::ToolTipRole:
        return u"Sort by this column; again: the other way round"_s;
    case Qt::TextAlignmentRole:
        return AlignmentOf(section);
    default:
        return {};
    }
}

CollectionTable::CollectionTable(Game& game, QWidget* parent)
    : QTableView(parent),
      game_(game),
      model_(new CollectionModel(game.Collection().Window(), this)) {
    setObjectName(u"ListCollection"_s);
    setAccessibleName(u"Sudokus"_s);
    setModel(model_);
    SetUpRows(*this);
    setSelectionMode(ExtendedSelection);
    QHeaderView& header = *horizontalHeader();
    header.setSectionsClickable(true);
    header.setSortIndicatorShown(true);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    FitColumns(*this, kColumnRows);
    connect(&header, &QHeaderView::sectionClicked, this, [this](int section) { SortBy(section); });
}

void CollectionTable::ShowRows() {
    const QScopedValueRollback following(isFollowing_, true);
    const CollectionWindow& window = game_.Collection().Window();
    const bool areOthers = model_->Follow();
    const auto place = window.CurrentPlace();
    if (place && static_cast<int>(*place) != currentIndex().row()) {
        setCurrentIndex(model_->index(static_cast<int>(*place), 0));
    }
    if (areOthers && window.IsForSelected()) {
        SelectRows(window.Selected());
    }
    const TableOrder& order = window.Order();
    horizontalHeader()->setSortIndicator(static_cast<int>(order.column), order.isDescending
                                                                             ? Qt::DescendingOrder
                                                                             : Qt::AscendingOrder);
    viewport()->update();
}

void CollectionTable::SelectRows(const std::vector<ShownRange>& ranges) {
    QItemSelection rows;
    for (const ShownRange& range : ranges) {
        const auto first = static_cast<int>(range.first);
        const auto last = static_cast<int>(range.first + range.count - 1);
        rows.append(QItemSelectionRange(model_->index(first, 0),
                                        model_->index(last, model_->columnCount() - 1)));
    }
    selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
}

void CollectionTable::SortBy(int section) {
    TableOrder order = game_.Collection().Window().Order();
    const auto column = static_cast<TableColumn>(section);
    order.isDescending = column == order.column && !order.isDescending;
    order.column = column;
    game_.Collection().Show(order);
}

void CollectionTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    ReportSelection();
}

void CollectionTable::selectionChanged(const QItemSelection& selected,
                                       const QItemSelection& deselected) {
    QTableView::selectionChanged(selected, deselected);
    ReportSelection();
}

void CollectionTable::ReportSelection() {
    if (isFollowing_) {
        return;
    }
    std::vector<ShownRange> ranges;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        ranges.push_back(
            {static_cast<std::size_t>(range.top()), static_cast<std::size_t>(range.height())});
    }
    std::ranges::sort(ranges, {}, &ShownRange::first);
    const QModelIndex current = currentIndex();
    game_.Collection().Select(
        std::move(ranges),
        current.isValid() ? std::optional(static_cast<std::size_t>(current.row())) : std::nullopt);
}

void CollectionTable::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    FitLastColumn(*this, kColumnRows.back());
}

void CollectionTable::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        FitColumns(*this, kColumnRows);
    }
}

// The toolkit would copy one cell; and look through all rows for what is typed.
void CollectionTable::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        Q_EMIT CopyWanted();
    } else if (event->modifiers() == Qt::NoModifier && event->text().trimmed().size() == 1) {
        event->ignore();
    } else {
        QTableView::keyPressEvent(event);
    }
}

// In a table of whole rows the first and the last are rows, too.
QModelIndex CollectionTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (action == MoveHome || action == MoveEnd) {
        const int last = model_->rowCount() - 1;
        return model_->index(action == MoveHome ? 0 : last, currentIndex().column());
    }
    return QTableView::moveCursor(action, modifiers);
}

void CollectionTable::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (model_->rowCount() == 0) {
        const int pad = fontMetrics().height();
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(viewport()->rect().adjusted(pad, pad, -pad, -pad),
                         int(Qt::AlignCenter) | Qt::TextWordWrap, Invitation());
    }
}

QString CollectionTable::Invitation() const {
    const CollectionWindow& window = game_.Collection().Window();
    if (window.Job() == CollectionJob::Read) {
        return {};
    }
    if (!window.IsOpen()) {
        return u"Open a file of sudokus, or drop one here"_s;
    }
    return window.Order().ShowsAll() ? u"There is no sudoku here"_s
                                     : u"No sudoku passes the filters"_s;
}

}  // namespace vemo
