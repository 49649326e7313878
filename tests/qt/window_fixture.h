// A game in its window, with data of its own.
#pragma once

#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include "game/game.h"
#include "platform/memory_settings.h"
#include "platform/plain_files.h"
#include "qt/board_accessible.h"
#include "qt/board_widget.h"
#include "qt/box_script.h"
#include "qt/look.h"
#include "qt/main_window.h"
#include "qt/menu_bar.h"
#include "qt/qt_clock.h"
#include "qt/qt_folders.h"
#include "qt/window_view.h"
#include "support/test_folders.h"

namespace vemo::test {

class WindowFixture {
  public:
    // Shown and active, the first run's box answered; no level is chosen yet.
    WindowFixture();
    // Fails where boxes were not as expected.
    ~WindowFixture();

    const Screen& Shown() const { return game.Current(); }
    const Digits& Solution() const { return game.CurrentSession().puzzle.solution; }

    // Through the game, for tests of something else.
    void OpenFirstEasy();
    // Clicks the menu's title, then its entry.
    void ClickMenu(CommandId id);
    // Clicks where the digit's mark has its place.
    void ClickMark(int cell, int digit, Qt::MouseButton button = Qt::LeftButton);
    void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    template <typename Widget>
    Widget& Find(const char* name) const {
        auto* widget = window.findChild<Widget*>(QLatin1String(name));
        if (widget == nullptr) {
            qFatal("there is no %s", name);
        }
        return *widget;
    }

    // Waits until the keyboard is the window's. The toolkit's own way to wait takes a window of
    // another one for active as soon as that one is.
    static bool WaitForActive(const QWidget& window);

  private:
    void Activate();

  public:
    QTemporaryDir data;
    MemorySettings settings;
    TestFolders folders;
    PlainFiles files;
    Silence sounds;
    QtClock clock;
    WindowView view;
    Game game;
    MainWindow window;
    BoxScript boxes;
};

// Runs the test functions of `Test` in an application set up like the game's.
template <typename Test>
int RunWindowTests(int argc, char** argv) {
    QStandardPaths::setTestModeEnabled(true);
    // A test finds its way in the toolkit's dialogs alone.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setStyle(new Look);
    InstallBoardAccessibility();
    const QApplication application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

}  // namespace vemo::test

#define VEMO_WINDOW_TESTS(Test)                              \
    int main(int argc, char** argv) {                        \
        return vemo::test::RunWindowTests<Test>(argc, argv); \
    }
