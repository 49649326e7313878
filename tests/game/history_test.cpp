// The undo history: what its entries hold, and what of them is saved and read. Walks through it are
// those of random_play_test.
#include "game/history.h"

#include <gtest/gtest.h>

#include "support/puzzles.h"

namespace vemo::test {
namespace {

constexpr int kA1 = 0;
constexpr int kA2 = 1;
constexpr int kB1 = 9;
constexpr int kJ9 = 80;

// What a file keeps of a history and its grid, read back.
PlayState Saved(const History& history, const Grid& grid) {
    PlayState state;
    state.digits = grid.AllDigits();
    history.SaveTo(state);
    return UnpackPlayState(Pack(state));
}

History Loaded(const PlayState& state) {
    History history;
    history.LoadFrom(state);
    return history;
}

TEST(History, AnEntryHoldsWhatItsStepChanged) {
    Grid grid;
    History history;
    history.Discard(grid, kA2, 7);
    history.Place(grid, kA1, 7);
    history.Place(grid, kJ9, 1, Joined::Yes);
    history.Reset(grid, kA1);
    history.Discard(grid, kA1, 2);
    history.GiveBack(grid, kA1, DigitsNamed("127"));
    history.GiveBack(grid, kA1, DigitsNamed("127"));  // all are there: no step
    const PlayState state = Saved(history, grid);
    ASSERT_EQ(state.undoCount, 6);
    EXPECT_EQ(state.history[0], (UndoEntry{kA2, 64, 0, 0, 0, 0}));
    // The peers but A1 itself, and A2 that had lost its 7 before: it is third in the box's order.
    EXPECT_EQ(state.history[1], (UndoEntry{kA1, 511, 7, 508, 510, 508}));
    EXPECT_EQ(state.history[2], (UndoEntry{kJ9, 511, 1024 + 1, 255, 255, 255}));
    // The 7 comes back to A2 as well, where it is legal.
    EXPECT_EQ(state.history[3], (UndoEntry{kA1, 511, 512 + 7, 510, 510, 510}));
    EXPECT_EQ(state.history[4], (UndoEntry{kA1, 2, 0, 0, 0, 0}));
    EXPECT_EQ(state.history[5], (UndoEntry{kA1, 2, 256, 0, 0, 0})) << "1 and 7 were there";
}

TEST(History, JoinedEntriesAreOneStep) {
    Grid grid;
    History history;
    history.Discard(grid, kA1, 1);
    const Grid before = grid;
    history.Place(grid, kB1, 2);
    history.Discard(grid, kA1, 3, Joined::Yes);
    history.Discard(grid, kA2, 3, Joined::Yes);
    const Grid end = grid;
    EXPECT_EQ(history.StepCount(), 2);
    EXPECT_TRUE(history.Undo(grid));
    EXPECT_EQ(grid, before);
    EXPECT_TRUE(history.Redo(grid));
    EXPECT_EQ(grid, end);
    EXPECT_FALSE(history.Redo(grid));
}

// Autosolve fills cells without a step of its own; the steps before it can still be taken back.
TEST(History, WhatWasFilledSinceAStepIsLeftAloneByItsUndo) {
    Grid grid;
    History history;
    history.Discard(grid, kB1, 5);
    history.Discard(grid, kB1, 6);
    history.Place(grid, kA2, 4);
    history.Reset(grid, kA2);
    history.Place(grid, kJ9, 9);
    for (auto [cell, digit] : {std::pair{kA1, 5}, {kA2, 8}}) {
        grid.Zet(digit, cell);
    }
    const Digits filled = grid.AllDigits();
    while (history.Undo(grid)) {
    }
    EXPECT_EQ(grid.Digit(kJ9), 0);
    EXPECT_EQ(grid.Digit(kA2), 8);
    EXPECT_EQ(grid.MarksAt(kB1), DigitsNamed("1234679")) << "A1 holds the 5, A2 the 8";
    while (history.Redo(grid)) {
    }
    EXPECT_EQ(grid.AllDigits(), filled);
}

TEST(History, TheLastHundredEntriesAreSavedAsWholeSteps) {
    Grid grid;
    History history;
    history.Place(grid, kA1, 1);
    history.Place(grid, kB1, 2, Joined::Yes);
    history.Discard(grid, kA2, 3, Joined::Yes);
    for (int k = 0; k < 98; ++k) {
        history.Discard(grid, RowColumnCell(3 + k / 54, 3 + k / 9 % 6), k % 9 + 1);
    }
    EXPECT_EQ(history.StepCount(), 99);
    // The oldest of the 101 entries does not fit, and so its step goes.
    EXPECT_EQ(Saved(history, grid).undoCount, 98);
    // What was undone is not saved.
    history.Undo(grid);
    EXPECT_EQ(Saved(history, grid).undoCount, 100);
    EXPECT_EQ(Loaded(Saved(history, grid)).StepCount(), 98);
}

TEST(History, AnOldFileWithoutKindsIsRead) {
    const Grid start = Grid::FromClues(ParseDigits("..3456789"));
    Grid grid = start;
    History history;
    history.Discard(grid, kA1, 2);
    history.Discard(grid, kB1, 4);
    history.Place(grid, kA1, 1);
    history.Place(grid, kA2, 2);
    PlayState state = Saved(history, grid);
    for (UndoEntry& entry : state.history) {
        entry = {entry.cell, entry.marks, 0, 0, 0, 0};
    }
    History loaded = Loaded(state);
    EXPECT_EQ(loaded.StepCount(), 4);
    loaded.Undo(grid);
    loaded.Undo(grid);
    EXPECT_EQ(grid.Digit(kA2), 0);
    EXPECT_EQ(grid.Digit(kA1), 0);
    EXPECT_EQ(grid.MarksAt(kA1), MarkOf(1)) << "A1 is in the history twice, but placed once";
    EXPECT_FALSE(grid.KnopAan(kB1, 4));
    loaded.Undo(grid);
    EXPECT_TRUE(grid.KnopAan(kB1, 4));
    loaded.Undo(grid);
    EXPECT_EQ(grid, start);
    while (loaded.Redo(grid)) {
    }
    EXPECT_EQ(grid.AllDigits(), ParseDigits("123456789"));
}

TEST(History, WhatCannotHaveHappenedIsDroppedWithAllBeforeIt) {
    Grid grid;
    History history;
    history.Discard(grid, kB1, 1);
    history.Place(grid, kA1, 1);
    history.Place(grid, kA2, 2, Joined::Yes);
    history.Place(grid, kJ9, 9);
    const PlayState good = Saved(history, grid);
    struct Damage {
        const char* what;
        std::size_t entry;
        int kindAndDigit;
        int stepsLeft;
    };
    for (const Damage& damage : {Damage{"another digit than the cell holds", 3, 8, 0},
                                 {"a digit that is not there, joined", 2, 1024 + 3, 1},
                                 {"a reset of a filled cell", 1, 512 + 1, 1},
                                 {"an unknown bit", 0, 2048, 2},
                                 {"a mark given back to a filled cell", 3, 256, 0},
                                 {"a reset without a digit", 0, 512, 2}}) {
        PlayState state = good;
        state.history[damage.entry].kindAndDigit = static_cast<std::int16_t>(damage.kindAndDigit);
        History loaded = Loaded(state);
        Grid undone = grid;
        int steps = 0;
        while (loaded.Undo(undone)) {
            ++steps;
        }
        EXPECT_EQ(steps, damage.stepsLeft) << damage.what;
    }
}

TEST(History, ADamagedHistoryNeverTouchesAClue) {
    const Grid start = Grid::FromClues(ParseDigits("1"));
    PlayState state;
    state.digits = start.AllDigits();
    state.undoCount = 1;
    state.history[0] = {kA1, 511, 1, 0, 0, 0};
    History history = Loaded(state);
    Grid grid = start;
    EXPECT_TRUE(history.Undo(grid));
    EXPECT_EQ(grid, start);
    EXPECT_TRUE(history.Redo(grid));
    EXPECT_EQ(grid, start);
}

}  // namespace
}  // namespace vemo::test
