// What the parts of the game share.
#include "game/stage.h"

#include <charconv>

#include "model/levels.h"

namespace vemo {
Stage::Stage(const Platform& system, View& frontEnd)
    : settings(system.settings),
      folders(system.folders),
      sounds(system.sounds),
      clock(system.clock),
      view(frontEnd),
      anyFiles(system.files),
      files(system.files, system.folders.LocalApplicationData() / kApplicationName),
      colors(BuiltInColors()),
      solveTech(techniques),
      colorWindow(colors),
      generator(files, settings),
      collection(files, techniques) {}

void Speel(Stage& stage, Sound sound) {
    if (stage.options.sounds) {
        stage.sounds.Play(static_cast<int>(sound));
    }
}

void FlipOption(Stage& stage, bool Options::*option) {
    stage.options.*option = !(stage.options.*option);
    SchrijfOpties(stage.settings, stage.options);
}

bool IsSimpleMode(const Stage& stage) {
    return IsSimpleLevel(stage.options, stage.session.level);
}

bool IsSimpleLevel(const Options& options, int level) {
    return options.pencilmarksOff && level >= 1 && level <= kLastSimpleLevel;
}

std::string HelpText() {
    return "Press [Hint] if you get stuck !!! Minimize Window to pause." + DoubleClickText();
}

std::string DoubleClickText() {
    return " DoubleClick this window to pop up the small Hint Window.";
}

void Tell(Stage& stage, const std::string& title, const std::string& text, BoxIcon icon) {
    stage.show();
    stage.view.ShowBox({title, text, BoxButtons::Ok, icon});
}

std::string Trimmed(const std::string& text, const char* lost) {
    const std::size_t first = text.find_first_not_of(lost);
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(lost) - first + 1);
}

bool AskYesNo(Stage& stage, const std::string& title, const std::string& text, EnterKey enter) {
    stage.show();
    return stage.view.ShowBox({title, text, BoxButtons::YesNo, BoxIcon::None, enter}) ==
           Answer::Yes;
}

std::optional<int> AskNumber(Stage& stage, const Question& question, int least, int most) {
    stage.show();
    const std::string text = Trimmed(stage.view.Ask(question).value_or(""), " \t");
    if (text.empty()) {
        return std::nullopt;
    }
    int number = 0;
    const char* end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    const bool isNumber = error == std::errc() && stopped == end;
    return isNumber && number >= least && number <= most ? number : 0;
}

void TellWriteFailed(Stage& stage) {
    Tell(stage, "File Error", "Error writing sudoku to file !");
}

void TellFileError(Stage& stage, const FileError& error) {
    Tell(stage, "File Error", Utf8(error.path) + ": " + error.reason);
}

}  // namespace vemo
