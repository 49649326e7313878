// The solve log.
#include "game/solve_log.h"

#include "game/stage.h"

namespace vemo {

void SolveLog::AddLine(std::string_view line) {
    AddText(line);
    AddText("\r\n");
}

void SaveSolveLog(Stage& stage) {
    stage.show();
    const auto path =
        stage.view.AskSaveFile({"Save the solve log", "Solve log.txt", "Text files (*.txt)"});
    if (!path) {
        return;
    }
    const std::string& text = stage.log.Text();
    const Bytes bytes(text.begin(), text.end());
    if (const auto error = stage.anyFiles.Replace(*path, bytes)) {
        TellFileError(stage, *error);
    }
}

}  // namespace vemo
