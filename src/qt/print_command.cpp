// Printing from the command line.
#include "qt/print_command.h"

#include <utility>

#include "game/options.h"
#include "game/print_window.h"
#include "game/startup.h"
#include "model/files.h"
#include "qt/print_pages_painter.h"
#include "qt/print_run.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

RecordFiles FilesWith(int level, Folders& folders, Files& files) {
    RecordFiles own(files, folders.LocalApplicationData() / kApplicationName);
    return own.HasPuzzleFile(level) ? own : RecordFiles(files, ProgramFolder(folders.Executable()));
}

QString NameOf(const LevelRun& run) {
    return u"%1 %2-%3"_s.arg(ToQString(LevelName(run.level))).arg(run.first).arg(run.last);
}

PrintOutcome Refusal(const std::string& error) {
    return {0, QString(), ToQString(error)};
}

}  // namespace

PrintOutcome PrintToFile(const PrintRequest& request, SettingsStore& settings, Folders& folders,
                         Files& files) {
    LevelRun run = request.run;
    RecordFiles records = FilesWith(run.level, folders, files);
    const int count = records.PuzzleCount(run.level);
    run.last = run.last == 0 ? count : run.last;
    if (const std::string error = RunError(run.level, run.first, run.last, count); !error.empty()) {
        return Refusal(error);
    }
    PrintRunContent content = ReadPrintRun(records, run.level, run.first, run.last);
    const std::string notice = DamagedText(run.level, content.damaged);
    if (content.sudokus.empty()) {
        return Refusal(notice);
    }
    if (request.style.content == PrintContent::CurrentState) {
        const SavedMarks marks = MarksOn(HaalOpties(settings), run.level);
        for (PrintedSudoku& sudoku : content.sudokus) {
            PutSavedPlay(records, marks, sudoku);
        }
    }
    const Printout printout = PrintoutOf({request.style, std::move(content.sudokus)}, NameOf(run));
    const Bytes pdf = PdfOf(printout);
    if (const auto error = files.Replace(request.file.toStdU16String(), pdf)) {
        return Refusal(Utf8(error->path) + ": " + error->reason);
    }
    return {printout.pages, ToQString(notice), QString()};
}

}  // namespace vemo
