// A box with a message and buttons.
#include "qt/message_box.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include <QFontDatabase>
#include <QLabel>
#include <QMessageBox>

#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

// What a window manager may need beside a title: a bolder font, in percent, and its buttons.
constexpr int kBoldTitle = 120;
constexpr int kTitleButtons = 100;

// Stands for an empty cell in a drawn grid.
constexpr QChar kFigureDash(0x2012);

struct BoxButton {
    QMessageBox::StandardButton button;
    Answer answer;
};

// The first is pressed by Enter, unless the box says otherwise.
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

// Pressed by Esc or by closing the box: what does nothing.
const BoxButton& EscapeOf(std::span<const BoxButton> buttons) {
    const auto retry = std::ranges::find(buttons, Answer::Retry, &BoxButton::answer);
    return retry != buttons.end() ? *retry : buttons.back();
}

// Pressed by Enter.
const BoxButton& DefaultOf(const Box& box, std::span<const BoxButton> buttons) {
    return box.enter == EnterKey::No ? EscapeOf(buttons) : buttons.front();
}

// A short text would make the box too narrow for its title. A long one is wrapped by the box, as
// long as its label has no width of its own.
void LeaveRoomForTitle(const QMessageBox& message, QLabel& label) {
    const QFontMetrics metrics = message.fontMetrics();
    const int title =
        metrics.horizontalAdvance(message.windowTitle()) * kBoldTitle / 100 + kTitleButtons;
    if (metrics.size(0, message.text()).width() < title) {
        label.setMinimumWidth(title);
    }
}

// Whether columns of digits and figure dashes stand below each other.
bool AreFiguresAlike(const QFont& font) {
    const QFontMetricsF metrics(font);
    const double width = metrics.horizontalAdvance(kFigureDash);
    for (char figure = '1'; figure <= '9'; ++figure) {
        if (std::abs(metrics.horizontalAdvance(QLatin1Char(figure)) - width) > 0.1) {
            return false;
        }
    }
    return true;
}

}  // namespace

Answer ShowMessage(const Box& box, QWidget* parent) {
    const std::span<const BoxButton> buttons = ButtonsOf(box.buttons);
    QMessageBox message(parent);
    message.setWindowTitle(ToQString(box.title));
    message.setTextFormat(Qt::PlainText);
    message.setText(ToQString(box.text));
    message.setIcon(box.icon == BoxIcon::Warning ? QMessageBox::Warning : QMessageBox::NoIcon);
    for (const BoxButton& button : buttons) {
        message.addButton(button.button);
    }
    message.setDefaultButton(DefaultOf(box, buttons).button);
    message.setEscapeButton(EscapeOf(buttons).button);
    if (auto* label = message.findChild<QLabel*>(u"qt_msgbox_label"_s)) {
        if (message.text().contains(kFigureDash) && !AreFiguresAlike(label->font())) {
            label->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        }
        LeaveRoomForTitle(message, *label);
    }
    const int pressed = message.exec();
    for (const BoxButton& button : buttons) {
        if (button.button == pressed) {
            return button.answer;
        }
    }
    return EscapeOf(buttons).answer;
}

}  // namespace vemo
