// The files of the data folder: which record stands where, and what a short or damaged file says.
#include "model/files.h"

#include <gtest/gtest.h>

#include "model/levels.h"
#include "platform/plain_files.h"
#include "support/puzzles.h"
#include "support/temp_folder.h"

namespace vemo {
namespace {

class FilesTest : public testing::Test {
  protected:
    Bytes Content(const std::filesystem::path& path) {
        return disk.ReadAt(path, 0, 1 << 20).value_or(Bytes());
    }
    static PuzzleRecord PuzzleWithBest(PlayTime best) {
        return {test::PlainSolution(), test::PlainSolution(), best};
    }

    test::TempFolder folder;
    PlainFiles disk;
    RecordFiles files{disk, folder.Path()};
};

TEST_F(FilesTest, AreNamedAfterTheirLevel) {
    EXPECT_EQ(files.PuzzlePath(1), folder / "Sudoku_Easy.sds");
    EXPECT_EQ(files.ProgressPath(6), folder / "Sudoku_Kamikaze.sdl");
    EXPECT_EQ(files.ProgressPath(9), folder / "Sudoku_Outlaw.sdl");
    EXPECT_EQ(files.StatisticsPath(), folder / "LevelsLog.msl");
}

TEST_F(FilesTest, APuzzleFileHoldsAsManyPuzzlesAsWholeRecords) {
    EXPECT_EQ(files.PuzzleCount(1), 0);
    EXPECT_FALSE(files.ReadPuzzle(1, 1));
    for (const auto& [length, count] : {std::pair{0, 0}, {165, 0}, {166, 1}, {167, 1}, {432, 2}}) {
        Bytes bytes(static_cast<std::size_t>(length), 1);
        ASSERT_FALSE(disk.Replace(files.PuzzlePath(1), bytes));
        EXPECT_EQ(files.PuzzleCount(1), count) << length;
        EXPECT_FALSE(files.ReadPuzzle(1, 0));
        EXPECT_EQ(files.ReadPuzzle(1, count).has_value(), count > 0);
        EXPECT_FALSE(files.ReadPuzzle(1, count + 1)) << length;
    }
}

TEST_F(FilesTest, APuzzleIsWrittenAtItsNumberAndNowhereElse) {
    for (int number = 1; number <= 3; ++number) {
        ASSERT_FALSE(files.WritePuzzle(2, number, PuzzleWithBest({number, 0})));
    }
    ASSERT_FALSE(files.WritePuzzle(2, 2, PuzzleWithBest({9, 9})));
    EXPECT_EQ(files.ReadPuzzle(2, 1), PuzzleWithBest({1, 0}));
    EXPECT_EQ(files.ReadPuzzle(2, 2), PuzzleWithBest({9, 9}));
    EXPECT_EQ(files.ReadPuzzle(2, 3), PuzzleWithBest({3, 0}));
    EXPECT_EQ(files.PuzzleCount(2), 3);
}

TEST_F(FilesTest, ErasingBestTimesChangesTheirFourBytesAlone) {
    Bytes expected(3 * kPuzzleRecordSize - 2, 7);  // two puzzles and a torn third
    ASSERT_FALSE(disk.Replace(files.PuzzlePath(4), expected));
    ASSERT_FALSE(files.EraseBestTimes(4));
    for (std::size_t start : {162, 328}) {
        std::fill_n(expected.begin() + static_cast<std::ptrdiff_t>(start), 4, std::uint8_t{0});
    }
    EXPECT_EQ(Content(files.PuzzlePath(4)), expected);

    const std::optional<FileError> error = files.EraseBestTimes(5);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->path, files.PuzzlePath(5));
    EXPECT_FALSE(disk.Size(files.PuzzlePath(5)));
}

TEST_F(FilesTest, AProgressRecordThatIsMissingOrTornIsTheEmptyState) {
    PlayState state;
    state.digits[4] = 4;
    state.elapsed = {1, 2};
    EXPECT_EQ(files.ReadPlayState(3, 1), PlayState{});
    ASSERT_FALSE(files.WritePlayState(3, 2, state));  // extends the file, zeros before it
    EXPECT_EQ(disk.Size(files.ProgressPath(3)), 2u * 1449);
    EXPECT_EQ(files.ReadPlayState(3, 1), PlayState{});
    EXPECT_EQ(files.ReadPlayState(3, 2), state);
    EXPECT_EQ(files.ReadPlayState(3, 3), PlayState{});
    EXPECT_EQ(files.ReadPlayState(3, 0), PlayState{});

    Bytes torn = Content(files.ProgressPath(3));
    torn.pop_back();
    ASSERT_FALSE(disk.Replace(files.ProgressPath(3), torn));
    EXPECT_EQ(files.ReadPlayState(3, 2), PlayState{});
}

TEST_F(FilesTest, ANewProgressFileKeepsTheStatesThatBelongToTheirPuzzles) {
    ASSERT_FALSE(disk.Replace(files.ProgressPath(1), Bytes(9999, 7)));
    PuzzleRecord puzzle = PuzzleWithBest({});
    puzzle.clues[3] = 0;
    PlayState state;
    state.digits = puzzle.clues;
    state.elapsed = {1, 2};
    for (int number : {1, 2, 3}) {
        ASSERT_FALSE(files.WritePuzzle(1, number, puzzle));
    }
    ASSERT_FALSE(files.WritePlayState(1, 2, state));
    state.digits[0] = 0;
    ASSERT_FALSE(files.WritePlayState(1, 3, state));
    ASSERT_FALSE(files.CreateProgressFile(1, 4));
    EXPECT_EQ(files.ReadPlayState(1, 2).elapsed, (PlayTime{1, 2}));
    Bytes others = Content(files.ProgressPath(1));
    ASSERT_EQ(others.size(), 4u * 1449);
    std::fill_n(others.begin() + 1449, 1449, std::uint8_t{0});
    EXPECT_EQ(others, Bytes(4u * 1449));
}

TEST_F(FilesTest, StatisticsStandAtTheirLevelAndReadAsZeroWhereMissing) {
    LevelStatistics statistics;
    statistics.lastNumber = 17;
    EXPECT_EQ(files.ReadStatistics(3), LevelStatistics{});
    ASSERT_FALSE(files.WriteStatistics(3, statistics));
    EXPECT_EQ(disk.Size(files.StatisticsPath()), 78u);
    EXPECT_EQ(Content(files.StatisticsPath())[52], 17);
    for (int level = 1; level <= kLevels; ++level) {
        EXPECT_EQ(files.ReadStatistics(level).lastNumber, level == 3 ? 17 : 0);
    }
    ASSERT_FALSE(disk.Replace(files.StatisticsPath(), Bytes(77, 1)));
    EXPECT_EQ(files.ReadStatistics(3), LevelStatistics{});
    EXPECT_NE(files.ReadStatistics(2), LevelStatistics{});

    std::array<LevelStatistics, kLevels> all{};
    all[8] = statistics;
    ASSERT_FALSE(files.WriteAllStatistics(all));
    EXPECT_EQ(disk.Size(files.StatisticsPath()), 234u);
    EXPECT_EQ(files.ReadStatistics(9), statistics);
    EXPECT_EQ(files.ReadStatistics(2), LevelStatistics{});
}

TEST_F(FilesTest, ASavedPuzzleGoesAfterTheLastWholeOneWithAnEmptyProgressRecord) {
    ASSERT_FALSE(disk.Replace(files.PuzzlePath(9), Bytes(167, 1)));
    ASSERT_FALSE(disk.Replace(files.ProgressPath(9), Bytes(3u * 1449, 1)));
    const RecordFiles::SavedPuzzle saved = files.SaveSudoku(9, PuzzleWithBest({}));
    EXPECT_FALSE(saved.error);
    EXPECT_EQ(saved.number, 2);
    EXPECT_EQ(files.PuzzleCount(9), 2);
    EXPECT_EQ(files.ReadPuzzle(9, 2), PuzzleWithBest({}));
    EXPECT_EQ(Content(files.PuzzlePath(9))[0], 1);
    const Bytes progress = Content(files.ProgressPath(9));
    EXPECT_EQ(std::ranges::count(progress, 0), 1449);
    EXPECT_EQ(std::count(progress.begin() + 1449, progress.begin() + 2898, 0), 1449);
}

TEST_F(FilesTest, APuzzleThatCannotBeSavedLeavesThePlayStateOfTheNumberAlone) {
    ASSERT_FALSE(disk.MakeFolder(files.PuzzlePath(2) / "in the way"));
    PlayState state;
    state.digits[0] = 5;
    ASSERT_FALSE(files.WritePlayState(2, 1, state));
    const RecordFiles::SavedPuzzle saved = files.SaveSudoku(2, PuzzleWithBest({}));
    ASSERT_TRUE(saved.error);
    EXPECT_EQ(saved.error->path, files.PuzzlePath(2));
    EXPECT_EQ(files.ReadPlayState(2, 1), state);
}

TEST_F(FilesTest, ReadingALevelPassesOverDamagedRecords) {
    EXPECT_TRUE(files.ReadPuzzles(7).empty());
    for (int number : {1, 2, 3}) {
        ASSERT_FALSE(files.WritePuzzle(7, number, PuzzleWithBest({number, 0})));
    }
    ASSERT_FALSE(disk.WriteAt(files.PuzzlePath(7), kPuzzleRecordSize, Bytes(1, 200)));
    ASSERT_FALSE(disk.WriteAt(files.PuzzlePath(7), 3 * kPuzzleRecordSize, Bytes(100, 1)));
    EXPECT_EQ(files.ReadPuzzles(7), (std::vector<NumberedPuzzle>{{1, PuzzleWithBest({1, 0})},
                                                                 {3, PuzzleWithBest({3, 0})}}));
}

TEST_F(FilesTest, ShippedPuzzlesAreInstalledWhereTheyAreMissing) {
    const std::filesystem::path shipped = folder / "program";
    RecordFiles program(disk, shipped);
    ASSERT_FALSE(disk.MakeFolder(shipped));
    for (int level : {1, 2, 9}) {
        ASSERT_FALSE(program.WritePuzzle(level, 1, PuzzleWithBest({})));
    }
    RecordFiles player(disk, folder / "data" / "VemoSud2");
    player.InstallShippedPuzzles(shipped);
    EXPECT_EQ(player.ReadPuzzle(9, 1), PuzzleWithBest({}));
    EXPECT_FALSE(disk.Size(player.PuzzlePath(3)));

    ASSERT_FALSE(player.WritePuzzle(1, 1, PuzzleWithBest({4, 5})));
    player.InstallShippedPuzzles(shipped);
    EXPECT_EQ(player.ReadPuzzle(1, 1), PuzzleWithBest({4, 5}));
}

}  // namespace
}  // namespace vemo
