// What the game asks of its window.
#include "qt/window_view.h"

#include <span>

#include <QApplication>
#include <QDesktopServices>
#include <QEventLoop>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <QUrl>

#include "qt/main_window.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

// What a window manager may need beside a title: a bolder font, in percent, and its buttons.
constexpr int kBoldTitle = 120;
constexpr int kTitleButtons = 100;

constexpr int kYieldMilliseconds = 15;

struct BoxButton {
    QMessageBox::StandardButton button;
    Answer answer;
};

// The first is pressed by Enter, the last by Esc or by closing the box.
constexpr std::array kOk = {BoxButton{QMessageBox::Ok, Answer::Ok}};
constexpr std::array kYesNo = {BoxButton{QMessageBox::Yes, Answer::Yes},
                               BoxButton{QMessageBox::No, Answer::No}};
constexpr std::array kAbortRetryIgnore = {BoxButton{QMessageBox::Retry, Answer::Retry},
                                          BoxButton{QMessageBox::Abort, Answer::Abort},
                                          BoxButton{QMessageBox::Ignore, Answer::Ignore}};

std::span<const BoxButton> ButtonsOf(BoxButtons buttons) {
    switch (buttons) {
    case BoxButtons::YesNo:
        return kYesNo;
    case BoxButtons::AbortRetryIgnore:
        return kAbortRetryIgnore;
    case BoxButtons::Ok:
        break;
    }
    return kOk;
}

// A short text would make the box too narrow for its title. A long one is wrapped by the box, as
// long as its label has no width of its own.
void LeaveRoomForTitle(QMessageBox& message) {
    auto* label = message.findChild<QLabel*>(u"qt_msgbox_label"_s);
    const QFontMetrics metrics = message.fontMetrics();
    const int title =
        metrics.horizontalAdvance(message.windowTitle()) * kBoldTitle / 100 + kTitleButtons;
    if (label != nullptr && metrics.size(0, message.text()).width() < title) {
        label->setMinimumWidth(title);
    }
}

}  // namespace

Answer WindowView::ShowBox(const Box& box) {
    ShowWindow();
    const std::span<const BoxButton> buttons = ButtonsOf(box.buttons);
    QMessageBox message(window_);
    message.setWindowTitle(ToQString(box.title));
    message.setTextFormat(Qt::PlainText);
    message.setText(ToQString(box.text));
    message.setIcon(box.icon == BoxIcon::Warning ? QMessageBox::Warning : QMessageBox::NoIcon);
    for (const BoxButton& button : buttons) {
        message.addButton(button.button);
    }
    message.setDefaultButton(buttons.front().button);
    message.setEscapeButton(buttons.back().button);
    LeaveRoomForTitle(message);
    const int pressed = message.exec();
    for (const BoxButton& button : buttons) {
        if (button.button == pressed) {
            return button.answer;
        }
    }
    return buttons.back().answer;
}

std::optional<std::string> WindowView::Ask(const Question& question) {
    ShowWindow();
    bool isAnswered = false;
    const QString answer =
        QInputDialog::getText(window_, ToQString(question.title), ToQString(question.prompt),
                              QLineEdit::Normal, ToQString(question.suggestion), &isAnswered);
    if (!isAnswered) {
        return std::nullopt;
    }
    return answer.toStdString();
}

// Long functions yield before every search, far more often than anybody can see or click.
void WindowView::Yield() {
    if (!sinceYield_.isValid() || sinceYield_.hasExpired(kYieldMilliseconds)) {
        QCoreApplication::processEvents();
        sinceYield_.start();
    }
}

void WindowView::Pause(int milliseconds, const std::function<bool()>& isOver) {
    QEventLoop loop;
    bool hasRunOut = false;
    // The timer's event ends the last wait.
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, [&hasRunOut] { hasRunOut = true; });
    while (!hasRunOut && !isOver()) {
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void WindowView::Refresh() {
    if (window_ != nullptr) {
        window_->ShowScreen();
    }
}

void WindowView::Beep() {
    QApplication::beep();
}

void WindowView::OpenLink(const std::string& address) {
    QDesktopServices::openUrl(QUrl(ToQString(address)));
}

void WindowView::Close() {
    isClosed_ = true;
    if (window_ != nullptr) {
        window_->CloseUnasked();
    }
}

void WindowView::ShowWindow() {
    if (!window_->isVisible()) {
        window_->show();
    }
}

}  // namespace vemo
