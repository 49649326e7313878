// The command line of the game.
#pragma once

#include <QString>
#include <QStringList>

#include "game/print_order.h"

namespace vemo {

// Pages of a level's sudokus, as a PDF file.
struct PrintRequest {
    LevelRun run;
    PageStyle style;
    QString file;
};

struct Arguments {
    enum class Task : unsigned char { Play, Demo, Print };
    Task task = Task::Play;
    QString demoFile;
    PrintRequest print;
    QString puzzleFile;  // to begin with; empty: none
    QString error;       // what is wrong; empty for a good command line
};

// `given` is without the program's name, without what the toolkit takes for itself, and without
// the arguments that only print a text.
Arguments ReadArguments(const QStringList& given);

QString UsageText();
QString VersionText();

// The task opens no window that anybody is to see.
bool NeedsNoDisplay(const QStringList& given);

}  // namespace vemo
