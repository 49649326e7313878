// The shapes of the roles that candidates play in a hint.
#include "qt/role_shapes.h"

#include <cmath>

#include <QFontMetricsF>
#include <QPainter>

namespace vemo {
namespace {

constexpr double kLineShare = 0.2;  // of the radius

void DrawDigit(QPainter& painter, const QPointF& center, int digit, QFont font,
               const QColor& color) {
    if (digit == 0) {
        return;
    }
    font.setWeight(QFont::Bold);
    painter.setFont(font);
    painter.setPen(color);
    DrawCentered(painter, center, QString::number(digit));
}

}  // namespace

void DrawCentered(QPainter& painter, const QPointF& center, const QString& text) {
    // A figure's advance holds its side bearings, which are alike: its middle is the advance's.
    const QFontMetricsF metrics(painter.font());
    const double left = center.x() - metrics.horizontalAdvance(text) / 2;
    const double baseline = center.y() + metrics.capHeight() / 2;
    painter.drawText(QPointF(std::round(left), std::round(baseline)), text);
}

void DrawStroke(QPainter& painter, const QPointF& center, double radius, const QColor& color) {
    painter.setPen(QPen(color, std::max(1.0, kLineShare * radius), Qt::SolidLine, Qt::RoundCap));
    const QPointF reach(0.85 * radius, -0.75 * radius);
    painter.drawLine(center - reach, center + reach);
}

void DrawRole(QPainter& painter, const QPointF& center, double radius, Role role, int digit,
              const QFont& font, const BoardColors& colors, const QColor& ground) {
    const double line = std::max(1.0, kLineShare * radius);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    switch (role) {
    case Role::None:
        break;
    case Role::Pattern: {
        const QColor fill = colors.Hint(HintColor::Pattern);
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill);
        painter.drawEllipse(center, radius, radius);
        DrawDigit(painter, center, digit, font, ReadableOn(fill));
        break;
    }
    case Role::Second: {
        const QColor color = MadeReadable(colors.Hint(HintColor::SecondPattern), ground);
        const double half = radius - line / 2;
        painter.setPen(QPen(color, line));
        painter.drawRoundedRect(QRectF(center.x() - half, center.y() - half, 2 * half, 2 * half),
                                0.35 * radius, 0.35 * radius);
        DrawDigit(painter, center, digit, font, color);
        break;
    }
    case Role::Attacked: {
        const QColor color = MadeReadable(colors.Hint(HintColor::Attacked), ground);
        DrawDigit(painter, center, digit, font, color);
        DrawStroke(painter, center, radius, color);
        break;
    }
    case Role::Placed: {
        const QColor fill = colors.Hint(HintColor::Placed);
        const double ring = radius + line / 4;
        painter.setPen(QPen(fill, line));
        painter.drawEllipse(center, ring, ring);
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill);
        painter.drawEllipse(center, radius - 1.2 * line, radius - 1.2 * line);
        DrawDigit(painter, center, digit, font, ReadableOn(fill));
        break;
    }
    }
    painter.restore();
}

}  // namespace vemo
