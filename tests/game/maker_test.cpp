// Making a puzzle of one's own: clues by clicks, keys, text and drop; validating and storing.
#include "game/maker.h"

#include "game/dropped_text.h"
#include "game/support.h"
#include "support/own_puzzle.h"
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
    void ExpectMaking(const std::string& text) { ExpectMaking(text, ParseDigits(text)); }
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

// A line that begins like this, the rest of its cells empty.
std::string LineOf(const std::string& begin) {
    return begin + std::string(81 - begin.size(), '.');
}

TEST_F(MakerTest, MakeSavesTheGameInProgressAndBeginsAnew) {
    OpenFirst(2);
    Assign(0, 1);
    game->Command1Click(4);
    game->LabelColorMouseUp(2, MouseButton::Left);
    game->CommandLinkClick();
    view.Expect("Changed level",
                "Statusbar will be updated after completion of the current sudoku");
    game->mnuLevelNr(5);
    clock.second += 75;
    game->Timer1();
    Make();
    EXPECT_TRUE(Records().ReadStatistics(2).inProgress);
    EXPECT_EQ(Records().ReadPlayState(2, 1).digits[0], 1);
    ExpectMaking(kInvitation, Digits{});
    EXPECT_EQ(Seen().timeText, "00:00");
    EXPECT_EQ(Seen().status[0], "Level: Insane") << "the one that was chosen";
    EXPECT_EQ(Seen().status[1], "Number: none");
    EXPECT_EQ(Seen().digitFilter, 0);
    EXPECT_FALSE(Seen().isBrushPointer);
    EXPECT_FALSE(Seen().isLinkMode);
    for (CommandId off :
         {CommandId::SudokuNext, CommandId::SudokuOpen, CommandId::SudokuSave, CommandId::Level1,
          CommandId::Level9, CommandId::SolveRestart, CommandId::SolveUndo, CommandId::SolveRedo,
          CommandId::SolveResetCell, CommandId::SolveHint, CommandId::SolveSolution,
          CommandId::SolveAutoSolve, CommandId::SolveScan}) {
        EXPECT_FALSE(Seen().Command(off).isEnabled);
    }
    // The clock stands; brush and link mode are for play; commands called all the same lose
    // nothing.
    clock.second += 100;
    game->Timer1();
    EXPECT_EQ(Seen().timeText, "00:00");
    Assign(3, 4);
    game->mnuSudokuNext();
    game->mnuSudokuOpen();
    game->mnuSudokuSave();
    game->mnuSudokuMake();
    game->mnuLevelNr(3);
    ExpectMaking(LineOf("...4"));
}

TEST_F(MakerTest, WhatSaveRefusesIsLeftWithoutABoxAndWhatCannotBeSavedStays) {
    OpenFirst(2);
    Make();
    EXPECT_FALSE(Records().ReadStatistics(2).inProgress);
    EXPECT_TRUE(Seen().isMaking);
    game->CommandCancelClick();
    OpenFirst(2);
    Assign(0, 1);
    std::filesystem::create_directory(Records().StatisticsPath());
    view.Expect("File Error", "Error writing sudoku to file !");
    Make();
    EXPECT_FALSE(Seen().isMaking);
    EXPECT_EQ(Seen().cells[0].digit, 1);
    EXPECT_TRUE(Seen().Command(CommandId::SolveUndo).isEnabled);
}

TEST_F(MakerTest, AClickPlacesAClueAndAnotherTakesItOff) {
    game->mnuPencilmarksMode();
    Make();
    EXPECT_TRUE(Seen().marks[80][8].isShown) << "marks are clicked whatever their mode";
    Assign(3, 7);
    EXPECT_TRUE(Seen().cells[3].isClue);
    ExpectMaking(LineOf("...7"));
    Assign(5, 7);
    Discard(5, 8);
    Discard(3, 7);
    ExpectMaking(LineOf("...7"));
    EXPECT_TRUE(Seen().marks[5][7].isShown) << "only left clicks do anything";
    Assign(3, 2);
    ExpectMaking(LineOf(""));
    EXPECT_TRUE(Seen().marks[5][6].isShown);
}

TEST_F(MakerTest, KeysPlaceReplaceAndTakeOff) {
    Make();
    game->KeyDigit(5);
    game->MoveSelection(Direction::Right, Jump::NextCell);
    game->KeyDigit(6);
    game->KeyDigit(7);
    ExpectMaking(LineOf("57"));
    game->KeyDigit(5);
    EXPECT_EQ(Seen().textHint,
              "Number 5 cannot be a clue at cell A2: its row, column or block holds it already");
    game->KeyDigit(7);
    ExpectMaking(LineOf("5"));
    game->MoveSelection(Direction::Left, Jump::NextCell);
    game->mnuSolveResetCell();
    ExpectMaking(LineOf(""));
}

TEST_F(MakerTest, TheTextIsReadByPosition) {
    Make();
    game->SudTekstChange(kEasy + "999");
    ExpectMaking(kEasy + "999");
    game->SudTekstChange("\r\n" + kEasy);
    ExpectMaking("\r\n" + kEasy, ParseDigits("." + kEasy.substr(0, 80)));
    game->SudTekstChange("");
    ExpectMaking("");
    // A click goes on from the text's clues and writes them as a line.
    game->SudTekstChange("a5");
    Assign(2, 6);
    ExpectMaking(LineOf(".56"));
    game->SudTekstChange(kEasy + std::string(50'000'000, '1'));
    EXPECT_EQ(Seen().sudTekst.size(), kMostText);
    EXPECT_EQ(Seen().textHint, "The text is too long for a sudoku, only its beginning is kept.");
    EXPECT_EQ(game->CurrentSession().grid.AllDigits(), ParseDigits(kEasy));
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
    Make();
    view.Expect("Text of a sudoku", kReadRows, Answer::No);
    game->SudTekstChange(rows);
    ExpectMaking(rows);
    // Typing goes on in the same text; a paste is another one.
    game->SudTekstChange(rows + " ");
    game->SudTekstChange(rows);
    game->SudTekstChange(rows);
    ExpectMaking(rows);
    view.Expect("Text of a sudoku", kReadRows, Answer::Yes);
    game->SudTekstChange("found here:\n" + rows);
    game->SudTekstChange(rows);
    ExpectMaking(kEasy);
}

TEST_F(MakerTest, AGridOfPencilMarksIsOfferedAsSuch) {
    std::string text = "1 8 89 | 45 45 45 | 67 67 67\n";
    for (int row = 1; row < 9; ++row) {
        text += "23 23 23 | 45 45 45 | 67 67 67\n";
    }
    const std::string empty =
        "\u2012 \u2012 \u2012   \u2012 \u2012 \u2012   \u2012 \u2012 \u2012\n";
    const std::string band = empty + empty + empty + "\n";
    Make();
    view.Expect("Text of a sudoku",
                "This text looks like a grid of pencil marks. Read these clues from it ?\n\n1" +
                    band.substr(3) + band + band +
                    "[No] reads it as one line of 81 characters, line breaks included.",
                Answer::Yes);
    game->SudTekstChange(text);
    ExpectMaking(LineOf("1"));
}

TEST_F(MakerTest, ADroppedTextFileIsRead) {
    const std::filesystem::path rows = FileOf("rows.txt", InNineLines(kEasy));
    Make();
    Drop(FileOf("puzzle.txt", "\xEF\xBB\xBF" + kEasy + "\r\n"));
    ExpectMaking(kEasy + "\r\n");
    Drop(FileOf("broken.TXT",
                "\xFF\xE2\x82"
                "5"));
    ExpectMaking("???5");
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        view.Expect("Text of a sudoku", kReadRows, answer);
        Drop(rows);
    }
    ExpectMaking(kEasy);
}

TEST_F(MakerTest, WhatIsNoTextFileIsToldOfAndChangesNothing) {
    const std::filesystem::path text = FileOf("one.txt", kEasy);
    MakeOf("12");
    const auto expectRefused = [this](const std::vector<std::filesystem::path>& paths,
                                      const char* why) {
        view.Expect("Drag 'N' Drop Error", why);
        game->SudTekstDrop(paths);
        ExpectMaking("12");
    };
    std::filesystem::create_directory(folder / "map.txt");
    expectRefused({text, folder.Path()}, "Vemo Sudoku only allows 1 file at a time to drop!");
    expectRefused({folder / "map.txt"}, "Vemo Sudoku don't allow maps to be dropped");
    for (const char* name : {"one.sdk", "one", "txt", ".txt"}) {
        expectRefused({FileOf(name, kEasy)}, "This file is not a txt-file (*.txt)");
    }
    expectRefused({folder / "missing.txt"}, "This file cannot be read: missing.txt");
    std::error_code noSymlinks;
    std::filesystem::create_symlink("/dev/zero", folder / "endless.txt", noSymlinks);
    if (!noSymlinks) {
        expectRefused({folder / "endless.txt"}, "This file cannot be read: endless.txt");
    }
    expectRefused({FileOf("empty.txt", "")}, "This file is empty: empty.txt");
    expectRefused({FileOf("program.txt", std::string("MZ\0\1", 4) + kEasy)},
                  "This file does not hold plain text: program.txt");
    const std::filesystem::path big = FileOf("big.txt", kEasy);
    std::filesystem::resize_file(big, std::uintmax_t{1} << 31);
    expectRefused({big}, "This file is too large to be a sudoku, it has more than 1 MB: big.txt");
    game->SudTekstDrop({});
    ExpectMaking("12");
}

TEST_F(MakerTest, OutsideTheMakingItsCommandsDoNothing) {
    OpenFirst(1);
    game->SudTekstChange(kEasy);
    Drop(FileOf("one.txt", kEasy));
    Drop(folder.Path());
    game->mnuSudokuValidate();
    game->CommandCancelClick();
    EXPECT_EQ(Seen().cells[2].digit, 3);
    EXPECT_EQ(Seen().sudTekst, "");
}

TEST(MakerRestrictions, TheFiveRequirementsAreTestedInTheirOrder) {
    const std::string digits = "A minimum of 8 different numbers among the clues is required !";
    const std::string rows = "More than one empty row in the same band is not allowed !";
    // At the limits of all five: 17 clues, 8 digits; a row of each band, a column of each stack and
    // four boxes are empty.
    Digits limits = ParseDigits(
        "...........2.56....34.78.............12..6....34.78....................2.......34");
    EXPECT_EQ(UnmetRestriction(limits), "");
    limits[80] = 0;
    EXPECT_EQ(UnmetRestriction(limits), "A minimum of 17 clues is required !");
    std::ranges::replace(limits, 1, 2);
    EXPECT_EQ(UnmetRestriction(limits), digits);
    limits[0] = 9;
    limits[80] = 9;
    std::ranges::replace(limits, 8, 9);
    EXPECT_EQ(UnmetRestriction(limits), digits);
    EXPECT_EQ(UnmetRestriction(Digits{}), digits);
    EXPECT_EQ(UnmetRestriction(PlainSolution()), "The sudoku is allready solved !");
    const auto unmetWithout = [](auto isEmpty) {
        Digits clues = PlainSolution();
        for (int cell = 0; cell < kCells; ++cell) {
            if (isEmpty(CellRow(cell), CellColumn(cell), CellBox(cell))) {
                clues[static_cast<std::size_t>(cell)] = 0;
            }
        }
        return UnmetRestriction(clues);
    };
    EXPECT_EQ(unmetWithout([](int row, int, int) { return row == 6 || row == 8; }), rows);
    EXPECT_EQ(unmetWithout([](int row, int column, int) { return row < 2 || column < 2; }), rows);
    EXPECT_EQ(unmetWithout([](int, int column, int) { return column == 4 || column == 5; }),
              "More than one empty column in the same stack is not allowed !");
    EXPECT_EQ(unmetWithout([](int, int, int box) { return box % 4 == 0 || box == 1 || box == 5; }),
              "More than four empty boxes are not allowed !");
    // Neighbouring lines of two bands or stacks.
    EXPECT_EQ(unmetWithout([](int row, int column, int) {
                  return row == 2 || row == 3 || column == 5 || column == 6;
              }),
              "");
}

TEST_F(MakerTest, WhatIsNoPuzzleIsKeptOrGivenUpAsThePlayerChooses) {
    // Several solutions: of the two open rows A1 settles only a part. None: a digit twice in a row.
    std::string several = WriteGrid81(PuzzleWithOpen(FirstTwoRows()).clues);
    several[0] = '1';
    std::string none = kEasy;
    none[2] = '5';
    struct Case {
        std::string text;
        const char* unmet;
        const char* title;
        std::string question;
        void (Game::*deed)();
    };
    const Case cases[] = {
        {"12345678", "A minimum of 17 clues is required !", "Make error", kAllRules,
         &Game::mnuSudokuValidate},
        {WriteGrid81(PlainSolution()), "The sudoku is allready solved !", "Make error", kAllRules,
         &Game::mnuSudokuValidate},
        {several, nullptr, "Invalid Sudoku", kNotUnique, &Game::mnuSudokuValidate},
        {none, nullptr, "Invalid Sudoku", kNotUnique, &Game::mnuSudokuValidate},
        {kEasy, nullptr, "Make", "Do you want to abort the making of this sudoku ?",
         &Game::CommandCancelClick}};
    for (const Case& of : cases) {
        MakeOf(of.text);
        for (const Answer answer : {Answer::No, Answer::Yes}) {
            ExpectMaking(of.text);
            if (of.unmet != nullptr) {
                view.Expect("Make error", of.unmet);
            }
            view.Expect(of.title, of.question, answer);
            (*game.*of.deed)();
        }
        ExpectNoPuzzle();
    }
    Make();
    game->CommandCancelClick();
    ExpectNoPuzzle();
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
        ExpectMaking(kOutlawed);
        EXPECT_EQ(Seen().textHint, before);
        EXPECT_EQ(Records().PuzzleCount(9), 1);
    }
}

TEST_F(MakerTest, APuzzleThatLogicDoesNotSolveIsThePlayersChoice) {
    const auto validate = [this](Answer answer) {
        view.Expect("Sudoku unsolveable by Vemo Sudoku", kUnsolveable, answer);
        game->mnuSudokuValidate();
    };
    MakeOf(kOutlawed);
    validate(Answer::Retry);
    ExpectMaking(kOutlawed);
    validate(Answer::Abort);
    ExpectNoPuzzle();
    EXPECT_EQ(Records().PuzzleCount(9), 1);
    MakeOf(kOutlawed);
    validate(Answer::Ignore);
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
    ExpectMaking(kEasy);
}

}  // namespace
}  // namespace vemo::test
