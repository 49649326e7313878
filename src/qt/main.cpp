// The game in its window.
#include <cstdio>
#include <cstdlib>

#include <QApplication>

#include "platform/console.h"
#include "platform/plain_files.h"
#include "qt/arguments.h"
#include "qt/board_accessible.h"
#include "qt/demo.h"
#include "qt/display.h"
#include "qt/look.h"
#include "qt/main_window.h"
#include "qt/make_sounds.h"
#include "qt/print_command.h"
#include "qt/qt_clock.h"
#include "qt/qt_folders.h"
#include "qt/qt_settings.h"
#include "qt/window_view.h"

using namespace Qt::StringLiterals;

namespace {

using Task = vemo::Arguments::Task;

constexpr std::string_view kWindow = "Window";
constexpr std::string_view kPlace = "Geometry";

constexpr int kFailure = 1;
constexpr int kWrongUsage = 2;

int Complain(const QString& what, int code) {
    std::fprintf(stderr, "vemosud2: %s\n", qPrintable(what));
    return code;
}

int Print(const QString& text) {
    std::fputs(qPrintable(text), stdout);
    return 0;
}

// Where the window stood last, in the toolkit's own words.
void RestorePlace(vemo::MainWindow& window, vemo::SettingsStore& settings) {
    const std::string place = settings.Get(kWindow, kPlace, "");
    window.restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(place)));
}

void KeepPlace(const vemo::MainWindow& window, vemo::SettingsStore& settings) {
    settings.Save(kWindow, kPlace, window.saveGeometry().toBase64().toStdString());
    settings.Flush();
}

int Play(const QString& puzzleFile) {
    vemo::QtSettings settings;
    vemo::QtFolders folders;
    vemo::PlainFiles files;
    vemo::QtClock clock;
    const std::unique_ptr<vemo::GameSounds> sounds = vemo::MakeSounds();
    vemo::WindowView view;
    vemo::Game game({settings, folders, files, *sounds, clock}, view);
    vemo::MainWindow window(game);
    view.Attach(&window);
    RestorePlace(window, settings);
    game.FormLoad();
    if (view.IsClosed()) {
        return kFailure;
    }
    window.show();
    if (!puzzleFile.isEmpty()) {
        game.FormOpenFile(puzzleFile.toStdU16String());
    }
    const int code = QApplication::exec();
    KeepPlace(window, settings);
    // Everything is kept; the toolkit's own end would wait for the sound server.
    if (!sounds->End()) {
        std::_Exit(code);
    }
    return code;
}

int PrintPages(const vemo::PrintRequest& request) {
    vemo::QtSettings settings;
    vemo::QtFolders folders;
    vemo::PlainFiles files;
    const vemo::PrintOutcome outcome = vemo::PrintToFile(request, settings, folders, files);
    if (!outcome.error.isEmpty()) {
        return Complain(outcome.error, kFailure);
    }
    if (!outcome.notice.isEmpty()) {
        Complain(outcome.notice, kFailure);
    }
    return Print(u"Pages in %1: %2\n"_s.arg(request.file).arg(outcome.pages));
}

}  // namespace

int main(int argc, char** argv) {
    vemo::UseCallersConsole();
    QStringList given;
    for (int index = 1; index < argc; ++index) {
        given << QString::fromLocal8Bit(argv[index]);
    }
    if (given.contains(u"--version"_s)) {
        return Print(vemo::VersionText());
    }
    if (given.contains(u"--help"_s) || given.contains(u"-h"_s)) {
        return Print(vemo::UsageText());
    }
    const QString reason = vemo::WhyNoDisplay(given);
    if (!reason.isEmpty() && !vemo::NeedsNoDisplay(given)) {
        return Complain(reason, kFailure);
    }
    if (const QByteArray platform = vemo::PlatformFor(given); !platform.isEmpty()) {
        qputenv("QT_QPA_PLATFORM", platform);
    }
    QApplication::setStyle(new vemo::Look);
    vemo::InstallBoardAccessibility();
    const QApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(u"vemosud2"_s);
    const vemo::Arguments arguments = vemo::ReadArguments(QCoreApplication::arguments().mid(1));
    if (!arguments.error.isEmpty()) {
        return Complain(arguments.error + u" (see --help)"_s, kWrongUsage);
    }
    switch (arguments.task) {
    case Task::Demo:
        return vemo::RunDemo(arguments.demoFile);
    case Task::Print:
        return PrintPages(arguments.print);
    case Task::Play:
        break;
    }
    return Play(arguments.puzzleFile);
}
