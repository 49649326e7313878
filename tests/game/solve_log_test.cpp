// The solve log on disk.
#include "game/solve_log.h"

#include "game/support.h"

namespace vemo::test {
namespace {

const std::string kLog =
    "\r\nStart Solving\r\n"
    "Hidden Single 1 in box at cell A1\r\n"
    "SUDOKU SOLVED\r\n";

class SolveLogTest : public GameTest {
  protected:
    SolveLogTest() {
        Ship({PuzzleWithOpen({0})});
        StartFirst();
        OpenFirst(5);
        view.expectedFileName = "Solve log.txt";
    }
    std::string Content(const std::filesystem::path& path) {
        const Bytes bytes = files.ReadAt(path, 0, 1000).value_or(Bytes());
        return {bytes.begin(), bytes.end()};
    }
};

TEST_F(SolveLogTest, IsSavedAsItStandsLineEndsIncluded) {
    game->mnuSolveAutoSolve();
    ASSERT_EQ(game->SolveLogText(), kLog);
    view.saveAs = folder / "log.txt";
    game->mnuLogSave();
    EXPECT_EQ(Content(folder / "log.txt"), kLog);
    // Another save replaces the file.
    OpenFirst(5);
    game->mnuSolveAutoSolve();
    game->mnuLogSave();
    EXPECT_EQ(Content(folder / "log.txt"), kLog + kLog);
}

TEST_F(SolveLogTest, CancelledNothingIsWritten) {
    game->mnuSolveAutoSolve();
    const auto count = [this] {
        return std::distance(std::filesystem::directory_iterator(folder.Path()),
                             std::filesystem::directory_iterator());
    };
    const auto before = count();
    game->mnuLogSave();
    EXPECT_EQ(count(), before);
}

TEST_F(SolveLogTest, AFileThatCannotBeWrittenIsNamed) {
    game->mnuSolveAutoSolve();
    const std::filesystem::path path = folder / "log.txt";
    std::filesystem::create_directory(path);
    view.saveAs = path;
    view.Expect("File Error", path.string() + ": is no regular file");
    game->mnuLogSave();
    EXPECT_TRUE(std::filesystem::is_directory(path));
    EXPECT_EQ(game->SolveLogText(), kLog);
}

TEST_F(SolveLogTest, IsNotSavedWhileItGrows) {
    view.saveAs = folder / "log.txt";
    view.onYield = [&] { game->mnuLogSave(); };
    game->mnuSolveAutoSolve();
    EXPECT_FALSE(std::filesystem::exists(folder / "log.txt"));
}

}  // namespace
}  // namespace vemo::test
