// The commands over whole lists: check, filter, dedupe, and several threads.
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "cli/invoke.h"
#include "support/puzzles.h"
#include "support/temp_folder.h"
#include "tools/puzzle_filter.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

const std::string kCorpus = VEMO_TEST_DATA "/corpus.txt";

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

class PuzzleLists : public testing::Test {
  protected:
    std::string WrittenList(const std::vector<std::string>& lines) {
        const std::string path = (folder_ / "list.txt").string();
        std::ofstream file(path, std::ios::binary);
        for (const std::string& line : lines) {
            file << line << '\n';
        }
        return path;
    }

    std::string Results() { return (folder_ / "results").string(); }
    std::string Content() {
        std::ifstream file(Results(), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    test::TempFolder folder_;
};

TEST_F(PuzzleLists, ManyThreadsAnswerLikeOne) {
    for (const char* command : {"rate", "check", "solve", "hint"}) {
        const Outcome one = Invoke({command, "--threads", "1", kCorpus});
        const Outcome many = Invoke({command, "--threads", "5", kCorpus});
        EXPECT_EQ(one.out, many.out) << command;
        EXPECT_EQ(many.code, ExitCode::Fine) << command;
    }
    std::vector<std::string> lines =
        LinesOf(Invoke({"levels", "export", VEMO_ASSETS "/Sudoku_Easy.sds"}).out);
    lines[700] = "faulty";
    lines[3] = std::string(9000, '1');
    const std::string list = WrittenList(lines);
    const Outcome one = Invoke({"check", "--threads=1", list});
    const Outcome many = Invoke({"check", "--threads=3", list});
    EXPECT_EQ(many.code, ExitCode::FaultyLine);
    EXPECT_EQ(many.out, one.out);
    EXPECT_EQ(many.err, one.err);
    EXPECT_EQ(LinesOf(many.out).size(), lines.size() - 2);
}

TEST_F(PuzzleLists, AnInterruptKeepsWhatWasFinished) {
    for (const char* threads : {"--threads=1", "--threads=4"}) {
        std::istringstream in;
        std::ostringstream out;
        std::ostringstream err;
        Streams streams{in, out, err};
        static int asked;
        asked = 0;
        streams.isInterrupted = [] { return ++asked > 20; };
        EXPECT_EQ(RunProgram(std::vector<std::string>{"rate", threads, kCorpus}, streams),
                  ExitCode::Interrupted);
        const std::string whole = Invoke({"rate", kCorpus}).out;
        EXPECT_GT(out.str().size(), 0u);
        EXPECT_LT(out.str().size(), whole.size());
        EXPECT_TRUE(whole.starts_with(out.str()) && out.str().ends_with('\n'));
    }
}

TEST_F(PuzzleLists, AFilterKeepsWhatAllItsOptionsLike) {
    const std::vector<std::string> all = LinesOf(Invoke({"filter", kCorpus}).out);
    EXPECT_EQ(all.size(), 400u);
    struct Case {
        std::vector<std::string> options;
        bool (*isLiked)(const Digits& clues);
    };
    const std::vector<Case> cases = {
        {{"--clues=24-26", "--symmetry=half-turn"},
         [](const Digits& clues) {
             return ClueCount(clues) >= 24 && ClueCount(clues) <= 26 &&
                    HasSymmetry(clues, Symmetry::HalfTurn);
         }},
        {{"--symmetry=none"},
         [](const Digits& clues) { return SymmetryOf(clues) == Symmetry::None; }},
        {{"--symmetry=any", "--clues=30"},
         [](const Digits& clues) {
             return SymmetryOf(clues) != Symmetry::None && ClueCount(clues) == 30;
         }},
        {{"--digits=8"}, [](const Digits& clues) { return FactsOf(clues).digits == 8; }},
        {{"--empty-boxes=1-9"}, [](const Digits& clues) { return FactsOf(clues).emptyBoxes > 0; }},
        {{"--levels=2,hard"},
         [](const Digits& clues) {
             const int level = Rate({clues, {}, {}}).rating;
             return level == 2 || level == 3;
         }},
        {{"--needs=13", "--levels=insane"},
         [](const Digits& clues) {
             const RatedPuzzle rated = Rate({clues, {}, {}});
             return rated.rating == 5 && NeedsTechnique(rated, 13, FixedLadder());
         }},
    };
    for (const Case& at : cases) {
        std::vector<std::string> words = {"filter", kCorpus};
        words.insert(words.end(), at.options.begin(), at.options.end());
        std::vector<std::string> expected;
        for (const std::string& line : all) {
            if (at.isLiked(ReadPuzzleLine(line).clues)) {
                expected.push_back(line);
            }
        }
        EXPECT_EQ(LinesOf(Invoke(words).out), expected) << at.options[0];
        EXPECT_LT(expected.size(), all.size()) << at.options[0];
    }
    for (const char* wrong : {"--clues=3-2", "--clues=x", "--digits=10", "--symmetry=round",
                              "--levels=1,", "--needs=40"}) {
        EXPECT_EQ(Invoke({"filter", wrong, kCorpus}).code, ExitCode::Usage) << wrong;
    }
}

TEST_F(PuzzleLists, DedupeKeepsTheFirstOfEach) {
    const std::vector<std::string> all = LinesOf(Invoke({"filter", kCorpus}).out);
    const std::string turned = WriteGrid81(Transposed(ReadPuzzleLine(all[0]).clues));
    const std::string list =
        WrittenList({all[0], "# one more", all[1], turned, "junk", all[0], turned, all[2]});
    const Outcome rest = Invoke({"dedupe", list});
    EXPECT_EQ(rest.code, ExitCode::FaultyLine);
    EXPECT_EQ(LinesOf(rest.out), (std::vector<std::string>{all[0], all[1], all[2]}));
    EXPECT_NE(rest.err.find("line 5: "), std::string::npos);
    EXPECT_EQ(LinesOf(Invoke({"dedupe", "--exact", list}).out),
              (std::vector<std::string>{all[0], all[1], turned, all[2]}));
    EXPECT_EQ(LinesOf(Invoke({"dedupe", "--report", "--threads=2", list}).out),
              (std::vector<std::string>{turned + "\t4\tequivalent\t1", all[0] + "\t6\texact\t1",
                                        turned + "\t7\texact\t4"}));
    EXPECT_EQ(Invoke({"dedupe", "-"}, all[0]).code, ExitCode::InputOutput);
}

TEST_F(PuzzleLists, DedupeTellsOfAnInterruptWhereverItComes) {
    std::vector<std::string> lines = LinesOf(Invoke({"filter", kCorpus}).out);
    lines.resize(8);
    const std::string list = WrittenList(lines);
    const std::string whole = Invoke({"dedupe", list}).out;
    static int left;
    int interrupted = 0;
    for (ExitCode code = ExitCode::Interrupted; code == ExitCode::Interrupted; ++interrupted) {
        std::istringstream in;
        std::ostringstream out;
        std::ostringstream err;
        Streams streams{in, out, err};
        left = interrupted;
        streams.isInterrupted = [] { return --left < 0; };
        code = RunProgram(std::vector<std::string>{"dedupe", "--threads=1", list}, streams);
        ASSERT_TRUE(code == ExitCode::Interrupted || out.str() == whole) << interrupted;
    }
    EXPECT_GT(interrupted, 16) << "both passes were interrupted";
}

TEST_F(PuzzleLists, ARunThatWasCutShortIsResumed) {
    std::vector<std::string> lines = LinesOf(Invoke({"filter", kCorpus}).out);
    lines.resize(12);
    lines[2] = "junk";
    lines[4] = std::string(81, '.');
    const std::string list = WrittenList(lines);
    for (const std::vector<std::string>& words : {std::vector<std::string>{"rate", "--threads=2"},
                                                  {"rate", "--jsonl", "--log"},
                                                  {"check"},
                                                  {"check", "--jsonl"},
                                                  {"solve"},
                                                  {"solve", "--jsonl"},
                                                  {"solve", "--report"}}) {
        const auto run = [&](std::vector<std::string> more) {
            more.insert(more.begin(), words.begin(), words.end());
            return Invoke(more);
        };
        const Outcome whole = run({list});
        // Cut off between rows, within one, at the very beginning, and not at all.
        for (std::size_t length : {whole.out.size() / 2, whole.out.find('\n') + 1, std::size_t{0},
                                   std::size_t{5}, whole.out.size() - 1, whole.out.size()}) {
            std::ofstream(Results(), std::ios::binary) << whole.out.substr(0, length);
            const Outcome resumed = run({"--resume", Results(), list});
            EXPECT_EQ(resumed.out, "");
            EXPECT_EQ(Content(), whole.out) << words[0] << length;
            EXPECT_EQ(resumed.err, whole.err) << words[0] << length;
            EXPECT_EQ(resumed.code, ExitCode::FaultyLine) << words[0] << length;
        }
    }
}

TEST_F(PuzzleLists, AFileWithAnythingButRowsOfTheRunIsLeftAsItIs) {
    const std::vector<std::string> lines = {WriteGrid81(test::PlainSolution()),
                                            std::string(81, '.')};
    const std::string list = WrittenList(lines);
    const std::string rows = Invoke({"check", list}).out;
    for (const std::string& content :
         {std::string("secret"), std::string("secret\n"), rows + "secret", rows + "secret\n",
          rows + rows.substr(0, 9), lines[0] + "\tunity\n", lines[0] + "\n" + lines[1],
          Invoke({"rate", list}).out, Invoke({"solve", list}).out,
          Invoke({"check", "--jsonl", list}).out}) {
        std::ofstream(Results(), std::ios::binary) << content;
        const Outcome refused = Invoke({"check", "--resume", Results(), list});
        EXPECT_EQ(refused.code, ExitCode::InputOutput) << content;
        EXPECT_NE(refused.err.find(Results() + " holds the results of another list"),
                  std::string::npos)
            << refused.err;
        EXPECT_EQ(Content(), content);
    }
    EXPECT_EQ(Invoke({"check", "--resume", folder_.Path().string(), list}).code,
              ExitCode::InputOutput);
}

TEST_F(PuzzleLists, APuzzleThatTakesTooLongIsGivenUp) {
    // Its rating takes many times as long.
    const std::string outlaw =
        LinesOf(Invoke({"levels", "export", VEMO_ASSETS "/Sudoku_Outlaw.sds"}).out).front();
    const Outcome given = Invoke({"rate", "--timeout=0.001", "-"}, outlaw);
    EXPECT_EQ(given.out, outlaw + "\t0\ttimeout\t\t0\n");
    EXPECT_EQ(given.code, ExitCode::FaultyLine);
    EXPECT_NE(Invoke({"rate", "--timeout=600", "-"}, outlaw).out.find("Outlaw"), std::string::npos);

    // Five million placements lie before its second solution, far more than a millisecond's.
    const std::string slow =
        "5.........9....5..6..4.....1...2..3......3..1......8.2.....4..8.......2...4......";
    const Outcome word = Invoke({"solve", "--timeout=0.001", "-"}, slow);
    EXPECT_EQ(word.out, slow + "\ttimeout\t\n");
    EXPECT_EQ(word.code, ExitCode::FaultyLine);
    EXPECT_EQ(Invoke({"solve", "--report", "--timeout=0.001", "-"}, slow).out,
              slow + "\tThis Sudoku was given up\t\n");
    for (const char* wrong : {"--timeout=0", "--timeout=nan", "--timeout=2s", "--timeout=-1"}) {
        EXPECT_EQ(Invoke({"rate", wrong, "-"}).code, ExitCode::Usage) << wrong;
    }
}

}  // namespace
}  // namespace vemo
