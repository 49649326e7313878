// Prints a plain text over as many pages as it needs.
#include "qt/print_text.h"

#include <algorithm>

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr double kPointSize = 9;
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

// The pages that the player asked for, from 1.
struct Pages {
    int first;
    int last;
};

Pages PagesOf(const QPrinter& printer, int count) {
    if (printer.printRange() != QPrinter::PageRange || printer.fromPage() == 0) {
        return {1, count};
    }
    const int last = printer.toPage() == 0 ? count : printer.toPage();
    return {printer.fromPage(), std::min(last, count)};
}

}  // namespace

int PrintText(QPrinter& printer, const QString& title, const QString& text) {
    QPainter painter;
    if (!painter.begin(&printer)) {
        return 0;
    }
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(kPointSize);
    painter.setFont(font);
    painter.setPen(Qt::black);
    const QRectF page(QPointF(0, 0),
                      QSizeF(printer.pageLayout().paintRectPixels(printer.resolution()).size()));
    const QFontMetricsF metrics(font, &printer);
    const double line = metrics.lineSpacing();
    const auto across = static_cast<qsizetype>(page.width() / metrics.horizontalAdvance(u'0'));
    const int perPage = std::max(1, static_cast<int>(page.height() / line - kFooterLines));
    const QStringList lines = Wrapped(text, std::max<qsizetype>(1, across));
    const int count = static_cast<int>((lines.size() + perPage - 1) / perPage);
    const Pages pages = PagesOf(printer, count);
    for (int number = pages.first; number <= pages.last; ++number) {
        if (number > pages.first) {
            printer.newPage();
        }
        double baseline = metrics.ascent();
        for (const QString& content : lines.mid((number - 1) * perPage, perPage)) {
            painter.drawText(QPointF(0, baseline), content);
            baseline += line;
        }
        painter.drawText(page, Qt::AlignBottom | Qt::AlignLeft, title);
        painter.drawText(page, Qt::AlignBottom | Qt::AlignRight,
                         u"Page %1 of %2"_s.arg(number).arg(count));
    }
    return count;
}

}  // namespace vemo
