// Cell entry.
#include "game/entry.h"

#include "game/maker.h"
#include "game/pencilmarks.h"
#include "game/play_levels.h"
#include "game/timer.h"
#include "solver/catalogue.h"

namespace vemo {
namespace {

constexpr const char* kMarksAreOff =
    "Pencil marks are switched off: show them with Options, Auto Pencilmarks";
constexpr const char* kMarksAreSimple =
    "Pencil marks cannot be removed while \"Pencilmarks off in first 3 levels\" is switched on";
constexpr const char* kBrushIsArmed =
    "A color is chosen for painting: click it again before you enter numbers";

// What was paid for: the explanation of a hint, or the one line of a report or a simple hint.
std::string PaidText(const Session& session) {
    if (session.hint) {
        return HintText(*session.hint);
    }
    const bool isPaid = session.hintSlot != kNoSlot || session.showMe;
    return isPaid ? session.textHint.substr(0, session.textHint.find('\n')) : "";
}

void Refuse(Stage& stage, const std::string& why) {
    const std::string paid = PaidText(stage.session);
    stage.session.textHint = paid.empty() ? why : paid + "\n" + why;
}

std::string NumberAt(int digit, int cell, const char* verb) {
    return "Number " + std::to_string(digit) + verb + CellName(cell);
}

void EndStep(Stage& stage, Sound sound) {
    stage.session.DropHint();
    stage.session.textHint.clear();
    Speel(stage, sound);
    ZetOpgelost(stage);
}

void Assign(Stage& stage, int cell, int digit) {
    stage.session.history.Place(stage.session.grid, cell, digit);
    EndStep(stage, Sound::Assign);
}

void Discard(Stage& stage, int cell, int digit) {
    stage.session.history.Discard(stage.session.grid, cell, digit);
    EndStep(stage, Sound::Discard);
}

void GiveBack(Stage& stage, int cell, Marks marks) {
    Session& session = stage.session;
    if ((marks & ~session.grid.MarksAt(cell)) != 0) {
        session.history.GiveBack(session.grid, cell, marks);
        EndStep(stage, Sound::ResetCell);
    }
}

// A place for a mark in an empty cell.
void ClickMark(Stage& stage, int cell, int digit, MouseButton button) {
    Session& session = stage.session;
    const bool isMark = session.grid.KnopAan(cell, digit);
    if (!AreMarksUsable(stage)) {
        Refuse(stage, kMarksAreOff);
    } else if (session.links.IsOn()) {
        if (isMark) {
            session.links.Click(cell, digit, button);
        }
    } else if (button == MouseButton::Right && !CanDiscardMarks(stage)) {
        Refuse(stage, kMarksAreSimple);
    } else if (isMark && button == MouseButton::Left) {
        Assign(stage, cell, digit);
    } else if (isMark) {
        Discard(stage, cell, digit);
    }
}

// The selected cell where a digit key can act on it; a refusal is told.
bool CanType(Stage& stage) {
    const Session& session = stage.session;
    const int cell = session.selectedCell;
    if (!session.IsBoardOn() || cell == kNoCell || session.grid.IsGiven(cell)) {
        return false;
    }
    if (session.brushes.IsArmed() && !session.links.IsOn()) {
        Refuse(stage, kBrushIsArmed);
        return false;
    }
    if (session.grid.Digit(cell) != 0) {
        Refuse(stage, "Cell " + CellName(cell) + " is filled: take its number off with Reset Cell");
        return false;
    }
    return true;
}

int Transposed(int cell) {
    return RowColumnCell(CellColumn(cell), CellRow(cell));
}

int NextCell(int cell, Direction direction, Jump jump) {
    const bool isVertical = direction == Direction::Up || direction == Direction::Down;
    const int step = direction == Direction::Left || direction == Direction::Up ? -1 : 1;
    const int from = isVertical ? Transposed(cell) : cell;
    const int to = jump == Jump::NextCell
                       ? RowColumnCell(CellRow(from), (CellColumn(from) + step + 9) % 9)
                       : (from + step + kCells) % kCells;
    return isVertical ? Transposed(to) : to;
}

}  // namespace

void ClickBoard(Stage& stage, int cell, int digit, MouseButton button) {
    Session& session = stage.session;
    if (session.IsMaking()) {
        ClickClue(stage, cell, digit, button);
        return;
    }
    if (!session.IsBoardOn()) {
        return;
    }
    session.selectedCell = cell;
    if (session.brushes.IsArmed() && !session.links.IsOn()) {
        session.brushes.PaintCell(cell, button);
    } else if (session.grid.Digit(cell) == 0) {
        ClickMark(stage, cell, digit, button);
    }
}

void ClickLabel(Stage& stage, UnitKind kind, int index, MouseButton button) {
    Session& session = stage.session;
    if (!session.IsBoardOn() || session.links.IsOn()) {
        return;
    }
    if (button == MouseButton::Left && session.hintColors.IsRedLabel(kind, index)) {
        session.hintColors.ClearRedLabels(kind);
        Speel(stage, Sound::Label);
    } else {
        session.brushes.PaintUnit(kind, index, button);
    }
}

void ClickColorLabel(Stage& stage, int color, MouseButton button) {
    if (!stage.session.links.IsOn()) {
        stage.session.brushes.Arm(color, button);
    }
}

void ToggleLinkMode(Stage& stage) {
    if (!stage.session.IsMaking()) {
        stage.session.links.Toggle();
    }
}

void ToggleDigitFilter(Stage& stage, int digit) {
    int& filter = stage.session.digitFilter;
    filter = filter == digit ? 0 : digit;
}

void AssignBySelection(Stage& stage, int digit) {
    if (stage.session.IsMaking()) {
        TypeClue(stage, digit);
        return;
    }
    if (!CanType(stage)) {
        return;
    }
    const int cell = stage.session.selectedCell;
    if (stage.session.links.IsOn()) {
        ClickMark(stage, cell, digit, MouseButton::Left);
    } else if (stage.session.grid.KnopAan(cell, digit)) {
        Assign(stage, cell, digit);
    } else {
        Refuse(stage, NumberAt(digit, cell, " is no candidate at cell "));
    }
}

void ToggleMarkBySelection(Stage& stage, int digit) {
    if (!CanType(stage)) {
        return;
    }
    const Session& session = stage.session;
    const int cell = session.selectedCell;
    const bool isGone = !session.grid.KnopAan(cell, digit);
    if (!isGone || session.links.IsOn() || !CanDiscardMarks(stage)) {
        ClickMark(stage, cell, digit, MouseButton::Right);
    } else if (session.grid.IsLegal(cell, digit)) {
        GiveBack(stage, cell, MarkOf(digit));
    } else {
        Refuse(stage, NumberAt(digit, cell, " cannot be a candidate at cell "));
    }
}

void MoveSelectionBy(Stage& stage, Direction direction, Jump jump) {
    Session& session = stage.session;
    if (!session.IsBoardOn() && !session.IsMaking()) {
        return;
    }
    const int start = session.selectedCell;
    if (start == kNoCell) {
        session.selectedCell = 0;
        return;
    }
    int cell = start;
    do {
        cell = NextCell(cell, direction, jump);
    } while (jump == Jump::NextEmptyCell && cell != start && session.grid.Digit(cell) != 0);
    session.selectedCell = cell;
}

void ApplyHint(Stage& stage) {
    Session& session = stage.session;
    if (!session.hint || !session.IsBoardOn()) {
        return;
    }
    const Find find = *session.hint;
    Joined joined = Joined::No;
    for (const auto& [cell, digit] : find.placements) {
        if (session.grid.KnopAan(cell, digit)) {
            session.history.Place(session.grid, cell, digit, joined);
            joined = Joined::Yes;
        }
    }
    for (const auto& [cell, digit] : find.removals) {
        // Kept: the Bivalue Universal Grave can speak against the solution; the right digit stays.
        const bool isRight = session.puzzle.solution[cell] == digit;
        if (session.grid.KnopAan(cell, digit) && !isRight) {
            session.history.Discard(session.grid, cell, digit, joined);
            joined = Joined::Yes;
        }
    }
    EndStep(stage, find.placements.Empty() ? Sound::Discard : Sound::Assign);
}

bool MayUndo(const Session& session) {
    return session.IsBoardOn() && !session.IsBrushOrLinkMode() && session.history.CanUndo();
}

void UndoStep(Stage& stage) {
    Session& session = stage.session;
    if (MayUndo(session)) {
        session.history.Undo(session.grid);
        EndStep(stage, Sound::UndoRedo);
    }
}

bool MayRedo(const Session& session) {
    return session.IsBoardOn() && !session.IsBrushOrLinkMode() && session.history.CanRedo();
}

void RedoStep(Stage& stage) {
    Session& session = stage.session;
    if (MayRedo(session)) {
        session.history.Redo(session.grid);
        EndStep(stage, Sound::UndoRedo);
    }
}

bool MayResetCell(const Session& session) {
    return session.IsBoardOn() && session.selectedCell != kNoCell &&
           !session.grid.IsGiven(session.selectedCell);
}

void ResetCell(Stage& stage) {
    Session& session = stage.session;
    if (session.IsMaking()) {
        EmptyClue(stage);
        return;
    }
    if (!MayResetCell(session)) {
        return;
    }
    const int cell = session.selectedCell;
    if (session.grid.Digit(cell) == 0) {
        GiveBack(stage, cell, LegalMarks(session.grid, cell));
        return;
    }
    session.history.Reset(session.grid, cell);
    EndStep(stage, Sound::ResetCell);
}

bool MayRestart(const Session& session) {
    return session.IsBoardOn() || session.phase == PlayPhase::SolutionShown;
}

void Restart(Stage& stage) {
    Session& session = stage.session;
    if (!MayRestart(session)) {
        return;
    }
    session.phase = PlayPhase::Playing;
    session.grid = Grid::FromClues(session.puzzle.clues);
    session.history.Clear();
    session.brushes.Clear();
    session.links.Clear();
    session.DropHint();
    session.textHint = HelpText();
    StartClock(stage, 0);
    Speel(stage, Sound::Discard);
}

void ShowSolution(Stage& stage) {
    Session& session = stage.session;
    if (!session.IsBoardOn()) {
        return;
    }
    const CellSet clues = session.grid.Givens();
    session.grid = Grid::FromClues(session.puzzle.solution);
    session.grid.SetGivens(clues);
    session.phase = PlayPhase::SolutionShown;
    // One mark bars saving and statistics, here as after Autosolve, and outlives a restart.
    session.isAutosolved = true;
    UpdateClock(stage);
    session.DropHint();
    session.textHint.clear();
    Speel(stage, Sound::Solution);
}

}  // namespace vemo
