// The big hint window: when it opens, what it holds, and how it is saved as a picture.
#include "game/support.h"

namespace vemo::test {
namespace {

namespace fs = std::filesystem;

const std::string kPointer = " DoubleClick this window to pop up the small Hint Window.";
const std::string kExplanation =
    "HIDDEN SINGLE: Since number 1 in the top left block appears only at cell A1, it must be there";
const std::string kSaveTitle = "Save as... Filename[.bmp]";
const std::string kSavePrompt =
    "Enter a valid filename (without the extension) for the image to save.\n"
    "The file will be saved as BMP-file in subfolder 'Screenshots' within your application folder.";

// A1, A2 and B1 are open: the hidden single of the first box comes first.
class HintWindowTest : public GameTest {
  protected:
    HintWindowTest() {
        Ship({PuzzleWithOpen({0, 1, 9})});
        StartFirst();
        OpenFirst(5);
        view.picture = {'B', 'M', 7};
    }

    const HintWindow& Window() const { return game->CurrentHintWindow(); }
    fs::path Pictures() const { return folder / "program" / "Screenshots"; }
    fs::path OtherPictures() const { return DataFolder() / "Screenshots"; }
    // Where pictures belong stands something that is no folder.
    void Bar(const fs::path& place) {
        files.MakeFolder(place.parent_path());
        files.Replace(place, Bytes{'x'});
    }
    Bytes Content(const fs::path& path) {
        return files.ReadAt(path, 0, 100).value_or(Bytes{'n', 'o', 'n', 'e'});
    }
    void ExpectName(std::optional<std::string> name) {
        view.ExpectQuestion(kSaveTitle, kSavePrompt, std::move(name));
    }
    void SaveAs(std::optional<std::string> name) {
        ExpectName(std::move(name));
        game->mnuWindowsSave();
    }
};

TEST_F(HintWindowTest, WithTheOptionAHintOpensIt) {
    game->mnuOptionsSmallWindow();
    EXPECT_EQ(view.opened, std::vector<Form>{});
    game->mnuSolveHint();
    EXPECT_EQ(view.opened, std::vector<Form>{Form::FormHint});
    EXPECT_EQ(Seen().textHint, kPointer);
    EXPECT_TRUE(Seen().canApply);
    EXPECT_EQ(Window().caption, "Hint - Hidden single");
    EXPECT_EQ(Window().text, kExplanation);
    EXPECT_TRUE(Window().board.cells[0].isHintCell);
    EXPECT_EQ(Window().board.marks[0][0].role, Role::Placed);
    EXPECT_FALSE(Window().board.legend.empty());
    // The player works on beside it: the copy shows no selection.
    EXPECT_EQ(Window().board.selectedCell, kNoCell);
    game->mnuOptionsSmallWindow();
    EXPECT_EQ(view.closed, std::vector<Form>{Form::FormHint});
}

TEST_F(HintWindowTest, TheWordsStandInItOrInTheSmallBox) {
    game->mnuSolveHint();
    EXPECT_EQ(view.opened, std::vector<Form>{});
    EXPECT_EQ(Seen().textHint, kExplanation);
    game->TextHintDblClick();
    EXPECT_EQ(view.opened, std::vector<Form>{Form::FormHint});
    EXPECT_EQ(Window().text, kExplanation);
    EXPECT_EQ(Seen().textHint, kPointer);
    game->FormUnload(Form::FormHint);
    EXPECT_EQ(Seen().textHint, kExplanation);

    // The option brings it. Closed by hand, a double-click brings it back as long as the option is
    // on.
    game->mnuOptionsSmallWindow();
    EXPECT_EQ(view.opened.size(), 2u);
    game->FormUnload(Form::FormHint);
    EXPECT_EQ(Seen().textHint, kPointer);
    game->mnuOptionsSmallWindow();
    EXPECT_EQ(Seen().textHint, kExplanation);
}

TEST_F(HintWindowTest, TheCopyStaysUntilItIsRefreshed) {
    game->mnuSolveHint();
    game->TextHintDblClick();
    game->KeyHint();
    EXPECT_EQ(Seen().cells[0].digit, 1);
    EXPECT_EQ(Window().board.cells[0].digit, 0);
    EXPECT_EQ(Window().text, kExplanation);

    game->mnuWindowRefresh();
    EXPECT_EQ(Window().board.cells[0].digit, 1);
    EXPECT_FALSE(Window().board.cells[0].isHintCell);
    EXPECT_EQ(Window().caption, "Hint - ");
    EXPECT_EQ(Window().text, "");
}

TEST_F(HintWindowTest, AReportIsCopiedWithItsWords) {
    files.WriteAt(Records().PuzzlePath(5), 0, Pack(PuzzleWithOpen(FirstTwoRows())));
    game->mnuSudokuNext();
    Assign(1, 5);
    game->mnuSolveHint();
    game->TextHintDblClick();
    EXPECT_TRUE(Window().board.cells[1].isWrong);
    EXPECT_EQ(Window().text, "Incorrect number (5) at cell A2 - Use [Undo] or [Reset Cell]");
    EXPECT_EQ(Seen().textHint, Window().text);
}

TEST_F(HintWindowTest, NothingOfThePuzzleIsSeenWhileTheClockIsStopped) {
    game->mnuOptionsWells();
    game->mnuOptionsWells();
    game->mnuSolveHint();
    game->TextHintDblClick();
    const auto hides = [&] {
        const Screen& board = Window().board;
        const bool isEmpty = std::ranges::all_of(
            board.cells, [](const CellView& cell) { return cell.digit == 0 && !cell.isHintCell; });
        return isEmpty && board.isBoardCovered && !board.areWellsShown && board.legend.empty() &&
               Window().caption == "Hint - " && Window().text == Seen().textHint;
    };
    EXPECT_FALSE(hides());
    game->CommandPauseClick();
    EXPECT_TRUE(hides());
    ExpectName(std::nullopt);
    game->mnuWindowsSave();
    EXPECT_EQ(view.questions.back().suggestion, "Hint - _0001");
    // Copied anew under the cover, it is whole again when the clock goes on.
    game->mnuWindowRefresh();
    EXPECT_TRUE(hides());
    game->CommandPauseClick();
    EXPECT_FALSE(Window().board.isBoardCovered);
    EXPECT_EQ(Window().board.cells[2].digit, 3);
    EXPECT_EQ(Window().text, kExplanation);
    EXPECT_EQ(Window().caption, "Hint - Hidden single");
}

TEST_F(HintWindowTest, APictureGetsTheFirstFreeNumber) {
    game->mnuSolveHint();
    game->TextHintDblClick();
    Bar(Pictures() / "Hint - Hidden single_0003.bmp");
    for (const char* name : {"Hint - Hidden single_0001", "Hint - Hidden single_0002"}) {
        SaveAs(name);
        EXPECT_EQ(view.questions.back().suggestion, name);
        const fs::path path = Pictures() / (std::string(name) + ".bmp");
        EXPECT_EQ(Content(path), view.picture);
        EXPECT_EQ(Window().note, "Saved as " + path.string());
    }
    // A number that the other folder holds is not free either.
    Bar(OtherPictures() / "Hint - Hidden single_0004.bmp");
    SaveAs(std::nullopt);
    EXPECT_EQ(view.questions.back().suggestion, "Hint - Hidden single_0005");
    game->mnuWindowRefresh();
    EXPECT_EQ(Window().note, "");
}

TEST_F(HintWindowTest, ANameIsMadeFitForAFile) {
    game->TextHintDblClick();
    SaveAs(" ../a\\b:c*d?e\"f<g>h|i\tj.BMP ");
    EXPECT_EQ(Content(Pictures() / "_a_b_c_d_e_f_g_h_i_j.bmp"), view.picture);
    SaveAs("my picture.bmp");
    EXPECT_EQ(Content(Pictures() / "my picture.bmp"), view.picture);
    ExpectName(" .. ");
    view.Expect(kSaveTitle, "\" .. \" cannot be the name of a file.");
    game->mnuWindowsSave();
    SaveAs("");
    const auto count = std::distance(fs::directory_iterator(Pictures()), fs::directory_iterator());
    EXPECT_EQ(count, 2);
}

TEST_F(HintWindowTest, APictureThatExistsIsAskedAbout) {
    game->TextHintDblClick();
    const fs::path path = Pictures() / "mine.bmp";
    const std::string question =
        "The file " + path.string() + " exists already. Do you want to replace it ?";
    Bar(path);
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        EXPECT_EQ(Content(path), Bytes{'x'});
        EXPECT_FALSE(fs::exists(OtherPictures()));
        EXPECT_EQ(Window().note, "");
        ExpectName("mine");
        view.Expect(kSaveTitle, question, answer);
        game->mnuWindowsSave();
    }
    EXPECT_EQ(Content(path), view.picture);
}

TEST_F(HintWindowTest, WhereTheProgramCannotWriteThePlayersDataTakesThePicture) {
    game->TextHintDblClick();
    Bar(Pictures());
    SaveAs("mine");
    EXPECT_EQ(Content(OtherPictures() / "mine.bmp"), view.picture);
    EXPECT_EQ(Window().note, "Saved as " + (OtherPictures() / "mine.bmp").string());

    fs::remove_all(OtherPictures());
    Bar(OtherPictures());
    ExpectName("mine");
    const std::string reason = files.MakeFolder(OtherPictures())->reason;
    view.Expect("File Error", (OtherPictures() / "mine.bmp").string() + ": " + reason);
    game->mnuWindowsSave();
}

TEST_F(HintWindowTest, NothingIsSavedOrCopiedInTheMidstOfAScan) {
    game->TextHintDblClick();
    view.onYield = [&] {
        game->mnuWindowsSave();
        game->mnuWindowRefresh();
        EXPECT_EQ(Window().text, "");
    };
    game->mnuSolveHint();
    EXPECT_GT(view.yields, 0);
    EXPECT_EQ(Window().text, kExplanation);
}

}  // namespace
}  // namespace vemo::test
