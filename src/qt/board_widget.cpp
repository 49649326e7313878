// The board of the main window.
#include "qt/board_widget.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include "qt/board_diff.h"
#include "qt/board_painter.h"
#include "qt/brush_pointer.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

QRect Scaled(const QRectF& rect, double scale) {
    return QRectF(rect.topLeft() * scale, rect.size() * scale).toAlignedRect();
}

}  // namespace

BoardWidget::BoardWidget(Game& game, QWidget* parent) : QWidget(parent), game_(game) {
    setObjectName(u"Grid"_s);
    setAccessibleName(u"Sudoku grid"_s);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

void BoardWidget::ShowScreen(const Screen& screen, const BoardColors& colors) {
    const Screen before = std::exchange(screen_, screen);
    const bool isRecolored = colors != std::exchange(colors_, colors);
    const BoardDiff diff = CompareBoards(before, screen_);
    if (WellsRoomOf(before) != WellsRoomOf(screen_)) {
        Fit();
    }
    if (diff.isAll || isRecolored) {
        update();
    } else {
        for (int cell : diff.cells) {
            UpdateCell(cell);
        }
    }
    UpdatePointer();
    if (diff.Any() && QAccessible::isActive()) {
        Announce(before, diff);
    }
}

QRect BoardWidget::CellRect(int cell) const {
    return Scaled(board_.Cell(cell), 1 / scale_);
}

QRect BoardWidget::BoardRect() const {
    return Scaled(board_.Board(), 1 / scale_);
}

QPointF BoardWidget::MarkCenter(int cell, int digit) const {
    return board_.MarkCenter(cell, digit) / scale_;
}

int BoardWidget::CellAt(const QPoint& point) const {
    const BoardTarget target = TargetAt(point);
    return target.kind == BoardTarget::Kind::Cell ? target.index : kNoCell;
}

void BoardWidget::paintEvent(QPaintEvent* event) {
    if (devicePixelRatioF() != scale_) {
        Fit();
    }
    QPainter painter(this);
    WorkInDevicePixels(painter, scale_);
    BoardPainter(painter, board_, colors_, font())
        .Paint(screen_, Scaled(event->rect(), scale_), {hasFocus(), hovered_});
}

void BoardWidget::resizeEvent(QResizeEvent*) {
    Fit();
}

void BoardWidget::mousePressEvent(QMouseEvent* event) {
    pressed_ = TargetAt(event->position());
}

void BoardWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton && event->button() != Qt::RightButton) {
        return;
    }
    const MouseButton button =
        event->button() == Qt::LeftButton ? MouseButton::Left : MouseButton::Right;
    const BoardTarget pressed = std::exchange(pressed_, BoardTarget());
    const BoardTarget target = TargetAt(event->position());
    const bool isInside = target.kind == pressed.kind && target.index == pressed.index;
    const Released released = isInside ? Released::Inside : Released::Outside;
    switch (pressed.kind) {
    case BoardTarget::Kind::Cell:
        // A press on one mark and a release on another means neither of them.
        game_.GridMouseUp(pressed.index, target.digit == pressed.digit ? target.digit : 0, button,
                          released);
        break;
    case BoardTarget::Kind::RowLabel:
        game_.LabelRowMouseUp(pressed.index, button, released);
        break;
    case BoardTarget::Kind::ColumnLabel:
        game_.LabelColumnMouseUp(pressed.index, button, released);
        break;
    case BoardTarget::Kind::None:
        break;
    }
}

void BoardWidget::mouseMoveEvent(QMouseEvent* event) {
    const BoardTarget target = TargetAt(event->position());
    if (target == hovered_) {
        return;
    }
    Hover(target);
    if (target.kind == BoardTarget::Kind::Cell) {
        game_.GridMouseMove(target.index, target.digit);
    } else {
        game_.FormMouseMove();
    }
}

void BoardWidget::leaveEvent(QEvent*) {
    Hover(BoardTarget());
    game_.FormMouseMove();
}

void BoardWidget::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    if (screen_.selectedCell != kNoCell) {
        UpdateCell(screen_.selectedCell);
    }
}

void BoardWidget::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    if (screen_.selectedCell != kNoCell) {
        UpdateCell(screen_.selectedCell);
    }
}

void BoardWidget::Fit() {
    scale_ = devicePixelRatioF();
    // One pixel less: the widget itself may begin in the middle of one.
    const QSize room(static_cast<int>(width() * scale_) - 1,
                     static_cast<int>(height() * scale_) - 1);
    board_ = FitBoard(room, scale_, WellsRoomOf(screen_));
    update();
}

BoardTarget BoardWidget::TargetAt(const QPointF& point) const {
    return board_.At(point * scale_);
}

void BoardWidget::UpdateCell(int cell) {
    const int line = board_.thick + 1;
    update(Scaled(board_.Cell(cell).adjusted(-line, -line, line, line), 1 / scale_));
}

void BoardWidget::Hover(const BoardTarget& target) {
    for (const BoardTarget& touched : {std::exchange(hovered_, target), target}) {
        if (touched.kind == BoardTarget::Kind::Cell) {
            UpdateCell(touched.index);
        }
    }
}

void BoardWidget::UpdatePointer() {
    const Pointer wanted = screen_.isBrushPointer ? Pointer::Brush
                           : screen_.isLinkMode   ? Pointer::Link
                                                  : Pointer::Plain;
    if (wanted == std::exchange(pointer_, wanted)) {
        return;
    }
    switch (wanted) {
    case Pointer::Brush:
        setCursor(BrushPointer(devicePixelRatioF()));
        break;
    case Pointer::Link:
        setCursor(Qt::CrossCursor);
        break;
    case Pointer::Plain:
        unsetCursor();
        break;
    }
}

void BoardWidget::Announce(const Screen& before, const BoardDiff& diff) {
    if (hasFocus() && screen_.selectedCell != kNoCell &&
        before.selectedCell != screen_.selectedCell) {
        QAccessibleEvent focused(this, QAccessible::Focus);
        focused.setChild(screen_.selectedCell);
        QAccessible::updateAccessibility(&focused);
    }
    for (int cell : diff.cells) {
        if (CellText(before, cell) == CellText(screen_, cell)) {
            continue;
        }
        QAccessibleEvent renamed(this, QAccessible::NameChanged);
        renamed.setChild(cell);
        QAccessible::updateAccessibility(&renamed);
    }
}

}  // namespace vemo
