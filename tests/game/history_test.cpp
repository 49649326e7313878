// The undo history: what a step records, undo and redo, and the saved history.
#include "game/history.h"

#include <random>

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
    for (int cell : grid.EmptyCells()) {
        state.pencilMarks[static_cast<std::size_t>(cell)] = grid.MarksAt(cell);
    }
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

TEST(History, UndoGivesADigitBackOnlyWhereItIsLegalAgain) {
    Grid grid;
    History history;
    history.Place(grid, CellNamed("E5"), 5);
    history.Place(grid, CellNamed("A1"), 5);
    history.Place(grid, CellNamed("A9"), 2);
    history.Undo(grid);
    history.Undo(grid);
    EXPECT_FALSE(grid.KnopAan(CellNamed("A5"), 5)) << "E5 still forbids it";
    EXPECT_FALSE(grid.KnopAan(CellNamed("E1"), 5));
    EXPECT_TRUE(grid.KnopAan(CellNamed("A4"), 5));
    EXPECT_TRUE(grid.KnopAan(CellNamed("A9"), 5));
    EXPECT_EQ(grid.MarksAt(CellNamed("A1")), kAllMarks);
}

TEST(History, AResetCellGetsAllItsLegalMarks) {
    Grid grid;
    History history;
    history.Place(grid, kA2, 3);
    history.Discard(grid, kA1, 9);
    history.Place(grid, kA1, 1);
    history.Reset(grid, kA1);
    EXPECT_EQ(grid.MarksAt(kA1), DigitsNamed("12456789"));
    EXPECT_TRUE(grid.KnopAan(kB1, 1));
    history.Undo(grid);
    EXPECT_EQ(grid.Digit(kA1), 1);
    EXPECT_FALSE(grid.KnopAan(kB1, 1));
    history.Undo(grid);
    EXPECT_EQ(grid.MarksAt(kA1), DigitsNamed("1245678"));
}

TEST(History, JoinedEntriesAreOneStep) {
    Grid grid;
    History history;
    history.Discard(grid, kA1, 1);
    history.Place(grid, kB1, 2);
    history.Discard(grid, kA1, 3, Joined::Yes);
    history.Discard(grid, kA2, 3, Joined::Yes);
    const Grid end = grid;
    EXPECT_EQ(history.StepCount(), 2);
    ASSERT_TRUE(history.Undo(grid));
    EXPECT_EQ(history.StepCount(), 1);
    EXPECT_EQ(grid.Digit(kB1), 0);
    EXPECT_EQ(grid.MarksAt(kA1), static_cast<Marks>(kAllMarks & ~MarkOf(1)));
    EXPECT_EQ(grid.MarksAt(kA2), kAllMarks);
    ASSERT_TRUE(history.Redo(grid));
    EXPECT_EQ(grid, end);
    EXPECT_FALSE(history.Redo(grid));
    EXPECT_EQ(grid, end);
}

TEST(History, ANewStepCutsWhatCouldBeRedone) {
    Grid grid;
    History history;
    EXPECT_FALSE(history.Undo(grid));
    history.Place(grid, kA1, 1);
    history.Place(grid, kA2, 2);
    history.Undo(grid);
    history.GiveBack(grid, kA2, MarkOf(3));
    EXPECT_TRUE(history.CanRedo()) << "the mark was there: no step";
    history.Discard(grid, kA2, 3);
    EXPECT_FALSE(history.CanRedo());
    EXPECT_EQ(history.StepCount(), 2);
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
    EXPECT_EQ(grid.Digit(kA2), 0);
    loaded.Undo(grid);
    EXPECT_EQ(grid.Digit(kA1), 0);
    EXPECT_EQ(grid.MarksAt(kA1), MarkOf(1)) << "A1 is in the history twice, but placed once";
    EXPECT_FALSE(grid.KnopAan(kB1, 4));
    loaded.Undo(grid);
    EXPECT_TRUE(grid.KnopAan(kB1, 4));
    loaded.Undo(grid);
    EXPECT_EQ(grid, start);
    for (int k = 0; k < 4; ++k) {
        loaded.Redo(grid);
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
        std::size_t entry;
        int kindAndDigit;
        int stepsLeft;
    };
    // Another digit than the cell holds, a reset of a filled cell, an unknown bit, a placement read
    // as a discard with a digit still there, a reset without a digit.
    for (const Damage& damage : {Damage{3, 8, 0}, Damage{2, 1024 + 3, 1}, Damage{1, 512 + 1, 1},
                                 Damage{0, 2048, 2}, Damage{3, 256, 0}, Damage{0, 512, 2}}) {
        PlayState state = good;
        state.history[damage.entry].kindAndDigit = static_cast<std::int16_t>(damage.kindAndDigit);
        History loaded = Loaded(state);
        Grid undone = grid;
        int steps = 0;
        while (loaded.Undo(undone)) {
            ++steps;
        }
        EXPECT_EQ(steps, damage.stepsLeft) << damage.entry << " " << damage.kindAndDigit;
    }
}

TEST(History, ADamagedHistoryNeverTouchesAClue) {
    Grid grid = Grid::FromClues(ParseDigits("1"));
    const Grid start = grid;
    PlayState state;
    state.digits = grid.AllDigits();
    state.undoCount = 1;
    state.history[0] = {kA1, 511, 1, 0, 0, 0};
    History history = Loaded(state);
    history.Undo(grid);
    EXPECT_EQ(grid, start);
    history.Redo(grid);
    EXPECT_EQ(grid, start);
}

// A player who does anything that is allowed.
class RandomPlayer {
  public:
    explicit RandomPlayer(unsigned seed) : random_(seed) {
        Digits clues = PlainSolution();
        for (std::uint8_t& clue : clues) {
            clue = Below(3) == 0 ? clue : std::uint8_t{0};
        }
        grid = Grid::FromClues(clues);
    }

    int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }

    void PlayStep() {
        const int cell = Below(kCells);
        const int digit = Below(kDigits) + 1;
        if (grid.Digit(cell) != 0) {
            if (!grid.IsGiven(cell) && Below(3) == 0) {
                history.Reset(grid, cell);
            }
        } else if (!grid.KnopAan(cell, digit)) {
            if (grid.IsLegal(cell, digit)) {
                history.GiveBack(grid, cell,
                                 Below(2) == 0 ? MarkOf(digit) : LegalMarks(grid, cell));
            }
        } else if (Below(3) == 0) {
            history.Place(grid, cell, digit);
            DiscardMore();
        } else {
            history.Discard(grid, cell, digit);
        }
    }

    void WalkAbout() {
        for (int k = Below(12); k > 0; --k) {
            Below(2) == 0 ? history.Undo(grid) : history.Redo(grid);
        }
    }

    Grid grid;
    History history;

  private:
    // An applied hint.
    void DiscardMore() {
        for (int k = Below(6); k > 3; --k) {
            const int cell = Below(kCells);
            if (const Marks marks = grid.MarksAt(cell); marks != 0) {
                history.Discard(grid, cell, FirstDigit(marks), Joined::Yes);
            }
        }
    }

    std::mt19937 random_;
};

// Undo takes a placed digit back to peers that had discarded it, too. So a walk through the history
// comes back to the same marks at both ends; in between some are shown that were discarded.
TEST(History, RandomWalksEndWhereTheyBegan) {
    for (unsigned seed = 0; seed < 1000; ++seed) {
        RandomPlayer player(seed);
        const Grid start = player.grid;
        for (int k = 0; k < 60; ++k) {
            player.PlayStep();
        }
        const Grid end = player.grid;
        player.WalkAbout();
        while (player.history.Undo(player.grid)) {
        }
        ASSERT_EQ(player.grid, start) << "seed " << seed;
        ASSERT_EQ(player.history.StepCount(), 0);
        while (player.history.Redo(player.grid)) {
            player.WalkAbout();
        }
        ASSERT_EQ(player.grid, end) << "seed " << seed;
    }
}

TEST(History, StepsTakenBetweenWalksCanAllBeUndone) {
    for (unsigned seed = 0; seed < 1000; ++seed) {
        RandomPlayer player(seed);
        const Grid start = player.grid;
        for (int k = 0; k < 120; ++k) {
            player.PlayStep();
            if (player.Below(10) == 0) {
                player.WalkAbout();
            }
        }
        const Digits end = player.grid.AllDigits();
        const int steps = player.history.StepCount();
        while (player.history.CanUndo()) {
            player.history.Undo(player.grid);
        }
        ASSERT_EQ(player.grid, start) << "seed " << seed;
        for (int k = 0; k < steps; ++k) {
            ASSERT_TRUE(player.history.Redo(player.grid));
        }
        ASSERT_EQ(player.grid.AllDigits(), end) << "seed " << seed;
    }
}

TEST(History, ASavedHistoryUndoesLikeTheOneInPlay) {
    for (unsigned seed = 0; seed < 300; ++seed) {
        RandomPlayer player(seed);
        for (int k = 0; k < 150; ++k) {
            player.PlayStep();
        }
        player.WalkAbout();
        History loaded = Loaded(Saved(player.history, player.grid));
        Grid resumed = player.grid;
        // Joined entries are few: a hundred entries are far more than forty steps.
        ASSERT_GT(loaded.StepCount(), std::min(40, player.history.StepCount() - 1));
        while (loaded.CanUndo()) {
            ASSERT_TRUE(loaded.Undo(resumed));
            ASSERT_TRUE(player.history.Undo(player.grid));
            ASSERT_EQ(resumed, player.grid) << "seed " << seed;
        }
        while (loaded.CanRedo()) {
            loaded.Redo(resumed);
            player.history.Redo(player.grid);
        }
        ASSERT_EQ(resumed, player.grid) << "seed " << seed;
    }
}

}  // namespace
}  // namespace vemo::test
