// The hint command: its checks, its scans, what it shows and what it charges.
#include "game/support.h"

namespace vemo::test {
namespace {

// A1, A2 and B1 are open: the hidden single of the first box comes first.
const std::vector<int> kOpen = {0, 1, 9};

class HintsTest : public GameTest {
  protected:
    HintsTest() {
        Ship({PuzzleWithOpen(kOpen)});
        StartFirst();
        game->mnuOptionsSounds();
    }
    int Seconds() const { return game->CurrentSession().clock.Elapsed(); }
};

TEST_F(HintsTest, AFindIsNamedExplainedColouredAndCharged) {
    OpenFirst(5);
    sounds.played.clear();
    game->CommandHintClick();
    EXPECT_EQ(Seen().hintCaption, "Hint - Hidden single");
    EXPECT_EQ(
        Seen().textHint,
        "HIDDEN SINGLE: Since number 1 in the top left block appears only at cell A1, it must "
        "be there");
    EXPECT_TRUE(Seen().cells[0].isHintCell);
    EXPECT_EQ(Seen().marks[0][0].role, Role::Placed);
    EXPECT_EQ(Seconds(), 10);
    EXPECT_EQ(sounds.played, std::vector<Sound>{Sound::Hint});
    EXPECT_GT(view.yields, 0);

    // The same hint asked twice charges twice; applied, it charges nothing more.
    game->mnuSolveHint();
    EXPECT_EQ(Seconds(), 20);
    game->KeyHint();
    EXPECT_EQ(Seen().cells[0].digit, 1);
    EXPECT_EQ(Seconds(), 20);
    EXPECT_EQ(Seen().hintCaption, "");
    EXPECT_FALSE(Seen().cells[0].isHintCell);
    game->mnuSolveUndo();
    EXPECT_EQ(Seen().cells[0].digit, 0);

    game->mnuOptionsTimer();
    game->mnuSolveHint();
    EXPECT_EQ(Seconds(), 20) << "nothing is charged with the timer off";
}

TEST_F(HintsTest, AWrongDigitIsReportedBeforeALostCandidateAndAnyTechnique) {
    files.WriteAt(Records().PuzzlePath(5), 0, Pack(PuzzleWithOpen(FirstTwoRows())));
    OpenFirst(5);
    Discard(8, 9);
    const std::string lost = "The correct number is no longer shown as a possibility at cell A9";
    game->mnuSolveHint();
    EXPECT_EQ(Seen().textHint, lost);
    EXPECT_TRUE(Seen().cells[8].isHintCell);
    EXPECT_EQ(Seconds(), 10);
    EXPECT_EQ(sounds.played.back(), Sound::Error);
    game->mnuSolveAutoSolve();
    EXPECT_EQ(Seen().textHint, lost + " - Use [Undo] or [Reset Cell]");
    EXPECT_EQ(Seconds(), 20);

    Assign(1, 5);
    for (int seconds : {30, 40}) {
        seconds == 30 ? game->mnuSolveHint() : game->mnuSolveAutoSolve();
        EXPECT_EQ(Seen().textHint, "Incorrect number (5) at cell A2 - Use [Undo] or [Reset Cell]");
        EXPECT_TRUE(Seen().cells[1].isHintCell);
        EXPECT_TRUE(Seen().cells[1].isWrong);
        EXPECT_FALSE(Seen().cells[8].isHintCell);
        EXPECT_EQ(Seconds(), seconds);
    }
    EXPECT_EQ(game->SolveLogText(), "");
    EXPECT_FALSE(game->CurrentSession().isAutosolved);
}

TEST_F(HintsTest, HiddenMarksAreAskedAbout) {
    OpenFirst(5);
    game->mnuPencilmarksMode();
    const std::string question =
        "All pencilmarks must be visible to make hints available. Make them visible ?";
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        EXPECT_EQ(Seen().hintCaption, "");
        EXPECT_EQ(Seconds(), 0);
        view.Expect("Hidden pencilmarks detected", question, answer);
        game->mnuSolveHint();
    }
    EXPECT_EQ(Seen().hintCaption, "Hint - Hidden single");
    EXPECT_TRUE(game->CurrentOptions().pencilmarks);
}

TEST_F(HintsTest, TheSimpleModeShowsTheCellAndThenTheDigit) {
    game->mnuPencilmarksOff();
    OpenFirst(1);
    game->CommandHintClick();
    const std::string text = "A candidate can savely be assigned to the colored cell";
    EXPECT_EQ(Seen().textHint, text);
    EXPECT_EQ(Seen().hintButton, "Show Me");
    EXPECT_TRUE(Seen().cells[0].isHintCell);
    EXPECT_EQ(Seen().marks[0][0].role, Role::None);
    EXPECT_EQ(Seconds(), 10);
    EXPECT_FALSE(Seen().Command(CommandId::SolveHint).isEnabled);
    EXPECT_TRUE(Seen().Command(CommandId::SolveShowMe).isEnabled);

    game->CommandHintClick();
    EXPECT_EQ(Seen().textHint, text);
    EXPECT_EQ(Seen().hintButton, "Hint");
    EXPECT_EQ(Seen().marks[0][0].role, Role::Placed);
    EXPECT_TRUE(Seen().marks[0][0].isShown);
    EXPECT_EQ(Seen().cells[0].digit, 0);
    EXPECT_EQ(Seconds(), 30);

    // A change of the grid takes a pending "Show Me" back.
    game->CommandHintClick();
    EXPECT_EQ(Seen().hintButton, "Show Me");
    game->GridMouseMove(9, 4);
    Assign(9, 4);
    EXPECT_EQ(Seen().hintButton, "Hint");
    EXPECT_FALSE(Seen().cells[0].isHintCell);
}

TEST_F(HintsTest, NothingFoundIsSaidAndNotCharged) {
    PuzzleRecord puzzle = PuzzleWithOpen({});
    puzzle.clues.fill(0);
    files.WriteAt(Records().PuzzlePath(5), 0, Pack(puzzle));
    OpenFirst(5);
    game->mnuSolveHint();
    EXPECT_EQ(Seen().textHint, "No logical hints, you'll have to guess more than once...");
    EXPECT_EQ(Seconds(), 0);
    EXPECT_EQ(sounds.played.back(), Sound::Giggle);
    game->mnuPencilmarksOff();
    files.WriteAt(Records().PuzzlePath(1), 0, Pack(puzzle));
    view.Expect("Changed level",
                "Statusbar will be updated after completion of the current sudoku");
    game->mnuLevelNr(1);
    game->mnuSudokuNext();
    game->mnuSolveHint();
    EXPECT_EQ(Seen().textHint, "No more logical hints, you'll have to guess");
}

TEST_F(HintsTest, StopEndsAHint) {
    OpenFirst(5);
    std::vector<std::string> texts;
    view.onYield = [&] {
        texts.push_back(Seen().textHint);
        EXPECT_TRUE(Seen().Command(CommandId::SolveStop).isEnabled);
        Assign(0, 1);
        game->Run(CommandId::SolveStop);
    };
    game->mnuSolveHint();
    EXPECT_EQ(texts, std::vector<std::string>{"Scanning for Hidden Single - Please be patient"});
    EXPECT_EQ(Seen().textHint, "");
    EXPECT_EQ(Seen().cells[0].digit, 0);
    EXPECT_EQ(Seconds(), 0);
}

}  // namespace
}  // namespace vemo::test
