// The panels that texts stand on.
#include "qt/text_panel.h"

#include <QApplication>
#include <QPainter>
#include <QPlainTextEdit>

namespace vemo {
namespace {

constexpr double kRadius = 8;

}  // namespace

void PaintPanel(QWidget& panel, PanelFocus focus) {
    QPainter painter(&panel);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool hasFocus = focus == PanelFocus::Within;
    const double line = hasFocus ? 2 : 1;
    const double inset = line / 2;
    const QPalette& palette = panel.palette();
    painter.setPen(QPen(palette.color(hasFocus ? QPalette::Highlight : QPalette::Mid), line));
    painter.setBrush(palette.base());
    painter.drawRoundedRect(QRectF(panel.rect()).adjusted(inset, inset, -inset, -inset), kRadius,
                            kRadius);
}

TextPanel::TextPanel(QPlainTextEdit* text, QWidget* parent) : QWidget(parent), text_(text) {
    text->setParent(this);
    text->setFrameShape(QFrame::NoFrame);
    text->viewport()->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this, [this] { update(); });
}

void TextPanel::paintEvent(QPaintEvent*) {
    PaintPanel(*this, text_->hasFocus() ? PanelFocus::Within : PanelFocus::Without);
}

void TextPanel::resizeEvent(QResizeEvent*) {
    const int pad = fontMetrics().height() / 3;
    text_->setGeometry(rect().adjusted(pad, pad, -pad, -pad));
}

}  // namespace vemo
