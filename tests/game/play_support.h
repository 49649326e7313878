// A puzzle in play without files or window, for tests of entry and screen.
#pragma once

#include "game/entry.h"
#include "game/hints.h"
#include "game/screen_maker.h"
#include "game/support.h"

namespace vemo::test {

inline constexpr int kA1 = 0;
inline constexpr int kA2 = 1;
inline constexpr int kA4 = 3;
inline constexpr int kB1 = 9;
inline constexpr int kC1 = 18;  // a clue, 7

// Rows A and B are open: A1 and B1 can hold 1 and 4, A2 and B2 2 and 5, and so on.
class PlayTest : public GameTest {
  protected:
    PlayTest() {
        stage.show = [] {};
        stage.options.sounds = true;
        session.phase = PlayPhase::Playing;
        session.level = 1;
        session.number = 1;
        session.puzzle = PuzzleWithOpen(FirstTwoRows());
        session.grid = Grid::FromClues(session.puzzle.clues);
        session.clock.Start(clock.second);
    }

    void Left(int cell, int digit) { ClickBoard(stage, cell, digit, MouseButton::Left); }
    void Right(int cell, int digit) { ClickBoard(stage, cell, digit, MouseButton::Right); }
    int Digit(int cell) const { return session.grid.Digit(cell); }
    Marks MarksAt(int cell) const { return session.grid.MarksAt(cell); }
    int Steps() const { return session.history.StepCount(); }
    // The last sound; none is an error of the test.
    Sound LastSound() { return sounds.played.empty() ? Sound::Giggle : sounds.played.back(); }
    std::string TakeText() { return std::exchange(session.textHint, ""); }

    Stage stage{platform, view};
    Session& session = stage.session;
};

inline const MarkView& MarkIn(const Screen& screen, int cell, int digit) {
    return screen.marks[static_cast<std::size_t>(cell)][static_cast<std::size_t>(digit - 1)];
}
inline const CellView& CellIn(const Screen& screen, int cell) {
    return screen.cells[static_cast<std::size_t>(cell)];
}

}  // namespace vemo::test
