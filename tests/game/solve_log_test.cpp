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
    std::ptrdiff_t FilesInFolder() const {
        return std::distance(std::filesystem::directory_iterator(folder.Path()),
                             std::filesystem::directory_iterator());
    }
};

TEST_F(SolveLogTest, IsSavedAsItStandsLineEndsIncluded) {
    const std::filesystem::path path = folder / "log.txt";
    const std::ptrdiff_t before = FilesInFolder();
    view.saveAs = path;
    view.onYield = [&] { game->mnuLogSave(); };
    game->mnuSolveAutoSolve();
    EXPECT_EQ(FilesInFolder(), before) << "it is not saved while it grows";
    ASSERT_EQ(game->SolveLogText(), kLog);
    view.onYield = nullptr;
    view.saveAs.reset();
    game->mnuLogSave();
    EXPECT_EQ(FilesInFolder(), before) << "the player cancelled";

    view.saveAs = path;
    game->mnuLogSave();
    EXPECT_EQ(Content(path), kLog);
    // Another save replaces the file.
    OpenFirst(5);
    game->mnuSolveAutoSolve();
    game->mnuLogSave();
    EXPECT_EQ(Content(path), kLog + kLog);
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

}  // namespace
}  // namespace vemo::test
