// The line that finds a text in a text box.
#include "qt/find_bar.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kGap = 8;

}  // namespace

FindBar::FindBar(QPlainTextEdit& text, QWidget* parent)
    : QWidget(parent), text_(text), wanted_(new QLineEdit(this)), outcome_(new QLabel(this)) {
    setObjectName(u"FindBar"_s);
    setAccessibleName(u"Find"_s);
    wanted_->setObjectName(u"TextFind"_s);
    wanted_->setAccessibleName(u"Text to find"_s);
    wanted_->setPlaceholderText(u"Find"_s);
    outcome_->setObjectName(u"LabelFound"_s);
    outcome_->setTextFormat(Qt::PlainText);
    auto* previous = new QPushButton(u"P&revious"_s, this);
    previous->setToolTip(u"Find the one before (Shift+Enter)"_s);
    auto* next = new QPushButton(u"&Next"_s, this);
    next->setToolTip(u"Find the next one (Enter)"_s);
    connect(wanted_, &QLineEdit::textChanged, this, [this] { Find(From::Selection, {}); });
    connect(previous, &QPushButton::clicked, this, [this] { FindPrevious(); });
    connect(next, &QPushButton::clicked, this, [this] { FindNext(); });
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(kGap);
    line->addWidget(wanted_, 1);
    line->addWidget(outcome_);
    line->addWidget(previous);
    line->addWidget(next);
    hide();
}

void FindBar::Open() {
    show();
    wanted_->setFocus();
    wanted_->selectAll();
}

void FindBar::FindNext() {
    Find(From::AfterIt, {});
}

void FindBar::FindPrevious() {
    Find(From::AfterIt, QTextDocument::FindBackward);
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        Close();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (event->modifiers().testFlag(Qt::ShiftModifier)) {
            FindPrevious();
        } else {
            FindNext();
        }
    } else {
        QWidget::keyPressEvent(event);
    }
}

// Goes on at the other end of the text once.
void FindBar::Find(From from, QTextDocument::FindFlags flags) {
    outcome_->clear();
    const QString wanted = wanted_->text();
    if (wanted.isEmpty()) {
        return;
    }
    const QTextDocument& document = *text_.document();
    QTextCursor start = text_.textCursor();
    if (from == From::Selection) {
        start.setPosition(start.selectionStart());
    }
    QTextCursor found = document.find(wanted, start, flags);
    if (found.isNull()) {
        start.movePosition(flags.testFlag(QTextDocument::FindBackward) ? QTextCursor::End
                                                                       : QTextCursor::Start);
        found = document.find(wanted, start, flags);
    }
    if (found.isNull()) {
        outcome_->setText(u"Not found"_s);
    } else {
        text_.setTextCursor(found);
    }
}

void FindBar::Close() {
    hide();
    text_.setFocus();
}

}  // namespace vemo
