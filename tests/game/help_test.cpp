// Which page of the help belongs to what is in front of the player.
#include "game/help.h"

#include <set>

#include "game/support.h"

namespace vemo::test {
namespace {

// A1, A2 and B1 are open: the hidden single of the first box comes first.
const std::vector<int> kOpen = {0, 1, 9};

class HelpTest : public GameTest {
  protected:
    HelpTest() {
        Ship({PuzzleWithOpen(kOpen)});
        StartFirst();
        WriteHome();
    }
    void WriteHome() {
        files.MakeFolder(HomePage().parent_path());
        files.Replace(HomePage(), Bytes(1));
    }
    std::filesystem::path HomePage() const { return folder.Path() / "program/help/index.html"; }
    // What F1 opens.
    std::string Page() {
        game->KeyHelp();
        EXPECT_EQ(view.opened.back(), Form::FormHelp);
        return game->CurrentHelpPage();
    }
    std::string Page(Form form) {
        game->KeyHelp(form);
        return game->CurrentHelpPage();
    }
};

TEST_F(HelpTest, F1OpensThePageForWhatTheMainWindowShows) {
    EXPECT_EQ(Page(), "first-sudoku.html");
    OpenFirst(1);
    EXPECT_EQ(Page(), "playing.html");
    game->CommandLinkClick();
    EXPECT_EQ(Page(), "colors-and-links.html");
    game->CommandLinkClick();
    game->mnuSolveHint();
    EXPECT_TRUE(Seen().hasHelpOnHint);
    EXPECT_EQ(Page(), "techniques/hidden-single.html");
    game->CommandPauseClick();
    EXPECT_FALSE(Seen().hasHelpOnHint);
    EXPECT_EQ(Page(), "levels.html");
    game->CommandPauseClick();
    game->KeyHint();
    EXPECT_FALSE(Seen().hasHelpOnHint) << "the hint went with the step";
    EXPECT_EQ(Page(), "playing.html");
    game->mnuSudokuMake();
    EXPECT_EQ(Page(), "own-sudokus.html");
}

TEST_F(HelpTest, ReportsAndSimpleHintsHavePagesToo) {
    OpenFirst(1);
    Discard(0, 1);
    game->mnuSolveHint();
    EXPECT_EQ(Page(), "techniques/missing-candidate.html");
    game->mnuSolveUndo();
    game->mnuPencilmarksOff();
    game->mnuSolveHint();
    EXPECT_EQ(Page(), "hints.html");
}

TEST_F(HelpTest, EachWindowHasItsPage) {
    EXPECT_EQ(Page(Form::FormLog), "autosolve.html");
    EXPECT_EQ(Page(Form::SolveTech), "technique-manager.html");
    EXPECT_EQ(Page(Form::FormGenerator), "generator.html");
    EXPECT_EQ(Page(Form::FormCollection), "collection.html");
    EXPECT_EQ(Page(Form::FormColors), "hint-colors.html");
    EXPECT_EQ(Page(Form::FormPrint), "printing.html");
    EXPECT_EQ(Page(Form::FormHint), "hints.html");
    OpenFirst(1);
    game->mnuOptionsSmallWindow();
    game->mnuSolveHint();
    game->CommandApplyClick();
    EXPECT_EQ(Page(Form::FormHint), "techniques/hidden-single.html") << "the copy keeps its page";
    EXPECT_EQ(Page(), "playing.html");
}

TEST_F(HelpTest, EverySlotHasAPageOfItsOwn) {
    EXPECT_EQ(TechniquePage(5), "techniques/pointing-pair-triple.html");
    EXPECT_EQ(TechniquePage(27), "techniques/bivalue-universal-grave-1.html");
    EXPECT_EQ(TechniquePage(29), "techniques/short-aics.html");
    EXPECT_EQ(TechniquePage(34), "techniques/als-xz.html");
    std::set<std::string> names;
    for (const HelpPage& page : HelpPages()) {
        EXPECT_TRUE(names.insert(page.file).second) << page.file;
    }
    for (int slot = 0; slot < kSlots; ++slot) {
        EXPECT_TRUE(names.contains(TechniquePage(slot))) << slot;
    }
}

TEST_F(HelpTest, TheMenuOpensTheFirstPageTheHistoryAndTheWeb) {
    OpenFirst(1);
    game->Run(CommandId::HelpContents);
    EXPECT_EQ(game->CurrentHelpPage(), "index.html");
    game->Run(CommandId::HelpRevision);
    EXPECT_EQ(game->CurrentHelpPage(), "changes.html");
    game->Run(CommandId::HelpWeb);
    EXPECT_EQ(view.link, "https://vemo.example/sudoku");
    game->HelpLinkClicked("file:///etc/passwd");
    EXPECT_EQ(view.link, "https://vemo.example/sudoku") << "only pages of the web are opened";
}

TEST_F(HelpTest, AMissingHelpFolderIsNamed) {
    std::filesystem::remove(HomePage());
    view.Expect("Help", "The help pages are missing: there should be " + Utf8(HomePage()));
    game->Run(CommandId::HelpContents);
    EXPECT_TRUE(view.opened.empty());
    WriteHome();
    EXPECT_EQ(Page(), "first-sudoku.html");
}

}  // namespace
}  // namespace vemo::test
