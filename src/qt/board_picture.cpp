// A picture of a board.
#include "qt/board_picture.h"

#include <QPainter>
#include <QStringList>

#include "qt/board_diff.h"
#include "qt/board_painter.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

// What the hint says of the cells, for those who hear the board instead of seeing it.
QString DescriptionOf(const Screen& screen) {
    if (screen.isBoardCovered) {
        return u"Covered while the clock is stopped"_s;
    }
    QStringList cells;
    for (int cell = 0; cell < kCells; ++cell) {
        const QString hint = CellHintText(screen, cell);
        if (!hint.isEmpty()) {
            cells << CellText(screen, cell) + u": "_s + hint;
        }
    }
    return cells.isEmpty() ? u"No cell is colored by a hint"_s : cells.join(u"; "_s);
}

}  // namespace

void PaintBoardPicture(QPainter& painter, const QRect& room, double scale, const Screen& screen,
                       const BoardColors& colors, const QFont& font) {
    Screen shown = screen;
    BoardGeometry board = FitBoard(room.size(), scale, WellsRoomOf(screen));
    if (!board.AreWellsApart()) {
        shown.areWellsShown = false;
        board = FitBoard(room.size(), scale, WellsRoom::None);
    }
    board.corner += room.topLeft();
    BoardPainter(painter, board, colors, font).Paint(shown, room, {});
}

BoardPicture::BoardPicture(QWidget* parent) : QWidget(parent) {
    setAccessibleDescription(DescriptionOf(screen_));
}

void BoardPicture::ShowBoard(const Screen& screen, const BoardColors& colors) {
    const bool isAlike = !CompareBoards(screen_, screen).Any() &&
                         WellsRoomOf(screen_) == WellsRoomOf(screen) && colors_ == colors;
    screen_ = screen;
    colors_ = colors;
    if (!isAlike) {
        setAccessibleDescription(DescriptionOf(screen_));
        update();
    }
}

void BoardPicture::paintEvent(QPaintEvent*) {
    const double scale = devicePixelRatioF();
    // One pixel less: the widget itself may begin in the middle of one.
    const QSize room(static_cast<int>(width() * scale) - 1, static_cast<int>(height() * scale) - 1);
    QPainter painter(this);
    WorkInDevicePixels(painter, scale);
    PaintBoardPicture(painter, {QPoint(0, 0), room}, scale, screen_, colors_, font());
}

}  // namespace vemo
