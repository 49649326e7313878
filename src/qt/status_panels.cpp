// The five panels of the status bar.
#include "qt/status_panels.h"

#include <QFontMetrics>
#include <QLabel>
#include <QPainter>

#include "qt/screen_text.h"
#include "qt/window_plan.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargin = 16;
constexpr int kGap = 28;
constexpr int kLinePad = 3;
constexpr int kOuterPad = 5;

constexpr int kLargestPart = 6;  // the bar takes at most this part of the window's height
constexpr double kScaleStep = 0.05;

}  // namespace

StatusPanels::StatusPanels(QWidget* parent) : QWidget(parent) {
    setObjectName(u"StatusBar"_s);
    setAccessibleName(u"Status"_s);
    for (std::size_t index = 0; index < labels_.size(); ++index) {
        auto* label = new QLabel(this);
        label->setObjectName(u"Panel%1"_s.arg(index + 1));
        label->setTextFormat(Qt::PlainText);
        labels_[index] = label;
    }
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void StatusPanels::ShowScreen(const Screen& screen) {
    bool isChanged = false;
    for (std::size_t index = 0; index < texts_.size(); ++index) {
        const QString text = ToQString(screen.status[index]);
        isChanged = isChanged || text != texts_[index];
        texts_[index] = text;
    }
    if (!isChanged) {
        return;
    }
    updateGeometry();
    Arrange();
}

void StatusPanels::FitInto(QSize window) {
    const QFont system = parentWidget()->font();
    const double smallest = kSmallestLine / QFontMetrics(system).height();
    QFont font = system;
    for (double scale = 1 - kScaleStep;
         scale >= smallest && PlanFor(window.width(), font).height * kLargestPart > window.height();
         scale -= kScaleStep) {
        font.setPointSizeF(system.pointSizeF() * scale);
    }
    if (font != this->font()) {
        setFont(font);
        Arrange();
    }
}

int StatusPanels::heightForWidth(int width) const {
    return PlanFor(width, font()).height;
}

QSize StatusPanels::sizeHint() const {
    return {width(), heightForWidth(width())};
}

QSize StatusPanels::minimumSizeHint() const {
    return {0, heightForWidth(width())};
}

void StatusPanels::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    painter.fillRect(QRect(0, 0, width(), 1), palette().mid());
}

void StatusPanels::resizeEvent(QResizeEvent*) {
    Arrange();
}

StatusPanels::Plan StatusPanels::PlanFor(int width, const QFont& font) const {
    const QFontMetrics metrics(font);
    const int height = metrics.height() + 2 * kLinePad;
    const int room = std::max(1, width - 2 * kMargin);
    Plan plan;
    QPoint next(kMargin, kOuterPad);
    for (std::size_t index = 0; index < texts_.size(); ++index) {
        const int needed = std::min(room, metrics.horizontalAdvance(texts_[index]) + 1);
        if (next.x() > kMargin && next.x() + needed > kMargin + room) {
            next = {kMargin, next.y() + height};
        }
        plan.places[index] = QRect(next, QSize(needed, height));
        next.rx() += needed + kGap;
    }
    plan.height = next.y() + height + kOuterPad;
    return plan;
}

void StatusPanels::Arrange() {
    const Plan plan = PlanFor(width(), font());
    for (std::size_t index = 0; index < labels_.size(); ++index) {
        QLabel& label = *labels_[index];
        const QRect place = plan.places[index];
        const QString shown =
            fontMetrics().elidedText(texts_[index], Qt::ElideRight, place.width());
        label.setGeometry(place);
        label.setText(shown);
        label.setAccessibleName(texts_[index]);
        label.setToolTip(shown == texts_[index] ? QString() : texts_[index]);
    }
    if (height() != plan.height) {
        updateGeometry();
    }
}

}  // namespace vemo
