// Autosolve, Scan, Stop and the solve log.
#include "game/autosolve.h"

#include "game/play_support.h"
#include "solver/brute_force.h"
#include "solver/solver.h"

namespace vemo::test {
namespace {

// A1, A2 and B1 are open: three hidden singles, one box after the other.
const std::vector<int> kOpen = {0, 1, 9};
const std::string kStart = "\r\nStart Solving\r\n";
const std::string kOneStep = "Hidden Single 1 in box at cell A1\r\n";
const std::string kThreeSteps = kOneStep +
                                "Hidden Single 2 in box at cell A2\r\n"
                                "Hidden Single 4 in box at cell B1\r\n";
const std::string kSolved = "SUDOKU SOLVED\r\n";
const std::string kNotSolved = "SUDOKU NOT SOLVED\r\n";
const std::string kSolvedText = "Autosolve completed, sudoku solved !!!";
const std::string kNotSolvedText =
    "Autosolve completed, no more logical hints, you'll have to enable more techniques or guess "
    "more than once...";
const std::string kHintAtA2 =
    "HIDDEN SINGLE: Since number 2 in the top left block appears only at cell A2, it must be there";
const std::string kMarksQuestion =
    "All pencilmarks must be visible to start the Autosolver, shall I make them visible ?";

PuzzleRecord RecordOf(const Digits& clues) {
    PuzzleRecord puzzle;
    puzzle.clues = clues;
    puzzle.solution = BruteForceSolve(clues).solution;
    return puzzle;
}

// The first puzzle of the corpus that slots 3 to 7 do not solve.
PuzzleRecord HardPuzzle() {
    for (const Digits& clues : Corpus()) {
        if (!PreSolve(Grid::FromClues(clues)).solved) {
            return RecordOf(clues);
        }
    }
    return {};
}

class AutosolveTest : public GameTest {
  protected:
    AutosolveTest() {
        Ship({PuzzleWithOpen(kOpen), PuzzleWithOpen({0}), PuzzleWithOpen({0, 7})});
        StartFirst();
        game->mnuOptionsSounds();
    }
    // Another start with these techniques alone beside slots 3 to 7.
    void StartWith(const std::vector<int>& slots) {
        for (int slot = kFirstMovableSlot; slot < kSlots; ++slot) {
            const bool isOn = std::ranges::find(slots, slot) != slots.end();
            settings.Save("Technique", "OnOff" + std::to_string(slot), isOn ? "1" : "0");
        }
        StartAgain();
    }
    void StopAtYield(int number) {
        view.yields = 0;
        view.onYield = [this, number] {
            if (view.yields == number) {
                game->Run(CommandId::SolveStop);
            }
        };
    }
    int Digit(int cell) const { return Seen().cells[static_cast<std::size_t>(cell)].digit; }
    const std::string& Log() const { return game->SolveLogText(); }
    void ExpectRange(const std::string& count, const std::string& from, const std::string& to) {
        view.ExpectQuestion("Scan 'from' number", "Enter a value between 1 and " + count, from);
        view.ExpectQuestion("Scan 'to' number", "Enter a value between " + from + " and " + count,
                            to);
    }
};

TEST_F(AutosolveTest, EveryStepIsLoggedShownAndHeardAndNothingIsCounted) {
    OpenFirst(5);
    sounds.played.clear();
    view.paused = 0;
    clock.second += 100;
    game->mnuSolveAutoSolve();
    EXPECT_EQ(Log(), kStart + kThreeSteps + kSolved);
    EXPECT_EQ(Seen().textHint, kSolvedText);
    EXPECT_EQ(view.paused, 300);
    EXPECT_EQ(sounds.played,
              (std::vector<Sound>{Sound::Hint, Sound::Hint, Sound::Hint, Sound::Applause}));
    EXPECT_EQ(Digit(9), 4);
    EXPECT_FALSE(Seen().isBoardEnabled);
    EXPECT_FALSE(Seen().Command(CommandId::SolveAutoSolve).isEnabled);
    EXPECT_EQ(Records().ReadStatistics(5).solvedCount, 0);
    EXPECT_TRUE(Records().ReadPuzzle(5, 1)->best.IsNone());

    // With hidden marks it asks first; the log goes on.
    game->mnuSudokuNext();
    game->mnuPencilmarksMode();
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        EXPECT_EQ(Log(), kStart + kThreeSteps + kSolved);
        EXPECT_FALSE(game->CurrentSession().isAutosolved);
        view.Expect("Hidden pencilmarks detected", kMarksQuestion, answer);
        game->mnuSolveAutoSolve();
    }
    EXPECT_TRUE(game->CurrentOptions().pencilmarks);
    EXPECT_EQ(Log(), kStart + kThreeSteps + kSolved + kStart + kOneStep + kSolved);
}

TEST_F(AutosolveTest, BrushLinkAndSimpleModeRefuseInSilence) {
    OpenFirst(3);
    const auto expectRefused = [this] {
        EXPECT_FALSE(Seen().Command(CommandId::SolveAutoSolve).isEnabled);
        EXPECT_FALSE(Seen().Command(CommandId::SolveScan).isEnabled);
        game->mnuSolveAutoSolve();
        game->mnuSolveScan();
        EXPECT_EQ(Log(), "");
    };
    game->LabelColorMouseUp(2, MouseButton::Left);
    expectRefused();
    game->LabelColorMouseUp(2, MouseButton::Left);
    game->CommandLinkClick();
    expectRefused();
    game->CommandLinkClick();
    game->mnuPencilmarksOff();
    expectRefused();
    // A scan is one of the level chosen for later.
    view.Expect("Changed level",
                "Statusbar will be updated after completion of the current sudoku");
    game->mnuLevelNr(4);
    EXPECT_FALSE(Seen().Command(CommandId::SolveAutoSolve).isEnabled);
    EXPECT_TRUE(Seen().Command(CommandId::SolveScan).isEnabled);
}

TEST_F(AutosolveTest, StopShowsTheNextStepInsteadOfTakingIt) {
    OpenFirst(5);
    Assign(9, 4);
    // The third yield is that of the second pass; the second stands between the two steps.
    for (int yield : {2, 3}) {
        game->mnuSolveRestart();
        StopAtYield(yield);
        game->mnuSolveAutoSolve();
        EXPECT_EQ(Digit(0), 1);
        EXPECT_EQ(Digit(1), 0);
        EXPECT_EQ(Seen().hintCaption, "Hint - Hidden single");
        EXPECT_EQ(Seen().textHint, kHintAtA2);
        EXPECT_TRUE(Seen().Command(CommandId::SolveAutoSolve).isEnabled);
        EXPECT_FALSE(Seen().Command(CommandId::SolveStop).isEnabled);
    }
    const std::string once = kStart + kOneStep;
    EXPECT_EQ(Log(), once + once);

    // The hint can be applied, and taken back again.
    game->KeyHint();
    EXPECT_EQ(Digit(1), 2);
    game->mnuSolveUndo();
    EXPECT_EQ(Digit(1), 0);
    game->mnuSolveRedo();
    view.Expect("Sudoku Autosolved",
                "Autosolve function is invoked at the current sudoku, therefore you cannot save "
                "this sudoku !");
    game->mnuSudokuSave();
}

TEST_F(AutosolveTest, StopInTheMiddleOfATrialEndsAtOnce) {
    PuzzleRecord puzzle = HardPuzzle();
    puzzle.clues = PreSolve(Grid::FromClues(puzzle.clues)).grid.AllDigits();
    files.WriteAt(Records().PuzzlePath(5), 0, Pack(puzzle));
    StartWith({39});
    OpenFirst(5);
    int atTrial = 0;
    view.onYield = [&] {
        const bool isAtTrial = Seen().textHint == "Scanning for Bifurcation - Please be patient";
        atTrial += isAtTrial ? 1 : 0;
        if (isAtTrial && atTrial == 2) {
            game->Run(CommandId::SolveStop);
        }
    };
    game->mnuSolveAutoSolve();
    EXPECT_EQ(atTrial, 2);
    EXPECT_EQ(Seen().textHint, "Autosolve stopped");
    EXPECT_TRUE(Seen().isBoardEnabled);
}

TEST_F(AutosolveTest, AHintLogsItsTrialsAndNotWhatItFinds) {
    const Digits clues = ParseDigits(kNeedsTrials);
    files.WriteAt(Records().PuzzlePath(5), 0, Pack(RecordOf(clues)));
    OpenFirst(5);
    game->mnuSolveHint();
    while (Seen().canApply && Seen().hintCaption != "Hint - Bifurcation") {
        game->CommandApplyClick();
        game->mnuSolveHint();
    }
    EXPECT_TRUE(Log().starts_with("\r\nBifurcation attempt: placed candidate ")) << Log();
    EXPECT_NE(Log().find("Current Bifurcation attempt failed"), std::string::npos);
    EXPECT_EQ(Log().find("Bifurcation placed"), std::string::npos);
}

TEST_F(AutosolveTest, ATechniqueThatHaltsShowsItsStepAndEndsTheRun) {
    game->CheckInclude(kSlots + 3);
    OpenFirst(5);
    game->mnuSolveAutoSolve();
    EXPECT_EQ(Seen().hintCaption, "Hint - Hidden single");
    EXPECT_EQ(Digit(0), 0);
    EXPECT_EQ(Log(), kStart);
    EXPECT_TRUE(game->CurrentSession().isAutosolved);
    EXPECT_EQ(game->CurrentSession().clock.Elapsed(), 0);
    game->KeyHint();
    EXPECT_EQ(Digit(0), 1);
}

TEST_F(AutosolveTest, TheFirstStepCutsWhatCouldBeRedone) {
    OpenFirst(5);
    Assign(9, 4);
    game->mnuSolveUndo();
    for (int yield : {1, 2}) {
        StopAtYield(yield);
        game->mnuSolveAutoSolve();
        EXPECT_EQ(Seen().Command(CommandId::SolveRedo).isEnabled, Digit(0) == 0) << yield;
    }
    EXPECT_EQ(Digit(0), 1);
}

TEST_F(AutosolveTest, WithoutAStepItSaysSo) {
    files.WriteAt(Records().PuzzlePath(5), 0, Pack(HardPuzzle()));
    StartWith({});
    OpenFirst(5);
    game->mnuSolveHint();
    game->mnuSolveAutoSolve();
    EXPECT_EQ(Seen().hintCaption, "") << "the hint that was on display is gone";
    EXPECT_EQ(Seen().textHint, kNotSolvedText);
    EXPECT_TRUE(Log().ends_with(kNotSolved));
    EXPECT_EQ(sounds.played.back(), Sound::Giggle);
    EXPECT_TRUE(Seen().isBoardEnabled);
}

// Whatever runs, trials too, the window handles its events before each search.
TEST_F(AutosolveTest, BetweenTwoYieldsAtMostOneStepOfTheLadderRuns) {
    const PuzzleRecord puzzle = HardPuzzle();
    files.WriteAt(Records().PuzzlePath(5), 0, Pack(puzzle));
    StartWith({8, 39});
    game->mnuLevelNr(5);
    std::vector<std::string> searches;
    Solver solver(Grid::FromClues(puzzle.clues));
    solver.SetStepWatcher([&](const Step& step) {
        searches.emplace_back(step.statusText);
        return true;
    });
    ASSERT_TRUE(RunToTheEnd(solver, AutosolveLadder(ReadTechniqueSettings(settings))));
    ASSERT_GT(std::ranges::count(searches, searches.back()), 10) << "there was a trial";

    std::vector<std::string> yields;
    view.onYield = [&] { yields.push_back(Seen().textHint); };
    ExpectRange("3", "1", "1");
    game->mnuSolveScan();
    EXPECT_EQ(yields, searches);
}

TEST_F(AutosolveTest, AScanSolvesItsRangeAndLeavesNoTrace) {
    OpenFirst(5);
    Assign(0, 1);
    game->mnuSudokuSave();
    const LevelStatistics saved = Records().ReadStatistics(5);
    const PlayState state = Records().ReadPlayState(5, 1);
    sounds.played.clear();
    view.paused = 0;
    std::vector<std::string> numbers;
    view.onYield = [&] {
        if (numbers.empty() || numbers.back() != Seen().status[1]) {
            numbers.push_back(Seen().status[1]);
        }
    };
    ExpectRange("3", "1", "3");
    game->mnuSolveScan();
    EXPECT_EQ(view.questions.front().suggestion, "1");
    EXPECT_EQ(numbers, (std::vector<std::string>{"Number: 1", "Number: 2", "Number: 3"}));
    const std::string first = kStart + kThreeSteps + kSolved;
    EXPECT_EQ(Log().substr(0, first.size()), first);
    EXPECT_EQ(Seen().textHint, kSolvedText + "\nScan completed: 3 of 3 sudokus solved");
    EXPECT_TRUE(sounds.played.empty());
    EXPECT_EQ(view.paused, 0);
    EXPECT_EQ(Records().ReadStatistics(5), saved);
    EXPECT_EQ(Records().ReadPlayState(5, 1), state);
    EXPECT_TRUE(game->CurrentSession().statistics.inProgress);

    view.onYield = nullptr;
    game->mnuSudokuNext();
    EXPECT_EQ(Seen().status[1], "Number: 2") << "Next goes on from where the player was";
}

TEST_F(AutosolveTest, StopEndsTheWholeScanWhileTheGameIsBusy) {
    game->mnuLevelNr(5);
    view.onYield = [this] {
        EXPECT_FALSE(Seen().isBoardEnabled);
        EXPECT_FALSE(Seen().Command(CommandId::SudokuNext).isEnabled);
        if (Seen().status[1] != "Number: 2") {
            return;
        }
        view.onYield = nullptr;
        Assign(0, 1);
        game->mnuSudokuNext();
        view.Expect("Function in progress",
                    "Autosolve or Scan function busy, cannot quit Vemo Sudoku now.");
        EXPECT_FALSE(game->FormQueryUnload());
        game->Run(CommandId::SolveStop);
    };
    ExpectRange("3", "1", "3");
    game->mnuSolveScan();
    EXPECT_EQ(Seen().status[1], "Number: 2");
    EXPECT_EQ(Digit(0), 0);
    EXPECT_EQ(Seen().hintCaption, "Hint - Hidden single");
    EXPECT_TRUE(Seen().textHint.ends_with("\nScan stopped: 1 of 1 sudokus solved"));
    EXPECT_TRUE(Seen().Command(CommandId::SolveScan).isEnabled);
    EXPECT_TRUE(Seen().isBoardEnabled);
    EXPECT_EQ(Records().ReadStatistics(5), LevelStatistics());
}

TEST_F(AutosolveTest, AHaltOrADamagedRecordEndsOnePuzzleAlone) {
    PuzzleRecord damaged = PuzzleWithOpen(kOpen);
    damaged.clues[5] = 12;
    files.WriteAt(Records().PuzzlePath(5), kPuzzleRecordSize, Pack(damaged));
    game->CheckInclude(kSlots + 3);
    game->mnuLevelNr(5);
    ExpectRange("3", "1", "3");
    game->mnuSolveScan();
    EXPECT_EQ(Log(), kStart + kStart);
    EXPECT_TRUE(Seen().textHint.ends_with(
        "\nScan completed: 0 of 2 sudokus solved, not solved: 1, 3, damaged: 2"));
    // Each puzzle yields once; the second time is that of the damaged one.
    StopAtYield(2);
    ExpectRange("3", "1", "3");
    game->mnuSolveScan();
    EXPECT_TRUE(Seen().textHint.ends_with(
        "\nScan stopped: 0 of 1 sudokus solved, not solved: 1, damaged: 2"));
}

TEST_F(AutosolveTest, TheRangeIsAskedForUntilItIsOneWhereThereArePuzzles) {
    const auto expectFrom = [this](std::optional<std::string> reply) {
        view.ExpectQuestion("Scan 'from' number", "Enter a value between 1 and 3", reply);
    };
    game->mnuLevelNr(5);
    expectFrom(std::nullopt);
    game->mnuSolveScan();
    for (const char* reply : {"0", "4", "-1", "two", "99999999999", "2"}) {
        expectFrom(reply);
    }
    for (const char* reply : {"1", "  "}) {
        view.ExpectQuestion("Scan 'to' number", "Enter a value between 2 and 3", reply);
    }
    game->mnuSolveScan();
    EXPECT_EQ(Log(), "");

    game->mnuPencilmarksMode();
    ExpectRange("3", "2", "2");
    view.Expect("Hidden pencilmarks detected", kMarksQuestion, Answer::No);
    game->mnuSolveScan();
    EXPECT_EQ(Seen().status[1], "Number: none") << "nothing was opened";

    files.Replace(Records().PuzzlePath(5), Bytes{});
    view.Expect("Can't open sudoku", "No Insane sudokus found to open");
    game->mnuSolveScan();
    std::filesystem::remove(Records().PuzzlePath(5));
    view.Expect("File error", "Source file: " + Records().PuzzlePath(5).string() + " not found!");
    game->mnuSolveScan();
}

class AutosolvePlayTest : public PlayTest {
  protected:
    AutosolvePlayTest() { session.level = 5; }
};

TEST_F(AutosolvePlayTest, AMarkThatAPlacedDigitRulesOutIsReported) {
    Left(kA1, 1);
    session.grid.GiveBack(kA4, 1);
    session.grid.GiveBack(kB1, 1);
    // A hint shows one such mark, Autosolve all of them and what the digit rules out.
    for (void (*ask)(Stage&) : {GiveHint, AutoSolve}) {
        const bool isHint = ask == GiveHint;
        ask(stage);
        EXPECT_EQ(TakeText(),
                  "Since number 1 is located at cell A1, this number cannot longer be a candidate "
                  "in that same row, column or block");
        const Screen screen = MakeScreen(stage);
        EXPECT_EQ(MarkIn(screen, kA4, 1).role, Role::Attacked);
        EXPECT_EQ(MarkIn(screen, kB1, 1).role, isHint ? Role::None : Role::Attacked);
        EXPECT_TRUE(CellIn(screen, kA1).isHintCell);
        for (const char* cell : {"A9", "J1", "C3"}) {
            EXPECT_EQ(CellIn(screen, CellNamed(cell)).isUnitTint, !isHint) << cell;
        }
        EXPECT_FALSE(CellIn(screen, CellNamed("D2")).isUnitTint);
        EXPECT_EQ(LastSound(), Sound::Error);
        EXPECT_EQ(session.clock.Elapsed(), isHint ? 10 : 20);
    }
}

TEST_F(AutosolvePlayTest, ADeadEndIsNotSolved) {
    session.grid = GraveThatIsWrong();
    session.puzzle = RecordOf(session.grid.AllDigits());
    std::fill_n(stage.techniques.onOff.begin() + kFirstMovableSlot, 19, false);
    // A hint that is applied leaves the right digit.
    GiveHint(stage);
    ApplyHint(stage);
    EXPECT_EQ(MarksAt(CellNamed("B3")), MarkOf(7));
    UndoStep(stage);
    AutoSolve(stage);
    EXPECT_EQ(stage.log.Text(),
              kStart + "BUG: Removed candidates from cell B3 : 5 6 7\r\n" + kNotSolved);
    EXPECT_EQ(TakeText(), kNotSolvedText);
    EXPECT_EQ(LastSound(), Sound::Giggle);
    EXPECT_EQ(MarksAt(CellNamed("B3")), 0);
    EXPECT_TRUE(session.IsPlaying());
}

}  // namespace
}  // namespace vemo::test
