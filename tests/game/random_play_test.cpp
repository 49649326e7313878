// A player who does anything at all: every step is taken back and done again to the digits that
// stood there, and nothing but a hint costs time.
#include <random>

#include "game/checks.h"
#include "game/support.h"
#include "solver/brute_force.h"

namespace vemo::test {
namespace {

constexpr unsigned kPlays = 150;
constexpr int kEvents = 120;

class RandomPlayTest : public GameTest {
  protected:
    RandomPlayTest() {
        std::vector<PuzzleRecord> puzzles;
        for (const Digits& clues : Corpus()) {
            puzzles.push_back({clues, BruteForceSolve(clues).solution, PlayTime()});
        }
        Ship(puzzles);
        StartFirst();
        game->mnuLevelNr(5);
    }

    void Begin(unsigned seed) {
        random.seed(seed);
        game->mnuSudokuNext();
        // Seen once, a puzzle is not counted: its completion asks nothing.
        game->mnuSolveSolution();
        game->mnuSolveRestart();
        digitsAt = {Play().grid.AllDigits()};
    }

    const Session& Play() const { return game->CurrentSession(); }
    std::size_t Step() const { return static_cast<std::size_t>(Play().history.StepCount()); }
    int Below(int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); }

    void UndoOrRedo() {
        game->Run(Below(2) == 0 ? CommandId::SolveUndo : CommandId::SolveRedo);
        ASSERT_EQ(Play().grid.AllDigits(), digitsAt.at(Step()));
    }

    // A click where it does something, now and then anywhere.
    void Click() {
        const int cell = Below(kCells);
        const Marks marks = Play().grid.MarksAt(cell);
        const int digit = marks == 0 || Below(4) == 0 ? Below(kDigits) + 1 : FirstDigit(marks);
        const MouseButton button = Below(3) == 0 ? MouseButton::Left : MouseButton::Right;
        game->GridMouseUp(cell, digit, button, Released::Inside);
    }

    void PressKey() {
        game->MoveSelection(static_cast<Direction>(Below(4)), static_cast<Jump>(Below(2)));
        switch (Below(3)) {
        case 0:
            game->KeyDigit(Below(kDigits) + 1);
            break;
        case 1:
            game->KeyMark(Below(kDigits) + 1);
            break;
        default:
            game->KeyReset();
        }
    }

    // Brush and link mode are left again soon.
    void ChangeModes() {
        const int color = Below(kBrushes);
        game->LabelColorMouseUp(color, Below(2) == 0 ? MouseButton::Left : MouseButton::Right);
        game->CommandLinkClick();
        Click();
        game->CommandLinkClick();
        game->LabelRowMouseUp(Below(9), MouseButton::Left, Released::Inside);
        Click();
        Disarm();
    }
    void Disarm() {
        for (MouseButton button : {MouseButton::Left, MouseButton::Right}) {
            if (const int armed = Play().brushes.Armed(button); armed != kNoBrush) {
                game->LabelColorMouseUp(armed, button);
            }
        }
    }

    // A hint or its application; no other event may cost time.
    void AskForHint() {
        const int before = Play().clock.Elapsed();
        const bool applies = Play().hint.has_value();
        game->KeyHint();
        const int cost = Play().clock.Elapsed() - before;
        ASSERT_TRUE(applies ? cost == 0 : cost == 0 || (cost >= 10 && cost <= 120)) << cost;
        charged += cost;
    }

    void DoAnything() {
        const std::size_t before = Step();
        const int deed = Below(20);
        if (deed < 9) {
            Click();
        } else if (deed < 13) {
            PressKey();
        } else if (deed < 17) {
            UndoOrRedo();
            return;
        } else if (deed < 19) {
            AskForHint();
        } else {
            ChangeModes();
        }
        if (Step() != before) {
            ASSERT_EQ(Step(), before + 1);
            ASSERT_FALSE(Play().history.CanRedo());
            digitsAt.resize(Step());
            digitsAt.push_back(Play().grid.AllDigits());
        }
        ASSERT_EQ(Play().grid.AllDigits(), digitsAt.at(Step()));
    }

    void ExpectWhole() {
        ASSERT_FALSE(HasClash(Play().grid.AllDigits()));
        ASSERT_FALSE(FindStaleMark(Play().grid)) << "a mark that a placed digit rules out";
        ASSERT_EQ(Play().clock.Elapsed(), charged);
    }

    void UndoAll() {
        while (Seen().Command(CommandId::SolveUndo).isEnabled) {
            game->Run(CommandId::SolveUndo);
        }
    }
    void RedoAll() {
        while (Seen().Command(CommandId::SolveRedo).isEnabled) {
            game->Run(CommandId::SolveRedo);
        }
    }

    // What a file keeps of the history is undone and redone like the one in play.
    void ExpectSavedLikePlayed() {
        History played = Play().history;
        Grid grid = Play().grid;
        PlayState state;
        state.digits = grid.AllDigits();
        played.SaveTo(state);
        History loaded;
        loaded.LoadFrom(UnpackPlayState(Pack(state)));
        // Joined entries are few: a hundred entries are far more than forty steps.
        ASSERT_GE(loaded.StepCount(), std::min(40, played.StepCount()));
        Grid resumed = grid;
        while (loaded.Undo(resumed)) {
            ASSERT_TRUE(played.Undo(grid));
            ASSERT_EQ(resumed, grid);
        }
        while (loaded.Redo(resumed)) {
            played.Redo(grid);
        }
        ASSERT_EQ(resumed, grid);
    }

    std::mt19937 random;
    int charged = 0;
    std::vector<Digits> digitsAt;  // after so many steps, as far as they can be redone
};

TEST_F(RandomPlayTest, UndoAndRedoEndWhereTheyBegan) {
    int ended = 0;
    for (unsigned seed = 0; seed < kPlays; ++seed) {
        SCOPED_TRACE("play " + std::to_string(seed));
        charged = 0;
        ASSERT_NO_FATAL_FAILURE(Begin(seed));
        const Grid start = Play().grid;
        for (int k = 0; k < kEvents && Play().IsPlaying(); ++k) {
            ASSERT_NO_FATAL_FAILURE(DoAnything()) << "event " << k;
            ASSERT_NO_FATAL_FAILURE(ExpectWhole()) << "event " << k;
        }
        if (!Play().IsPlaying()) {
            continue;
        }
        ++ended;
        ASSERT_NO_FATAL_FAILURE(ExpectSavedLikePlayed());
        RedoAll();
        const Digits end = digitsAt.back();
        ASSERT_EQ(Play().grid.AllDigits(), end);
        UndoAll();
        ASSERT_EQ(Play().grid, start);
        ASSERT_EQ(Step(), 0u);
        RedoAll();
        const Grid again = Play().grid;
        ASSERT_EQ(again.AllDigits(), end);
        ASSERT_EQ(Step() + 1, digitsAt.size());
        UndoAll();
        ASSERT_EQ(Play().grid, start);
        RedoAll();
        ASSERT_EQ(Play().grid, again);
        ASSERT_EQ(Play().clock.Elapsed(), charged);
    }
    EXPECT_GT(ended, static_cast<int>(kPlays) / 2) << "most plays are not completed";
}

}  // namespace
}  // namespace vemo::test
