// The game as its window sees it: one method an event, named after its control. No rule stands
// here; each method hands on to the part of the game that knows it and then shows the screen anew.
#pragma once

#include "game/collection_commands.h"
#include "game/entry.h"
#include "game/help.h"
#include "game/menu_ids.h"
#include "game/screen.h"
#include "game/stage.h"

namespace vemo {

enum class WindowState : std::uint8_t { Shown, Minimized };

class Game {
  public:
    Game(const Platform& platform, View& view);

    // What the player sees now.
    const Screen& Current() const { return screen_; }
    const Options& CurrentOptions() const { return stage_.options; }
    const Colors& CurrentColors() const { return stage_.colors; }
    const Session& CurrentSession() const { return stage_.session; }
    // The other windows: the hint window, the solve log's text, which only ever grows, the
    // technique manager, which is off while the game is busy, the generator, the colors, and what
    // is printed.
    const HintWindow& CurrentHintWindow() const { return hintWindow_; }
    const std::string& SolveLogText() const { return stage_.log.Text(); }
    const SolveTech& TechniqueManager() const { return stage_.solveTech; }
    const GeneratorWindow& CurrentGenerator() const { return stage_.generator; }
    const ColorWindow& CurrentColorWindow() const { return stage_.colorWindow; }
    const PrintWindow& CurrentPrint() const { return stage_.print; }
    std::string WhyNotPlay() const { return vemo::WhyNotPlay(stage_); }
    // The window "Check and Import" and its events.
    CollectionCommands& Collection() { return collection_; }
    // The help window's page that was last asked for, and the folder of all pages.
    const std::string& CurrentHelpPage() const { return stage_.helpPage; }
    std::filesystem::path HelpFolder() const { return vemo::HelpFolder(stage_); }

    // The window.
    void FormLoad();
    void FormOpenFile(const std::filesystem::path& path);  // a file that the game was started with
    bool FormQueryUnload();                                // answers whether the window may close
    void FormResize(WindowState state);
    void Timer1();  // every tick of the clock, a few a second

    // The board. A front end reports the cell under the pointer and the digit whose mark's place
    // is under it; `released` tells whether the button went up over the cell that it went down on.
    void GridMouseUp(int cell, int digit, MouseButton button, Released released);
    void GridMouseMove(int cell, int digit);
    void FormMouseMove();  // the pointer is over no cell
    void LabelRowMouseUp(int row, MouseButton button, Released released);
    void LabelColumnMouseUp(int column, MouseButton button, Released released);
    void LabelColorMouseUp(int color, MouseButton button);
    void CommandLinkClick();
    void Command1Click(int digit);  // the nine digit filters
    void CommandApplyClick();
    void CommandMoreClick();  // the help on the hint on display
    void CommandPauseClick();
    void TextHintDblClick();

    // The text box for a puzzle of one's own: its text was changed, files were dropped on it; and
    // the button that gives the making up.
    void SudTekstChange(const std::string& text);
    void SudTekstDrop(const std::vector<std::filesystem::path>& paths);
    void CommandCancelClick();

    // The keyboard.
    void MoveSelection(Direction direction, Jump jump);
    void KeyDigit(int digit);  // assigns to the selected cell
    void KeyMark(int digit);   // toggles a mark of the selected cell
    void KeyReset();           // resets the selected cell, or takes its clue off while making
    void KeyHint();            // a hint, and again to apply it
    void KeyHelp();            // the help on what the window shows
    void KeyHelp(Form form);   // the same from another window

    // The menus; each button calls its menu twin (CommandHint: Hint or Show Me, by its caption).
    void Run(CommandId id);
    void CommandHintClick();

    void mnuSudokuNext();
    void mnuSudokuOpen();
    void mnuSudokuSave();
    void mnuSudokuMake();
    void mnuSudokuValidate();
    void mnuSudokuCheck();
    void mnuSudokuGenerator();
    void mnuSudokuPrint();
    void mnuSudokuExit();
    void mnuLevelNr(int level);
    void mnuSolveRestart();
    void mnuSolveUndo();
    void mnuSolveRedo();
    void mnuSolveResetCell();
    void mnuSolveHint();
    void mnuSolveShowMe();
    void mnuSolveSolution();
    void mnuSolveManager();
    void mnuSolveLog();
    void mnuSolveAutoSolve();
    void mnuSolveScan();
    void mnuSolveStop();
    void mnuPencilmarksMode();
    void mnuPencilmarksOff();
    void mnuPencilmarksDimmed();
    void mnuEraseSudokuTime();
    void mnuEraseLevelTime();
    void mnuEraseAllTime();
    void mnuOptionsTimer();
    void mnuOptionsSounds();
    void mnuOptionsWells();
    void mnuOptionsSmallWindow();
    void mnuOptionsColors();
    void mnuAppearance(Appearance appearance);
    void mnuHelpContents();
    void mnuHelpWeb();
    void mnuHelpRevision();

    // The other windows: about to close, and closed, by whatever means; the hint window's menu; the
    // log's Save; the technique manager's boxes, option buttons and buttons.
    bool FormQueryUnload(Form form);  // answers whether it may close
    void FormUnload(Form form);
    void mnuWindowRefresh();
    void mnuWindowsSave();
    void mnuWindowClose();
    void mnuLogSave();
    void CheckInclude(int index);
    void OptionOrder(int position);
    void KnopUp();
    void KnopDown();
    void CommandDefaultsClick();
    void CommandOK();

    void HelpLinkClicked(const std::string& address);  // one that leads out of the help

    // The generator. It lives beside the game's long functions: only Play waits for their end.
    void GeneratorChange(const GeneratorOrder& order);  // any of the controls for the order
    void CommandStart();
    void CommandStopSearch();
    void CommandStore();
    void GeneratorSelect(int row);
    void CommandPlay();    // and a double-click on a row
    void GeneratorTick();  // a few times a second while it searches

    // The colors.
    void ColorTone(Tone tone);
    void ColorSelect(int row);
    void ColorChange(ColorPart part, Rgb color);
    void ColorType(ColorPart part, const std::string& text);  // at every change of the text
    void ColorEndTyping();                                    // Enter, or the text box is left
    void ColorForgetTyped();
    void CommandResetColor();
    void CommandResetColors();
    void CommandKeepColors();
    void CommandCancelColors();

    // Printing. Any of the controls for the order; where to save pages; and a finished file of
    // them, which answers whether it could be put there.
    void PrintChange(const PrintOrder& order);
    std::optional<std::filesystem::path> AskPdfFile(const std::string& name);
    bool StorePdf(const std::filesystem::path& path, std::span<const std::uint8_t> bytes);
    // Of all that is printed, in the window "Print" or in another's preview.
    Paper CurrentPaper() const { return ReadPageStyle(stage_.settings).paper; }
    void ChoosePaper(Paper paper);

  private:
    // Runs one event unless a long function bars it, then shows the screen anew.
    template <typename Event>
    void Handle(Event event);
    // An option that only the screen follows.
    void Flip(bool Options::*option);
    // Runs one event of the generator.
    template <typename Event>
    void HandleGenerator(Event event);
    // Runs one event of the colors.
    template <typename Event>
    void HandleColors(Event event);
    void Show();

    Stage stage_;
    Screen screen_;
    HintWindow hintWindow_;
    CollectionCommands collection_{stage_};
};

}  // namespace vemo
