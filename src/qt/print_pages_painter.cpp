// Paints pages of sudokus.
#include "qt/print_pages_painter.h"

#include <cmath>
#include <memory>

#include <QFontMetricsF>
#include <QPainter>

#include "qt/screen_text.h"

namespace vemo {

namespace {

QPointF InDots(double x, double y) {
    return QPointF(x, y) * kDotsPerMillimeter;
}

void PaintLabel(QPainter& painter, const PageLabel& label) {
    QFont font = painter.font();
    font.setPixelSize(static_cast<int>(std::lround(label.size * kDotsPerMillimeter)));
    font.setWeight(label.weight == PageWeight::Bold ? QFont::Bold : QFont::Normal);
    const QFontMetricsF metrics(font);
    const QString text = ToQString(label.text);
    const double width = metrics.horizontalAdvance(text);
    const double left = label.align == PageAlign::Left     ? 0
                        : label.align == PageAlign::Center ? -width / 2
                                                           : -width;
    painter.save();
    painter.setFont(font);
    painter.translate(InDots(label.x, label.y));
    painter.rotate(label.isTurned ? 180 : 0);
    painter.drawText(QPointF(left, metrics.capHeight() / 2), text);
    painter.restore();
}

void PaintPage(QPainter& painter, const Page& page) {
    painter.setRenderHint(QPainter::Antialiasing);
    for (const PageBar& bar : page.bars) {
        painter.fillRect(
            QRectF(InDots(bar.left, bar.top), QSizeF(bar.width, bar.height) * kDotsPerMillimeter),
            Qt::black);
    }
    painter.setPen(Qt::black);
    // A hint grid for the screen would shift digits by parts of a millimetre.
    QFont font = painter.font();
    font.setHintingPreference(QFont::PreferNoHinting);
    painter.setFont(font);
    for (const PageLabel& label : page.labels) {
        PaintLabel(painter, label);
    }
}

}  // namespace

QPageSize PageSizeOf(Paper paper) {
    return QPageSize(paper == Paper::A4 ? QPageSize::A4 : QPageSize::Letter);
}

Printout PrintoutOf(const PrintJob& job, const QString& name) {
    Printout printout;
    printout.name = name;
    printout.paper = PageSizeOf(job.style.paper);
    printout.pages = PageCount(job);
    // Printouts are copied; their sudokus need not be.
    printout.paint = [kept = std::make_shared<const PrintJob>(job)](QPainter& painter, int page) {
        PaintPage(painter, MakePage(*kept, page));
    };
    return printout;
}

}  // namespace vemo
