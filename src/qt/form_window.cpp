// What the windows beside the main window share.
#include "qt/form_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>

#include "qt/keys.h"

namespace vemo {
namespace {

// What the player may want wherever the keyboard is: the next hint, and the clock.
bool IsOfEveryWindow(const KeyAction& action) {
    return action.kind == KeyAction::Kind::Hint || action.kind == KeyAction::Kind::Pause;
}

}  // namespace

FormWindow::FormWindow(Game& game, Form form, QWidget* parent)
    : QMainWindow(parent), game_(game), form_(form) {}

void FormWindow::Open(Keyboard keyboard) {
    setAttribute(Qt::WA_ShowWithoutActivating, keyboard == Keyboard::Stays);
    if (!isVisible()) {
        StandBeside();
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    if (keyboard == Keyboard::Follows) {
        activateWindow();
    }
}

void FormWindow::GiveWay(const QRect& board) {
    if (!isMinimized() && frameGeometry().intersects(board)) {
        hide();
    }
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->setAccepted(game_.FormQueryUnload(form_));
    if (event->isAccepted()) {
        game_.FormUnload(form_);
    }
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    const std::optional<KeyAction> action = ActionOf(*event);
    if (event->key() == Qt::Key_Escape) {
        close();
    } else if (action && action->kind == KeyAction::Kind::Help) {
        game_.KeyHelp(form_);
    } else if (action && IsOfEveryWindow(*action)) {
        Do(game_, *action);
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

// To the right of the main window as far as the desk goes, so that the board stays in sight.
void FormWindow::StandBeside() {
    if (testAttribute(Qt::WA_Moved)) {
        return;
    }
    const QRect desk = parentWidget()->screen()->availableGeometry();
    const QRect main = parentWidget()->frameGeometry();
    // Its own frame is known only when it has been shown.
    const QSize frame = main.size() - parentWidget()->size();
    resize(size().boundedTo(desk.size() - frame));
    const int left = std::min(main.right() + 1, desk.right() + 1 - width() - frame.width());
    const int top = std::min(main.top(), desk.bottom() + 1 - height() - frame.height());
    move(std::max(left, desk.left()), std::max(top, desk.top()));
}

}  // namespace vemo
