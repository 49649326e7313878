// A plain text as a printout.
#include "qt/print_text.h"

#include <algorithm>

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr double kPointSize = 9;
constexpr double kPointsPerInch = 72;
constexpr double kMargin = 15;      // millimetres
constexpr double kFooterLines = 2;  // below the text

// Lines of at most `across` characters, broken at a space where there is one.
QStringList Wrapped(const QString& text, qsizetype across) {
    QStringList lines;
    for (QStringView rest : QStringView(text).split(u'\n')) {
        while (rest.size() > across) {
            const qsizetype space = rest.lastIndexOf(u' ', across);
            const qsizetype end = space > 0 ? space : across;
            lines << rest.first(end).toString();
            rest = rest.sliced(space > 0 ? end + 1 : end);
        }
        lines << rest.toString();
    }
    return lines;
}

void PaintText(QPainter& painter, const QFont& font, const QRectF& page, const QStringList& lines,
               const QString& title, const QString& number) {
    const QFontMetricsF metrics(font);
    painter.setFont(font);
    painter.setPen(Qt::black);
    double baseline = page.top() + metrics.ascent();
    for (const QString& line : lines) {
        painter.drawText(QPointF(page.left(), baseline), line);
        baseline += metrics.lineSpacing();
    }
    painter.drawText(page, Qt::AlignBottom | Qt::AlignLeft, title);
    painter.drawText(page, Qt::AlignBottom | Qt::AlignRight, number);
}

}  // namespace

Printout TextPrintout(const QString& title, const QString& text, const QPageSize& paper) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(static_cast<int>(kPointSize * kDotsPerInch / kPointsPerInch));
    const QRectF page = RoomOn(paper, kMargin);
    const QFontMetricsF metrics(font);
    const auto across = static_cast<qsizetype>(page.width() / metrics.horizontalAdvance(u'0'));
    const int perPage =
        std::max(1, static_cast<int>(page.height() / metrics.lineSpacing() - kFooterLines));
    const QStringList lines = Wrapped(text, std::max<qsizetype>(1, across));
    const int count = static_cast<int>((lines.size() + perPage - 1) / perPage);
    const auto paint = [=](QPainter& painter, int number) {
        PaintText(painter, font, page, lines.mid(qsizetype{number} * perPage, perPage), title,
                  u"Page %1 of %2"_s.arg(number + 1).arg(count));
    };
    return {title, paper, count, paint};
}

}  // namespace vemo
