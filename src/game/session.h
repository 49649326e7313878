// What is being played: the puzzle, the state of play, and what lies over the board.
#pragma once

#include <optional>
#include <string>

#include "game/brushes.h"
#include "game/hint_colors.h"
#include "game/history.h"
#include "game/play_clock.h"
#include "model/grid.h"
#include "model/records.h"
#include "solver/find.h"

namespace vemo {

// What has become of the current puzzle.
enum class PlayPhase : std::uint8_t {
    NoPuzzle,  // none is open; the board is off
    Playing,
    Finished,       // completed; the board is off until another puzzle is opened
    SolutionShown,  // by the command Solution; only Restart goes on
    Making,         // the player puts the clues of a puzzle of one's own into the empty grid
};

// The pointer is over no mark: cell * 9 + digit - 1 otherwise.
inline constexpr int kNoMark = 729;

struct Session {
    PlayPhase phase = PlayPhase::NoPuzzle;
    int level = 0;         // 1..9, 0: none yet
    int pendingLevel = 0;  // chosen during play; becomes the level later. 0: none
    int number = 0;        // the current puzzle's number in its level, 0: none
    PuzzleRecord puzzle;
    LevelStatistics statistics;  // of `level`

    Grid grid;
    History history;
    PlayClock clock;
    bool isAutosolved = false;       // Autosolve has run on this puzzle
    bool isStoppedByPlayer = false;  // the Pause key: the board is covered
    bool isMinimized = false;

    int selectedCell = kNoCell;
    int pointedMark = kNoMark;
    int digitFilter = 0;
    Brushes brushes;
    Links links;

    // While a puzzle is made: the text of the box for it, which the grid's clues follow.
    std::string sudTekst;
    bool isReadingRefused = false;  // the text is read by position though it looks like a grid

    HintColors hintColors;
    std::optional<Find> hint;  // the hint on display, while it can be applied
    int hintSlot = kNoSlot;    // of the hint on display, or of the report
    std::string hintCaption;   // empty: no hint on display
    std::string textHint;
    std::optional<CellDigit> showMe;  // the pending target of Show Me

    // The two busy flags: a hint, Autosolve or a validation, and a scan over several puzzles.
    bool isFunctionBusy = false;
    bool isScanBusy = false;

    bool isStopRequested = false;  // by the command Stop, while busy

    bool IsBusy() const { return isFunctionBusy || isScanBusy; }
    bool IsPlaying() const { return phase == PlayPhase::Playing; }
    bool IsMaking() const { return phase == PlayPhase::Making; }
    bool IsFull() const { return !grid.EmptyCells().Any(); }

    // A puzzle is being played and can be seen. What acts on the puzzle does nothing otherwise.
    bool IsBoardOn() const { return IsPlaying() && !isStoppedByPlayer; }
    // The clock is stopped by the player: nothing of the puzzle is to be seen, so that stopping it
    // buys no time to think.
    bool IsCovered() const { return IsPlaying() && isStoppedByPlayer; }
    // Undo, Redo and Autosolve are off meanwhile.
    bool IsBrushOrLinkMode() const { return brushes.IsArmed() || links.IsOn(); }

    // Any change of the grid: hint colours, the hint on display and a pending Show Me go.
    void DropHint() {
        hintColors.WisKleuren();
        hint.reset();
        hintSlot = kNoSlot;
        hintCaption.clear();
        showMe.reset();
    }
};

// A long function runs while one lives: the board and the commands are off, Stop and the clock stay
// alive.
class LongFunction {
  public:
    explicit LongFunction(Session& session) : session_(session) {
        session_.isFunctionBusy = true;
        session_.isStopRequested = false;
    }
    ~LongFunction() { session_.isFunctionBusy = false; }
    LongFunction(const LongFunction&) = delete;
    LongFunction& operator=(const LongFunction&) = delete;

  private:
    Session& session_;
};

}  // namespace vemo
