// A game in its window.
#include "qt/window_fixture.h"

#include <QMenu>

namespace vemo::test {

using namespace Qt::StringLiterals;

WindowFixture::WindowFixture()
    : folders(VEMO_ASSETS, data.path().toStdU16String()),
      game({settings, folders, files, sounds, clock}, view),
      window(game) {
    view.Attach(&window);
    boxes.Expect({u"Vemo Sudoku - 1st run initiation"_s,
                  u"A number of logfiles has to be created, normally this must be done only once "
                  u"on first run of Vemo Sudoku 2. Depend on the speed of your PC, this can take "
                  u"a few minutes."_s,
                  QMessageBox::Ok});
    game.FormLoad();
    window.show();
    Activate();
}

WindowFixture::~WindowFixture() {
    if (const QString faults = boxes.TakeFaults(); !faults.isEmpty()) {
        QTest::qFail(qPrintable(faults), __FILE__, __LINE__);
    }
}

bool WindowFixture::WaitForActive(const QWidget& window) {
    return QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; });
}

// Without a window manager nobody does it when a box closes.
void WindowFixture::Activate() {
    window.activateWindow();
    if (!WaitForActive(window)) {
        qFatal("the window does not become active");
    }
}

void WindowFixture::OpenFirstEasy() {
    game.Run(LevelCommand(1));
    game.Run(CommandId::SudokuNext);
}

void WindowFixture::ClickMenu(CommandId id) {
    QAction* action = window.Menus().ActionOf(id);
    auto* menu = qobject_cast<QMenu*>(action->associatedObjects().value(0));
    const QRect title = window.Menus().actionGeometry(menu->menuAction());
    QTest::mouseClick(&window.Menus(), Qt::LeftButton, {}, title.center());
    QVERIFY(QTest::qWaitForWindowExposed(menu));
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
}

void WindowFixture::ClickMark(int cell, int digit, Qt::MouseButton button) {
    const QPoint place = window.Board().MarkCenter(cell, digit).toPoint();
    QTest::mouseClick(&window.Board(), button, {}, place);
}

void WindowFixture::Key(int key, Qt::KeyboardModifiers modifiers) {
    QWidget* popup = QApplication::activePopupWidget();
    if (popup == nullptr && !window.isActiveWindow()) {
        Activate();
    }
    QWidget* focus = QApplication::focusWidget();
    QWidget* target = popup != nullptr ? popup : focus != nullptr ? focus : &window;
    QTest::keyClick(target, static_cast<Qt::Key>(key), modifiers);
}

}  // namespace vemo::test
