// The window "Check and Import" as the game runs it: reading, checking, rating, sifting, importing.
#include <fstream>
#include <thread>

#include "game/collection_texts.h"
#include "game/collection_window.h"
#include "game/support.h"
#include "support/own_puzzle.h"
#include "support/puzzles.h"
#include "tools/puzzle_export.h"
#include "tools/puzzle_line.h"
#include "tools/puzzle_source.h"
#include "tools/puzzle_table.h"

namespace vemo::test {
namespace {

constexpr const char* kDiscarded = "This Sudoku has no unique solution and will be discarded !";

// Every row and column of the digits exchanged, and their names: the same puzzle under another
// look.
std::string UnderAnotherLook(std::string line) {
    std::string turned(line.size(), '.');
    for (std::size_t cell = 0; cell < line.size(); ++cell) {
        const char digit = line[cell];
        turned[cell % 9 * 9 + cell / 9] =
            digit == '.' ? '.' : static_cast<char>('1' + (digit - '0') % 9);
    }
    return turned;
}

// kEasy without its first three rows, and with a clash.
const std::string kSeveral = std::string(27, '.') + kEasy.substr(27);
const std::string kNone = "535" + kEasy.substr(3);

std::string CorpusText() {
    std::string text;
    for (const Digits& clues : Corpus()) {
        text += WriteGrid81(clues) + "\n";
    }
    return text;
}

std::string HardLine() {
    return WriteGrid81(Corpus()[3]);
}

class CollectionTest : public GameTest {
  protected:
    CollectionTest() {
        Ship({PuzzleWithOpen({0, 1, 40, 80})});
        StartFirst();
    }

    CollectionCommands& Commands() { return game->Collection(); }
    const CollectionWindow& Window() { return Commands().Window(); }
    const TableRow& Row(std::uint32_t row) { return Window().Table().Row(row); }

    std::filesystem::path Write(const std::string& name, const std::string& text) {
        const std::filesystem::path path = folder.Path() / name;
        std::ofstream(path, std::ios::binary) << text;
        return path;
    }
    void WaitForEnd() {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(120);
        while (Window().IsBusy() && std::chrono::steady_clock::now() < end) {
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
            Commands().Tick();
        }
        ASSERT_FALSE(Window().IsBusy()) << Window().Status();
    }
    void Open(const std::string& text, const std::string& name = "list.txt") {
        Commands().Drop({Write(name, text)});
        WaitForEnd();
    }
    void Run(CollectionJob job) {
        Commands().CommandStart(job);
        WaitForEnd();
    }
    std::vector<std::uint32_t> ShownRows() {
        std::vector<std::uint32_t> rows;
        for (std::size_t at = 0; at < Window().Shown().Size(); ++at) {
            rows.push_back(Window().Shown()[at]);
        }
        return rows;
    }
    void LookAt(std::size_t place) { Commands().Select({{place, 1}}, place); }
};

TEST_F(CollectionTest, AFileOfAnyFormatIsReadAndWhatWasRejectedIsNamed) {
    Open(kEasy + "\n# a comment\nnot a sudoku\n\n" + UnderAnotherLook(kEasy) + "\n12345\n");
    EXPECT_EQ(Window().Name(), "list.txt");
    EXPECT_EQ(Window().Table().Size(), 2u);
    EXPECT_EQ(Window().Message(), "list.txt: lines of 81; sudokus: 2; rejected: 2.");
    EXPECT_NE(Window().Log().Text().find("list.txt, line 3: "), std::string::npos);
    EXPECT_NE(Window().Log().Text().find("list.txt, line 6: "), std::string::npos);
    EXPECT_EQ(WriteGrid81(*Window().Table().Clues(0)), kEasy);
    EXPECT_EQ(Row(0).Facts().clues, 30);
    EXPECT_EQ(Window().StateOf(0), "not checked");

    Commands().Drop({folder.Path() / "missing.txt"});
    WaitForEnd();
    EXPECT_TRUE(Window().IsWarning());
    EXPECT_NE(Window().Message().find("missing.txt: cannot be read"), std::string::npos);
    Commands().Drop({folder.Path()});
    WaitForEnd();
    EXPECT_TRUE(Window().IsWarning());
    EXPECT_EQ(Window().Table().Size(), 0u);
}

TEST_F(CollectionTest, SeveralFilesAreOneCollection) {
    const auto first = Write("a.txt", kEasy + "\n" + HardLine() + "\n");
    const auto second = Write("b.sdm", HardLine() + "\n");
    Commands().Drop({first, second});
    WaitForEnd();
    EXPECT_EQ(Window().Name(), "a.txt and 1 more");
    EXPECT_EQ(Window().Table().Size(), 3u);
}

TEST_F(CollectionTest, RecordsAreReadByALayoutThatIsPreviewed) {
    std::string content = "HEAD";
    for (int k = 0; k < 3; ++k) {
        std::string record = kEasy;
        for (char& cell : record) {
            cell = static_cast<char>(cell == '.' ? 0 : cell - '0');
        }
        content += "##" + record + "#";
    }
    Open(content, "records.bin");
    RecordLayout layout{4, 84, 2, RecordDigits::Binary, std::uint8_t{0}};
    const auto preview = Window().PreviewOf(layout);
    ASSERT_EQ(preview.size(), 3u);
    EXPECT_EQ(WriteGrid81(preview[2].Clues()), kEasy);
    layout.headerLength = 5;
    EXPECT_FALSE(Window().PreviewOf(layout).front().IsPuzzle());
    layout.headerLength = 4;
    Commands().CommandReadBy(layout);
    WaitForEnd();
    EXPECT_EQ(Window().Table().Size(), 3u);
    EXPECT_EQ(Window().Layout(), layout);
}

TEST_F(CollectionTest, CheckingTellsSolutionsRatingsAndTwins) {
    Open(kEasy + "\n" + kSeveral + "\n" + kNone + "\n" + HardLine() + "\n" +
         UnderAnotherLook(kEasy) + "\n" + kEasy + "\n");
    Run(CollectionJob::Check);
    EXPECT_EQ(Window().StateOf(0), "solved");
    EXPECT_EQ(Row(0).Level(), 1);
    EXPECT_EQ(Window().StateOf(1), "more than one solution");
    EXPECT_EQ(Window().StateOf(2), "no solution");
    EXPECT_EQ(Row(3).Level(), Rate({*Window().Table().Clues(3), {}, {}}).rating);
    EXPECT_EQ(Window().StateOf(4), "equivalent to 1");
    EXPECT_EQ(Window().StateOf(5), "same as 1");

    Commands().CommandRemoveTwins(Sameness::Exact);
    EXPECT_EQ(ShownRows(), (std::vector<std::uint32_t>{0, 1, 2, 3, 4}));
    Commands().CommandRemoveTwins(Sameness::Equivalent);
    EXPECT_EQ(ShownRows(), (std::vector<std::uint32_t>{0, 1, 2, 3}));
    Commands().CommandPutBack();
    EXPECT_EQ(ShownRows().size(), 6u);
}

TEST_F(CollectionTest, RatingFollowsThePlayersSwitchesAndIsForgottenWhenTheyChange) {
    Open(HardLine() + "\n");
    Run(CollectionJob::Rate);
    const int before = Row(0).Steps();
    ASSERT_GE(Row(0).HardestSlot(), kFirstMovableSlot);
    ASSERT_LT(Row(0).Level(), kOutlaw);
    for (int slot = kFirstMovableSlot; slot < kSlots; ++slot) {
        game->CheckInclude(slot);  // off
    }
    Run(CollectionJob::Rate);
    EXPECT_EQ(Row(0).Level(), kOutlaw);
    EXPECT_EQ(Window().StateOf(0), "unsolved and rated as Outlaw!");
    EXPECT_NE(Row(0).Steps(), before);
}

TEST_F(CollectionTest, ACancelledJobGoesOnWhereItWas) {
    Open(CorpusText());
    Commands().CommandStart(CollectionJob::Rate);
    while (Window().Progress() < 0.1) {
        Commands().Tick();
    }
    Commands().CommandCancel();
    WaitForEnd();
    std::size_t done = 0;
    for (std::uint32_t row = 0; row < Window().Table().Size(); ++row) {
        done += Row(row).Level() != 0 ? 1 : 0;
    }
    EXPECT_GT(done, 0u);
    ASSERT_LT(done, Window().Table().Size());
    EXPECT_NE(Window().Message().find("Stopped."), std::string::npos);
    Run(CollectionJob::Rate);
    EXPECT_NE(Window().Message().find("Rated: " + Grouped(Window().Table().Size() - done)),
              std::string::npos)
        << Window().Message();
    for (std::uint32_t row = 0; row < Window().Table().Size(); ++row) {
        EXPECT_EQ(Row(row).Level(), Rate({*Window().Table().Clues(row), {}, {}}).rating) << row;
    }
}

TEST_F(CollectionTest, WhatIsSelectedStaysSoInAnotherOrderAndAfterAJob) {
    const std::string seventeen = WriteGrid81(Corpus()[0]);
    Open(kEasy + "\n" + seventeen + "\n" + HardLine() + "\n" + UnderAnotherLook(kEasy) + "\n");
    Commands().Select({{1, 3}}, 1);
    TableOrder order;
    order.isDescending = true;
    Commands().Show(order);
    ASSERT_EQ(ShownRows(), (std::vector<std::uint32_t>{3, 2, 1, 0}));
    EXPECT_EQ(Window().ChosenCount(), 3u);
    EXPECT_EQ(Window().CurrentPlace(), 2u);
    Run(CollectionJob::Rate);
    EXPECT_EQ(Row(0).Level(), 0);
    EXPECT_NE(Row(3).Level(), 0);
    EXPECT_EQ(Window().ChosenCount(), 3u);
    Run(CollectionJob::FindTwins);
    EXPECT_EQ(Window().StateOf(3), "solved") << "the one that it is the same as is not selected";
}

TEST_F(CollectionTest, ACheckLooksForTwinsAmongTheRowsThatItBeganWith) {
    Open(kEasy + "\n" + HardLine() + "\n" + kEasy + "\n");
    TableOrder order;
    order.kind = RowKind::Unchecked;
    Commands().Show(order);
    Run(CollectionJob::Check);
    EXPECT_EQ(Window().Shown().Size(), 0u);
    EXPECT_EQ(Window().StateOf(2), "same as 1");
}

TEST_F(CollectionTest, ATechniqueChosenDuringAJobIsLookedForAfterIt) {
    constexpr int kXWing = 8;
    Open(CorpusText());
    Run(CollectionJob::Rate);
    TableOrder order;
    order.filter.neededSlot = kXWing;
    for (CollectionJob job : {CollectionJob::FindTwins, CollectionJob::Rate}) {
        Commands().Show({});
        WaitForEnd();
        Commands().CommandStart(job);
        Commands().Show(order);
        EXPECT_EQ(Window().Shown().Size(), 0u);
        WaitForEnd();
        EXPECT_GT(Window().Shown().Size(), 0u);
        EXPECT_NE(Window().Message().find("; need it: "), std::string::npos);
    }
}

TEST_F(CollectionTest, FiltersAndSortingShowWhatIsAskedFor) {
    Open(CorpusText());
    Run(CollectionJob::Rate);
    TableOrder order;
    order.filter.levels.set(3);
    order.filter.clues = {24, 27};
    order.column = TableColumn::Steps;
    order.isDescending = true;
    Commands().Show(order);
    std::size_t expected = 0;
    for (std::uint32_t row = 0; row < Window().Table().Size(); ++row) {
        const int clues = Row(row).Facts().clues;
        expected += Row(row).Level() == 3 && clues >= 24 && clues <= 27 ? 1 : 0;
    }
    const auto shown = ShownRows();
    EXPECT_EQ(shown.size(), expected);
    ASSERT_GT(shown.size(), 1u);
    for (std::size_t at = 1; at < shown.size(); ++at) {
        EXPECT_GE(Row(shown[at - 1]).Steps(), Row(shown[at]).Steps());
    }

    // What a technique is needed for is found out when it is asked for.
    constexpr int kXWing = 8;
    order = {};
    order.filter.neededSlot = kXWing;
    Commands().Show(order);
    WaitForEnd();
    const auto needing = ShownRows();
    std::vector<std::uint32_t> byHand;
    for (std::uint32_t row = 0; row < Window().Table().Size(); ++row) {
        const RatedPuzzle rated = Rate({*Window().Table().Clues(row), {}, {}});
        if (NeedsTechnique(rated, kXWing, FixedLadder())) {
            byHand.push_back(row);
        }
    }
    EXPECT_FALSE(byHand.empty());
    EXPECT_EQ(needing, byHand);
}

TEST_F(CollectionTest, ImportStoresByRatingAndNeverTheSameTwice) {
    Open(kEasy + "\n" + UnderAnotherLook(kEasy) + "\n" + kSeveral + "\n");
    view.Expect("Invalid Sudoku", kDiscarded);
    Run(CollectionJob::Import);
    EXPECT_EQ(Records().PuzzleCount(1), 2);
    EXPECT_EQ(WriteGrid81(Records().ReadPuzzle(1, 2)->clues), kEasy);
    EXPECT_TRUE(IsWhole(*Records().ReadPuzzle(1, 2)));
    EXPECT_EQ(Window().StateOf(0), "Easy 2");
    EXPECT_NE(Window().Log().Text().find("Sudoku 2 is there already: Easy 2"), std::string::npos);
    EXPECT_NE(Window().Log().Text().find(std::string("Sudoku 3: ") + kDiscarded),
              std::string::npos);

    Open(UnderAnotherLook(kEasy) + "\n");
    Run(CollectionJob::Import);
    EXPECT_EQ(Records().PuzzleCount(1), 2);
    LookAt(0);
    Commands().CommandPlay();
    EXPECT_EQ(game->CurrentSession().level, 1);
    EXPECT_EQ(game->CurrentSession().number, 2);
}

TEST_F(CollectionTest, WhatCannotBeStoredEndsTheImportAndIsNamed) {
    Open(kEasy + "\n");
    std::filesystem::remove(Records().PuzzlePath(1));
    std::filesystem::create_directories(Records().PuzzlePath(1) / "in the way");
    Run(CollectionJob::Import);
    EXPECT_TRUE(Window().IsWarning());
    EXPECT_NE(Window().Message().find(Utf8(Records().PuzzlePath(1))), std::string::npos);
    EXPECT_EQ(Window().StateOf(0), "solved");
}

TEST_F(CollectionTest, APuzzleIsPlayedAfterItsImport) {
    Open(kEasy + "\n" + HardLine() + "\n");
    EXPECT_EQ(Window().Current(), 0u);
    Commands().CommandPlay();
    LookAt(1);
    EXPECT_TRUE(view.gaveWay.empty());
    WaitForEnd();
    EXPECT_EQ(view.gaveWay, std::vector{Form::FormCollection});
    EXPECT_EQ(game->CurrentSession().level, 1);
    EXPECT_EQ(game->CurrentSession().number, 2);
    EXPECT_EQ(WriteGrid81(game->CurrentSession().puzzle.clues), kEasy);
}

TEST_F(CollectionTest, APlayedPuzzleIsOfItsOwnLevelWhicheverIsPending) {
    OpenFirst(1);
    view.Expect("Changed level",
                "Statusbar will be updated after completion of the current sudoku");
    game->mnuLevelNr(6);
    Commands().CommandOpenLevel(1);
    LookAt(0);
    Commands().CommandPlay();
    EXPECT_EQ(Seen().status[0], "Level: Easy");
    game->mnuSudokuNext();
    EXPECT_EQ(game->CurrentSession().level, 1) << "nothing is pending";
}

TEST_F(CollectionTest, WhyASudokuIsNotPlayedIsSaid) {
    Open(kEasy + "\n" + HardLine() + "\n");
    game->mnuSudokuMake();
    Commands().CommandPlay();
    EXPECT_TRUE(Window().IsWarning());
    EXPECT_EQ(Window().Message(), Commands().WhyNotPlay());
    LookAt(1);
    EXPECT_FALSE(Window().IsWarning());
}

TEST_F(CollectionTest, TheSolveCommandSolvesStepByStepIntoTheWindowsOwnLog) {
    const std::string gameLog = game->SolveLogText();
    Open(std::string(kNeedsTrials) + "\n");
    LookAt(0);
    Commands().CommandSolveMouseUp(MouseButton::Left, Released::Outside);
    EXPECT_FALSE(Window().IsBusy());
    Commands().CommandSolveMouseUp(MouseButton::Left, Released::Inside);
    WaitForEnd();
    EXPECT_FALSE(Window().Board().EmptyCells().Any());
    const std::string& log = Window().Log().Text();
    EXPECT_NE(log.find("\r\nBifurcation attempt: placed candidate "), std::string::npos);
    EXPECT_NE(log.find("\r\nBifurcation failed"), std::string::npos);
    EXPECT_EQ(log.find("Current Bifurcation"), std::string::npos);
    EXPECT_NE(log.find("Sudoku solved and rated as Mayhem\r\n"), std::string::npos);
    EXPECT_EQ(game->SolveLogText(), gameLog);
}

TEST_F(CollectionTest, TheSolveReportTellsTheThreeOutcomesAndStoresALevelsSolution) {
    Open(kSeveral + "\n" + kNone + "\n" + kEasy + "\n");
    const auto report = [&](std::size_t place, const char* title, const char* text) {
        LookAt(place);
        view.Expect(title, text);
        Commands().CommandSolveMouseUp(MouseButton::Right, Released::Inside);
        WaitForEnd();
    };
    report(0, "Invalid Sudoku", "This Sudoku has more than one solution");
    report(1, "Invalid Sudoku", "This Sudoku has no solution");
    report(2, "Valid Sudoku", "This Sudoku has one unique solution");
    EXPECT_FALSE(Window().Board().EmptyCells().Any());
    view.Expect("Valid Sudoku", "This Sudoku has one unique solution");
    Commands().CommandSolveMouseUp(MouseButton::Right, Released::Inside);
    LookAt(0);
    WaitForEnd();
    EXPECT_TRUE(Window().Board().EmptyCells().Any()) << "of another sudoku";

    PuzzleRecord wrong = PuzzleWithOpen({0, 1, 40, 80});
    std::swap(wrong.solution[0], wrong.solution[1]);
    ASSERT_FALSE(Records().WritePuzzle(1, 1, wrong));
    Commands().CommandOpenLevel(1);
    EXPECT_EQ(Window().Name(), "Level Easy");
    ASSERT_EQ(Window().Table().Size(), 1u);
    view.Expect("Can't open sudoku",
                "Sudoku number 1 is damaged in " + Records().PuzzlePath(1).string());
    Commands().CommandPlay();
    report(0, "Valid Sudoku", "This Sudoku has one unique solution");
    EXPECT_EQ(Records().ReadPuzzle(1, 1)->solution, PlainSolution());
}

TEST_F(CollectionTest, ExportsReadBackAndAFailureLeavesTheOldFile) {
    Open(kEasy + "\n" + HardLine() + "\n");
    for (const ExportFormatRow& row : kExportFormats) {
        const auto path = folder.Path() / ("out" + std::string(row.ending));
        view.expectedFileName = "Sudokus" + std::string(row.ending);
        view.saveAs = path;
        Commands().CommandExport(row.format);
        WaitForEnd();
        EXPECT_EQ(Window().Message(), "Sudokus exported: 2.");
        std::ifstream in(path, std::ios::binary);
        PuzzleSource source(in);
        EXPECT_EQ(WriteGrid81(source.Next().value().Clues()), kEasy) << row.caption;
        EXPECT_EQ(WriteGrid81(source.Next().value().Clues()), HardLine()) << row.caption;
        EXPECT_FALSE(source.Next());
    }
    view.expectedFileName = "Sudokus.txt";
    view.saveAs = folder.Path() / "no folder" / "out.txt";
    Commands().CommandExport(ExportFormat::Line);
    WaitForEnd();
    EXPECT_TRUE(Window().IsWarning());
    LookAt(1);
    EXPECT_EQ(Window().CopyText(), HardLine() + "\n");
    Commands().Select({{0, 2}}, 1);
    EXPECT_EQ(Window().CopyText(), kEasy + "\n" + HardLine() + "\n");
}

TEST_F(CollectionTest, TheChosenSudokusArePrinted) {
    Open(kEasy + "\n" + HardLine() + "\n" + kSeveral + "\n");
    Run(CollectionJob::Rate);
    Commands().Select({{0, 1}, {2, 1}}, 0);
    Commands().CommandPrint();
    EXPECT_EQ(view.opened.back(), Form::FormPrint);
    EXPECT_EQ(game->CurrentPrint().Order().source, PrintSource::Selection);
    const std::vector<PrintedSudoku>& printed = game->CurrentPrint().Job().sudokus;
    ASSERT_EQ(printed.size(), 2u);
    EXPECT_EQ(WriteGrid81(printed[0].clues), kEasy);
    EXPECT_EQ(CaptionOf(printed[0]), "Easy");
    EXPECT_TRUE(printed[0].HasSolution());
    EXPECT_FALSE(printed[1].HasSolution());
}

TEST_F(CollectionTest, TheGameDoesNotEndMeanwhile) {
    Open(CorpusText());
    Commands().CommandStart(CollectionJob::Rate);
    EXPECT_FALSE(game->FormQueryUnload());
    EXPECT_EQ(view.opened.back(), Form::FormCollection);
    EXPECT_TRUE(Window().IsWarning());
    Commands().CommandCancel();
    WaitForEnd();
}

}  // namespace
}  // namespace vemo::test
