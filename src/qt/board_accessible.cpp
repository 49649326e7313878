// The board for screen readers.
#include "qt/board_accessible.h"

#include <array>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include "qt/board_widget.h"
#include "qt/screen_text.h"

namespace vemo {
namespace {

// One cell. The registry of accessible objects owns it; its table takes it out again.
class CellAccessible final : public QAccessibleInterface, public QAccessibleTableCellInterface {
  public:
    CellAccessible(BoardWidget* board, int cell) : board_(board), cell_(cell) {}

    bool isValid() const override { return board_ != nullptr; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(board_);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name) {
            return CellText(board_->Shown(), cell_);
        }
        return kind == QAccessible::Description ? CellHintText(board_->Shown(), cell_) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        const QRect rect = board_->CellRect(cell_);
        return {board_->mapToGlobal(rect.topLeft()), rect.size()};
    }
    QAccessible::Role role() const override { return QAccessible::Cell; }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TableCellInterface
                   ? static_cast<QAccessibleTableCellInterface*>(this)
                   : nullptr;
    }

    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    int columnIndex() const override { return CellColumn(cell_); }
    int rowIndex() const override { return CellRow(cell_); }
    QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    bool isSelected() const override { return board_->Shown().selectedCell == cell_; }
    QAccessibleInterface* table() const override { return parent(); }

  private:
    QPointer<BoardWidget> board_;
    int cell_;
};

QAccessible::State CellAccessible::state() const {
    QAccessible::State state;
    state.focusable = true;
    state.selectable = true;
    state.selected = isSelected();
    state.focused = state.selected && board_->hasFocus();
    state.disabled = !board_->Shown().isBoardEnabled;
    return state;
}

class BoardAccessible final : public QAccessibleWidget, public QAccessibleTableInterface {
  public:
    explicit BoardAccessible(BoardWidget* board)
        : QAccessibleWidget(board, QAccessible::Table), board_(board) {
        for (std::size_t cell = 0; cell < ids_.size(); ++cell) {
            ids_[cell] = QAccessible::registerAccessibleInterface(
                new CellAccessible(board, static_cast<int>(cell)));
        }
    }
    ~BoardAccessible() override {
        for (const QAccessible::Id id : ids_) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }

    int childCount() const override { return kCells; }
    QAccessibleInterface* child(int index) const override { return CellOrNull(index); }
    QAccessibleInterface* childAt(int x, int y) const override {
        return CellOrNull(board_->CellAt(board_->mapFromGlobal(QPoint(x, y))));
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        for (int cell = 0; cell < kCells; ++cell) {
            if (CellOrNull(cell) == child) {
                return cell;
            }
        }
        return -1;
    }
    QAccessibleInterface* focusChild() const override {
        return board_->hasFocus() ? CellOrNull(board_->Shown().selectedCell) : nullptr;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override {
        const bool isInside = row >= 0 && row < 9 && column >= 0 && column < 9;
        return isInside ? CellOrNull(RowColumnCell(row, column)) : nullptr;
    }
    int selectedCellCount() const override { return Selected() == kNoCell ? 0 : 1; }
    QList<QAccessibleInterface*> selectedCells() const override {
        return Selected() == kNoCell ? QList<QAccessibleInterface*>()
                                     : QList<QAccessibleInterface*>{CellOrNull(Selected())};
    }
    QString columnDescription(int column) const override { return QString::number(column + 1); }
    QString rowDescription(int row) const override { return QString(QLatin1Char(RowLetter(row))); }
    int columnCount() const override { return 9; }
    int rowCount() const override { return 9; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override {}

  private:
    int Selected() const { return board_->Shown().selectedCell; }
    QAccessibleInterface* CellOrNull(int cell) const {
        const bool isCell = cell >= 0 && cell < kCells;
        return isCell ? QAccessible::accessibleInterface(ids_[static_cast<std::size_t>(cell)])
                      : nullptr;
    }

    BoardWidget* board_;
    std::array<QAccessible::Id, kCells> ids_{};
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
    auto* board = qobject_cast<BoardWidget*>(object);
    return board == nullptr ? nullptr : new BoardAccessible(board);
}

}  // namespace

void InstallBoardAccessibility() {
    QAccessible::installFactory(MakeAccessible);
}

}  // namespace vemo
