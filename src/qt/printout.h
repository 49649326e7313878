// What can be printed: pages that paint themselves.
#pragma once

#include <functional>

#include <QPageLayout>
#include <QString>

class QPainter;
class QPagedPaintDevice;
class QRectF;

namespace vemo {

// The unit in which all pages are painted: far finer than any printer's ink.
inline constexpr double kDotsPerInch = 1200;
inline constexpr double kDotsPerMillimeter = kDotsPerInch / 25.4;

struct Printout {
    QString name;  // of the document
    QPageSize paper{QPageSize::A4};
    int pages = 0;
    // Paints a page, numbered from 0. The painter's unit is a dot, its origin the paper's upper
    // left corner. What is not to be printed is left white.
    std::function<void(QPainter& painter, int page)> paint;
};

// The paper within margins of so many millimetres, in dots.
QRectF RoomOn(const QPageSize& paper, double margin);
// The layout of a page whose margins are the painter's own affair.
QPageLayout WholePaper(const QPageSize& paper);

}  // namespace vemo
