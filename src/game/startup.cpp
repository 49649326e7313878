// Start-up in its order, and quitting.
#include "game/startup.h"

#include <array>

#include "game/collection_commands.h"
#include "game/play_levels.h"
#include "model/levels.h"

namespace vemo {
namespace {

namespace fs = std::filesystem;

// By slot, as the sounds are numbered.
constexpr std::array<std::string_view, 10> kSoundFiles = {
    "Applause.wav", "Discard.wav",  "Assign.wav", "ResetCell.wav", "Solution.wav",
    "Label.wav",    "UndoRedo.wav", "Hint.wav",   "Error.wav",     "Giggle.wav"};

// A sound that cannot be loaded is silent.
void InitSound(Stage& stage, const fs::path& programFolder) {
    for (std::size_t slot = 0; slot < kSoundFiles.size(); ++slot) {
        stage.sounds.Load(static_cast<int>(slot), programFolder / "sounds" / kSoundFiles[slot]);
    }
}

bool MaakSudLog(Stage& stage) {
    Tell(stage, "Vemo Sudoku - 1st run initiation",
         "A number of logfiles has to be created, normally this must be done only once on first "
         "run of Vemo Sudoku 2. Depend on the speed of your PC, this can take a few minutes.");
    for (int level = 1; level <= kLevels; ++level) {
        const int count = stage.files.PuzzleCount(level);
        if (count == 0) {
            Tell(stage, "Logfile creation failure",
                 "Could not open source file " + Utf8(stage.files.PuzzlePath(level)));
            return false;
        }
        if (stage.files.CreateProgressFile(level, count)) {
            Tell(stage, "Log creation failure",
                 "Error while processing file " + Utf8(stage.files.ProgressPath(level)));
            return false;
        }
    }
    return true;
}

// The progress files are made once a user; without them the game cannot go on.
bool HaveProgressFiles(Stage& stage) {
    if (stage.options.logfiles) {
        return true;
    }
    if (!MaakSudLog(stage)) {
        Tell(stage, "Initiation failed",
             "Failed to write sudoku logfiles, program can't continue.");
        return false;
    }
    stage.options.logfiles = true;
    SchrijfOptieSudLog(stage.settings);
    return true;
}

bool HasUnsavedSteps(const Session& session) {
    return session.IsPlaying() && session.history.CanUndo();
}

}  // namespace

// The first folder that holds the shipped puzzles; the executable's own where none does.
fs::path ProgramFolder(const fs::path& executable) {
    const fs::path share = executable.parent_path() / "share";
    const std::array<fs::path, 4> places = {executable, executable / "assets", share / "vemosud2",
                                            share / "games" / "vemosud2"};
    std::error_code error;
    for (const fs::path& place : places) {
        if (fs::is_regular_file(place / PuzzleFileName(1), error)) {
            return place;
        }
    }
    return executable;
}

bool StartUp(Stage& stage) {
    stage.programFolder = ProgramFolder(stage.folders.Executable());
    stage.files.InstallShippedPuzzles(stage.programFolder);
    stage.options = HaalOpties(stage.settings);
    stage.colors = HaalKleuren(stage.settings);
    stage.colorWindow.Follow();
    stage.techniques = ReadTechniqueSettings(stage.settings);
    stage.generator.ReadSettings();
    InitSound(stage, stage.programFolder);
    SchrijfVersie(stage.settings);
    if (!HaveProgressFiles(stage)) {
        stage.view.Close();
        return false;
    }
    CloseSudoku(stage);
    stage.session.textHint = "Choose a level in the menu Level, then open a sudoku with Next.";
    if (const int level = HaalLaatsteLevel(stage.settings); level != 0) {
        stage.session.level = level;
        stage.session.textHint = "Open a sudoku with Next, or by its number with Open.";
        PrepareLevel(stage);
        ContinueLastBusy(stage);
    }
    return true;
}

bool MayQuit(Stage& stage) {
    constexpr const char* kTitle = "Quit Vemo Sudoku";
    if (stage.session.IsBusy()) {
        Tell(stage, "Function in progress",
             "Autosolve or Scan function busy, cannot quit Vemo Sudoku now.");
        return false;
    }
    if (RefuseQuitWhileSearching(stage) || RefuseQuitWhileCollecting(stage)) {
        return false;
    }
    if (!AskYesNo(stage, kTitle, "Do you really want to quit ?")) {
        return false;
    }
    if (HasUnsavedSteps(stage.session) && WhySaveRefuses(stage) == SaveRefusal::None) {
        if (!SaveProgress(stage) &&
            !AskYesNo(stage, kTitle, "The sudoku could not be saved. Quit all the same ?",
                      EnterKey::No)) {
            return false;
        }
    } else if (stage.session.level != 0) {
        SaveLastLevel(stage.settings, stage.session.level);
    }
    WriteTechniqueSettings(stage.settings, stage.techniques);
    SchrijfOpties(stage.settings, stage.options);
    WriteGeneratorOrder(stage.settings, stage.generator.Order());
    if (!MayQuitGenerator(stage)) {
        return false;
    }
    KeepColors(stage);
    return true;
}

}  // namespace vemo
