// The demonstration.
#include "qt/demo.h"

#include <cstdio>

#include <QCoreApplication>
#include <QPixmap>
#include <QTemporaryDir>

#include "game/view_without_window.h"
#include "platform/memory_settings.h"
#include "platform/plain_files.h"
#include "qt/board_widget.h"
#include "qt/main_window.h"
#include "qt/qt_clock.h"
#include "qt/qt_folders.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kFailure = 1;

// Nobody watches, but the window is drawn for the picture.
class DemoView final : public ViewWithoutWindow {
  public:
    void Attach(MainWindow* window) { window_ = window; }

    void Refresh() override {
        if (window_ != nullptr) {
            window_->ShowScreen();
        }
    }

  private:
    MainWindow* window_ = nullptr;
};

int Fail(const QString& what) {
    std::fprintf(stderr, "vemosud2: %s\n", qPrintable(what));
    return kFailure;
}

}  // namespace

int RunDemo(const QString& file) {
    const QTemporaryDir data;
    if (!data.isValid()) {
        return Fail(data.errorString());
    }
    MemorySettings settings;
    QtFolders folders(data.path().toStdU16String());
    PlainFiles files;
    Silence sounds;
    QtClock clock;
    DemoView view;
    Game game({settings, folders, files, sounds, clock}, view);
    MainWindow window(game);
    view.Attach(&window);
    window.resize(MainWindow::kSize);
    window.show();
    game.FormLoad();
    game.Run(LevelCommand(1));
    game.Run(CommandId::SudokuNext);
    if (!game.Current().isBoardEnabled) {
        return Fail(u"there is no Easy sudoku to open"_s);
    }
    game.CommandHintClick();
    QCoreApplication::processEvents();
    if (!window.grab().save(file)) {
        return Fail(u"the picture %1 cannot be written"_s.arg(file));
    }
    std::printf("A picture of the window is in %s\n", qPrintable(file));
    return 0;
}

}  // namespace vemo
