// A small picture of a colour.
#include "qt/color_swatch.h"

#include <QPainter>

#include "game/color_check.h"
#include "qt/board_links.h"
#include "qt/role_shapes.h"

namespace vemo {
namespace {

constexpr double kRadius = 4;
constexpr int kDigit = 5;
constexpr double kDigitShare = 0.68;  // of the picture's height
constexpr double kDiscShare = 0.42;
constexpr double kLinkInset = 0.15;  // of the picture's width, at both ends

QRectF DrawGround(QPixmap& picture, QPainter& painter, const QColor& fill, const QColor& border) {
    const QRectF room(QPointF(0, 0), picture.deviceIndependentSize());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(border);
    painter.setBrush(fill);
    painter.drawRoundedRect(room.adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
    return room;
}

QPixmap Empty(QSize size, double scale) {
    QPixmap picture((QSizeF(size) * scale).toSize());
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    return picture;
}

Role RoleOf(HintColor color) {
    switch (color) {
    case HintColor::Attacked:
        return Role::Attacked;
    case HintColor::Pattern:
        return Role::Pattern;
    case HintColor::SecondPattern:
        return Role::Second;
    case HintColor::Placed:
        return Role::Placed;
    case HintColor::HintCell:
    case HintColor::UnitTint:
    case HintColor::StrongLink:
    case HintColor::WeakLink:
        break;
    }
    return Role::None;
}

bool IsLink(HintColor color) {
    return color == HintColor::StrongLink || color == HintColor::WeakLink;
}

// What a whole cell is filled with: the board where the colour is not for cells.
QColor GroundOf(int row, const BoardColors& colors) {
    if (IsBrush(row)) {
        return colors.Brush(row);
    }
    const HintColor color = HintColorAt(row);
    const bool fills = RoleOf(color) == Role::None && !IsLink(color);
    return fills ? colors.Hint(color) : colors.theme.board;
}

}  // namespace

QPixmap ColorSwatch(int row, const BoardColors& colors, QSize size, double scale, QFont font) {
    QPixmap picture = Empty(size, scale);
    QPainter painter(&picture);
    const QColor ground = GroundOf(row, colors);
    const QRectF room = DrawGround(picture, painter, ground, colors.theme.line);
    const QPointF middle = room.center();
    font.setPixelSize(static_cast<int>(kDigitShare * room.height()));
    const HintColor color = IsBrush(row) ? HintColor::HintCell : HintColorAt(row);
    const Role role = IsBrush(row) ? Role::None : RoleOf(color);
    if (role != Role::None) {
        DrawRole(painter, middle, kDiscShare * room.height(), role, kDigit, font, colors, ground);
    } else if (IsLink(color)) {
        const QPointF reach((0.5 - kLinkInset) * room.width(), 0);
        const LinkLook look{color == HintColor::StrongLink, false};
        DrawLinkSample(painter, middle - reach, middle + reach, look, 2 * room.height(), colors);
    } else {
        const QColor ink = IsBrush(row) ? colors.BrushText(row) : colors.theme.own;
        painter.setFont(font);
        painter.setPen(MadeReadable(ink, ground));
        DrawCentered(painter, middle, QString::number(kDigit));
    }
    return picture;
}

QPixmap PlainSwatch(const QColor& fill, const QColor& border, QSize size, double scale) {
    QPixmap picture = Empty(size, scale);
    QPainter painter(&picture);
    DrawGround(picture, painter, fill, border);
    return picture;
}

}  // namespace vemo
