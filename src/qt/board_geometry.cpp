// Where everything on the board stands, in whole device pixels.
#include "qt/board_geometry.h"

#include <algorithm>
#include <cmath>

namespace vemo {
namespace {

// Shares of a cell's side.
constexpr double kDigitShare = 0.56;
constexpr double kMarkShare = 0.215;
constexpr double kLabelShare = 0.19;
constexpr double kWellShare = 0.135;
constexpr double kThickShare = 0.036;
constexpr double kThinShare = 0.015;
constexpr double kMarkPitch = 0.312;
constexpr double kGapShare = 0.07;

// In heights of the well's text.
constexpr double kWellPitchAcross = 0.80;
constexpr double kWellPitchDown = 1.08;

// Logical pixels that a line around a box has at least.
constexpr double kThinnestThick = 1.6;

// Logical pixels below which a text is not read any more.
constexpr double kSmallestLabel = 10;
constexpr double kSmallestWell = 7.5;
constexpr double kSmallestMark = 9;
// The largest share of a cell that a mark can have and still stand clear of the next.
constexpr double kLargestMarkShare = 0.30;

int Rounded(double value) {
    return static_cast<int>(std::lround(value));
}

BoardGeometry OfCell(int cell, double scale, WellsRoom wells) {
    BoardGeometry board;
    board.cell = cell;
    board.thin = std::max(1, Rounded(kThinShare * cell));
    board.thick =
        std::max({board.thin + 1, Rounded(kThickShare * cell), Rounded(kThinnestThick * scale)});
    board.digitPx = Rounded(kDigitShare * cell);
    board.markPx =
        Rounded(std::clamp(kSmallestMark * scale, kMarkShare * cell, kLargestMarkShare * cell));
    board.labelPx = Rounded(std::max(kLabelShare * cell, kSmallestLabel * scale));
    const double gap = std::max(kGapShare * cell, 3 * scale);
    double across = 0.8 * board.labelPx + 2 * gap;
    double down = 0.8 * board.labelPx + 2 * gap;
    if (wells == WellsRoom::Kept) {
        board.wellPx = Rounded(std::max(kWellShare * cell, kSmallestWell * scale));
        across += 3 * kWellPitchAcross * board.wellPx + gap;
        down += 3 * kWellPitchDown * board.wellPx + gap;
    }
    board.strip = {Rounded(across), Rounded(down)};
    return board;
}

QSize SizeOf(const BoardGeometry& board) {
    const int side = 9 * board.cell + board.thick;
    return {board.strip.width() + side, board.strip.height() + side};
}

// -1, 0 or 1: how far a digit's place is from the middle one.
int StepAcross(int digit) {
    return (digit - 1) % 3 - 1;
}
int StepDown(int digit) {
    return (digit - 1) / 3 - 1;
}

}  // namespace

QRect BoardGeometry::Frame() const {
    const QPoint half(thick / 2, thick / 2);
    return {corner - half, QSize(9 * cell + thick, 9 * cell + thick)};
}

QRect BoardGeometry::Cell(int number) const {
    return {corner.x() + CellColumn(number) * cell, corner.y() + CellRow(number) * cell, cell,
            cell};
}

QPointF BoardGeometry::MarkCenter(int number, int digit) const {
    const QPointF middle = QRectF(Cell(number)).center();
    return middle + QPointF(StepAcross(digit), StepDown(digit)) * kMarkPitch * cell;
}

QRect BoardGeometry::UnitStrip(UnitKind kind, int index) const {
    if (kind == UnitKind::Row) {
        const QPoint topLeft(corner.x() - strip.width(), corner.y() + index * cell);
        return {topLeft, QSize(strip.width() - thick, cell)};
    }
    const QPoint topLeft(corner.x() + index * cell, corner.y() - strip.height());
    return {topLeft, QSize(cell, strip.height() - thick)};
}

QPointF BoardGeometry::LabelCenter(UnitKind kind, int index, bool hasWell) const {
    const QRectF room = UnitStrip(kind, index);
    const double wells = hasWell ? 3 * wellPx + 2 * kGapShare * cell : 0;
    if (kind == UnitKind::Row) {
        return {room.left() + (room.width() - wells * kWellPitchAcross) / 2, room.center().y()};
    }
    return {room.center().x(), room.top() + (room.height() - wells * kWellPitchDown) / 2};
}

QPointF BoardGeometry::WellDigitCenter(UnitKind kind, int index, int digit) const {
    const QRectF room = UnitStrip(kind, index);
    const QSizeF pitch(kWellPitchAcross * wellPx, kWellPitchDown * wellPx);
    const double gap = kGapShare * cell;
    const QPointF middle =
        kind == UnitKind::Row
            ? QPointF(room.right() - gap - 1.5 * pitch.width(), room.center().y())
            : QPointF(room.center().x(), room.bottom() - gap - 1.5 * pitch.height());
    return middle + QPointF(StepAcross(digit) * pitch.width(), StepDown(digit) * pitch.height());
}

bool BoardGeometry::AreWellsApart() const {
    return 3 * std::max(kWellPitchAcross, kWellPitchDown) * wellPx <= cell;
}

BoardTarget BoardGeometry::At(const QPointF& point) const {
    const double column = (point.x() - corner.x()) / cell;
    const double row = (point.y() - corner.y()) / cell;
    const bool isAcross = column >= 0 && column < 9;
    const bool isDown = row >= 0 && row < 9;
    if (isAcross && isDown) {
        const int number = RowColumnCell(static_cast<int>(row), static_cast<int>(column));
        const int place = 3 * (static_cast<int>(row * 3) % 3) + static_cast<int>(column * 3) % 3;
        return {BoardTarget::Kind::Cell, number, place + 1};
    }
    if (isDown && column < 0 && point.x() >= corner.x() - strip.width()) {
        return {BoardTarget::Kind::RowLabel, static_cast<int>(row), 0};
    }
    if (isAcross && row < 0 && point.y() >= corner.y() - strip.height()) {
        return {BoardTarget::Kind::ColumnLabel, static_cast<int>(column), 0};
    }
    return {};
}

BoardGeometry FitBoard(QSize size, double scale, WellsRoom wells) {
    BoardGeometry board;
    for (int cell = std::max(1, std::min(size.width(), size.height()) / 9); cell > 0; --cell) {
        board = OfCell(cell, scale, wells);
        const QSize needed = SizeOf(board);
        if (needed.width() <= size.width() && needed.height() <= size.height()) {
            break;
        }
    }
    const QSize left = size - SizeOf(board);
    board.corner = {board.strip.width() + std::max(0, left.width()) / 2,
                    board.strip.height() + std::max(0, left.height()) / 2};
    return board;
}

}  // namespace vemo
