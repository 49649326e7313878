// A text to read.
#include "qt/reading_box.h"

#include <algorithm>
#include <cmath>

#include <QKeyEvent>
#include <QTextDocument>
#include <QTextLayout>

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

// What the text box wants beyond its lines, or it scrolls.
constexpr int kSlack = 1;

// As the text box lays it out: its lines can be higher than the font's metrics say.
double HeightOf(const QString& paragraph, const QFont& font, const QTextOption& option, int width) {
    QTextLayout layout(paragraph, font);
    layout.setTextOption(option);
    layout.beginLayout();
    double height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(width);
        height += line.height();
    }
    layout.endLayout();
    return height;
}

}  // namespace

ReadingBox::ReadingBox(QWidget* parent) : QPlainTextEdit(parent) {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setFrameShape(QFrame::NoFrame);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    document()->setDocumentMargin(0);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
}

void ReadingBox::ShowText(const QString& text) {
    if (text != toPlainText()) {
        setPlainText(text);
    }
}

// Counted here, since a text box lays nothing out while it is hidden.
int ReadingBox::HeightFor(int width) const {
    QTextOption option;
    option.setWrapMode(wordWrapMode());
    double height = kSlack;
    for (const QString& paragraph : toPlainText().split(u'\n')) {
        height += HeightOf(paragraph, font(), option, width - 1);
    }
    return static_cast<int>(std::ceil(height));
}

int ReadingBox::HeightOfLines(int count) const {
    return static_cast<int>(std::ceil(count * LineHeight())) + kSlack;
}

void ReadingBox::PlaceIn(const QRect& room) {
    const int wanted = HeightFor(room.width());
    const int count = static_cast<int>((room.height() - kSlack) / LineHeight());
    const int whole = HeightOfLines(std::max(1, count));
    // A bar that is there narrows the lines, so that it would go on being needed.
    setVerticalScrollBarPolicy(wanted <= whole ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    setGeometry(room.left(), room.top(), room.width(), std::min(wanted, whole));
}

double ReadingBox::LineHeight() const {
    return HeightOf(u"x"_s, font(), QTextOption(), QWIDGETSIZE_MAX);
}

void ReadingBox::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    parentWidget()->update();
}

void ReadingBox::focusOutEvent(QFocusEvent* event) {
    QPlainTextEdit::focusOutEvent(event);
    parentWidget()->update();
}

void ReadingBox::mouseDoubleClickEvent(QMouseEvent* event) {
    if (open_ && event->button() == Qt::LeftButton) {
        open_();
    } else {
        QPlainTextEdit::mouseDoubleClickEvent(event);
    }
}

void ReadingBox::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (open_ && isEnter && !event->isAutoRepeat()) {
        open_();
    } else {
        QPlainTextEdit::keyPressEvent(event);
    }
}

}  // namespace vemo
