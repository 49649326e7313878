// The menu bar as one table, and what is available when.
#include "game/menus.h"

#include <algorithm>
#include <cassert>

#include "game/autosolve.h"
#include "game/entry.h"
#include "game/game.h"
#include "game/play_levels.h"
#include "model/levels.h"

namespace vemo {
namespace {

using enum CommandId;
using Kind = MenuRowKind;

constexpr std::string_view kSudoku = "&Sudoku";
constexpr std::string_view kLevel = "&Level";
constexpr std::string_view kSolve = "Sol&ve";
constexpr std::string_view kOptions = "&Options";
constexpr std::string_view kHelp = "&Help";
constexpr std::string_view kErase = "&Erase Time";
constexpr std::string_view kAppearance = "A&ppearance";

constexpr bool kBegins = true;
constexpr bool kGoesOn = false;

template <int kNumber>
void ChooseLevelEntry(Game& game) {
    game.mnuLevelNr(kNumber);
}
template <Appearance kChoice>
void ChooseAppearanceEntry(Game& game) {
    game.mnuAppearance(kChoice);
}
template <void (Game::*kMethod)()>
void Call(Game& game) {
    (game.*kMethod)();
}

// clang-format off
constexpr MenuRow kRows[] = {
    {SudokuNext, kSudoku, "", "&Next", "Ctrl+N", Kind::Command, kGoesOn, Call<&Game::mnuSudokuNext>},
    {SudokuOpen, kSudoku, "", "&Open...", "Ctrl+O", Kind::Command, kGoesOn, Call<&Game::mnuSudokuOpen>},
    {SudokuSave, kSudoku, "", "&Save", "Ctrl+S", Kind::Command, kGoesOn, Call<&Game::mnuSudokuSave>},
    {SudokuMake, kSudoku, "", "&Make", "", Kind::Command, kBegins, Call<&Game::mnuSudokuMake>},
    {SudokuValidate, kSudoku, "", "&Validate", "", Kind::Command, kGoesOn, Call<&Game::mnuSudokuValidate>},
    {SudokuCheck, kSudoku, "", "&Check and Import...", "", Kind::Command, kBegins, Call<&Game::mnuSudokuCheck>},
    {SudokuGenerator, kSudoku, "", "&Generator...", "", Kind::Command, kGoesOn, Call<&Game::mnuSudokuGenerator>},
    {SudokuPrint, kSudoku, "", "&Print...", "Ctrl+P", Kind::Command, kBegins, Call<&Game::mnuSudokuPrint>},
    {SudokuExit, kSudoku, "", "E&xit", "Ctrl+Q", Kind::Command, kBegins, Call<&Game::mnuSudokuExit>},
    {Level1, kLevel, "", "&Easy", "", Kind::Radio, kGoesOn, ChooseLevelEntry<1>},
    {Level2, kLevel, "", "&Medium", "", Kind::Radio, kGoesOn, ChooseLevelEntry<2>},
    {Level3, kLevel, "", "&Hard", "", Kind::Radio, kGoesOn, ChooseLevelEntry<3>},
    {Level4, kLevel, "", "&Crazy", "", Kind::Radio, kGoesOn, ChooseLevelEntry<4>},
    {Level5, kLevel, "", "&Insane", "", Kind::Radio, kGoesOn, ChooseLevelEntry<5>},
    {Level6, kLevel, "", "&Kamikaze", "", Kind::Radio, kGoesOn, ChooseLevelEntry<6>},
    {Level7, kLevel, "", "E&xtreme", "", Kind::Radio, kGoesOn, ChooseLevelEntry<7>},
    {Level8, kLevel, "", "M&ayhem", "", Kind::Radio, kGoesOn, ChooseLevelEntry<8>},
    {Level9, kLevel, "", "&Outlaw", "", Kind::Radio, kGoesOn, ChooseLevelEntry<9>},
    {SolveRestart, kSolve, "", "&Restart", "", Kind::Command, kGoesOn, Call<&Game::mnuSolveRestart>},
    {SolveUndo, kSolve, "", "&Undo", "Ctrl+Z", Kind::Command, kGoesOn, Call<&Game::mnuSolveUndo>},
    {SolveRedo, kSolve, "", "Re&do", "Ctrl+Y", Kind::Command, kGoesOn, Call<&Game::mnuSolveRedo>},
    {SolveResetCell, kSolve, "", "Reset &Cell", "Del", Kind::Command, kGoesOn, Call<&Game::mnuSolveResetCell>},
    {SolveHint, kSolve, "", "&Hint", "F12", Kind::Command, kBegins, Call<&Game::mnuSolveHint>},
    {SolveShowMe, kSolve, "", "Show &Me", "", Kind::Command, kGoesOn, Call<&Game::mnuSolveShowMe>},
    {SolveSolution, kSolve, "", "&Solution", "", Kind::Command, kGoesOn, Call<&Game::mnuSolveSolution>},
    {SolveManager, kSolve, "", "Solve &Tech Manager...", "", Kind::Command, kBegins, Call<&Game::mnuSolveManager>},
    {SolveLog, kSolve, "", "&Log...", "", Kind::Command, kGoesOn, Call<&Game::mnuSolveLog>},
    {SolveAutoSolve, kSolve, "", "&Autosolve", "", Kind::Command, kBegins, Call<&Game::mnuSolveAutoSolve>},
    {SolveScan, kSolve, "", "Sca&n...", "", Kind::Command, kGoesOn, Call<&Game::mnuSolveScan>},
    {SolveStop, kSolve, "", "Sto&p Scanning", "", Kind::Command, kGoesOn, Call<&Game::mnuSolveStop>},
    {PencilmarksMode, kOptions, "", "&Auto Pencilmarks", "", Kind::Check, kGoesOn, Call<&Game::mnuPencilmarksMode>},
    {PencilmarksOff, kOptions, "", "Pencilmarks off in &first 3 levels", "", Kind::Check, kGoesOn, Call<&Game::mnuPencilmarksOff>},
    {PencilmarksDimmed, kOptions, "", "&Dimmed Pencilmarks", "", Kind::Check, kGoesOn, Call<&Game::mnuPencilmarksDimmed>},
    {EraseSudokuTime, kOptions, kErase, "Current &Sudoku", "", Kind::Command, kBegins, Call<&Game::mnuEraseSudokuTime>},
    {EraseLevelTime, kOptions, kErase, "Current &Level", "", Kind::Command, kGoesOn, Call<&Game::mnuEraseLevelTime>},
    {EraseAllTime, kOptions, kErase, "&All Levels", "", Kind::Command, kGoesOn, Call<&Game::mnuEraseAllTime>},
    {OptionsTimer, kOptions, "", "&Timer", "", Kind::Check, kBegins, Call<&Game::mnuOptionsTimer>},
    {OptionsSounds, kOptions, "", "&Sounds", "", Kind::Check, kGoesOn, Call<&Game::mnuOptionsSounds>},
    {OptionsWells, kOptions, "", "&Wells", "", Kind::Check, kGoesOn, Call<&Game::mnuOptionsWells>},
    {OptionsSmallWindow, kOptions, "", "S&mall Hint Window", "", Kind::Check, kGoesOn, Call<&Game::mnuOptionsSmallWindow>},
    {OptionsColors, kOptions, "", "&Hint Colors...", "", Kind::Command, kBegins, Call<&Game::mnuOptionsColors>},
    {AppearanceSystem, kOptions, kAppearance, "As the &System", "", Kind::Radio, kGoesOn, ChooseAppearanceEntry<Appearance::AsTheSystem>},
    {AppearanceLight, kOptions, kAppearance, "&Light", "", Kind::Radio, kGoesOn, ChooseAppearanceEntry<Appearance::Light>},
    {AppearanceDark, kOptions, kAppearance, "&Dark", "", Kind::Radio, kGoesOn, ChooseAppearanceEntry<Appearance::Dark>},
    {HelpContents, kHelp, "", "&Contents...", "F1", Kind::Command, kGoesOn, Call<&Game::mnuHelpContents>},
    {HelpWeb, kHelp, "", "Vemo Software on the &Web...", "", Kind::Command, kGoesOn, Call<&Game::mnuHelpWeb>},
    {HelpRevision, kHelp, "", "&Revision History...", "", Kind::Command, kGoesOn, Call<&Game::mnuHelpRevision>},
};
// clang-format on

constexpr bool RowsAreInOrder() {
    std::size_t number = 0;
    for (const MenuRow& row : kRows) {
        if (static_cast<std::size_t>(row.id) != number++) {
            return false;
        }
    }
    return number == kCommands;
}
static_assert(RowsAreInOrder(), "a row is found by its command");

bool IsLevelTicked(const Session& session, int level) {
    return (session.pendingLevel != 0 ? session.pendingLevel : session.level) == level;
}

bool IsTicked(CommandId id, const Stage& stage) {
    const Options& options = stage.options;
    switch (id) {
    case PencilmarksMode:
        return options.pencilmarks;
    case PencilmarksOff:
        return options.pencilmarksOff;
    case PencilmarksDimmed:
        return options.dimmed;
    case OptionsTimer:
        return options.timeOn;
    case OptionsSounds:
        return options.sounds;
    case OptionsWells:
        return options.wells;
    case OptionsSmallWindow:
        return options.hintWindow;
    case AppearanceSystem:
        return options.appearance == Appearance::AsTheSystem;
    case AppearanceLight:
        return options.appearance == Appearance::Light;
    case AppearanceDark:
        return options.appearance == Appearance::Dark;
    default:
        return id >= Level1 && id <= Level9 &&
               IsLevelTicked(stage.session, static_cast<int>(id) - static_cast<int>(Level1) + 1);
    }
}

bool IsOnWhileBusy(CommandId id) {
    return id == SolveStop || id == SolveLog;
}

// What would lose the clues that are being made, or needs a puzzle in play.
bool IsOffWhileMaking(CommandId id) {
    switch (id) {
    case SudokuNext:
    case SudokuOpen:
    case SudokuSave:
    case SudokuMake:
    case SolveScan:
        return true;
    default:
        return (id >= Level1 && id <= Level9) || (id >= SolveRestart && id <= SolveSolution);
    }
}

// Without a long function running.
bool IsAvailable(CommandId id, const Stage& stage) {
    const Session& session = stage.session;
    const bool hasLevel = session.level != 0 || session.pendingLevel != 0;
    const bool canChange = session.IsBoardOn();
    if (session.IsMaking() && IsOffWhileMaking(id)) {
        return false;
    }
    switch (id) {
    case SudokuValidate:
        return session.IsMaking();
    case SudokuNext:
    case SudokuOpen:
        return hasLevel;
    case SudokuSave:
        return WhySaveRefuses(stage) != SaveRefusal::NoPuzzle;
    case SolveRestart:
        return MayRestart(session);
    case SolveUndo:
        return MayUndo(session);
    case SolveRedo:
        return MayRedo(session);
    case SolveResetCell:
        return MayResetCell(session);
    case SolveHint:
        return canChange && !session.showMe;
    case SolveShowMe:
        return canChange && session.showMe.has_value();
    case SolveSolution:
        return canChange;
    case SolveAutoSolve:
        return MayAutosolve(stage);
    case SolveScan:
        return MayScan(stage);
    case SolveStop:
        return false;
    case EraseSudokuTime:
        return session.number != 0 && !session.puzzle.best.IsNone();
    case EraseLevelTime:
        return session.level != 0;
    default:
        return true;
    }
}

}  // namespace

std::span<const MenuRow> MenuRows() {
    return kRows;
}

const MenuRow& RowOf(CommandId id) {
    assert(id != CommandId::Count && "a command has a row");
    return kRows[static_cast<std::size_t>(id)];
}

std::array<CommandView, kCommands> CommandStates(const Stage& stage) {
    std::array<CommandView, kCommands> states;
    for (const MenuRow& row : kRows) {
        const bool isAvailable =
            stage.session.IsBusy() ? IsOnWhileBusy(row.id) : IsAvailable(row.id, stage);
        states[static_cast<std::size_t>(row.id)] = {isAvailable, IsTicked(row.id, stage)};
    }
    return states;
}

}  // namespace vemo
