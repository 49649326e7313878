// One of the ten colour labels.
#include "qt/color_label.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr double kRadius = 5;
constexpr double kHoverShare = 0.12;

// The caption of a label whose brush is armed.
QString CaptionOf(bool isLeft, bool isRight) {
    QString caption;
    if (isLeft) {
        caption += u" L"_s;
    }
    if (isRight) {
        caption += u" R"_s;
    }
    return caption;
}

QString NameOf(int color, bool isLeft, bool isRight) {
    QString name = u"Color %1"_s.arg(color + 1);
    if (isLeft) {
        name += u", left brush"_s;
    }
    if (isRight) {
        name += u", right brush"_s;
    }
    return name;
}

}  // namespace

ColorLabel::ColorLabel(int color, std::function<void(MouseButton)> arm, QWidget* parent)
    : QAbstractButton(parent), color_(color), arm_(std::move(arm)) {
    setObjectName(u"LabelColor%1"_s.arg(color));
    setAccessibleName(NameOf(color, false, false));
    setToolTip(
        u"Color %1: the left or the right mouse button takes it as its brush; "
        u"again puts it down"_s.arg(color + 1));
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
}

void ColorLabel::ShowState(const Screen& screen, const BoardColors& colors) {
    const bool isLeft = screen.leftBrush == color_;
    const bool isRight = screen.rightBrush == color_;
    const QString caption = CaptionOf(isLeft, isRight);
    if (caption == text() && colors == colors_) {
        return;
    }
    colors_ = colors;
    setText(caption);
    setAccessibleName(NameOf(color_, isLeft, isRight));
    update();
}

QSize ColorLabel::sizeHint() const {
    const int height = fontMetrics().height();
    return {fontMetrics().horizontalAdvance(text().trimmed()) + 2, height};
}

void ColorLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor text = colors_.BrushText(color_);
    QColor fill = colors_.Brush(color_);
    if (underMouse() && isEnabled()) {
        fill = Mixed(fill, text, kHoverShare);
    }
    const bool isArmed = !this->text().isEmpty();
    const bool hasFocus = this->hasFocus();
    const double line = isArmed || hasFocus ? 2 : 1;
    painter.setPen(QPen(hasFocus  ? colors_.theme.accent
                        : isArmed ? colors_.theme.text
                                  : colors_.theme.line,
                        line));
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2),
                            kRadius, kRadius);
    QFont bold = font();
    bold.setWeight(QFont::Bold);
    painter.setFont(bold);
    painter.setPen(text);
    painter.drawText(rect(), Qt::AlignCenter, this->text().trimmed());
}

void ColorLabel::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void ColorLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (!isEnabled() || !rect().contains(event->position().toPoint())) {
        return;
    }
    if (event->button() == Qt::LeftButton) {
        arm_(MouseButton::Left);
    }
    if (event->button() == Qt::RightButton) {
        arm_(MouseButton::Right);
    }
}

void ColorLabel::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space) {
        QAbstractButton::keyPressEvent(event);
        return;
    }
    arm_(event->modifiers().testFlag(Qt::ShiftModifier) ? MouseButton::Right : MouseButton::Left);
}

}  // namespace vemo
