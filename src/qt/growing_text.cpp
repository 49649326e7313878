// A text box for a text that grows.
#include "qt/growing_text.h"

#include <QFontDatabase>
#include <QScrollBar>

#include "qt/screen_text.h"

namespace vemo {

GrowingText::GrowingText(QWidget* parent) : QPlainTextEdit(parent) {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
}

void GrowingText::ShowText(const std::string& text) {
    if (text.size() < shown_) {
        Forget();
    }
    if (text.size() == shown_) {
        return;
    }
    QScrollBar& bar = *verticalScrollBar();
    const bool isAtEnd = bar.value() == bar.maximum();
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    end.insertText(ToQString(std::string_view(text).substr(shown_)));
    shown_ = text.size();
    if (isAtEnd) {
        bar.setValue(bar.maximum());
    }
}

void GrowingText::Forget() {
    clear();
    shown_ = 0;
}

}  // namespace vemo
