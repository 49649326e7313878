// Start-up in its order, resuming, and quitting.
#include "game/support.h"

namespace vemo::test {
namespace {

const std::vector<int> kOpen = {0, 1, 40, 80};

const std::string kProceed = "Do you want to proceed with the last saved sudoku ?";
const std::string kReallyQuit = "Do you really want to quit ?";

class StartupTest : public GameTest {
  protected:
    StartupTest() { Ship({PuzzleWithOpen(kOpen), PuzzleWithOpen({5})}); }

    void Quit() {
        view.Expect("Quit Vemo Sudoku", kReallyQuit, Answer::Yes);
        EXPECT_TRUE(game->FormQueryUnload());
    }
    // The first puzzle of Medium was begun, and the game quit.
    void StartInProgress() {
        StartFirst();
        OpenFirst(2);
        Assign(0, 1);
        Quit();
    }
};

TEST_F(StartupTest, TheFirstRunMakesFilesAndSettingsOnceAndOpensWithoutALevel) {
    StartFirst();
    const std::array<std::string, kStatusPanels> initial = {
        "Level: Medium", "Number: none", "Time to Beat: 00:00", "Level Best Time: 00:00",
        "Level Average Time: 00:00"};
    EXPECT_EQ(Seen().status, initial);
    EXPECT_FALSE(Seen().isBoardEnabled);
    EXPECT_EQ(settings.Get("Options", "Logfiles", ""), "True");
    EXPECT_EQ(settings.Get("Version", "Main", ""), "2");
    EXPECT_EQ(settings.Get("Version", "Sub", ""), "6");
    RecordFiles records = Records();
    EXPECT_EQ(files.Size(records.ProgressPath(9)), 2 * kPlayStateRecordSize);

    // A second run leaves alone what is there.
    files.WriteAt(records.PuzzlePath(1), 0, Bytes(10, 7));
    files.WriteAt(records.ProgressPath(1), 0, Bytes(10, 7));
    StartAgain();
    EXPECT_EQ(files.ReadAt(records.PuzzlePath(1), 0, 10), Bytes(10, 7));
    EXPECT_EQ(files.ReadAt(records.ProgressPath(1), 0, 10), Bytes(10, 7));
}

TEST_F(StartupTest, WithoutItsFilesTheGameEndsAndTheNextStartTriesAgain) {
    const auto expectEnd = [this](const std::string& title, const std::string& text) {
        view.isClosed = false;
        ExpectFirstRun();
        view.Expect(title, text);
        view.Expect("Initiation failed",
                    "Failed to write sudoku logfiles, program can't continue.");
        StartAgain();
        EXPECT_TRUE(view.isClosed);
        EXPECT_EQ(settings.Get("Options", "Logfiles", "False"), "False");
    };
    const std::filesystem::path progress = Records().ProgressPath(1);
    std::filesystem::create_directories(progress / "in the way");
    expectEnd("Log creation failure", "Error while processing file " + progress.string());
    std::filesystem::remove_all(progress);
    std::filesystem::remove(Records().PuzzlePath(3));
    std::filesystem::remove(folder.Path() / "program" / "Sudoku_Hard.sds");
    expectEnd("Logfile creation failure",
              "Could not open source file " + Records().PuzzlePath(3).string());
    ShipLevel(3, {PuzzleWithOpen(kOpen)});
    StartFirst();
    EXPECT_EQ(settings.Get("Options", "Logfiles", ""), "True");
}

TEST_F(StartupTest, AGameQuitInTheMiddleIsResumedAsItWas) {
    StartFirst();
    OpenFirst(2);
    clock.second += 75;
    game->Timer1();
    Assign(0, 1);
    Discard(40, 9);
    const Screen before = Seen();
    Quit();
    EXPECT_EQ(settings.Get("Sudoku", "Level", ""), "2");

    clock.second += 3600;
    view.Expect("Sudoku in progress", kProceed, Answer::Yes);
    StartAgain();
    EXPECT_EQ(Seen().timeText, "01:15");
    EXPECT_EQ(Seen().stepText, before.stepText);
    EXPECT_EQ(Seen().cells[0].digit, 1);
    EXPECT_EQ(Seen().status[1], "Number: 1");
    game->mnuSolveUndo();
    game->mnuSolveUndo();
    EXPECT_EQ(Seen().cells[0].digit, 0);
    EXPECT_FALSE(Seen().Command(CommandId::SolveUndo).isEnabled);
}

TEST_F(StartupTest, WhatCannotOrShallNotBeResumedIsNotOpened) {
    StartInProgress();
    for (int start = 0; start < 2; ++start) {  // a refusal changes the memory only
        view.Expect("Sudoku in progress", kProceed, Answer::No);
        StartAgain();
        EXPECT_EQ(Seen().status[1], "Number: none");
        EXPECT_EQ(Seen().status[2], "Time to Beat: 00:00");
        EXPECT_FALSE(Seen().isBoardEnabled);
    }
    files.WriteAt(Records().PuzzlePath(2), 3, Bytes{200});
    view.Expect("Sudoku in progress", kProceed, Answer::Yes);
    view.Expect("File error", "Could not open the last saved sudoku");
    StartAgain();
    EXPECT_FALSE(Seen().isBoardEnabled);
}

TEST_F(StartupTest, APlayStateOfAnotherPuzzleIsNoSavedState) {
    StartInProgress();
    PlayState other;
    other.digits[0] = 9;
    Records().WritePlayState(2, 1, other);
    view.Expect("Sudoku in progress", kProceed, Answer::Yes);
    StartAgain();
    EXPECT_EQ(Seen().cells[0].digit, 0);
    EXPECT_EQ(Seen().cells[2].digit, 3);
    EXPECT_EQ(Seen().timeText, "00:00");
}

TEST_F(StartupTest, QuittingAnUntouchedPuzzleSavesNoProgress) {
    StartFirst();
    OpenFirst(4);
    Quit();
    EXPECT_EQ(settings.Get("Sudoku", "Level", ""), "4");
    EXPECT_FALSE(Records().ReadStatistics(4).inProgress);
    view.Expect("Quit Vemo Sudoku", kReallyQuit, Answer::No);
    EXPECT_FALSE(game->FormQueryUnload());
}

TEST_F(StartupTest, ASaveThatFailsWhileQuittingIsToldAndLeavesTheChoice) {
    StartFirst();
    OpenFirst(1);
    Assign(0, 1);
    std::filesystem::create_directory(Records().StatisticsPath());
    view.Expect("Quit Vemo Sudoku", kReallyQuit, Answer::Yes);
    view.Expect("File Error", "Error writing sudoku to file !");
    view.Expect("Quit Vemo Sudoku", "The sudoku could not be saved. Quit all the same ?",
                Answer::No);
    EXPECT_FALSE(game->FormQueryUnload());
    EXPECT_EQ(view.enter, EnterKey::No);
    EXPECT_EQ(Seen().cells[0].digit, 1);
}

TEST_F(StartupTest, MalformedSettingsReadAsTheirDefaults) {
    settings.Save("Options", "Wells", "perhaps");
    settings.Save("Options", "TimeOn", "");
    settings.Save("Options", "Appearance", "7");
    settings.Save("Sudoku", "Level", "12");
    settings.Save("Colors", "HColor0", "-5");
    settings.Save("Colors", "BColor3", "#FFF0BF");
    settings.Save("Colors", "FColor109", "16777216");
    settings.Save("Colors", "HColor101", "99999999999999999999");
    StartFirst();
    EXPECT_TRUE(game->CurrentOptions().wells);
    EXPECT_TRUE(game->CurrentOptions().timeOn);
    EXPECT_EQ(game->CurrentOptions().appearance, Appearance::AsTheSystem);
    EXPECT_EQ(game->CurrentColors(), BuiltInColors());
    EXPECT_EQ(Seen().status[0], "Level: Medium");
}

TEST_F(StartupTest, ColoursAreReadBackAsTheyWereWrittenInBothPalettes) {
    Colors colors = BuiltInColors();
    colors.light.brush[9] = 0x010203;
    colors.light.hint[7] = 0xFFFFFF;
    colors.dark.brushText[0] = 0;
    SchrijfKleuren(settings, colors);
    EXPECT_EQ(settings.Get("Colors", "BColor9", ""), "66051");
    EXPECT_EQ(settings.Get("Colors", "FColor100", ""), "0");
    const Colors read = HaalKleuren(settings);
    EXPECT_EQ(read.light.brush, colors.light.brush);
    EXPECT_EQ(read.light.hint, colors.light.hint);
    EXPECT_EQ(read.dark.brushText, colors.dark.brushText);
    EXPECT_EQ(read.dark.hint, BuiltInColors().dark.hint);
}

}  // namespace
}  // namespace vemo::test
