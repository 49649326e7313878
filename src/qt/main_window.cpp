// The main window.
#include "qt/main_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>

#include "qt/board_widget.h"
#include "qt/desktop_portal.h"
#include "qt/icons.h"
#include "qt/keys.h"
#include "qt/menu_bar.h"
#include "qt/window_content.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kTickMilliseconds = 250;
constexpr QSize kLeastSize(480, 480);

}  // namespace

MainWindow::MainWindow(Game& game)
    : game_(game),
      paletteTone_(ToneOf(QApplication::palette())),
      menus_(new MenuBar(game, this)),
      content_(new WindowContent(game, this)),
      forms_(game, this) {
    setWindowTitle(u"Vemo Sudoku 2"_s);
    setWindowIcon(ApplicationIcon());
    setMenuBar(menus_);
    setCentralWidget(content_);
    setMinimumSize(kLeastSize);
    const QRect desk = screen()->availableGeometry();
    QRect place(QPoint(0, 0), kSize.boundedTo(desk.size()).expandedTo(kLeastSize));
    place.moveCenter(desk.center());
    setGeometry(place);
    Board().setFocus();
    ShowScreen();
    desktop_ = ListenToDesktop([this](std::optional<Tone> tone) {
        desktopTone_ = tone;
        ShowScreen();
    });
    connect(&timer_, &QTimer::timeout, this, [this] { game_.Timer1(); });
    timer_.start(kTickMilliseconds);
}

void MainWindow::ShowScreen() {
    FollowAppearance();
    menus_->ShowScreen(game_.Current());
    content_->ShowScreen(game_.Current(), colors_);
    forms_.ShowScreen(colors_);
}

void MainWindow::CloseUnasked() {
    isClosing_ = true;
    close();
}

void MainWindow::GiveWay(Form form) {
    const BoardWidget& board = Board();
    forms_.GiveWay(form, QRect(board.mapToGlobal(QPoint()), board.size()));
}

BoardWidget& MainWindow::Board() const {
    return content_->Board();
}

bool MainWindow::event(QEvent* event) {
    const bool isHandled = QMainWindow::event(event);
    if (event->type() == QEvent::ThemeChange) {
        ReadSystemPalette();
        ShowScreen();
    } else if (event->type() == QEvent::ApplicationPaletteChange && !IsPaletteOurs()) {
        paletteTone_ = ToneOf(QApplication::palette());
        ShowScreen();
    }
    return isHandled;
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) {
        game_.FormResize(isMinimized() ? WindowState::Minimized : WindowState::Shown);
    }
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->setAccepted(isClosing_ || game_.FormQueryUnload());
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
    auto* button = qobject_cast<QAbstractButton*>(focusWidget());
    if (const std::optional<KeyAction> action = ActionOf(*event)) {
        Do(game_, *action);
    } else if (event->key() == Qt::Key_Escape) {
        Board().setFocus();
    } else if (button != nullptr &&
               (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        button->click();
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

void MainWindow::FollowAppearance() {
    const Tone system = desktopTone_.value_or(paletteTone_);
    const Tone tone = ToneOf(game_.CurrentOptions().appearance, system);
    colors_ = {ThemeOf(tone), game_.CurrentColors().Of(tone)};
    if (!IsPaletteOurs()) {
        QApplication::setPalette(PaletteOf(colors_.theme));
    }
}

bool MainWindow::IsPaletteOurs() const {
    return QApplication::palette().color(QPalette::Window) == colors_.theme.window;
}

// The system's palette is the application's where the application has none of its own.
void MainWindow::ReadSystemPalette() {
    QApplication::setPalette(QPalette());
    paletteTone_ = ToneOf(QApplication::palette());
}

}  // namespace vemo
