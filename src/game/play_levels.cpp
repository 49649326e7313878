// Levels and their puzzles.
#include "game/play_levels.h"

#include <algorithm>
#include <utility>

#include "game/play_times.h"
#include "game/timer.h"
#include "model/levels.h"

namespace vemo {
namespace {

constexpr const char* kCannotOpen = "Can't open sudoku";

void TellDamaged(Stage& stage, int number) {
    Tell(stage, kCannotOpen,
         "Sudoku number " + std::to_string(number) + " of this level is damaged", BoxIcon::Warning);
}

// Memory only: what was saved is still offered at the next start.
void RememberOpened(Stage& stage, int number) {
    stage.session.statistics.lastNumber = number;
    stage.session.statistics.inProgress = false;
}

std::optional<PuzzleRecord> ReadWholePuzzle(Stage& stage, int level, int number) {
    std::optional<PuzzleRecord> record = stage.files.ReadPuzzle(level, number);
    return record && IsWhole(*record) ? record : std::nullopt;
}

// What lies over the board goes with the puzzle; the armed brushes and the filter stay.
void ClearPlay(Session& session) {
    session.history.Clear();
    session.brushes.Clear();
    session.links.Clear();
    session.DropHint();
    session.isAutosolved = false;
    session.isStoppedByPlayer = false;
    session.pointedMark = kNoMark;
}

Grid GridOf(const PuzzleRecord& puzzle, const PlayState& state) {
    Grid grid = Grid::FromClues(state.digits);
    grid.SetGivens(Grid::FromClues(puzzle.clues).Givens());
    for (int cell : grid.EmptyCells()) {
        grid.WisKnop(cell);
        const Marks marks = state.pencilMarks[static_cast<std::size_t>(cell)];
        for (int digit = 1; digit <= kDigits; ++digit) {
            if (HasMark(marks, digit)) {
                grid.GiveBack(cell, digit);
            }
        }
    }
    return grid;
}

PlayState StateOf(const Stage& stage) {
    const Session& session = stage.session;
    PlayState state;
    state.digits = session.grid.AllDigits();
    if (stage.options.timeOn) {
        state.elapsed = TimeOfSeconds(session.clock.Elapsed());
    }
    for (int cell : session.grid.EmptyCells()) {
        state.pencilMarks[static_cast<std::size_t>(cell)] = session.grid.MarksAt(cell);
    }
    session.history.SaveTo(state);
    return state;
}

// The saved progress of the current puzzle is discarded.
void AutoWisProgress(Stage& stage) {
    const Session& session = stage.session;
    if (stage.files.WritePlayState(session.level, session.number, PlayState{})) {
        TellWriteFailed(stage);
    }
}

}  // namespace

int TargetLevel(const Session& session) {
    return session.pendingLevel != 0 ? session.pendingLevel : session.level;
}

void TellNoSudokus(Stage& stage, int level) {
    stage.view.Beep();
    Tell(stage, kCannotOpen, "No " + std::string(LevelName(level)) + " sudokus found to open",
         BoxIcon::Warning);
}

void PrepareLevel(Stage& stage) {
    stage.session.statistics = stage.files.ReadStatistics(stage.session.level);
}

void AdoptPendingLevel(Stage& stage) {
    Session& session = stage.session;
    const int chosen = std::exchange(session.pendingLevel, 0);
    if (chosen != 0 && chosen != session.level) {
        session.level = chosen;
        PrepareLevel(stage);
    }
}

void WriteStatistics(Stage& stage) {
    TakeNewerTimes(stage);
    if (stage.files.WriteStatistics(stage.session.level, stage.session.statistics)) {
        TellWriteFailed(stage);
    }
}

void ChooseLevel(Stage& stage, int level) {
    Session& session = stage.session;
    if (session.IsMaking()) {
        return;
    }
    session.pendingLevel = level;
    if (session.phase == PlayPhase::Finished || session.phase == PlayPhase::SolutionShown) {
        CloseSudoku(stage);
    }
    if (session.IsPlaying()) {
        Tell(stage, "Changed level",
             "Statusbar will be updated after completion of the current sudoku");
        return;
    }
    session.pendingLevel = 0;
    session.level = level;
    session.textHint = "Open a sudoku with Next, or by its number with Open.";
    PrepareLevel(stage);
    ContinueLastBusy(stage);
}

void NextPuzzle(Stage& stage) {
    const int level = TargetLevel(stage.session);
    if (level == 0 || stage.session.IsMaking()) {
        return;
    }
    const int count = stage.files.PuzzleCount(level);
    if (count == 0) {
        TellNoSudokus(stage, level);
        if (level == stage.session.level) {
            RememberOpened(stage, 0);
        }
        return;
    }
    const LevelStatistics statistics =
        level == stage.session.level ? stage.session.statistics : stage.files.ReadStatistics(level);
    const int first = count > statistics.lastNumber ? statistics.lastNumber + 1 : 1;
    // A damaged record is told of once, and passed over.
    for (int tried = 0; tried < count; ++tried) {
        const int number = (first - 1 + tried) % count + 1;
        if (LoadSudoku(stage, level, number)) {
            return;
        }
        if (tried == 0) {
            TellDamaged(stage, number);
        }
    }
}

void OpenByNumber(Stage& stage) {
    const int level = TargetLevel(stage.session);
    if (level == 0 || stage.session.IsMaking()) {
        return;
    }
    const int count = stage.files.PuzzleCount(level);
    if (count == 0) {
        TellNoSudokus(stage, level);
        return;
    }
    const std::optional<int> number = AskNumber(
        stage, {"Sudoku number", "Enter a value between 1 and " + std::to_string(count), ""}, 1,
        count);
    if (!number) {
        return;
    }
    if (*number == 0) {
        TellNoSudokus(stage, level);
    } else if (!LoadSudoku(stage, level, *number)) {
        TellDamaged(stage, *number);
    }
}

std::string WhyNoPuzzleCanBeLoaded(const Session& session) {
    if (session.IsMaking()) {
        return "A sudoku is being made in the main window: validate it or give it up first.";
    }
    return session.IsBusy() ? "The main window is busy: stop that first." : "";
}

bool LoadSudoku(Stage& stage, int level, int number) {
    const std::optional<PuzzleRecord> record = ReadWholePuzzle(stage, level, number);
    if (!record) {
        return false;
    }
    Session& session = stage.session;
    session.pendingLevel = level;  // whichever was pending: the puzzle is of this one
    AdoptPendingLevel(stage);
    if (!session.isScanBusy) {
        RememberOpened(stage, number);
    }
    ClearPlay(session);
    session.phase = PlayPhase::Playing;
    session.number = number;
    session.puzzle = *record;
    session.grid = Grid::FromClues(record->clues);
    session.selectedCell =
        session.grid.EmptyCells().Any() ? session.grid.EmptyCells().First() : kNoCell;
    session.textHint = HelpText();
    StartClock(stage, 0);
    return true;
}

bool OpenLastSudoku(Stage& stage, int level, int number) {
    if (!LoadSudoku(stage, level, number)) {
        return false;
    }
    Session& session = stage.session;
    const PlayState state = stage.files.ReadPlayState(level, number);
    if (BelongsTo(state, session.puzzle)) {
        session.grid = GridOf(session.puzzle, state);
        session.history.LoadFrom(state);
        StartClock(stage, state.elapsed.InSeconds());
    }
    return true;
}

void ContinueLastBusy(Stage& stage) {
    LevelStatistics& statistics = stage.session.statistics;
    if (statistics.lastNumber < 1 || !statistics.inProgress) {
        return;
    }
    const int number = statistics.lastNumber;
    if (AskYesNo(stage, "Sudoku in progress",
                 "Do you want to proceed with the last saved sudoku ?")) {
        if (OpenLastSudoku(stage, stage.session.level, number)) {
            statistics.inProgress = true;
            return;
        }
        Tell(stage, "File error", "Could not open the last saved sudoku");
    }
    statistics.inProgress = false;
}

void CloseSudoku(Stage& stage) {
    Session& session = stage.session;
    ClearPlay(session);
    session.phase = PlayPhase::NoPuzzle;
    session.number = 0;
    session.puzzle = PuzzleRecord();
    session.grid = Grid();
    session.clock.Reset();
    session.selectedCell = kNoCell;
    session.textHint.clear();
}

SaveRefusal WhySaveRefuses(const Stage& stage) {
    const Session& session = stage.session;
    if (session.phase == PlayPhase::Finished) {
        return SaveRefusal::Solved;
    }
    if (!session.IsPlaying()) {
        return SaveRefusal::NoPuzzle;
    }
    if (!session.history.CanUndo()) {
        return SaveRefusal::NotChanged;
    }
    return session.isAutosolved ? SaveRefusal::Autosolved : SaveRefusal::None;
}

void SaveCommand(Stage& stage) {
    switch (WhySaveRefuses(stage)) {
    case SaveRefusal::Solved:
        Tell(stage, "Sudoku solved", "Sudoku already solved, you can only save unsolved sudokus !");
        break;
    case SaveRefusal::NotChanged:
        Tell(stage, "Sudoku not in progress",
             "You cannot save a sudoku that hasn't been changed since it was opened !");
        break;
    case SaveRefusal::Autosolved:
        Tell(stage, "Sudoku Autosolved",
             "Autosolve function is invoked at the current sudoku, therefore you cannot save "
             "this sudoku !");
        break;
    case SaveRefusal::NoPuzzle:
        break;
    case SaveRefusal::None:
        SaveProgress(stage);
        break;
    }
}

bool SaveProgress(Stage& stage) {
    Session& session = stage.session;
    SaveLastLevel(stage.settings, session.level);
    TakeNewerTimes(stage);
    LevelStatistics statistics = session.statistics;
    statistics.lastNumber = session.number;
    statistics.inProgress = true;
    if (stage.files.WriteStatistics(session.level, statistics) ||
        stage.files.WritePlayState(session.level, session.number, StateOf(stage))) {
        TellWriteFailed(stage);
        return false;
    }
    session.statistics = statistics;
    return true;
}

void ZetOpgelost(Stage& stage) {
    Session& session = stage.session;
    if (!session.IsPlaying() || session.grid.AllDigits() != session.puzzle.solution) {
        return;
    }
    session.phase = PlayPhase::Finished;
    UpdateClock(stage);
    if (session.isScanBusy) {
        return;
    }
    if (stage.options.timeOn && !session.isAutosolved) {
        CountCompletion(stage, session.clock.Elapsed());
    }
    Speel(stage, Sound::Applause);
    session.statistics.inProgress = false;
    AutoWisProgress(stage);
    SaveLastLevel(stage.settings, session.level);
    WriteStatistics(stage);
    if (session.pendingLevel != 0 && session.pendingLevel != session.level) {
        // The finished grid stays to be seen, but it is none of the new level's puzzles.
        session.number = 0;
        AdoptPendingLevel(stage);
        ContinueLastBusy(stage);
    }
    session.pendingLevel = 0;
}

}  // namespace vemo
