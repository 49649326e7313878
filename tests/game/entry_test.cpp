// Cell entry by mouse and keyboard, with what is refused; reset, restart and solution.
#include "game/play_support.h"

namespace vemo::test {
namespace {

const std::string kMarksAreOff =
    "Pencil marks are switched off: show them with Options, Auto Pencilmarks";
const std::string kMarksAreSimple =
    "Pencil marks cannot be removed while \"Pencilmarks off in first 3 levels\" is switched on";

class EntryTest : public PlayTest {};

TEST_F(EntryTest, TheLeftButtonAssignsAndTheRightDiscards) {
    Right(kA1, 4);
    EXPECT_EQ(MarksAt(kA1), MarkOf(1));
    EXPECT_EQ(LastSound(), Sound::Discard);
    Left(kB1, 4);
    EXPECT_EQ(Digit(kB1), 4);
    EXPECT_EQ(LastSound(), Sound::Assign);
    EXPECT_EQ(Steps(), 2);
    EXPECT_EQ(session.selectedCell, kB1);

    // No candidate, a filled cell, a clue: nothing but the selection.
    sounds.played.clear();
    for (auto [cell, digit] : {std::pair{kA1, 9}, {kA1, 4}, {kB1, 1}, {kC1, 7}}) {
        Left(cell, digit);
        Right(cell, digit);
        EXPECT_EQ(session.selectedCell, cell);
    }
    EXPECT_EQ(Steps(), 2);
    EXPECT_TRUE(sounds.played.empty());
    EXPECT_EQ(session.textHint, "");
}

TEST_F(EntryTest, OnlyAStepTakesThePaidHintAway) {
    Left(kA1, 1);
    GiveHint(stage);
    const std::string explanation = session.textHint;
    session.selectedCell = kA2;
    AssignBySelection(stage, 9);
    AssignBySelection(stage, 8);
    EXPECT_EQ(session.textHint, explanation + "\nNumber 8 is no candidate at cell A2");
    session.brushes.Arm(2, MouseButton::Left);
    Left(kA2, 0);
    session.brushes.Arm(2, MouseButton::Left);
    EXPECT_TRUE(session.hint);
    Left(kA4, 4);
    EXPECT_FALSE(session.hint);
    EXPECT_EQ(session.hintCaption, "");
    EXPECT_EQ(session.textHint, "");
    EXPECT_EQ(session.brushes.CellColor(kA2), 2) << "brush paint stays";
}

TEST_F(EntryTest, TheWordsOfAReportStayAboveOneRefusal) {
    Right(kA1, session.puzzle.solution[kA1]);
    GiveHint(stage);
    const std::string report = session.textHint;
    EXPECT_TRUE(report.starts_with("The correct number is no longer shown"));
    session.selectedCell = kA1;
    for (int digit : {9, 8}) {
        AssignBySelection(stage, digit);
        EXPECT_EQ(session.textHint,
                  report + "\nNumber " + std::to_string(digit) + " is no candidate at cell A1");
    }
}

TEST_F(EntryTest, MarksThatAreNotShownAreLeftAlone) {
    session.selectedCell = kA1;
    const auto expectRefused = [this](const std::string& why) {
        Right(kA1, 1);
        EXPECT_EQ(TakeText(), why);
        ToggleMarkBySelection(stage, 1);
        EXPECT_EQ(TakeText(), why);
        EXPECT_EQ(Steps(), 0);
    };
    stage.options.pencilmarks = false;
    expectRefused(kMarksAreOff);
    Left(kA1, 1);
    EXPECT_EQ(TakeText(), kMarksAreOff);
    Left(kC1, 7);
    EXPECT_EQ(TakeText(), "");
    session.selectedCell = kA1;
    AssignBySelection(stage, 1);
    EXPECT_EQ(Digit(kA1), 1) << "keys need no marks";
    UndoStep(stage);

    stage.options.pencilmarks = true;
    stage.options.pencilmarksOff = true;
    expectRefused(kMarksAreSimple);
    Left(kA1, 1);
    EXPECT_EQ(Digit(kA1), 1);
    session.level = 4;
    Right(kA2, 2);
    EXPECT_EQ(MarksAt(kA2), MarkOf(5)) << "the option is for the first three levels";
}

TEST_F(EntryTest, KeysDoAsClicksOnTheSelectedCell) {
    AssignBySelection(stage, 1);
    EXPECT_EQ(Steps(), 0) << "no cell is selected";
    session.selectedCell = kA1;
    AssignBySelection(stage, 5);
    EXPECT_EQ(TakeText(), "Number 5 is no candidate at cell A1");
    ToggleMarkBySelection(stage, 5);
    EXPECT_EQ(TakeText(), "Number 5 cannot be a candidate at cell A1");

    ToggleMarkBySelection(stage, 4);
    EXPECT_EQ(MarksAt(kA1), MarkOf(1));
    AssignBySelection(stage, 4);
    EXPECT_EQ(TakeText(), "Number 4 is no candidate at cell A1") << "the player discarded it";
    ToggleMarkBySelection(stage, 4);
    EXPECT_EQ(MarksAt(kA1), DigitsNamed("14"));
    EXPECT_EQ(Steps(), 2);
    AssignBySelection(stage, 4);
    EXPECT_EQ(Digit(kA1), 4);
    AssignBySelection(stage, 1);
    EXPECT_EQ(TakeText(), "Cell A1 is filled: take its number off with Reset Cell");

    session.selectedCell = kC1;
    AssignBySelection(stage, 1);
    ToggleMarkBySelection(stage, 1);
    EXPECT_EQ(TakeText(), "") << "clues are left alone in silence";
    EXPECT_EQ(Steps(), 3);
}

TEST_F(EntryTest, TheSelectionMovesAroundTheEndsAndToEmptyCells) {
    MoveSelectionBy(stage, Direction::Up, Jump::NextCell);
    EXPECT_EQ(session.selectedCell, kA1);
    const auto moved = [&](std::string_view from, Direction direction, Jump jump) {
        session.selectedCell = CellNamed(from);
        MoveSelectionBy(stage, direction, jump);
        return CellName(session.selectedCell);
    };
    EXPECT_EQ(moved("A1", Direction::Left, Jump::NextCell), "A9");
    EXPECT_EQ(moved("A1", Direction::Up, Jump::NextCell), "J1");
    EXPECT_EQ(moved("J9", Direction::Right, Jump::NextCell), "J1");
    EXPECT_EQ(moved("J9", Direction::Down, Jump::NextCell), "A9");
    EXPECT_EQ(moved("E5", Direction::Right, Jump::NextCell), "E6");
    Left(kA2, 2);
    EXPECT_EQ(moved("A1", Direction::Right, Jump::NextEmptyCell), "A3");
    EXPECT_EQ(moved("B9", Direction::Right, Jump::NextEmptyCell), "A1");
    EXPECT_EQ(moved("E5", Direction::Left, Jump::NextEmptyCell), "B9");
    EXPECT_EQ(moved("B1", Direction::Down, Jump::NextEmptyCell), "B2") << "A2 is filled";
    EXPECT_EQ(moved("E5", Direction::Up, Jump::NextEmptyCell), "B5");
    ShowSolution(stage);
    session.phase = PlayPhase::Playing;
    EXPECT_EQ(moved("E5", Direction::Up, Jump::NextEmptyCell), "E5") << "no cell is empty";
}

TEST_F(EntryTest, AnArmedBrushPaintsAndBarsMarksAndUndo) {
    Left(kA1, 1);
    ClickColorLabel(stage, 3, MouseButton::Left);
    Left(kB1, 4);
    Right(kB1, 4);
    EXPECT_EQ(session.brushes.CellColor(kB1), 3) << "no brush is armed for the right button";
    EXPECT_EQ(Steps(), 1);
    UndoStep(stage);
    EXPECT_EQ(Digit(kA1), 1);
    AssignBySelection(stage, 4);
    EXPECT_EQ(Steps(), 1);
    EXPECT_NE(TakeText(), "");
    ClickLabel(stage, UnitKind::Column, 8, MouseButton::Left);
    EXPECT_EQ(session.brushes.CellColor(kCells - 1), 3);
    ClickColorLabel(stage, 3, MouseButton::Left);
    UndoStep(stage);
    EXPECT_EQ(Digit(kA1), 0);
    EXPECT_EQ(LastSound(), Sound::UndoRedo);
}

TEST_F(EntryTest, LinkModeLinksMarksAndBarsPaintingAndUndo) {
    Left(kA4, 4);
    ClickColorLabel(stage, 3, MouseButton::Left);
    ToggleLinkMode(stage);
    ClickColorLabel(stage, 5, MouseButton::Right);
    EXPECT_EQ(session.brushes.Armed(MouseButton::Right), kNoBrush);
    Left(kA1, 9);
    Left(kA4, 4);
    EXPECT_EQ(session.links.StartCell(), kNoLinkCell) << "neither is a mark";
    Left(kA1, 1);
    session.selectedCell = kB1;
    ToggleMarkBySelection(stage, 1);
    ASSERT_EQ(session.links.All().size(), 1u);
    EXPECT_EQ(session.links.All()[0], (LinkView{kA1, 1, kB1, 1, false, false}));
    ClickLabel(stage, UnitKind::Row, 0, MouseButton::Left);
    EXPECT_EQ(session.brushes.CellColor(kA1), kNoBrush);
    UndoStep(stage);
    EXPECT_EQ(Steps(), 1);
    stage.options.pencilmarks = false;
    Left(kA1, 1);
    EXPECT_EQ(TakeText(), kMarksAreOff);
}

TEST_F(EntryTest, ARedLabelIsClearedWithItsSide) {
    session.hintColors.ZetHintRij(2);
    session.hintColors.ZetHintRij(5);
    session.hintColors.ZetHintKolom(2);
    ClickColorLabel(stage, 3, MouseButton::Left);
    ClickLabel(stage, UnitKind::Row, 5, MouseButton::Right);
    EXPECT_TRUE(session.hintColors.IsRedLabel(UnitKind::Row, 5));
    ClickLabel(stage, UnitKind::Row, 5, MouseButton::Left);
    EXPECT_FALSE(session.hintColors.IsRedLabel(UnitKind::Row, 2));
    EXPECT_FALSE(session.hintColors.IsRedLabel(UnitKind::Row, 5));
    EXPECT_TRUE(session.hintColors.IsRedLabel(UnitKind::Column, 2));
    EXPECT_EQ(session.brushes.LabelColor(UnitKind::Row, 5), kNoBrush);
    EXPECT_EQ(sounds.played, std::vector<Sound>{Sound::Label});
    ClickLabel(stage, UnitKind::Row, 5, MouseButton::Left);
    EXPECT_EQ(session.brushes.LabelColor(UnitKind::Row, 5), 3);
    EXPECT_EQ(sounds.played.size(), 1u);
}

TEST_F(EntryTest, ResetCellActsOnTheSelectedCell) {
    ResetCell(stage);
    Right(kA1, 4);
    Left(kA1, 1);
    ResetCell(stage);
    EXPECT_EQ(MarksAt(kA1), DigitsNamed("14"));
    EXPECT_EQ(MarksAt(kB1), DigitsNamed("14"));
    EXPECT_EQ(LastSound(), Sound::ResetCell);
    EXPECT_EQ(Steps(), 3);
    ResetCell(stage);
    EXPECT_EQ(Steps(), 3) << "all its legal marks are there";
    Right(kA1, 1);
    Right(kA1, 4);
    ResetCell(stage);
    EXPECT_EQ(MarksAt(kA1), DigitsNamed("14"));
    UndoStep(stage);
    EXPECT_EQ(MarksAt(kA1), 0);
    session.selectedCell = kC1;
    ResetCell(stage);
    EXPECT_EQ(Digit(kC1), 7);
}

TEST_F(EntryTest, RestartIsANewGame) {
    const Grid start = session.grid;
    Left(kA1, 4);
    Right(kA2, 2);
    session.brushes.Arm(1, MouseButton::Left);
    Left(kA4, 0);
    session.brushes.Arm(1, MouseButton::Left);
    session.links.Click(kA4, 4, MouseButton::Left);
    session.links.Click(kA4, 7, MouseButton::Left);
    GiveHint(stage);
    clock.second += 100;
    session.clock.Tick(clock.second);
    Restart(stage);
    EXPECT_EQ(session.grid, start);
    EXPECT_EQ(session.clock.Elapsed(), 0);
    EXPECT_TRUE(session.clock.IsRunning());
    EXPECT_FALSE(session.history.CanUndo());
    EXPECT_FALSE(session.history.CanRedo());
    EXPECT_EQ(session.brushes.CellColor(kA4), kNoBrush);
    EXPECT_TRUE(session.links.All().empty());
    EXPECT_FALSE(CellIn(MakeScreen(stage), kA1).isHintCell);
    EXPECT_EQ(session.textHint,
              "Press [Hint] if you get stuck !!! Minimize Window to pause."
              " DoubleClick this window to pop up the small Hint Window.");
    EXPECT_EQ(LastSound(), Sound::Discard);
}

TEST_F(EntryTest, SolutionShowsTheDigitsAndOnlyRestartGoesOnUncounted) {
    Left(kA1, 4);
    clock.second += 60;
    ShowSolution(stage);
    EXPECT_TRUE(session.grid.IsGiven(kC1));
    EXPECT_FALSE(session.grid.IsGiven(kA1));
    EXPECT_EQ(session.clock.Elapsed(), 60);
    EXPECT_FALSE(session.clock.IsRunning());
    EXPECT_EQ(LastSound(), Sound::Solution);
    UndoStep(stage);
    session.selectedCell = kA1;
    ResetCell(stage);
    EXPECT_EQ(session.grid.AllDigits(), session.puzzle.solution);
    const Screen screen = MakeScreen(stage);
    EXPECT_FALSE(screen.isBoardEnabled);
    EXPECT_TRUE(screen.Command(CommandId::SolveRestart).isEnabled);
    EXPECT_FALSE(screen.Command(CommandId::SolveUndo).isEnabled);

    Restart(stage);
    EXPECT_TRUE(session.IsPlaying());
    for (int cell : FirstTwoRows()) {
        Left(cell, PlainSolution()[static_cast<std::size_t>(cell)]);
    }
    EXPECT_EQ(session.phase, PlayPhase::Finished);
    EXPECT_EQ(session.statistics.solvedCount, 0);
}

TEST_F(EntryTest, WhileTheClockIsStoppedTheBoardIsOff) {
    Left(kA1, 1);
    GiveHint(stage);
    const std::string explanation = session.textHint;
    session.isStoppedByPlayer = true;
    ApplyHint(stage);
    GiveHint(stage);
    EXPECT_EQ(session.clock.Elapsed(), 10) << "one hint";
    session.selectedCell = kA2;
    Left(kB1, 4);
    AssignBySelection(stage, 2);
    UndoStep(stage);
    ResetCell(stage);
    MoveSelectionBy(stage, Direction::Down, Jump::NextCell);
    ShowSolution(stage);
    Restart(stage);
    EXPECT_EQ(Steps(), 1);
    EXPECT_EQ(session.selectedCell, kA2);
    EXPECT_EQ(Digit(kB1), 0);
    EXPECT_EQ(session.textHint, explanation);
}

}  // namespace
}  // namespace vemo::test
