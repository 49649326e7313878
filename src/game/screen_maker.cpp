// Makes the screen from the game's state.
#include "game/screen_maker.h"

#include <algorithm>

#include "game/menus.h"
#include "game/pencilmarks.h"
#include "game/play_times.h"

namespace vemo {
namespace {

constexpr const char* kClockIsStopped =
    "The clock is stopped and the sudoku is covered. Press Pause to go on.";

std::size_t Index(int number) {
    return static_cast<std::size_t>(number);
}

// The digit whose cells stand out: the filter's, otherwise that of the selected cell.
int HighlightedDigit(const Session& session) {
    if (session.digitFilter != 0 || session.selectedCell == kNoCell) {
        return session.digitFilter;
    }
    return session.grid.Digit(session.selectedCell);
}

void PutCells(const Session& session, Screen& screen) {
    const int highlighted = HighlightedDigit(session);
    for (int cell = 0; cell < kCells; ++cell) {
        CellView& view = screen.cells[Index(cell)];
        view.digit = session.grid.Digit(cell);
        view.isClue = session.grid.IsGiven(cell);
        view.brush = session.brushes.CellColor(cell);
        view.isSameDigit = view.digit != 0 && view.digit == highlighted;
        view.isDimmed = view.digit != 0 && session.digitFilter != 0 && !view.isSameDigit;
    }
    screen.selectedCell = session.selectedCell;
}

bool IsLinkStart(const Session& session, int cell, int digit) {
    return session.links.StartCell() == cell && session.links.StartDigit() == digit;
}

void PutMarks(const Stage& stage, Screen& screen) {
    const Session& session = stage.session;
    const int filter = session.digitFilter;
    for (int cell = 0; cell < kCells; ++cell) {
        const Marks shown = ShownMarks(stage, cell);
        for (int digit = 1; digit <= kDigits; ++digit) {
            MarkView& view = screen.marks[Index(cell)][Index(digit - 1)];
            view.isShown = HasMark(shown, digit);
            view.isFiltered =
                view.isShown && (digit == filter || IsLinkStart(session, cell, digit));
            view.isDimmed = view.isShown && (filter != 0 ? digit != filter : stage.options.dimmed);
        }
    }
}

// A link joins two marks: it is drawn while both are there.
void PutLinks(const Stage& stage, Screen& screen) {
    const Session& session = stage.session;
    if (!AreMarksUsable(stage)) {
        return;
    }
    std::ranges::copy_if(session.links.All(), std::back_inserter(screen.links),
                         [&](const LinkView& link) {
                             return session.grid.KnopAan(link.fromCell, link.fromDigit) &&
                                    session.grid.KnopAan(link.toCell, link.toDigit);
                         });
}

void PutWells(const Session& session, Screen& screen) {
    screen.areWellsShown = true;
    for (int cell : CellSet::All() - session.grid.EmptyCells()) {
        const Marks mark = MarkOf(session.grid.Digit(cell));
        screen.rowWells[Index(CellRow(cell))] |= mark;
        screen.columnWells[Index(CellColumn(cell))] |= mark;
    }
}

// All that a covered board hides.
void PutPuzzle(const Stage& stage, Screen& screen) {
    const Session& session = stage.session;
    PutCells(session, screen);
    PutMarks(stage, screen);
    PutLinks(stage, screen);
    for (int index = 0; index < 9; ++index) {
        screen.rowLabels[Index(index)].brush = session.brushes.LabelColor(UnitKind::Row, index);
        screen.columnLabels[Index(index)].brush =
            session.brushes.LabelColor(UnitKind::Column, index);
    }
    if (stage.options.wells && session.phase != PlayPhase::NoPuzzle) {
        PutWells(session, screen);
    }
    session.hintColors.PaintOn(screen);
    screen.hintCaption = session.hintCaption;
    screen.textHint = session.textHint;
    screen.hasHelpOnHint = session.hintSlot != kNoSlot;
    screen.canApply = session.hint && session.IsBoardOn() && !session.IsBusy();
}

void PutClock(const Stage& stage, Screen& screen) {
    const Session& session = stage.session;
    screen.timeText = FormatTime(TimeOfSeconds(session.clock.Elapsed()));
    screen.isClockShown = stage.options.timeOn;
    screen.isClockStopped = session.isStoppedByPlayer;
}

void PutBrushes(const Session& session, Screen& screen) {
    screen.leftBrush = session.brushes.Armed(MouseButton::Left);
    screen.rightBrush = session.brushes.Armed(MouseButton::Right);
    screen.isBrushPointer =
        session.brushes.IsArmed() && !session.links.IsOn() && !session.IsMaking();
}

// All but the puzzle.
Screen MakeFrame(const Stage& stage) {
    const Session& session = stage.session;
    Screen screen;
    screen.isBoardEnabled = (session.IsBoardOn() || session.IsMaking()) && !session.IsBusy();
    screen.isMaking = session.IsMaking();
    screen.sudTekst = session.sudTekst;
    PutBrushes(session, screen);
    PutClock(stage, screen);
    screen.isLinkMode = session.links.IsOn() && !session.IsMaking();
    screen.digitFilter = session.digitFilter;
    screen.hintButton = session.showMe ? "Show Me" : "Hint";
    screen.stepText = "Step " + std::to_string(session.history.StepCount());
    screen.status = StatusPanels(session);
    screen.commands = CommandStates(stage);
    return screen;
}

}  // namespace

Screen MakeScreen(const Stage& stage) {
    if (!stage.session.IsCovered()) {
        return MakeUncoveredScreen(stage);
    }
    Screen screen = MakeFrame(stage);
    screen.isBoardCovered = true;
    screen.textHint = kClockIsStopped;
    return screen;
}

Screen MakeUncoveredScreen(const Stage& stage) {
    Screen screen = MakeFrame(stage);
    PutPuzzle(stage, screen);
    return screen;
}
}  // namespace vemo
