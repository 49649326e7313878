// The generator as the game runs it: ordering, searching, storing, playing.
#include "game/generator_window.h"

#include <thread>

#include "game/support.h"
#include "tools/canonical.h"

namespace vemo::test {
namespace {

constexpr int kEndless = kMostWanted;

class GeneratorWindowTest : public GameTest {
  protected:
    GeneratorWindowTest() {
        Ship({PuzzleWithOpen({0, 1, 40, 80})});
        StartFirst();
    }

    const GeneratorWindow& Window() const { return game->CurrentGenerator(); }
    const std::vector<MadeSudoku>& Made() const { return Window().Made(); }

    void Order(int level, int count, const std::string& seed = "7") {
        GeneratorOrder order;
        order.wanted[static_cast<std::size_t>(level - 1)] = count;
        order.seed = seed;
        game->GeneratorChange(order);
    }
    template <typename Condition>
    void TickUntil(Condition isOver) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
        while (!isOver() && std::chrono::steady_clock::now() < end) {
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
            game->GeneratorTick();
        }
        ASSERT_TRUE(isOver()) << Window().Message();
    }
    void Search() {
        game->CommandStart();
        ASSERT_TRUE(Window().IsSearching()) << Window().Error();
        TickUntil([this] { return !Window().IsSearching(); });
    }
    std::vector<Digits> MadeClues() const {
        std::vector<Digits> clues;
        for (const MadeSudoku& made : Made()) {
            clues.push_back(made.rated.puzzle.clues);
        }
        return clues;
    }
    // Nothing can be written there.
    void PutFolderInPlaceOf(const std::filesystem::path& path) {
        std::filesystem::rename(path, path.string() + ".kept");
        std::filesystem::create_directories(path / "in the way");
    }
    void PutBack(const std::filesystem::path& path) {
        std::filesystem::remove_all(path);
        std::filesystem::rename(path.string() + ".kept", path);
    }
    void ExpectUnstored(int count, const std::string& deed, Answer answer) {
        view.Expect("Sudokus not stored",
                    "Sudokus that could not be stored and will be lost when the game ends: " +
                        std::to_string(count) + ". Do you want to " + deed + " all the same ?",
                    answer);
    }
};

TEST_F(GeneratorWindowTest, WhatIsOrderedIsMadeAndStoredInItsLevel) {
    GeneratorOrder order;
    order.wanted = {3, 2};
    order.symmetry = vemo::Symmetry::HalfTurn;
    order.clues = ClueChoice::FromTo;
    order.fewestClues = 25;
    order.mostClues = 33;
    game->GeneratorChange(order);
    Search();
    EXPECT_EQ(Window().Message(), "Complete. Sudokus made: 5 of 5.");
    std::array<int, kLevels> stored{};
    stored.fill(1);
    ASSERT_EQ(Made().size(), 5u);
    for (const MadeSudoku& made : Made()) {
        const int level = made.rated.rating;
        EXPECT_EQ(made.number, ++stored[static_cast<std::size_t>(level - 1)]);
        EXPECT_EQ(Records().ReadPuzzle(level, made.number), made.rated.puzzle);
        EXPECT_TRUE(HasSymmetry(made.rated.puzzle.clues, vemo::Symmetry::HalfTurn));
        EXPECT_TRUE((ClueRange{25, 33}).Holds(ClueCount(made.rated.puzzle.clues)));
    }
    EXPECT_EQ(Records().PuzzleCount(1), 4);
    EXPECT_EQ(Records().PuzzleCount(2), 3);
    EXPECT_EQ(files.Size(Records().ProgressPath(1)), 4 * kPlayStateRecordSize);
}

TEST_F(GeneratorWindowTest, AFreshSeedIsShownAndMakesTheSameAgainButNeverTwiceInOneFile) {
    Order(1, 4, "");
    Search();
    const std::vector<Digits> first = MadeClues();
    Order(1, 4, std::to_string(Window().Searched().seed));
    Search();
    std::set<Digits> forms;
    for (const MadeSudoku& made : Made()) {
        const PuzzleRecord& puzzle = made.rated.puzzle;
        forms.insert(CanonicalForm(puzzle.clues, puzzle.solution));
    }
    EXPECT_EQ(forms.size(), 8u);

    std::filesystem::remove(Records().PuzzlePath(1));
    StartAgain();
    Search();
    EXPECT_EQ(MadeClues(), first);
}

TEST_F(GeneratorWindowTest, AMadeSudokuIsPlayedLikeAnyOtherOfItsLevel) {
    EXPECT_FALSE(game->WhyNotPlay().empty());
    OpenFirst(4);
    view.Expect("Changed level",
                "Statusbar will be updated after completion of the current sudoku");
    game->mnuLevelNr(6);
    Order(1, 2);
    Search();
    game->GeneratorSelect(1);
    game->CommandPlay();
    EXPECT_EQ(Seen().status[0], "Level: Easy");
    EXPECT_EQ(Seen().status[1], "Number: 3");
    EXPECT_EQ(game->CurrentSession().puzzle, Made()[1].rated.puzzle);
    EXPECT_EQ(view.gaveWay, std::vector{Form::FormGenerator});

    game->mnuSudokuMake();
    game->CommandPlay();
    EXPECT_EQ(Window().Message(), game->WhyNotPlay());
    EXPECT_TRUE(Window().IsWarning());
    EXPECT_TRUE(game->CurrentSession().IsMaking());
}

TEST_F(GeneratorWindowTest, ASudokuThatIsNoLongerInItsFileIsNotPlayed) {
    OpenFirst(4);
    Order(1, 1);
    Search();
    files.WriteAt(Records().PuzzlePath(1), kPuzzleRecordSize, Bytes(81, 0));
    view.Expect("Can't open sudoku",
                "Sudoku number 2 is no longer in " + Records().PuzzlePath(1).string());
    game->CommandPlay();
    EXPECT_EQ(Seen().status[0], "Level: Crazy");
    EXPECT_TRUE(Seen().isBoardEnabled);
    EXPECT_TRUE(view.gaveWay.empty());
}

TEST_F(GeneratorWindowTest, WhatCannotBeStoredStaysUntilItIsStoredOrGivenUp) {
    const std::filesystem::path easy = Records().PuzzlePath(1);
    PutFolderInPlaceOf(easy);
    Order(1, kEndless);
    Search();
    const int made = static_cast<int>(Made().size());
    EXPECT_EQ(Window().Unstored(), made);
    EXPECT_TRUE(Window().Message().starts_with(easy.string() + ": "));
    EXPECT_EQ(view.opened.back(), Form::FormGenerator);
    EXPECT_NE(game->WhyNotPlay(), "");

    ExpectUnstored(made, "close the window", Answer::No);
    EXPECT_FALSE(game->FormQueryUnload(Form::FormGenerator));
    view.Expect("Quit Vemo Sudoku", "Do you really want to quit ?", Answer::Yes);
    ExpectUnstored(made, "quit", Answer::No);
    EXPECT_FALSE(game->FormQueryUnload());
    EXPECT_EQ(view.enter, EnterKey::No);
    game->CommandStore();
    EXPECT_EQ(Window().Unstored(), made);

    PutBack(easy);
    game->CommandStore();
    EXPECT_EQ(Records().PuzzleCount(1), 1 + made);
    EXPECT_EQ(Records().ReadPuzzle(1, 2), Made()[0].rated.puzzle);
    EXPECT_EQ(Window().Unstored(), 0);
    EXPECT_TRUE(game->FormQueryUnload(Form::FormGenerator));
    EXPECT_FALSE(Window().IsWarning());
}

TEST_F(GeneratorWindowTest, DuringASearchTheGamePlaysOnButDoesNotEnd) {
    Order(1, kEndless);
    game->CommandStart();
    EXPECT_FALSE(game->FormQueryUnload());
    EXPECT_EQ(view.opened, std::vector{Form::FormGenerator});
    const std::string refusal = Window().Message();
    TickUntil([this] { return !Made().empty(); });
    EXPECT_EQ(Window().Message(), refusal);
    Order(2, 1);
    EXPECT_EQ(Window().Order().wanted[0], kEndless);
    OpenFirst(4);
    Assign(0, 1);
    EXPECT_EQ(Seen().cells[0].digit, 1);

    game->CommandStopSearch();
    EXPECT_FALSE(Window().IsSearching());
    const int made = static_cast<int>(Made().size());
    EXPECT_EQ(Window().Message(),
              "Stopped. Sudokus made: " + std::to_string(made) + " of 1000000.");
    EXPECT_EQ(Records().PuzzleCount(1), 1 + made);
    EXPECT_GE(Window().Counts().tried, made);
}

TEST_F(GeneratorWindowTest, TheSearchEndsWhereTheTriesDo) {
    GeneratorOrder order;
    order.wanted[8] = kEndless;
    order.mostTries = 30;
    game->GeneratorChange(order);
    Search();
    EXPECT_TRUE(Window().Message().starts_with("The tries are used up. "));
    EXPECT_EQ(Window().Counts().tried, 30);
}

TEST_F(GeneratorWindowTest, ASearchNeedsAnOrderAndASeedThatIsANumber) {
    Order(1, 0);
    EXPECT_FALSE(Window().CanStart());
    for (const char* seed : {"-1", "12x", "18446744073709551616"}) {
        Order(1, 1, seed);
        EXPECT_NE(Window().Error().find("seed"), std::string::npos) << seed;
        game->CommandStart();
        EXPECT_FALSE(Window().IsSearching());
    }
    Order(1, 1, "18446744073709551615");
    EXPECT_TRUE(Window().CanStart());
}

TEST_F(GeneratorWindowTest, TheOrderIsRememberedAndMalformedSettingsReadAsDefaults) {
    GeneratorOrder order;
    order.wanted = {1, 0, 0, 0, 0, 0, 0, 0, 1000};
    order.symmetry = vemo::Symmetry::OtherDiagonal;
    order.clues = ClueChoice::FromTo;
    order.fewestClues = 20;
    order.mostClues = 81;
    order.minimality = Minimality::Minimal;
    order.seed = "18446744073709551615";
    order.mostTries = kMostTries;
    order.mostMinutes = 90;
    game->GeneratorChange(order);
    game->CommandStart();
    game->CommandStopSearch();
    StartAgain();
    EXPECT_EQ(Window().Order(), order);

    for (const auto& [key, text] : {std::pair{"Wanted9", "-3"},
                                    {"Wanted1", "many"},
                                    {"Symmetry", "round"},
                                    {"Clues", "2"},
                                    {"FewestClues", "16"},
                                    {"MostClues", "82"},
                                    {"Minimal", ""},
                                    {"Technique", "2"},
                                    {"Seed", ""},
                                    {"Tries", "0"},
                                    {"Minutes", "99999999"}}) {
        settings.Save("Generator", key, text);
    }
    StartAgain();
    EXPECT_EQ(Window().Order(), GeneratorOrder());
}

}  // namespace
}  // namespace vemo::test
