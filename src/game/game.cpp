// The game as its window sees it.
#include "game/game.h"

#include "game/autosolve.h"
#include "game/entry.h"
#include "game/hints.h"
#include "game/maker.h"
#include "game/menus.h"
#include "game/play_levels.h"
#include "game/play_times.h"
#include "game/screen_maker.h"
#include "game/startup.h"
#include "game/timer.h"

namespace vemo {

Game::Game(const Platform& platform, View& view) : stage_(platform, view) {
    stage_.show = [this] { Show(); };
    Show();
}

void Game::Show() {
    stage_.print.Follow(stage_);
    screen_ = MakeScreen(stage_);
    hintWindow_ = MakeHintWindow(stage_);
    stage_.view.Refresh();
}

template <typename Event>
void Game::Handle(Event event) {
    if (stage_.session.IsBusy()) {
        return;
    }
    event(stage_);
    Show();
}

void Game::Flip(bool Options::*option) {
    Handle([&](Stage& stage) { FlipOption(stage, option); });
}

void Game::FormLoad() {
    Handle([](Stage& stage) { StartUp(stage); });
}

void Game::FormOpenFile(const std::filesystem::path& path) {
    collection_.mnuSudokuCheck();
    collection_.Drop({path});
}

bool Game::FormQueryUnload() {
    const bool mayQuit = MayQuit(stage_);
    Show();
    return mayQuit;
}

void Game::FormResize(WindowState state) {
    const bool isMinimized = state == WindowState::Minimized;
    if (stage_.session.isMinimized != isMinimized) {
        SetMinimized(stage_, isMinimized);
        Show();
    }
}

void Game::Timer1() {
    const int before = stage_.session.clock.Elapsed();
    stage_.session.clock.Tick(stage_.clock.SecondOfDay());
    if (stage_.session.clock.Elapsed() != before) {
        Show();
    }
}

void Game::GridMouseUp(int cell, int digit, MouseButton button, Released released) {
    if (released == Released::Inside) {
        Handle([&](Stage& stage) { ClickBoard(stage, cell, digit, button); });
    }
}

void Game::GridMouseMove(int cell, int digit) {
    const int mark = cell * kDigits + digit - 1;
    if (stage_.session.pointedMark != mark) {
        stage_.session.pointedMark = mark;
        Show();
    }
}

void Game::FormMouseMove() {
    if (stage_.session.pointedMark != kNoMark) {
        stage_.session.pointedMark = kNoMark;
        Show();
    }
}

void Game::LabelRowMouseUp(int row, MouseButton button, Released released) {
    if (released == Released::Inside) {
        Handle([&](Stage& stage) { ClickLabel(stage, UnitKind::Row, row, button); });
    }
}

void Game::LabelColumnMouseUp(int column, MouseButton button, Released released) {
    if (released == Released::Inside) {
        Handle([&](Stage& stage) { ClickLabel(stage, UnitKind::Column, column, button); });
    }
}

void Game::LabelColorMouseUp(int color, MouseButton button) {
    Handle([&](Stage& stage) { ClickColorLabel(stage, color, button); });
}

void Game::CommandLinkClick() {
    Handle([](Stage& stage) { ToggleLinkMode(stage); });
}

void Game::Command1Click(int digit) {
    Handle([&](Stage& stage) { ToggleDigitFilter(stage, digit); });
}

void Game::CommandApplyClick() {
    Handle([](Stage& stage) { ApplyHint(stage); });
}

void Game::CommandMoreClick() {
    KeyHelp();
}

void Game::CommandPauseClick() {
    Handle(TogglePause);
}

void Game::TextHintDblClick() {
    Handle(OpenHintWindow);
}

void Game::SudTekstChange(const std::string& text) {
    Handle([&](Stage& stage) { ChangeSudTekst(stage, text); });
}

void Game::SudTekstDrop(const std::vector<std::filesystem::path>& paths) {
    Handle([&](Stage& stage) { DropOnSudTekst(stage, paths); });
}

void Game::CommandCancelClick() {
    Handle(CancelMaking);
}

void Game::MoveSelection(Direction direction, Jump jump) {
    Handle([&](Stage& stage) { MoveSelectionBy(stage, direction, jump); });
}

void Game::KeyDigit(int digit) {
    Handle([&](Stage& stage) { AssignBySelection(stage, digit); });
}

void Game::KeyMark(int digit) {
    Handle([&](Stage& stage) { ToggleMarkBySelection(stage, digit); });
}

void Game::KeyReset() {
    Handle(ResetCell);
}

void Game::KeyHint() {
    if (stage_.session.hint) {
        CommandApplyClick();
    } else {
        CommandHintClick();
    }
}

void Game::Run(CommandId id) {
    if (screen_.Command(id).isEnabled) {
        RowOf(id).handler(*this);
    }
}

void Game::CommandHintClick() {
    Run(stage_.session.showMe ? CommandId::SolveShowMe : CommandId::SolveHint);
}

void Game::KeyHelp() {
    Handle([](Stage& stage) { OpenHelp(stage, HelpPageFor(stage)); });
}

void Game::KeyHelp(Form form) {
    Handle([&](Stage& stage) { OpenHelp(stage, HelpPageFor(stage, form)); });
}

void Game::mnuSudokuNext() {
    Handle(NextPuzzle);
}

void Game::mnuSudokuOpen() {
    Handle(OpenByNumber);
}

void Game::mnuSudokuSave() {
    Handle(SaveCommand);
}

void Game::mnuSudokuMake() {
    Handle(MakeSudoku);
}

void Game::mnuSudokuValidate() {
    Handle(ValidateSudoku);
}

void Game::mnuSudokuCheck() {
    collection_.mnuSudokuCheck();
}

void Game::mnuSudokuGenerator() {
    OpenGenerator(stage_);
}

void Game::mnuSudokuPrint() {
    Handle(OpenPrint);
}

void Game::mnuSudokuExit() {
    if (FormQueryUnload()) {
        stage_.view.Close();
    }
}

void Game::mnuLevelNr(int level) {
    Handle([&](Stage& stage) { ChooseLevel(stage, level); });
}

void Game::mnuSolveRestart() {
    Handle(Restart);
}

void Game::mnuSolveUndo() {
    Handle(UndoStep);
}

void Game::mnuSolveRedo() {
    Handle(RedoStep);
}

void Game::mnuSolveResetCell() {
    Handle(ResetCell);
}

void Game::mnuSolveHint() {
    Handle(GiveHint);
}

void Game::mnuSolveShowMe() {
    Handle(ShowMe);
}

void Game::mnuSolveSolution() {
    Handle(ShowSolution);
}

void Game::mnuSolveManager() {
    stage_.view.OpenForm(Form::SolveTech, Keyboard::Follows);
}

void Game::mnuSolveLog() {
    stage_.view.OpenForm(Form::FormLog, Keyboard::Follows);
}

void Game::mnuSolveAutoSolve() {
    Handle(AutoSolve);
}

void Game::mnuSolveScan() {
    Handle(Scan);
}

void Game::mnuSolveStop() {
    stage_.session.isStopRequested = true;
}

void Game::mnuPencilmarksMode() {
    Flip(&Options::pencilmarks);
}

void Game::mnuPencilmarksOff() {
    Flip(&Options::pencilmarksOff);
}

void Game::mnuPencilmarksDimmed() {
    Flip(&Options::dimmed);
}

void Game::mnuEraseSudokuTime() {
    Handle(EraseSudokuTime);
}

void Game::mnuEraseLevelTime() {
    Handle(EraseLevelTime);
}

void Game::mnuEraseAllTime() {
    Handle(EraseAllTime);
}

void Game::mnuOptionsTimer() {
    Handle(ToggleTimer);
}

void Game::mnuOptionsSounds() {
    Flip(&Options::sounds);
}

void Game::mnuOptionsWells() {
    Flip(&Options::wells);
}

void Game::mnuOptionsSmallWindow() {
    Handle(ToggleSmallHintWindow);
}

void Game::mnuAppearance(Appearance appearance) {
    Handle([&](Stage& stage) {
        stage.options.appearance = appearance;
        SchrijfOpties(stage.settings, stage.options);
    });
}

void Game::mnuHelpContents() {
    Handle([](Stage& stage) { OpenHelp(stage, kHelpHome); });
}

void Game::mnuHelpRevision() {
    Handle([](Stage& stage) { OpenHelp(stage, kRevisionPage); });
}

void Game::mnuHelpWeb() {
    Handle([](Stage& stage) { OpenHelpLink(stage, std::string(kWebAddress)); });
}

bool Game::FormQueryUnload(Form form) {
    if (form == Form::FormColors) {
        AskToKeepColors(stage_);
    }
    return form != Form::FormGenerator || MayCloseGenerator(stage_);
}

void Game::FormUnload(Form form) {
    switch (form) {
    case Form::FormHint:
        HintWindowClosed(stage_);
        break;
    case Form::SolveTech:
        WriteTechniqueSettings(stage_.settings, stage_.techniques);
        stage_.settings.Flush();
        break;
    case Form::FormGenerator:
        WriteGeneratorOrder(stage_.settings, stage_.generator.Order());
        break;
    case Form::FormColors:
        KeepColors(stage_);
        break;
    case Form::FormPrint:
        stage_.print.End();
        break;
    case Form::FormLog:
    case Form::FormCollection:
    case Form::FormHelp:
        break;
    }
    Show();
}

void Game::mnuWindowRefresh() {
    Handle(RefreshHintWindow);
}

void Game::mnuWindowsSave() {
    Handle(SaveHintWindow);
}

void Game::mnuWindowClose() {
    stage_.view.CloseForm(Form::FormHint);
}

void Game::mnuLogSave() {
    Handle(SaveSolveLog);
}

void Game::HelpLinkClicked(const std::string& address) {
    OpenHelpLink(stage_, address);
}

void Game::CheckInclude(int index) {
    Handle([&](Stage& stage) { stage.solveTech.CheckInclude(index); });
}

void Game::OptionOrder(int position) {
    Handle([&](Stage& stage) { stage.solveTech.OptionOrder(position); });
}

void Game::KnopUp() {
    Handle([](Stage& stage) { stage.solveTech.KnopUp(); });
}

void Game::KnopDown() {
    Handle([](Stage& stage) { stage.solveTech.KnopDown(); });
}

void Game::CommandDefaultsClick() {
    Handle([](Stage& stage) { stage.solveTech.SetDefaults(); });
}

void Game::CommandOK() {
    stage_.view.CloseForm(Form::SolveTech);
}

}  // namespace vemo
