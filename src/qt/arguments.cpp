// The command line of the game.
#include "qt/arguments.h"

#include <algorithm>

#include "game/options.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

using Task = Arguments::Task;

void TakeDemo(Arguments& arguments, const QString& value) {
    arguments.task = Task::Demo;
    arguments.demoFile = value;
}

void TakeRun(Arguments& arguments, const QString& value) {
    arguments.task = Task::Print;
    arguments.print.run = ParseLevelRun(value.toStdString());
    const std::string& error = arguments.print.run.error;
    arguments.error = error.empty() ? QString() : u"--print: "_s + ToQString(error);
}

void TakePerPage(Arguments& arguments, const QString& value) {
    const int count = value.toInt();
    arguments.print.style.perPage = count;
    if (std::ranges::find(kPerPage, count) == kPerPage.end()) {
        arguments.error = u"--per-page is 1, 2 or 4, not '%1'"_s.arg(value);
    }
}

void TakeContent(Arguments& arguments, const QString& value) {
    const auto content = PrintContentNamed(value.toStdString());
    arguments.print.style.content = content.value_or(PrintContent::Puzzle);
    if (!content) {
        arguments.error = u"--content is puzzle, marks, state or solution, not '%1'"_s.arg(value);
    }
}

void TakePaper(Arguments& arguments, const QString& value) {
    const auto paper = PaperNamed(value.toStdString());
    arguments.print.style.paper = paper.value_or(Paper::A4);
    if (!paper) {
        arguments.error = u"--paper is a4 or letter, not '%1'"_s.arg(value);
    }
}

void TakeOutput(Arguments& arguments, const QString& value) {
    arguments.print.file = value;
}

// An option that is followed by a value.
struct ValueOption {
    QStringView name;
    QStringView value;  // what the value is
    void (*take)(Arguments& arguments, const QString& value);
    bool isOfPrint;  // of no use without --print
};
constexpr ValueOption kValueOptions[] = {
    {u"--demo", u"the name of a file", TakeDemo, false},
    {u"--print", u"a level and numbers: Easy:1-4", TakeRun, false},
    {u"--output", u"the name of a file", TakeOutput, true},
    {u"--per-page", u"a number: 1, 2 or 4", TakePerPage, true},
    {u"--content", u"a word: puzzle, marks, state or solution", TakeContent, true},
    {u"--paper", u"a word: a4 or letter", TakePaper, true},
};

}  // namespace

Arguments ReadArguments(const QStringList& given) {
    Arguments arguments;
    QString aboutPages;  // an option that says how pages look
    for (qsizetype index = 0; index < given.size() && arguments.error.isEmpty(); ++index) {
        const QString& option = given[index];
        if (!option.startsWith(u'-') && arguments.puzzleFile.isEmpty()) {
            arguments.puzzleFile = option;
            continue;
        }
        if (option == u"--solutions"_s || option == u"--solutions-last"_s) {
            arguments.print.style.solutions =
                option == u"--solutions"_s ? SolutionPlace::Foot : SolutionPlace::LastPages;
            aboutPages = option;
            continue;
        }
        const ValueOption* found = std::ranges::find(kValueOptions, option, &ValueOption::name);
        if (found == std::end(kValueOptions)) {
            arguments.error = u"unknown argument '%1'"_s.arg(option);
        } else if (++index == given.size()) {
            arguments.error = u"%1 needs %2"_s.arg(option, found->value);
        } else {
            found->take(arguments, given[index]);
            aboutPages = found->isOfPrint ? option : aboutPages;
        }
    }
    if (!arguments.error.isEmpty()) {
        return arguments;
    }
    const bool isPrint = arguments.task == Task::Print;
    const bool isDemo = !arguments.demoFile.isEmpty();
    if (isPrint && isDemo) {
        arguments.error = u"--demo does not go with --print"_s;
    } else if ((isPrint || isDemo) && !arguments.puzzleFile.isEmpty()) {
        arguments.error = u"%1 takes no file to begin with: '%2'"_s.arg(
            isPrint ? u"--print"_s : u"--demo"_s, arguments.puzzleFile);
    } else if (!isPrint && !aboutPages.isEmpty()) {
        arguments.error = u"%1 goes with --print"_s.arg(aboutPages);
    } else if (isPrint && arguments.print.file.isEmpty()) {
        arguments.error = u"--print needs --output FILE.pdf"_s;
    }
    return arguments;
}

QString UsageText() {
    return u"Usage: vemosud2 [FILE | --demo FILE.png | --print LEVEL:NUMBERS --output FILE.pdf]\n"
           u"                [--version] [--help]\n"
           u"\n"
           u"Vemo Sudoku 2, the game in its window.\n"
           u"\n"
           u"  FILE               begin with the sudokus of this file, of any known format\n"
           u"  --demo FILE.png    open the first Easy sudoku, ask for a hint, write a picture of\n"
           u"                     the window to FILE.png and end; needs no display and changes\n"
           u"                     nothing else\n"
           u"  --print LEVEL:A-B  write the sudokus A to B of a level as pages and end; LEVEL:A\n"
           u"                     is one sudoku, LEVEL all of them; needs no display\n"
           u"    --output FILE.pdf  the file of these pages\n"
           u"    --per-page N       1, 2 or 4 sudokus on a page; 4 if not given\n"
           u"    --content WHAT     puzzle, marks (the puzzle with pencil marks), state (as\n"
           u"                       played and saved) or solution; puzzle if not given\n"
           u"    --solutions        the solutions too, upside down below the puzzles\n"
           u"    --solutions-last   the solutions too, on the last pages\n"
           u"    --paper SIZE       a4 or letter; a4 if not given\n"
           u"  --version          print the version and end\n"
           u"  --help, -h         print this text and end\n"
           u"\n"
           u"The command line program vemosud solves, rates and explains without a window.\n"_s;
}

QString VersionText() {
    return u"vemosud2 %1.%2\n"_s.arg(kVersionMain).arg(kVersionSub);
}

bool NeedsNoDisplay(const QStringList& given) {
    return given.contains(u"--demo"_s) || given.contains(u"--print"_s);
}

}  // namespace vemo
