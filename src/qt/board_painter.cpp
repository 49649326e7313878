// Paints a screen's board.
#include "qt/board_painter.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "qt/board_links.h"
#include "qt/role_shapes.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

// What is left of a text that a filter dims.
constexpr double kDimmedShare = 0.38;
// What is left of a mark under "Dimmed Pencilmarks": soft, and still to be read.
constexpr double kDimmedMarkShare = 0.6;

// A mark that a click would act on.
bool IsMarkPointed(const Screen& screen, const BoardTarget& pointed) {
    return pointed.kind == BoardTarget::Kind::Cell && pointed.digit != 0 && screen.isBoardEnabled &&
           !screen.isBrushPointer &&
           screen
               .marks[static_cast<std::size_t>(pointed.index)]
                     [static_cast<std::size_t>(pointed.digit - 1)]
               .isShown;
}

}  // namespace

void WorkInDevicePixels(QPainter& painter, double scale) {
    const QPointF origin = painter.deviceTransform().map(QPointF(0, 0));
    const QPointF shift(std::round(origin.x()) - origin.x(), std::round(origin.y()) - origin.y());
    QTransform transform;
    transform.translate(shift.x() / scale, shift.y() / scale);
    transform.scale(1 / scale, 1 / scale);
    painter.setWorldTransform(transform);
}

WellsRoom WellsRoomOf(const Screen& screen) {
    return screen.Command(CommandId::OptionsWells).isChecked ? WellsRoom::Kept : WellsRoom::None;
}

BoardPainter::BoardPainter(QPainter& painter, const BoardGeometry& board, const BoardColors& colors,
                           const QFont& font)
    : painter_(painter), board_(board), colors_(colors), font_(font) {}

void BoardPainter::Paint(const Screen& screen, const QRect& dirty, const BoardTouch& touch) {
    if (dirty.intersects(board_.Frame())) {
        painter_.fillRect(board_.Board(), colors_.theme.board);
        if (!screen.isBoardCovered) {
            for (int number = 0; number < kCells; ++number) {
                if (dirty.intersects(board_.Cell(number))) {
                    PaintCell(screen, number, touch);
                }
            }
        }
        if (screen.isBoardCovered) {
            PaintCover();
        } else {
            PaintLines();
            DrawLinks(painter_, board_, screen, colors_);
        }
    }
    for (int index = 0; index < 9; ++index) {
        PaintStrip(screen, UnitKind::Row, index);
        PaintStrip(screen, UnitKind::Column, index);
    }
}

QColor BoardPainter::FillOf(const CellView& cell, const BoardColors& colors) {
    if (cell.isHintCell) {
        return colors.Hint(HintColor::HintCell);
    }
    if (cell.brush != kNoBrush) {
        return colors.Brush(cell.brush);
    }
    if (cell.isSameDigit) {
        return colors.theme.sameDigit;
    }
    return cell.isUnitTint ? colors.Hint(HintColor::UnitTint) : colors.theme.board;
}

void BoardPainter::PaintCell(const Screen& screen, int number, const BoardTouch& touch) {
    const CellView& cell = screen.cells[static_cast<std::size_t>(number)];
    const QRect place = board_.Cell(number);
    const QColor fill = FillOf(cell, colors_);
    if (fill != colors_.theme.board) {
        painter_.fillRect(place, fill);
    }
    // Below the marks: in a small cell it comes near them.
    if (number == screen.selectedCell) {
        PaintSelection(number, touch.hasFocus);
    }
    if (number == touch.pointed.index && IsMarkPointed(screen, touch.pointed)) {
        PaintPointed(touch.pointed);
    }
    if (cell.digit != 0) {
        PaintDigit(cell, place);
    } else {
        PaintMarks(screen, number);
    }
}

// A brush brings its own colour of text.
QColor BoardPainter::TextOn(const CellView& cell, const QColor& plain) const {
    const bool isPainted = cell.brush != kNoBrush && !cell.isHintCell;
    return MadeReadable(isPainted ? colors_.BrushText(cell.brush) : plain, FillOf(cell, colors_));
}

void BoardPainter::PaintDigit(const CellView& cell, const QRect& place) {
    const QColor fill = FillOf(cell, colors_);
    const Theme& theme = colors_.theme;
    QColor color = cell.isWrong  ? MadeReadable(colors_.Hint(HintColor::Attacked), fill)
                   : cell.isClue ? TextOn(cell, theme.clue)
                                 : TextOn(cell, theme.own);
    if (cell.isDimmed) {
        color = Mixed(fill, color, kDimmedShare);
    }
    painter_.setFont(FontOf(board_.digitPx, cell.isClue ? QFont::Bold : QFont::Normal));
    painter_.setPen(color);
    const QPointF center = QRectF(place).center();
    DrawCentered(painter_, center, QString::number(cell.digit));
    if (cell.isWrong) {
        painter_.setRenderHint(QPainter::Antialiasing);
        DrawStroke(painter_, center, 0.34 * board_.cell, color);
        painter_.setRenderHint(QPainter::Antialiasing, false);
    }
}

void BoardPainter::PaintMarks(const Screen& screen, int number) {
    const CellView& cell = screen.cells[static_cast<std::size_t>(number)];
    const QColor fill = FillOf(cell, colors_);
    const QColor text = TextOn(cell, colors_.theme.mark);
    for (int digit = 1; digit <= kDigits; ++digit) {
        const MarkView& mark =
            screen.marks[static_cast<std::size_t>(number)][static_cast<std::size_t>(digit - 1)];
        const QPointF center = board_.MarkCenter(number, digit);
        if (mark.role != Role::None) {
            DrawRole(painter_, center, board_.MarkRadius(), mark.role, digit,
                     FontOf(board_.markPx, QFont::Normal), colors_, fill);
        } else if (mark.isFiltered) {
            PaintFilteredMark(center, digit);
        } else if (mark.isShown) {
            painter_.setFont(FontOf(board_.markPx, QFont::Normal));
            painter_.setPen(mark.isDimmed ? Mixed(fill, text, kDimmedMarkShare) : text);
            DrawCentered(painter_, center, QString::number(digit));
        }
    }
}

void BoardPainter::PaintFilteredMark(const QPointF& center, int digit) {
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(colors_.theme.sameDigit);
    painter_.drawEllipse(center, board_.MarkRadius(), board_.MarkRadius());
    painter_.setRenderHint(QPainter::Antialiasing, false);
    painter_.setFont(FontOf(board_.markPx, QFont::Bold));
    painter_.setPen(colors_.theme.accent);
    DrawCentered(painter_, center, QString::number(digit));
}

void BoardPainter::PaintLines() {
    const QRect board = board_.Board();
    const auto draw = [this, &board](int line, int width, const QColor& color, const QRect& span) {
        const int offset = line * board_.cell - width / 2;
        painter_.fillRect(board.left() + offset, span.top(), width, span.height(), color);
        painter_.fillRect(span.left(), board.top() + offset, span.width(), width, color);
    };
    for (int line = 1; line < 9; ++line) {
        if (line % 3 != 0) {
            draw(line, board_.thin, colors_.theme.thinLine, board);
        }
    }
    for (int line = 0; line <= 9; line += 3) {
        draw(line, board_.thick, colors_.theme.thickLine, board_.Frame());
    }
}

void BoardPainter::PaintSelection(int number, bool hasFocus) {
    const int width = hasFocus ? std::max(2, board_.cell / 22) : std::max(1, board_.cell / 36);
    const double inset = board_.thick / 2 + board_.cell / 60 + width / 2.0;
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(QPen(colors_.theme.accent, width));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRoundedRect(QRectF(board_.Cell(number)).adjusted(inset, inset, -inset, -inset),
                             0.04 * board_.cell, 0.04 * board_.cell);
    painter_.restore();
}

void BoardPainter::PaintPointed(const BoardTarget& pointed) {
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(QPen(colors_.theme.accent, std::max(1, board_.thin)));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawEllipse(board_.MarkCenter(pointed.index, pointed.digit), board_.MarkRadius(),
                         board_.MarkRadius());
    painter_.setRenderHint(QPainter::Antialiasing, false);
}

void BoardPainter::PaintStrip(const Screen& screen, UnitKind kind, int index) {
    const auto at = static_cast<std::size_t>(index);
    const bool isRow = kind == UnitKind::Row;
    const LabelView& label = (isRow ? screen.rowLabels : screen.columnLabels)[at];
    const QRect room = board_.UnitStrip(kind, index);
    QColor color = colors_.theme.softText;
    if (label.brush != kNoBrush) {
        const int inset = board_.thin;
        painter_.setRenderHint(QPainter::Antialiasing);
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(colors_.Brush(label.brush));
        painter_.drawRoundedRect(room.adjusted(inset, inset, -inset, -inset), 0.06 * board_.cell,
                                 0.06 * board_.cell);
        painter_.setRenderHint(QPainter::Antialiasing, false);
        color = colors_.BrushText(label.brush);
    }
    const QColor wellColor = color;
    if (label.isRed) {
        const bool isPainted = label.brush != kNoBrush;
        color = MadeReadable(colors_.theme.wrong,
                             isPainted ? colors_.Brush(label.brush) : colors_.theme.window);
    }
    painter_.setFont(FontOf(board_.labelPx, label.isRed ? QFont::Bold : QFont::DemiBold));
    painter_.setPen(color);
    const char name = isRow ? RowLetter(index) : ColumnDigit(index);
    DrawCentered(painter_, board_.LabelCenter(kind, index, screen.areWellsShown),
                 QString(QLatin1Char(name)));
    if (screen.areWellsShown) {
        painter_.setPen(wellColor);
        PaintWell((isRow ? screen.rowWells : screen.columnWells)[at], kind, index);
    }
}

void BoardPainter::PaintWell(Marks well, UnitKind kind, int index) {
    painter_.setFont(FontOf(board_.wellPx, QFont::Normal));
    for (int digit = 1; digit <= kDigits; ++digit) {
        if (HasMark(well, digit)) {
            DrawCentered(painter_, board_.WellDigitCenter(kind, index, digit),
                         QString::number(digit));
        }
    }
}

void BoardPainter::PaintCover() {
    const QRect board = board_.Board();
    const int line = board_.thick;
    painter_.fillRect(board_.Frame(), colors_.theme.thickLine);
    painter_.fillRect(board_.Frame().adjusted(line, line, -line, -line), colors_.theme.panel);
    painter_.setFont(FontOf(board_.digitPx, QFont::DemiBold));
    painter_.setPen(colors_.theme.text);
    DrawCentered(painter_, QRectF(board).center() - QPointF(0, 0.2 * board_.cell), u"Paused"_s);
    painter_.setFont(FontOf(std::max(board_.labelPx, board_.markPx), QFont::Normal));
    painter_.setPen(colors_.theme.softText);
    DrawCentered(painter_, QRectF(board).center() + QPointF(0, 0.45 * board_.cell),
                 u"The Pause key goes on"_s);
}

QFont BoardPainter::FontOf(int pixels, QFont::Weight weight) const {
    QFont font = font_;
    font.setPixelSize(std::max(1, pixels));
    font.setWeight(weight);
    return font;
}

}  // namespace vemo
