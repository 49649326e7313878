// What can be printed.
#include "qt/printout.h"

#include <QRectF>

namespace vemo {

QRectF RoomOn(const QPageSize& paper, double margin) {
    const QRectF sheet({0, 0}, paper.size(QPageSize::Millimeter) * kDotsPerMillimeter);
    const double inset = margin * kDotsPerMillimeter;
    return sheet.adjusted(inset, inset, -inset, -inset);
}

QPageLayout WholePaper(const QPageSize& paper) {
    QPageLayout layout(paper, QPageLayout::Portrait, QMarginsF());
    layout.setMode(QPageLayout::FullPageMode);
    return layout;
}

}  // namespace vemo
