// The commands that make puzzles and look after level files.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "cli/invoke.h"
#include "model/files.h"
#include "platform/plain_files.h"
#include "support/temp_folder.h"

namespace vemo {
namespace {

class PuzzleMaking : public testing::Test {
  protected:
    std::string Path(const char* name) { return (folder_ / name).string(); }
    std::string Content(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void Write(const std::string& path, const std::string& content) {
        std::ofstream(path, std::ios::binary) << content;
    }

    test::TempFolder folder_;
    PlainFiles files_;
    RecordFiles records_{files_, folder_.Path()};
};

int LineCount(const std::string& text) {
    return static_cast<int>(std::ranges::count(text, '\n'));
}

TEST_F(PuzzleMaking, GenerateAppendsNewPuzzlesWithTheirEmptyPlayStates) {
    const std::vector<std::string> words = {
        "generate", "--levels", "hard:3,1:2", "--append", folder_.Path().string(), "--threads=2"};
    const Outcome first = Invoke(words);
    const Outcome second = Invoke(words);
    for (const Outcome& run : {first, second}) {
        EXPECT_EQ(run.code, ExitCode::Fine);
        EXPECT_EQ(run.err, "");
        EXPECT_EQ(LineCount(run.out), 5);
    }
    EXPECT_EQ(records_.PuzzleCount(1), 4);
    EXPECT_EQ(records_.PuzzleCount(3), 6);
    EXPECT_EQ(files_.Size(records_.ProgressPath(3)), 6 * kPlayStateRecordSize);
    // The same seed gave others the second time. They are not in order from gentle to hard.
    const Outcome verified = Invoke({"levels", "verify", Path("Sudoku_Hard.sds")});
    EXPECT_EQ(verified.err.find("equivalent"), std::string::npos) << verified.err;

    const Outcome alone = Invoke({"generate", "--levels=hard:3", "--threads=1"});
    EXPECT_NE(first.out.find(alone.out.substr(0, 81) + "\t3\tHard\t"), std::string::npos);
    const Outcome unrated = Invoke({"generate", "--unrated=2", "--minimal", "--jsonl"});
    EXPECT_EQ(unrated.out.substr(0, 12), R"({"puzzle":")" + unrated.out.substr(11, 1));
    EXPECT_EQ(LineCount(unrated.out), 2);
}

TEST_F(PuzzleMaking, GenerateTellsWhatIsMissingAndLosesNoPuzzle) {
    const Outcome tries = Invoke({"generate", "--levels=easy:1000,9:1", "--tries=100"});
    EXPECT_EQ(tries.code, ExitCode::FaultyLine);
    EXPECT_NE(tries.err.find("all tries are used up: 100 tried, Easy "), std::string::npos);
    EXPECT_GT(LineCount(tries.out), 0);

    std::filesystem::create_directory(Path("Sudoku_Easy.sds"));
    const Outcome folder =
        Invoke({"generate", "--levels=easy:1", "--append", folder_.Path().string()});
    EXPECT_EQ(folder.code, ExitCode::InputOutput);
    EXPECT_NE(folder.err.find(Path("Sudoku_Easy.sds")), std::string::npos);
    EXPECT_EQ(LineCount(folder.out), 1) << "the puzzle stands among the results";

    for (const char* wrong :
         {"--levels=easy", "--levels=simple:3", "--levels=easy:1,", "--clues=30-", "--clues=31-30",
          "--symmetry=round", "--needs=2", "--threads=0", "--seed=x"}) {
        const Outcome refused = Invoke({"generate", "--levels=easy:1", wrong});
        EXPECT_EQ(refused.code, ExitCode::Usage) << wrong;
        EXPECT_EQ(refused.out, "") << wrong;
    }
}

TEST_F(PuzzleMaking, AnExportedLevelIsImportedAsItWas) {
    const std::string level = Path("Sudoku_Medium.sds");
    const std::string list = Path("list.txt");
    ASSERT_EQ(Invoke({"generate", "--levels=2:5", "--append", folder_.Path().string()}).code,
              ExitCode::Fine);
    const Outcome exported = Invoke({"levels", "export", level});
    EXPECT_EQ(LineCount(exported.out), 5);
    Write(list, "# a list\n" + exported.out + std::string(81, '.') + "\nabc\n");
    const Outcome imported = Invoke({"levels", "import", Path("copy.sds"), list});
    EXPECT_EQ(imported.code, ExitCode::FaultyLine);
    EXPECT_NE(imported.err.find("line 7: the puzzle does not have exactly one"), std::string::npos);
    EXPECT_NE(imported.err.find("line 8: "), std::string::npos);
    EXPECT_EQ(Content(Path("copy.sds")), Content(level));
    EXPECT_EQ(Invoke({"levels", "export", Path("none.sds")}).code, ExitCode::InputOutput);
    EXPECT_EQ(Invoke({"levels", "copy", level}).code, ExitCode::Usage);
    EXPECT_EQ(Invoke({"levels", "import", level}).code, ExitCode::Usage);
}

TEST_F(PuzzleMaking, VerifyNamesEachFault) {
    ASSERT_EQ(Invoke({"make-levels", "--levels=1:6,3:1,4:2", "--threads=2", "--output",
                      folder_.Path().string()})
                  .code,
              ExitCode::Fine);
    const std::string easy = Path("Sudoku_Easy.sds");
    const std::vector<std::string> words = {"levels", "verify", easy, Path("Sudoku_Crazy.sds"),
                                            Path("Sudoku_Hard.sds")};
    const Outcome fine = Invoke(words);
    EXPECT_EQ(fine.code, ExitCode::Fine) << fine.err;
    EXPECT_EQ(LineCount(fine.out), 3);
    EXPECT_NE(fine.out.find(easy + "\t6\t3\t0\n"), std::string::npos) << "half with a symmetry";

    PuzzleRecord puzzle = *records_.ReadPuzzle(1, 6);
    records_.WritePuzzle(1, 2, puzzle);
    puzzle = *records_.ReadPuzzle(1, 3);
    puzzle.clues = {};
    records_.WritePuzzle(1, 3, puzzle);
    puzzle = *records_.ReadPuzzle(1, 4);
    std::swap(puzzle.solution[0], puzzle.solution[1]);
    puzzle.clues[0] = puzzle.clues[1] = 0;
    records_.WritePuzzle(1, 4, puzzle);
    records_.WritePuzzle(1, 5, *records_.ReadPuzzle(3, 1));
    puzzle = *records_.ReadPuzzle(4, 1);
    records_.WritePuzzle(4, 1, *records_.ReadPuzzle(4, 2));
    records_.WritePuzzle(4, 2, puzzle);
    Write(Path("Sudoku_Hard.sds"), Content(Path("Sudoku_Hard.sds")) + "rest");
    const Outcome faulty = Invoke(words);
    EXPECT_EQ(faulty.code, ExitCode::FaultyLine);
    for (const char* fault :
         {"puzzle 3 has more than one solution", "puzzle 5 is rated Hard", "puzzle 4 ",
          "puzzle 6 is equivalent to puzzle 2 of ", "Sudoku_Crazy.sds: puzzle 2 is gentler",
          "puzzle 1 is equivalent to puzzle 5 of ", "the last record is cut off"}) {
        EXPECT_NE(faulty.err.find(fault), std::string::npos) << fault << " in " << faulty.err;
    }
    EXPECT_EQ(Invoke({"levels", "verify", Path("list.txt")}).code, ExitCode::Usage);
}

TEST_F(PuzzleMaking, MakeLevelsSparesAPlayersFolder) {
    const std::vector<std::string> words = {"make-levels", "--levels=1:1,9:1", "--tries=20",
                                            "--output", folder_.Path().string()};
    const Outcome made = Invoke(words);
    EXPECT_EQ(made.code, ExitCode::FaultyLine) << "a puzzle is missing";
    EXPECT_EQ(LineCount(made.out), kLevels);
    EXPECT_NE(made.err.find("level Outlaw stays short: 0 puzzles"), std::string::npos);
    EXPECT_FALSE(records_.CreateProgressFile(4, 2).has_value());
    const Outcome refused = Invoke(words);
    EXPECT_EQ(refused.code, ExitCode::InputOutput);
    EXPECT_NE(refused.err.find("progress"), std::string::npos);
}

TEST_F(PuzzleMaking, AnInterruptEndsMakeLevelsWithNothingWritten) {
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"make-levels", "--levels=1:100000", "--output",
                                   folder_.Path().string(), "--corpus", Path("list.txt")},
          {"make-levels", "--corpus", Path("list.txt"), "--corpus-count=100000"}}) {
        std::istringstream in;
        std::ostringstream out;
        Streams streams{in, out, out};
        streams.isInterrupted = [] { return true; };
        EXPECT_EQ(RunProgram(words, streams), ExitCode::Interrupted);
        EXPECT_EQ(out.str(), "");
        EXPECT_TRUE(std::filesystem::is_empty(folder_.Path()));
    }
}

// The list that the tests take their puzzles from can be made again.
TEST_F(PuzzleMaking, TheCorpusBeginsWithThePuzzlesThatItsCommandMakes) {
    const std::string list = Path("list.txt");
    ASSERT_EQ(Invoke({"make-levels", "--corpus", list, "--corpus-count=40", "--seed=2026"}).code,
              ExitCode::Fine);
    const auto puzzlesOf = [&](const std::string& path) {
        const std::string content = Content(path);
        return content.substr(content.find("\n", content.find("--seed")) + 1, 40 * 82);
    };
    EXPECT_EQ(puzzlesOf(list), puzzlesOf(VEMO_TEST_DATA "/corpus.txt"));
}

}  // namespace
}  // namespace vemo
