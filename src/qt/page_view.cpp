// Shows one page of a printout.
#include "qt/page_view.h"

#include <algorithm>

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include "qt/theme.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr double kRoom = 16;  // logical pixels around the page
constexpr double kLogicalPerInch = 96;
constexpr double kShade = 0.06;  // of the ground that the paper lies on
constexpr int kLeastSide = 120;

}  // namespace

PageView::PageView(QWidget* parent) : QAbstractScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(kLeastSide, kLeastSide);
    setAccessibleName(u"Preview"_s);
}

void PageView::ShowPrintout(const Printout& printout) {
    printout_ = printout;
    SetBars();
    TurnTo(page_);
}

void PageView::TurnTo(int page) {
    page_ = std::clamp(page, 0, std::max(0, printout_.pages - 1));
    setAccessibleDescription(printout_.pages == 0
                                 ? u"No page"_s
                                 : u"Page %1 of %2"_s.arg(page_ + 1).arg(printout_.pages));
    viewport()->update();
    if (onTurned) {
        onTurned();
    }
}

void PageView::SetZoom(int zoom) {
    zoom_ = zoom;
    SetBars();
    viewport()->update();
}

QSizeF PageView::PaperSize() const {
    return printout_.paper.size(QPageSize::Inch) * kLogicalPerInch;
}

QSizeF PageView::PageSize() const {
    const QSizeF paper = PaperSize();
    // Whether the other bar is shown must not depend on a size that depends on it.
    const QSizeF room = QSizeF(maximumViewportSize()) - QSizeF(2 * kRoom, 2 * kRoom);
    if (zoom_ == kWholePage) {
        return paper.scaled(room.expandedTo({1, 1}), Qt::KeepAspectRatio);
    }
    if (zoom_ == kPageWidth) {
        const double bar = verticalScrollBar()->sizeHint().width();
        return paper * std::max(1.0, room.width() - bar) / paper.width();
    }
    return paper * zoom_ / 100.0;
}

double PageView::Percent() const {
    return 100 * PageSize().width() / PaperSize().width();
}

void PageView::SetBars() {
    const QSizeF whole = PageSize() + QSizeF(2 * kRoom, 2 * kRoom);
    const QSize seen = zoom_ == kWholePage ? maximumViewportSize() : viewport()->size();
    const auto set = [](QScrollBar& bar, double length, int view) {
        bar.setPageStep(view);
        bar.setSingleStep(std::max(1, view / 10));
        bar.setRange(0, std::max(0, static_cast<int>(length) - view));
    };
    const bool isWhole = zoom_ == kWholePage;
    set(*verticalScrollBar(), isWhole ? 0 : whole.height(), seen.height());
    set(*horizontalScrollBar(), zoom_ > 0 ? whole.width() : 0, seen.width());
}

QRectF PageView::PagePlace() const {
    const QSizeF page = PageSize();
    const QSize view = viewport()->size();
    const auto start = [](double length, int room, const QScrollBar& bar) {
        return std::max(kRoom, (room - length) / 2) - bar.value();
    };
    return {QPointF(start(page.width(), view.width(), *horizontalScrollBar()),
                    start(page.height(), view.height(), *verticalScrollBar())),
            page};
}

void PageView::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    const QColor window = palette().color(QPalette::Window);
    const QColor ground = Mixed(window, palette().color(QPalette::WindowText), kShade);
    painter.fillRect(viewport()->rect(), ground);
    if (printout_.pages == 0) {
        return;
    }
    const QRectF place = PagePlace();
    painter.fillRect(place, Qt::white);
    painter.save();
    painter.setClipRect(place);
    painter.translate(place.topLeft());
    const double scale = place.width() / RoomOn(printout_.paper, 0).width();
    painter.scale(scale, scale);
    printout_.paint(painter, page_);
    painter.restore();
    painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
    painter.drawRect(place);
}

void PageView::resizeEvent(QResizeEvent*) {
    SetBars();
    viewport()->update();
}

void PageView::GoOn() {
    QScrollBar& bar = *verticalScrollBar();
    if (bar.value() < bar.maximum()) {
        bar.setValue(bar.value() + bar.pageStep());
    } else if (page_ + 1 < printout_.pages) {
        TurnTo(page_ + 1);
        bar.setValue(0);
    }
}

void PageView::GoBack() {
    QScrollBar& bar = *verticalScrollBar();
    if (bar.value() > 0) {
        bar.setValue(bar.value() - bar.pageStep());
    } else if (page_ > 0) {
        TurnTo(page_ - 1);
        bar.setValue(bar.maximum());
    }
}

void PageView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_PageDown:
    case Qt::Key_Space:
        GoOn();
        break;
    case Qt::Key_PageUp:
    case Qt::Key_Backspace:
        GoBack();
        break;
    case Qt::Key_Home:
        TurnTo(0);
        break;
    case Qt::Key_End:
        TurnTo(printout_.pages - 1);
        break;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

// The wheel turns whole pages; a page that is larger than its room is scrolled first.
void PageView::wheelEvent(QWheelEvent* event) {
    const QScrollBar& bar = *verticalScrollBar();
    const int turned = event->angleDelta().y();
    if (turned < 0 && bar.value() == bar.maximum()) {
        GoOn();
    } else if (turned > 0 && bar.value() == 0) {
        GoBack();
    } else {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    event->accept();
}

}  // namespace vemo
