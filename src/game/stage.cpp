// What the parts of the game share.
#include "game/stage.h"

#include "model/levels.h"

namespace vemo {

Stage::Stage(const Platform& system, View& frontEnd)
    : settings(system.settings),
      folders(system.folders),
      sounds(system.sounds),
      clock(system.clock),
      view(frontEnd),
      files(system.files, system.folders.LocalApplicationData() / kApplicationName),
      colors(BuiltInColors()) {}

void Speel(Stage& stage, Sound sound) {
    if (stage.options.sounds) {
        stage.sounds.Play(static_cast<int>(sound));
    }
}

void Penalty(Stage& stage, int seconds) {
    if (stage.options.timeOn) {
        stage.session.clock.Penalty(seconds, stage.clock.SecondOfDay());
    }
}

void FlipOption(Stage& stage, bool Options::*option) {
    stage.options.*option = !(stage.options.*option);
    SchrijfOpties(stage.settings, stage.options);
}

bool IsSimpleMode(const Stage& stage) {
    return stage.options.pencilmarksOff && stage.session.level >= 1 &&
           stage.session.level <= kLastSimpleLevel;
}

std::string HelpText() {
    return "Press [Hint] if you get stuck !!! Minimize Window to pause."
           " DoubleClick this window to pop up the small Hint Window.";
}

void Tell(Stage& stage, const std::string& title, const std::string& text, BoxIcon icon) {
    stage.show();
    stage.view.ShowBox({title, text, BoxButtons::Ok, icon});
}

bool AskYesNo(Stage& stage, const std::string& title, const std::string& text) {
    stage.show();
    return stage.view.ShowBox({title, text, BoxButtons::YesNo, BoxIcon::None}) == Answer::Yes;
}

void TellWriteFailed(Stage& stage) {
    Tell(stage, "File Error", "Error writing sudoku to file !");
}

}  // namespace vemo
