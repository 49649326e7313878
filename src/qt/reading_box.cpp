// A text to read.
#include "qt/reading_box.h"

#include <algorithm>

#include <QKeyEvent>
#include <QTextDocument>
#include <QTextLayout>

namespace vemo {
namespace {

// What the text box keeps around its lines.
constexpr int kSlack = 4;

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
    int lines = 0;
    for (const QString& paragraph : toPlainText().split(u'\n')) {
        QTextLayout layout(paragraph, font());
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width - 1);
        }
        layout.endLayout();
        lines += std::max(1, layout.lineCount());
    }
    return lines * fontMetrics().lineSpacing() + kSlack;
}

void ReadingBox::PlaceIn(const QRect& room) {
    const int line = fontMetrics().lineSpacing();
    const int wanted = HeightFor(room.width());
    const int whole = std::max(1, (room.height() - kSlack) / line) * line + kSlack;
    // A bar that is there narrows the lines, so that it would go on being needed.
    setVerticalScrollBarPolicy(wanted <= whole ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    setGeometry(room.left(), room.top(), room.width(), std::min(wanted, whole));
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
