// Making a puzzle of one's own: clues by clicks, keys, text and drop; validating and storing.
#include "game/maker.h"

#include "game/dropped_text.h"
#include "game/support.h"
#include "tools/puzzle_line.h"

namespace vemo::test {
namespace {

const std::string kInvitation =
    "You can now paste or drop a sudoku textfile (*.txt) into this box, or enter the clues in the "
    "grid, then press [Validate]";
const std::string kValidating =
    "Validating User Made Sudoku. Please be patient, this may take a while...";
const std::string kAllRules =
    "The sudoku you've made doesn't meet the minimal requirements:\n"
    "1) You must have at least 17 clues (no valid 16-clue sudoku has ever been found/generated)\n"
    "2) You must have at least 8 of the 9 values among the clues\n"
    "3) You cannot have more than 4 empty (clue-less) boxes\n"
    "4) You cannot have more than 1 empty row in the same band\n"
    "5) You cannot have more than 1 empty column in the same stack\n"
    "Do you want to abort the making of this sudoku ?";
const std::string kNotUnique =
    "The Sudoku you've made has no unique solution. Do you want to abort the making of this "
    "sudoku ?";
const std::string kUnsolveable =
    "The Sudoku you've made can't be solved by the logic of Vemo Sudoku.\n"
    "Click [Abort] to discard this sudoku.\n"
    "Click [Retry] to make changes to this sudoku.\n"
    "Click [Ignore] to assign this sudoku to the Outlaw level.";
const std::string kDrop = "Drag 'N' Drop Error";

// Yields to singles alone.
const std::string kEasy =
    "53..7....6..195....98....6.8...6...34..8.3..17...2...6.6....28....419..5....8..79";

std::string InNineLines(const std::string& line) {
    std::string text;
    for (std::size_t row = 0; row < 9; ++row) {
        text += line.substr(9 * row, 9) + "\n";
    }
    return text;
}

// The question whether to read a text in nine lines as the grid of kEasy.
const std::string kReadRows =
    "This text looks like a grid of nine lines. Read these clues from it ?\n\n"
    "5 3 \u2012   \u2012 7 \u2012   \u2012 \u2012 \u2012\n"
    "6 \u2012 \u2012   1 9 5   \u2012 \u2012 \u2012\n"
    "\u2012 9 8   \u2012 \u2012 \u2012   \u2012 6 \u2012\n\n"
    "8 \u2012 \u2012   \u2012 6 \u2012   \u2012 \u2012 3\n"
    "4 \u2012 \u2012   8 \u2012 3   \u2012 \u2012 1\n"
    "7 \u2012 \u2012   \u2012 2 \u2012   \u2012 \u2012 6\n\n"
    "\u2012 6 \u2012   \u2012 \u2012 \u2012   2 8 \u2012\n"
    "\u2012 \u2012 \u2012   4 1 9   \u2012 \u2012 5\n"
    "\u2012 \u2012 \u2012   \u2012 8 \u2012   \u2012 7 9\n\n"
    "[No] reads it as one line of 81 characters, line breaks included.";

class MakerTest : public GameTest {
  protected:
    MakerTest() {
        Ship({PuzzleWithOpen({0, 1, 40, 80})});
        StartFirst();
    }
    void Make() { game->mnuSudokuMake(); }
    void MakeOf(const std::string& text) {
        Make();
        game->SudTekstChange(text);
    }
    void ExpectMaking(const std::string& text, const Digits& clues) {
        EXPECT_TRUE(Seen().isMaking);
        EXPECT_TRUE(Seen().isBoardEnabled);
        EXPECT_EQ(Seen().sudTekst, text);
        EXPECT_EQ(game->CurrentSession().grid.AllDigits(), clues);
    }
    void ExpectNoPuzzle() {
        EXPECT_FALSE(Seen().isMaking);
        EXPECT_FALSE(Seen().isBoardEnabled);
        EXPECT_EQ(Seen().sudTekst, "");
        EXPECT_EQ(game->CurrentSession().grid.EmptyCount(), 81);
        EXPECT_TRUE(Seen().Command(LevelCommand(1)).isEnabled);
    }
    std::filesystem::path FileOf(const std::string& name, const std::string& content) {
        files.Replace(folder / name, Bytes(content.begin(), content.end()));
        return folder / name;
    }
    void Drop(const std::filesystem::path& path) { game->SudTekstDrop({path}); }
};

Digits DigitAt(std::size_t cell, int digit) {
    Digits digits{};
    digits[cell] = static_cast<std::uint8_t>(digit);
    return digits;
}

TEST_F(MakerTest, MakeSavesTheGameInProgressAndBeginsWithAnEmptyGrid) {
    OpenFirst(2);
    Assign(0, 1);
    clock.second += 75;
    game->Timer1();
    Make();
    EXPECT_TRUE(Records().ReadStatistics(2).inProgress);
    EXPECT_EQ(Records().ReadPlayState(2, 1).digits[0], 1);
    ExpectMaking(kInvitation, Digits{});
    EXPECT_EQ(Seen().timeText, "00:00");
    EXPECT_EQ(Seen().status[1], "Number: none");
    for (CommandId off :
         {CommandId::SudokuNext, CommandId::SudokuOpen, CommandId::SudokuSave, CommandId::Level1,
          CommandId::Level9, CommandId::SolveRestart, CommandId::SolveUndo, CommandId::SolveRedo,
          CommandId::SolveResetCell, CommandId::SolveHint, CommandId::SolveSolution,
          CommandId::SolveAutoSolve, CommandId::SolveScan}) {
        EXPECT_FALSE(Seen().Command(off).isEnabled);
    }
    // The clock stands, and commands called all the same lose nothing.
    clock.second += 100;
    game->Timer1();
    EXPECT_EQ(Seen().timeText, "00:00");
    Assign(4, 4);
    game->mnuSudokuNext();
    game->mnuSudokuOpen();
    game->mnuSudokuSave();
    game->mnuSudokuMake();
    game->mnuLevelNr(3);
    EXPECT_EQ(game->CurrentSession().grid.AllDigits(), DigitAt(4, 4));
}

TEST_F(MakerTest, WhatSaveWouldRefuseIsLeftWithoutABox) {
    OpenFirst(2);
    Make();
    EXPECT_FALSE(Records().ReadStatistics(2).inProgress);
    EXPECT_TRUE(Seen().isMaking);
}

TEST_F(MakerTest, AGameThatCannotBeSavedStays) {
    OpenFirst(2);
    Assign(0, 1);
    std::filesystem::create_directory(Records().StatisticsPath());
    view.Expect("File Error", "Error writing sudoku to file !");
    Make();
    EXPECT_FALSE(Seen().isMaking);
    EXPECT_EQ(Seen().cells[0].digit, 1);
    EXPECT_TRUE(Seen().Command(CommandId::SolveUndo).isEnabled);
}

TEST_F(MakerTest, ALevelChosenDuringPlayIsTheOneOfTheMaking) {
    OpenFirst(2);
    view.Expect("Changed level",
                "Statusbar will be updated after completion of the current sudoku");
    game->mnuLevelNr(5);
    Make();
    EXPECT_EQ(Seen().status[0], "Level: Insane");
}

TEST_F(MakerTest, AClickPlacesAClueAndAnotherTakesItOff) {
    game->mnuPencilmarksMode();
    Make();
    EXPECT_TRUE(Seen().marks[80][8].isShown) << "marks are clicked whatever their mode";
    Assign(3, 7);
    EXPECT_EQ(Seen().cells[3].digit, 7);
    EXPECT_TRUE(Seen().cells[3].isClue);
    EXPECT_EQ(Seen().sudTekst, "...7" + std::string(77, '.'));
    Assign(5, 7);
    EXPECT_EQ(Seen().cells[5].digit, 0) << "the row holds a 7";
    Discard(5, 8);
    EXPECT_TRUE(Seen().marks[5][7].isShown) << "only left clicks do anything";
    Discard(3, 7);
    EXPECT_EQ(Seen().cells[3].digit, 7);
    Assign(3, 2);
    ExpectMaking(std::string(81, '.'), Digits{});
    EXPECT_TRUE(Seen().marks[5][6].isShown);
}

TEST_F(MakerTest, AnArmedBrushAndLinkModeAreForPlay) {
    game->LabelColorMouseUp(2, MouseButton::Left);
    game->CommandLinkClick();
    Make();
    EXPECT_FALSE(Seen().isBrushPointer);
    Assign(3, 7);
    EXPECT_EQ(Seen().cells[3].digit, 7);
}

TEST_F(MakerTest, KeysPlaceReplaceAndTakeOff) {
    Make();
    game->KeyDigit(5);
    game->MoveSelection(Direction::Right, Jump::NextCell);
    game->KeyDigit(6);
    game->KeyDigit(7);
    ExpectMaking("57" + std::string(79, '.'), ParseDigits("57"));
    game->KeyDigit(5);
    EXPECT_EQ(Seen().textHint,
              "Number 5 cannot be a clue at cell A2: its row, column or block holds it already");
    game->KeyDigit(7);
    ExpectMaking("5" + std::string(80, '.'), ParseDigits("5"));
    game->MoveSelection(Direction::Left, Jump::NextCell);
    game->mnuSolveResetCell();
    ExpectMaking(std::string(81, '.'), Digits{});
}

TEST_F(MakerTest, TheTextIsReadByPosition) {
    Make();
    game->SudTekstChange(kEasy + "999");
    ExpectMaking(kEasy + "999", ParseDigits(kEasy));
    game->SudTekstChange("\r\n" + kEasy);
    ExpectMaking("\r\n" + kEasy, ParseDigits("." + kEasy.substr(0, 80)));
    game->SudTekstChange("");
    ExpectMaking("", Digits{});
    // A click goes on from the text's clues and writes them as a line.
    game->SudTekstChange("a5");
    Assign(2, 6);
    ExpectMaking(".56" + std::string(78, '.'), ParseDigits(".56"));
}

TEST_F(MakerTest, CluesThatClashAreShownAsWrong) {
    MakeOf("55.1");
    EXPECT_TRUE(Seen().cells[0].isWrong);
    EXPECT_TRUE(Seen().cells[1].isWrong);
    EXPECT_FALSE(Seen().cells[3].isWrong);
    Assign(0, 5);
    EXPECT_FALSE(Seen().cells[1].isWrong);
    EXPECT_EQ(Seen().cells[1].digit, 5);
}

TEST_F(MakerTest, ATextThatLooksLikeAGridIsOfferedAsThatOnce) {
    const std::string rows = InNineLines(kEasy);
    const Digits byPosition = ParseDigits(rows.substr(0, 81));
    Make();
    view.Expect("Text of a sudoku", kReadRows, Answer::No);
    game->SudTekstChange(rows);
    ExpectMaking(rows, byPosition);
    // Typing goes on in the same text; a paste is another one.
    game->SudTekstChange(rows + " ");
    game->SudTekstChange(rows);
    game->SudTekstChange(rows);
    ExpectMaking(rows, byPosition);
    view.Expect("Text of a sudoku", kReadRows, Answer::Yes);
    game->SudTekstChange("found here:\n" + rows);
    game->SudTekstChange(rows);
    ExpectMaking(kEasy, ParseDigits(kEasy));
}

TEST_F(MakerTest, AGridOfPencilMarksIsOfferedAsSuch) {
    std::string text = "1 8 89 | 45 45 45 | 67 67 67\n";
    for (int row = 1; row < 9; ++row) {
        text += "23 23 23 | 45 45 45 | 67 67 67\n";
    }
    const std::string empty =
        "\u2012 \u2012 \u2012   \u2012 \u2012 \u2012   \u2012 \u2012 \u2012\n";
    Make();
    view.Expect("Text of a sudoku",
                "This text looks like a grid of pencil marks. Read these clues from it ?\n\n1" +
                    empty.substr(3) + empty + empty + "\n" + empty + empty + empty + "\n" + empty +
                    empty + empty +
                    "\n[No] reads it as one line of 81 characters, line breaks included.",
                Answer::Yes);
    game->SudTekstChange(text);
    ExpectMaking("1" + std::string(80, '.'), DigitAt(0, 1));
}

TEST_F(MakerTest, ATextWithoutEndIsCut) {
    Make();
    game->SudTekstChange(kEasy + std::string(50'000'000, '1'));
    EXPECT_EQ(Seen().sudTekst.size(), kMostText);
    EXPECT_EQ(Seen().textHint, "The text is too long for a sudoku, only its beginning is kept.");
    EXPECT_EQ(game->CurrentSession().grid.AllDigits(), ParseDigits(kEasy));
}

TEST_F(MakerTest, ADroppedTextFileIsRead) {
    Make();
    Drop(FileOf("puzzle.txt", "\xEF\xBB\xBF" + kEasy + "\r\n"));
    ExpectMaking(kEasy + "\r\n", ParseDigits(kEasy));
    Drop(FileOf("broken.TXT",
                "\xFF\xE2\x82"
                "5"));
    ExpectMaking("???5", ParseDigits("...5"));
    view.Expect("Text of a sudoku", kReadRows, Answer::Yes);
    Drop(FileOf("rows.txt", InNineLines(kEasy)));
    ExpectMaking(kEasy, ParseDigits(kEasy));
}

TEST_F(MakerTest, WhatIsNoTextFileIsToldOfAndChangesNothing) {
    const std::filesystem::path text = FileOf("one.txt", kEasy);
    MakeOf("12");
    view.Expect(kDrop, "Vemo Sudoku only allows 1 file at a time to drop!");
    game->SudTekstDrop({text, folder.Path()});
    view.Expect(kDrop, "Vemo Sudoku don't allow maps to be dropped");
    std::filesystem::create_directory(folder / "map.txt");
    Drop(folder / "map.txt");
    for (const char* name : {"one.sdk", "one", "txt", ".txt"}) {
        view.Expect(kDrop, "This file is not a txt-file (*.txt)");
        Drop(FileOf(name, kEasy));
    }
    view.Expect(kDrop, "This file cannot be read: missing.txt");
    Drop(folder / "missing.txt");
    std::error_code noSymlinks;
    std::filesystem::create_symlink("/dev/zero", folder / "endless.txt", noSymlinks);
    if (!noSymlinks) {
        view.Expect(kDrop, "This file cannot be read: endless.txt");
        Drop(folder / "endless.txt");
    }
    view.Expect(kDrop, "This file is empty: empty.txt");
    Drop(FileOf("empty.txt", ""));
    view.Expect(kDrop, "This file does not hold plain text: program.txt");
    Drop(FileOf("program.txt", std::string("MZ\0\1", 4) + kEasy));
    view.Expect(kDrop, "This file is too large to be a sudoku, it has more than 1 MB: big.txt");
    const std::filesystem::path big = FileOf("big.txt", kEasy);
    std::filesystem::resize_file(big, std::uintmax_t{1} << 31);
    Drop(big);
    game->SudTekstDrop({});
    ExpectMaking("12", ParseDigits("12"));
}

TEST_F(MakerTest, OutsideTheMakingTextAndDropAndValidateDoNothing) {
    OpenFirst(1);
    const std::filesystem::path text = FileOf("one.txt", kEasy);
    game->SudTekstChange(kEasy);
    Drop(text);
    Drop(folder.Path());
    game->mnuSudokuValidate();
    EXPECT_EQ(Seen().cells[2].digit, 3);
    EXPECT_EQ(Seen().sudTekst, "");
}

// In each of five boxes the four cells off the first row and column, 17 in all, 8 digits: one row
// a band, one column a stack and four boxes are empty.
Digits BarelyEnough(int clueCount, int digitCount) {
    Digits clues{};
    int count = 0;
    for (int box : {0, 1, 3, 4, 8}) {
        for (int within : {4, 5, 7, 8}) {
            const int cell = 27 * (box / 3) + 3 * (box % 3) + 9 * (within / 3) + within % 3;
            if (count < clueCount) {
                clues[static_cast<std::size_t>(cell)] =
                    static_cast<std::uint8_t>(1 + count % digitCount);
                ++count;
            }
        }
    }
    return clues;
}

template <typename IsEmpty>
Digits SolutionBut(IsEmpty isEmpty) {
    Digits clues = PlainSolution();
    for (int cell = 0; cell < kCells; ++cell) {
        if (isEmpty(cell)) {
            clues[static_cast<std::size_t>(cell)] = 0;
        }
    }
    return clues;
}

TEST(MakerRestrictions, TheFiveRequirementsAreTestedInTheirOrder) {
    const std::string digits = "A minimum of 8 different numbers among the clues is required !";
    const std::string clues = "A minimum of 17 clues is required !";
    const std::string rows = "More than one empty row in the same band is not allowed !";
    const std::string columns = "More than one empty column in the same stack is not allowed !";
    const std::string boxes = "More than four empty boxes are not allowed !";
    EXPECT_EQ(UnmetRestriction(Digits{}), digits);
    EXPECT_EQ(UnmetRestriction(BarelyEnough(16, 7)), digits);
    EXPECT_EQ(UnmetRestriction(BarelyEnough(20, 7)), digits);
    EXPECT_EQ(UnmetRestriction(BarelyEnough(16, 8)), clues);
    EXPECT_EQ(UnmetRestriction(PlainSolution()), "The sudoku is allready solved !");
    const auto row = [](int cell) { return cell / 9; };
    const auto column = [](int cell) { return cell % 9; };
    const auto box = [](int cell) { return cell / 27 * 3 + cell % 9 / 3; };
    EXPECT_EQ(
        UnmetRestriction(SolutionBut([&](int cell) { return row(cell) == 6 || row(cell) == 8; })),
        rows);
    EXPECT_EQ(
        UnmetRestriction(SolutionBut([&](int cell) { return row(cell) < 2 || column(cell) < 2; })),
        rows);
    EXPECT_EQ(UnmetRestriction(
                  SolutionBut([&](int cell) { return column(cell) == 4 || column(cell) == 5; })),
              columns);
    EXPECT_EQ(UnmetRestriction(SolutionBut([&](int cell) {
                  return box(cell) == 0 || box(cell) == 1 || box(cell) == 4 || box(cell) == 5 ||
                         box(cell) == 8;
              })),
              boxes);
    // At the limits of all five.
    Digits enough = BarelyEnough(20, 8);
    for (std::size_t surplus : {10u, 40u, 70u}) {
        EXPECT_NE(std::exchange(enough[surplus], std::uint8_t{0}), 0);
    }
    EXPECT_EQ(UnmetRestriction(enough), "");
    // Neighbouring lines of two bands or stacks.
    EXPECT_EQ(UnmetRestriction(SolutionBut([&](int cell) {
                  return row(cell) == 2 || row(cell) == 3 || column(cell) == 5 || column(cell) == 6;
              })),
              "");
}

TEST_F(MakerTest, UnmetRequirementsLeaveTheChoiceToGoOnOrDiscard) {
    MakeOf("12345678");
    view.Expect("Make error", "A minimum of 17 clues is required !");
    view.Expect("Make error", kAllRules, Answer::No);
    game->mnuSudokuValidate();
    ExpectMaking("12345678", ParseDigits("12345678"));
    view.Expect("Make error", "A minimum of 17 clues is required !");
    view.Expect("Make error", kAllRules, Answer::Yes);
    game->mnuSudokuValidate();
    ExpectNoPuzzle();
    // A full grid is refused though it is right.
    MakeOf(WriteGrid81(PlainSolution()));
    view.Expect("Make error", "The sudoku is allready solved !");
    view.Expect("Make error", kAllRules, Answer::No);
    game->mnuSudokuValidate();
    EXPECT_TRUE(Seen().isMaking);
}

TEST_F(MakerTest, WithoutOneSolutionTheChoiceIsTheSame) {
    // Several: of the two open rows A1 settles only a part. None: two digits alike in a row.
    std::string several = WriteGrid81(PuzzleWithOpen(FirstTwoRows()).clues);
    several[0] = '1';
    std::string none = kEasy;
    none[2] = '5';
    for (const std::string& text : {several, none}) {
        MakeOf(text);
        view.Expect("Invalid Sudoku", kNotUnique, Answer::No);
        game->mnuSudokuValidate();
        ExpectMaking(text, ParseDigits(text));
        view.Expect("Invalid Sudoku", kNotUnique, Answer::Yes);
        game->mnuSudokuValidate();
        ExpectNoPuzzle();
    }
}

TEST_F(MakerTest, AValidPuzzleIsRatedStoredAndPlayed) {
    OpenFirst(1);
    Assign(0, 1);
    MakeOf(kEasy);
    bool isSeenWhileValidating = false;
    view.onYield = [&] {
        EXPECT_EQ(Seen().textHint, kValidating);
        EXPECT_FALSE(Seen().isBoardEnabled);
        EXPECT_TRUE(Seen().Command(CommandId::SolveStop).isEnabled);
        EXPECT_EQ(Records().PuzzleCount(1), 1);
        // What arrives meanwhile is refused.
        game->SudTekstChange("");
        Assign(2, 4);
        game->mnuSudokuValidate();
        game->mnuSudokuMake();
        isSeenWhileValidating = true;
    };
    view.Expect("Sudoku solved", "Sudoku solved and rated as Easy");
    game->mnuSudokuValidate();
    EXPECT_TRUE(isSeenWhileValidating);
    EXPECT_EQ(view.beeps, 1);
    // One pass for each of the 51 digits that are placed, each with one step at least.
    EXPECT_GT(view.yields, 51);

    const PuzzleRecord stored = *Records().ReadPuzzle(1, 2);
    EXPECT_EQ(stored.clues, ParseDigits(kEasy));
    EXPECT_TRUE(IsWhole(stored));
    EXPECT_TRUE(stored.best.IsNone());
    EXPECT_EQ(files.Size(Records().PuzzlePath(1)), 2 * kPuzzleRecordSize);
    EXPECT_EQ(files.Size(Records().ProgressPath(1)), 2 * kPlayStateRecordSize);
    EXPECT_EQ(Records().ReadPlayState(1, 2), PlayState{});
    EXPECT_EQ(Records().ReadStatistics(1).lastNumber, 2);
    EXPECT_FALSE(Records().ReadStatistics(1).inProgress);

    EXPECT_FALSE(Seen().isMaking);
    EXPECT_TRUE(Seen().isBoardEnabled);
    EXPECT_EQ(Seen().status[0], "Level: Easy");
    EXPECT_EQ(Seen().status[1], "Number: 2");
    EXPECT_EQ(Seen().timeText, "00:00");
    clock.second += 5;
    game->Timer1();
    EXPECT_EQ(Seen().timeText, "00:05");
    EXPECT_EQ(Seen().cells[0].digit, 5);
    Assign(2, 4);
    EXPECT_EQ(Seen().cells[2].digit, 4);
}

TEST_F(MakerTest, CancellingAsksOnlyWhereThereAreClues) {
    const std::string question = "Do you want to abort the making of this sudoku ?";
    Make();
    game->CommandCancelClick();
    ExpectNoPuzzle();
    MakeOf(kEasy);
    view.Expect("Make", question, Answer::No);
    game->CommandCancelClick();
    ExpectMaking(kEasy, ParseDigits(kEasy));
    view.Expect("Make", question, Answer::Yes);
    game->CommandCancelClick();
    ExpectNoPuzzle();
    // Outside the making there is nothing to cancel.
    OpenFirst(1);
    game->CommandCancelClick();
    EXPECT_EQ(Seen().cells[2].digit, 3);
}

TEST_F(MakerTest, ADigitThatStoodOutDoesSoNoLonger) {
    OpenFirst(1);
    game->Command1Click(4);
    Make();
    EXPECT_EQ(Seen().digitFilter, 0);
}

TEST_F(MakerTest, StopEndsTheValidationWithoutABox) {
    MakeOf(kOutlawed);
    const std::string before = Seen().textHint;
    for (int pass : {1, 2, 40}) {
        view.yields = 0;
        view.onYield = [&] {
            if (view.yields == pass) {
                game->mnuSolveStop();
            }
        };
        game->mnuSudokuValidate();
        EXPECT_EQ(view.yields, pass) << "nothing is tried after Stop";
        ExpectMaking(kOutlawed, ParseDigits(kOutlawed));
        EXPECT_EQ(Seen().textHint, before);
        EXPECT_EQ(Records().PuzzleCount(9), 1);
    }
}

TEST_F(MakerTest, APuzzleThatLogicDoesNotSolveIsThePlayersChoice) {
    const std::string title = "Sudoku unsolveable by Vemo Sudoku";
    MakeOf(kOutlawed);
    view.Expect(title, kUnsolveable, Answer::Retry);
    game->mnuSudokuValidate();
    ExpectMaking(kOutlawed, ParseDigits(kOutlawed));
    view.Expect(title, kUnsolveable, Answer::Abort);
    game->mnuSudokuValidate();
    ExpectNoPuzzle();
    EXPECT_EQ(Records().PuzzleCount(9), 1);

    MakeOf(kOutlawed);
    view.Expect(title, kUnsolveable, Answer::Ignore);
    game->mnuSudokuValidate();
    EXPECT_EQ(Records().ReadPuzzle(9, 2)->clues, ParseDigits(kOutlawed));
    EXPECT_EQ(Seen().status[0], "Level: Outlaw");
    EXPECT_EQ(Seen().status[1], "Number: 2");
    EXPECT_EQ(view.beeps, 0);
}

TEST_F(MakerTest, APuzzleThatCannotBeStoredStaysInTheMaking) {
    std::filesystem::remove(Records().PuzzlePath(1));
    std::filesystem::create_directory(Records().PuzzlePath(1));
    MakeOf(kEasy);
    view.Expect("Sudoku solved", "Sudoku solved and rated as Easy");
    view.Expect("File Error", "Error writing sudoku to file !");
    game->mnuSudokuValidate();
    ExpectMaking(kEasy, ParseDigits(kEasy));
}

}  // namespace
}  // namespace vemo::test
