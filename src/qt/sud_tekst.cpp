// The text box for a puzzle of the player's own.
#include "qt/sud_tekst.h"

#include <algorithm>
#include <utility>

#include <QClipboard>
#include <QDropEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QMimeData>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTimer>
#include <QUrl>

#include "game/dropped_text.h"
#include "qt/dropped_files.h"
#include "qt/message_box.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

// One more than the game keeps, so that the game can tell that it was too much.
constexpr qsizetype kMostCharacters = static_cast<qsizetype>(kMostText) + 1;
constexpr qsizetype kMostOfAddress = 200;

bool IsUsable(const QMimeData& source) {
    return source.hasText() || source.hasUrls();
}

QString TextOf(const QMimeData& source) {
    return source.text().left(kMostCharacters);
}

void RefuseAddress(const QUrl& url, QWidget* parent) {
    const QString address = url.toDisplayString().left(kMostOfAddress);
    ShowMessage(
        {"Drag 'N' Drop Error", "This is no file on this computer: " + address.toStdString(),
         BoxButtons::Ok, BoxIcon::None},
        parent);
}

}  // namespace

SudTekst::SudTekst(Game& game, QWidget* parent) : QPlainTextEdit(parent), game_(game) {
    setObjectName(u"SudTekst"_s);
    setAccessibleName(u"Text of the sudoku"_s);
    setToolTip(u"Paste or drop the text of a sudoku, or enter its clues in the grid"_s);
    setTabChangesFocus(true);
    // The family alone: the size follows the column's.
    QFont font;
    font.setFamilies({QFontDatabase::systemFont(QFontDatabase::FixedFont).family()});
    setFont(font);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { TextChanged(); });
    auto* paste = new QShortcut(this);
    paste->setKeys(QKeySequence::Paste);
    connect(paste, &QShortcut::activated, this, [this] { TakePaste(); });
    window()->setAcceptDrops(true);
    window()->installEventFilter(this);
}

void SudTekst::ShowScreen(const Screen& screen) {
    const bool isNew = screen.isMaking && isHidden();
    setVisible(screen.isMaking);
    setEnabled(screen.isBoardEnabled);
    if (isNew || !screen.isMaking) {
        isHandingOn_ = false;
    }
    if (isNew) {
        known_ = screen.sudTekst;
        const QSignalBlocker blocker(this);
        SetInvitation(true);
        setPlainText(ToQString(known_));
    } else if (!isHandingOn_ && screen.sudTekst != known_) {
        known_ = screen.sudTekst;
        const QSignalBlocker blocker(this);
        SetInvitation(false);
        PutAll(ToQString(known_));
    }
}

bool SudTekst::canInsertFromMimeData(const QMimeData* source) const {
    return IsUsable(*source);
}

void SudTekst::insertFromMimeData(const QMimeData* source) {
    if (AreFiles(source->urls())) {
        Later([this, paths = PathsOf(source->urls())] { game_.SudTekstDrop(paths); });
        return;
    }
    if (isInvitation_) {
        selectAll();
        SetInvitation(false);
    }
    insertPlainText(TextOf(*source));
    ensureCursorVisible();
}

void SudTekst::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || isInvitation_) {
        selectAll();
    }
}

// A click puts the cursor into a text of the player's own only.
void SudTekst::mouseReleaseEvent(QMouseEvent* event) {
    QPlainTextEdit::mouseReleaseEvent(event);
    if (isInvitation_ && !textCursor().hasSelection()) {
        selectAll();
    }
}

// What is dragged within the box is moved; what comes from outside replaces the text.
void SudTekst::dragEnterEvent(QDragEnterEvent* event) {
    if (IsOwn(*event)) {
        QPlainTextEdit::dragEnterEvent(event);
    } else {
        event->setAccepted(IsUsable(*event->mimeData()));
    }
}

void SudTekst::dragMoveEvent(QDragMoveEvent* event) {
    if (IsOwn(*event)) {
        QPlainTextEdit::dragMoveEvent(event);
    } else {
        event->setAccepted(IsUsable(*event->mimeData()));
    }
}

void SudTekst::dropEvent(QDropEvent* event) {
    if (IsOwn(*event)) {
        QPlainTextEdit::dropEvent(event);
    } else {
        TakeDrop(*event);
    }
}

bool SudTekst::eventFilter(QObject* watched, QEvent* event) {
    if (watched != window() || !isVisible() || !isEnabled()) {
        return QPlainTextEdit::eventFilter(watched, event);
    }
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove: {
        auto* drag = static_cast<QDropEvent*>(event);
        drag->setAccepted(IsUsable(*drag->mimeData()));
        return true;
    }
    case QEvent::Drop:
        TakeDrop(*static_cast<QDropEvent*>(event));
        return true;
    default:
        return QPlainTextEdit::eventFilter(watched, event);
    }
}

bool SudTekst::IsOwn(const QDropEvent& event) const {
    return event.source() == this || event.source() == viewport();
}

void SudTekst::TakeDrop(QDropEvent& event) {
    const QMimeData& source = *event.mimeData();
    event.setDropAction(Qt::CopyAction);
    event.accept();
    const QList<QUrl> urls = source.urls();
    if (urls.empty()) {
        SetInvitation(false);
        PutAll(TextOf(source));
    } else if (AreFiles(urls)) {
        Later([this, paths = PathsOf(urls)] { game_.SudTekstDrop(paths); });
    } else {
        Later([this, address = *std::ranges::find_if_not(urls, &QUrl::isLocalFile)] {
            RefuseAddress(address, window());
        });
    }
}

void SudTekst::TakePaste() {
    const QMimeData* source = QGuiApplication::clipboard()->mimeData();
    if (source == nullptr || !IsUsable(*source)) {
        return;
    }
    selectAll();
    insertFromMimeData(source);
}

// By an edit, so that it can be undone; the cursor stays where it was.
void SudTekst::PutAll(const QString& text) {
    const int position = textCursor().position();
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    all.insertText(text);
    all.setPosition(std::min(position, document()->characterCount() - 1));
    setTextCursor(all);
}

// Words are kept whole in the invitation only: a sudoku has none, and looking for them takes a time
// that grows with the square of a line's length.
void SudTekst::SetInvitation(bool isInvitation) {
    isInvitation_ = isInvitation;
    setWordWrapMode(isInvitation ? QTextOption::WordWrap : QTextOption::WrapAnywhere);
}

void SudTekst::TextChanged() {
    if (isInvitation_) {
        SetInvitation(false);
    }
    if (!isHandingOn_) {
        isHandingOn_ = true;
        Later([this] { HandOn(); });
    }
}

void SudTekst::HandOn() {
    if (std::exchange(isHandingOn_, false)) {
        known_ = toPlainText().toStdString();
        game_.SudTekstChange(known_);
    }
}

// The game may ask a question, which no event of a key or a drag should wait for.
void SudTekst::Later(std::function<void()> deed) {
    QTimer::singleShot(0, this, std::move(deed));
}

}  // namespace vemo
