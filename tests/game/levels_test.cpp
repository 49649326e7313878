// Levels, opening, saving, completing, and the times that are kept.
#include "game/support.h"

namespace vemo::test {
namespace {

const std::vector<int> kOpen = {0, 1, 40, 80};
const std::string kNewSudokuTime = "New best time for this Sudoku!!!";
const std::string kNewLevelTime = "New best time for this Level!!!";
const std::string kEraseLevel =
    "Do you really want to erase the best times of all Medium sudokus ?";
const std::string kEraseAll = "Do you really want to erase all times of all levels ?";

class LevelsTest : public GameTest {
  protected:
    LevelsTest() {
        Ship({PuzzleWithOpen(kOpen), PuzzleWithOpen({0, 5}), PuzzleWithOpen({0, 7})});
        StartFirst();
    }
    void Complete(const std::vector<int>& open, int seconds) {
        clock.second += seconds;
        FillAll(open);
    }
    void ExpectBoth() {
        view.Expect("Congratulations", kNewSudokuTime);
        view.Expect("Congratulations", kNewLevelTime);
    }
    void ExpectNumber(const std::optional<std::string>& reply) {
        view.ExpectQuestion("Sudoku number", "Enter a value between 1 and 3", reply);
    }
    void OpenNumber(const std::optional<std::string>& reply) {
        ExpectNumber(reply);
        game->mnuSudokuOpen();
    }
    LevelStatistics Kept(int level) { return Records().ReadStatistics(level); }
};

TEST_F(LevelsTest, TheFirstCompletionIsTheBestOfPuzzleAndLevel) {
    OpenFirst(1);
    view.Expect("Sudoku not in progress",
                "You cannot save a sudoku that hasn't been changed since it was opened !");
    game->mnuSudokuSave();
    Assign(0, 1);
    game->mnuSudokuSave();
    EXPECT_NE(Records().ReadPlayState(1, 1), PlayState{});
    ExpectBoth();
    Complete({1, 40, 80}, 61);
    const std::array<std::string, kStatusPanels> status = {
        "Level: Easy", "Number: 1", "Time to Beat: 01:01", "Level Best Time: 01:01",
        "Level Average Time: 01:01"};
    EXPECT_EQ(Seen().status, status);
    EXPECT_EQ(Records().ReadPlayState(1, 1), PlayState{}) << "the saved progress is discarded";
    EXPECT_EQ(Records().ReadPuzzle(1, 1)->best, (PlayTime{1, 1}));
    EXPECT_EQ(sounds.played.size(), 0u) << "the sounds are off by default";
    EXPECT_FALSE(Seen().isBoardEnabled);
    for (CommandId off :
         {CommandId::SolveRestart, CommandId::SolveUndo, CommandId::SolveRedo,
          CommandId::SolveResetCell, CommandId::SolveHint, CommandId::SolveSolution}) {
        EXPECT_FALSE(Seen().Command(off).isEnabled);
    }
    EXPECT_TRUE(Seen().Command(CommandId::SudokuNext).isEnabled);
    view.Expect("Sudoku solved", "Sudoku already solved, you can only save unsolved sudokus !");
    game->mnuSudokuSave();
}

TEST_F(LevelsTest, TheAverageIsRoundedAndTheBestIsOnlyBeatenByLess) {
    OpenFirst(1);
    ExpectBoth();
    Complete(kOpen, 61);
    game->mnuSudokuNext();
    view.Expect("Congratulations", kNewSudokuTime);
    Complete({0, 5}, 62);
    EXPECT_EQ(Seen().status[4], "Level Average Time: 01:02");
    EXPECT_EQ(Kept(1).totalMinutes, 2);
    EXPECT_EQ(Kept(1).totalSeconds, 3);

    // The same time again is no new best; it is counted all the same.
    OpenNumber("2");
    Complete({0, 5}, 62);
    EXPECT_EQ(Kept(1).solvedCount, 3);
    // A better puzzle time that is no better level time.
    OpenNumber(" 3 ");
    view.Expect("Congratulations", kNewSudokuTime);
    Complete({0, 7}, 100);
    EXPECT_EQ(Seen().status[3], "Level Best Time: 01:01");
}

TEST_F(LevelsTest, WithTheTimerOffNothingIsCounted) {
    game->mnuOptionsTimer();
    OpenFirst(1);
    Complete(kOpen, 61);
    EXPECT_FALSE(Seen().isBoardEnabled);
    EXPECT_EQ(Kept(1).solvedCount, 0);
    EXPECT_TRUE(Records().ReadPuzzle(1, 1)->best.IsNone());
}

TEST_F(LevelsTest, AFullButWrongGridShowsNothing) {
    files.WriteAt(Records().PuzzlePath(1), 0, Pack(PuzzleWithOpen(FirstTwoRows())));
    OpenFirst(1);
    const Digits solution = PlainSolution();
    for (int cell : FirstTwoRows()) {
        Assign(cell, solution[static_cast<std::size_t>((cell + 9) % 18)]);
    }
    EXPECT_NE(Seen().cells[17].digit, 0);
    EXPECT_TRUE(Seen().isBoardEnabled);
    EXPECT_EQ(Kept(1).solvedCount, 0);
}

TEST_F(LevelsTest, NextCountsUpRoundTheLevelAndPassesOverADamagedRecord) {
    files.WriteAt(Records().PuzzlePath(1), kPuzzleRecordSize + 90, Bytes{0});
    OpenFirst(1);
    view.Expect("Can't open sudoku", "Sudoku number 2 of this level is damaged");
    game->mnuSudokuNext();
    EXPECT_EQ(Seen().status[1], "Number: 3");
    ExpectNumber("2");
    view.Expect("Can't open sudoku", "Sudoku number 2 of this level is damaged");
    game->mnuSudokuOpen();
    EXPECT_EQ(Seen().status[1], "Number: 3") << "the puzzle in play stays";
    game->mnuSudokuNext();
    EXPECT_EQ(Seen().status[1], "Number: 1");
    // Of several in a row the first is told of.
    files.WriteAt(Records().PuzzlePath(1), 2 * kPuzzleRecordSize + 90, Bytes{0});
    view.Expect("Can't open sudoku", "Sudoku number 2 of this level is damaged");
    game->mnuSudokuNext();
    EXPECT_EQ(Seen().status[1], "Number: 1");
}

TEST_F(LevelsTest, AnEmptyLevelAndAWrongNumberAreRefused) {
    files.Replace(Records().PuzzlePath(2), Bytes(165));
    view.Expect("Can't open sudoku", "No Medium sudokus found to open");
    game->mnuLevelNr(2);
    game->mnuSudokuNext();
    EXPECT_EQ(view.beeps, 1);
    game->mnuLevelNr(1);
    for (const char* wrong : {"0", "4", "-1", "two", "1 2", "99999999999999999999"}) {
        ExpectNumber(wrong);
        view.Expect("Can't open sudoku", "No Easy sudokus found to open");
        game->mnuSudokuOpen();
    }
    OpenNumber(std::nullopt);
    OpenNumber("");
    EXPECT_EQ(Seen().status[1], "Number: none");
}

TEST_F(LevelsTest, WhatWasSavedIsOfferedUntilThePlayerSavesOrCompletes) {
    OpenFirst(1);
    Assign(0, 1);
    game->mnuSudokuSave();
    EXPECT_TRUE(Kept(1).inProgress);
    game->mnuSudokuNext();
    EXPECT_TRUE(Kept(1).inProgress) << "Next changes memory only";
    EXPECT_EQ(Kept(1).lastNumber, 1);
    ExpectBoth();
    Complete({0, 5}, 9);
    EXPECT_FALSE(Kept(1).inProgress);
    EXPECT_EQ(Kept(1).lastNumber, 2);
}

TEST_F(LevelsTest, APendingLevelTakesOverAtCompletionAndOffersItsPuzzle) {
    OpenFirst(5);
    Assign(0, 1);
    game->mnuSudokuSave();
    const std::string later = "Statusbar will be updated after completion of the current sudoku";
    view.Expect("Changed level", later);
    game->mnuLevelNr(1);
    EXPECT_EQ(Seen().status[0], "Level: Insane");
    EXPECT_TRUE(Seen().Command(CommandId::Level1).isChecked);
    game->mnuSudokuNext();
    EXPECT_EQ(Seen().status[0], "Level: Easy");

    view.Expect("Changed level", later);
    game->mnuLevelNr(5);
    ExpectBoth();
    view.Expect("Sudoku in progress", "Do you want to proceed with the last saved sudoku ?",
                Answer::No);
    Complete(kOpen, 30);
    EXPECT_EQ(Seen().status[0], "Level: Insane");
    EXPECT_EQ(Seen().status[1], "Number: none");
    EXPECT_EQ(Kept(1).solvedCount, 1);
}

TEST_F(LevelsTest, ErasingThePuzzlesTimeTakesOffItsBestOnly) {
    OpenFirst(1);
    EXPECT_FALSE(Seen().Command(CommandId::EraseSudokuTime).isEnabled);
    ExpectBoth();
    Complete(kOpen, 100);
    OpenNumber("1");
    ExpectBoth();
    Complete(kOpen, 70);
    game->Run(CommandId::EraseSudokuTime);
    EXPECT_EQ(Seen().status[2], "Time to Beat: 00:00");
    EXPECT_EQ(Kept(1).solvedCount, 1);
    EXPECT_EQ(Kept(1).totalMinutes * 60 + Kept(1).totalSeconds, 100);
    EXPECT_EQ(Kept(1).average, (PlayTime{1, 40}));
    EXPECT_FALSE(Seen().Command(CommandId::EraseSudokuTime).isEnabled);
}

TEST_F(LevelsTest, ErasingALevelKeepsItsCountsAndErasingAllKeepsNothing) {
    OpenFirst(1);
    ExpectBoth();
    Complete(kOpen, 100);
    game->mnuLevelNr(2);
    game->mnuSudokuNext();
    ExpectBoth();
    Complete(kOpen, 50);
    view.Expect("Erase Time", kEraseLevel, Answer::No);
    game->mnuEraseLevelTime();
    EXPECT_FALSE(Kept(2).best.IsNone());
    view.Expect("Erase Time", kEraseLevel, Answer::Yes);
    game->mnuEraseLevelTime();
    EXPECT_EQ(Kept(2).solvedCount, 1);
    EXPECT_EQ(Kept(2).average, (PlayTime{0, 50}));
    EXPECT_TRUE(Kept(2).best.IsNone());
    EXPECT_EQ(Seen().status[4], "Level Average Time: 00:00");
    EXPECT_TRUE(Records().ReadPuzzle(2, 1)->best.IsNone());
    EXPECT_FALSE(Records().ReadPuzzle(1, 1)->best.IsNone());

    view.Expect("Erase Time", kEraseAll, Answer::No);
    game->mnuEraseAllTime();
    EXPECT_EQ(Kept(1).solvedCount, 1);
    view.Expect("Erase Time", kEraseAll, Answer::Yes);
    game->mnuEraseAllTime();
    EXPECT_EQ(Kept(1).solvedCount, 0);
    EXPECT_EQ(Kept(1).lastNumber, 1);
    EXPECT_TRUE(Records().ReadPuzzle(1, 1)->best.IsNone());
    EXPECT_EQ(Seen().status[3], "Level Best Time: 00:00");
}

TEST_F(LevelsTest, WhatASecondWindowCountedMeanwhileIsNotUndone) {
    OpenFirst(1);
    LevelStatistics counted;
    counted.solvedCount = 5;
    counted.totalMinutes = 5;
    counted.best = {0, 30};
    Records().WriteStatistics(1, counted);
    Assign(0, 1);
    game->mnuSudokuSave();
    EXPECT_EQ(Kept(1).solvedCount, 5);
    counted.solvedCount = 6;
    Records().WriteStatistics(1, counted);
    view.Expect("Congratulations", kNewSudokuTime);
    Complete({1, 40, 80}, 61);
    EXPECT_EQ(Kept(1).solvedCount, 7);
    EXPECT_EQ(Kept(1).best, (PlayTime{0, 30}));
}

TEST_F(LevelsTest, InAFolderThatHasGoneProgressIsSavedAndNoPuzzleFileBegun) {
    OpenFirst(1);
    game->mnuSudokuNext();
    Assign(0, 1);
    std::filesystem::remove_all(DataFolder());
    game->mnuSudokuSave();
    EXPECT_EQ(Records().ReadPlayState(1, 2).digits[0], 1);
    view.Expect("Congratulations", kNewSudokuTime);
    view.Expect("File Error", "Error writing sudoku to file !");
    view.Expect("Congratulations", kNewLevelTime);
    Complete({5}, 61);
    EXPECT_FALSE(files.Size(Records().PuzzlePath(1)));
    EXPECT_EQ(Kept(1).solvedCount, 1);
}

}  // namespace
}  // namespace vemo::test
