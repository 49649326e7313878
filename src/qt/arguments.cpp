// The command line of the game.
#include "qt/arguments.h"

#include "game/options.h"

namespace vemo {

using namespace Qt::StringLiterals;

Arguments ReadArguments(const QStringList& given) {
    Arguments arguments;
    for (qsizetype index = 0; index < given.size(); ++index) {
        const QString& argument = given[index];
        if (argument != u"--demo"_s) {
            arguments.error = u"unknown argument '%1'"_s.arg(argument);
            return arguments;
        }
        if (++index == given.size()) {
            arguments.error = u"--demo needs the name of a file"_s;
            return arguments;
        }
        arguments.task = Arguments::Task::Demo;
        arguments.demoFile = given[index];
    }
    return arguments;
}

QString UsageText() {
    return u"Usage: vemosud2 [--demo FILE.png] [--version] [--help]\n"
           u"\n"
           u"Vemo Sudoku 2, the game in its window.\n"
           u"\n"
           u"  --demo FILE.png  open the first Easy sudoku, ask for a hint, write a picture of "
           u"the\n"
           u"                   window to FILE.png and end; needs no display and changes nothing "
           u"else\n"
           u"  --version        print the version and end\n"
           u"  --help, -h       print this text and end\n"
           u"\n"
           u"The command line program vemosud solves, rates and explains without a window.\n"_s;
}

QString VersionText() {
    return u"vemosud2 %1.%2\n"_s.arg(kVersionMain).arg(kVersionSub);
}

QString WhyNoDisplay(const QStringList& given) {
#ifdef Q_OS_LINUX
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (!qEnvironmentVariableIsEmpty(variable)) {
            return {};
        }
    }
    for (const char* option : {"-platform", "--platform", "-display", "--display"}) {
        if (given.contains(QLatin1String(option))) {
            return {};
        }
    }
    return u"there is no display to open the window on: neither DISPLAY nor WAYLAND_DISPLAY is "
           u"set."_s;
#else
    Q_UNUSED(given)
    return {};
#endif
}

}  // namespace vemo
