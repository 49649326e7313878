// What the parts of the game share: the platform, the front end, and the game's own state.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "game/collection_window.h"
#include "game/color_window.h"
#include "game/generator_window.h"
#include "game/hint_window.h"
#include "game/options.h"
#include "game/print_window.h"
#include "game/session.h"
#include "game/solve_log.h"
#include "game/solve_tech.h"
#include "game/view.h"
#include "model/files.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/settings_store.h"
#include "platform/sounds.h"
#include "solver/settings.h"

namespace vemo {

// The system under the game; each reference outlives the game.
struct Platform {
    SettingsStore& settings;
    Folders& folders;
    Files& files;
    Sounds& sounds;
    Clock& clock;
};

struct Stage {
    Stage(const Platform& system, View& frontEnd);

    SettingsStore& settings;
    Folders& folders;
    Sounds& sounds;
    Clock& clock;
    View& view;
    Files& anyFiles;  // for files that are not the game's own
    RecordFiles files;

    Options options;
    Colors colors;
    TechniqueSettings techniques;
    Session session;
    SolveLog log;
    HintWindow hintWindow;
    SolveTech solveTech;
    ColorWindow colorWindow;
    GeneratorWindow generator;
    CollectionWindow collection;
    PrintWindow print;
    std::filesystem::path programFolder;  // what the game reads beside its executable
    std::string helpPage;                 // that was last asked for

    // Makes the screen anew and has it painted; set by the game. Called before every box and every
    // yield, so that the player never looks at an old state.
    std::function<void()> show;
};

// The numbers of the ten sounds are their slots.
enum class Sound : std::uint8_t {
    Applause,
    Discard,
    Assign,
    ResetCell,
    Solution,
    Label,
    UndoRedo,
    Hint,
    Error,
    Giggle,
};
// Plays nothing while the sounds are switched off.
void Speel(Stage& stage, Sound sound);

// Switches an option over and keeps it in the settings store at once.
void FlipOption(Stage& stage, bool Options::*option);

// On levels 1..3 with "Pencilmarks off in first 3 levels": the simple display and simple hints.
bool IsSimpleMode(const Stage& stage);
bool IsSimpleLevel(const Options& options, int level);

// The text of a puzzle just loaded or restarted, and its end: of the big hint window.
std::string HelpText();
std::string DoubleClickText();

// A message box with an OK button.
void Tell(Stage& stage, const std::string& title, const std::string& text,
          BoxIcon icon = BoxIcon::None);
// A box with Yes and No; true for Yes.
bool AskYesNo(Stage& stage, const std::string& title, const std::string& text,
              EnterKey enter = EnterKey::Yes);
// A box that asks for a whole number from `least`, which is positive, to `most`. 0 for any other
// answer; nothing where the player cancels or leaves the line empty.
std::optional<int> AskNumber(Stage& stage, const Question& question, int least, int most);

// An answer without the characters of `lost` at its ends.
std::string Trimmed(const std::string& text, const char* lost);

// A file of the game could not be written.
void TellWriteFailed(Stage& stage);
// A file of the player's choice could not be written: named, with the reason.
void TellFileError(Stage& stage, const FileError& error);

}  // namespace vemo
