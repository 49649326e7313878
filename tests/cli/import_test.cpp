// The commands import and export.
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "cli/invoke.h"
#include "model/files.h"
#include "platform/plain_files.h"
#include "support/temp_folder.h"
#include "tools/puzzle_export.h"
#include "tools/puzzle_line.h"
#include "tools/symmetry.h"

namespace vemo {
namespace {

const std::string kEmptyGrid(81, '.');

class ImportTest : public testing::Test {
  protected:
    std::string Written(const std::string& content, const char* name = "file") {
        const std::string path = (folder_ / name).string();
        std::ofstream(path, std::ios::binary) << content;
        return path;
    }
    // The first puzzles of the corpus, one a line.
    static std::string Puzzles(std::size_t count) {
        return Invoke({"filter", VEMO_TEST_DATA "/corpus.txt"}).out.substr(0, 82 * count);
    }

    static std::string Solutions(const std::string& list) {
        std::istringstream rows(Invoke({"solve", "-"}, list).out);
        std::string solutions;
        for (std::string row; std::getline(rows, row);) {
            solutions += row.substr(row.rfind('\t'));
        }
        return solutions;
    }

    test::TempFolder folder_;
};

TEST_F(ImportTest, EveryExportIsReadBack) {
    const std::string list = Puzzles(20);
    for (const ExportFormatRow& row : kExportFormats) {
        const Outcome exported = Invoke({"export", "--format", std::string(row.word), "-"}, list);
        EXPECT_EQ(exported.code, ExitCode::Fine) << row.word;
        const std::string path = Written(exported.out);
        for (const char* threads : {"--threads=1", "--threads=4"}) {
            const Outcome imported = Invoke({"import", threads, path});
            EXPECT_EQ(imported.code, ExitCode::Fine) << row.word << imported.err;
            // Candidates alone do not tell a clue from a cell that has one left.
            if (row.holds == ExportHolds::Candidates) {
                EXPECT_EQ(Solutions(imported.out), Solutions(list)) << row.word;
            } else {
                EXPECT_EQ(imported.out, list) << row.word;
            }
            EXPECT_NE(imported.err.find("; 20 puzzles, 0 pieces rejected"), std::string::npos);
        }
    }
    const std::string header(ExportHeader(ExportFormat::OpenSudoku));
    const std::string footer(ExportFooter(ExportFormat::OpenSudoku));
    EXPECT_EQ(Invoke({"export", "--format=opensudoku", "-"}).out, header + footer);
    EXPECT_EQ(Invoke({"export", "--format=opensudoku", "-"}, "junk").out, header + footer);
    for (const std::string& missing : {(folder_ / "none").string(), folder_.Path().string()}) {
        const Outcome refused = Invoke({"export", "--format=opensudoku", missing});
        EXPECT_EQ(refused.code, ExitCode::InputOutput);
        EXPECT_EQ(refused.out, "") << "half a document";
    }
    EXPECT_EQ(Invoke({"export", "--format=csv", "--threads=0", "-"}, list).out, "");
    EXPECT_EQ(Invoke({"export", "--format=doc", "-"}, list).code, ExitCode::Usage);
    EXPECT_EQ(Invoke({"export", "-"}, list).code, ExitCode::Usage);
}

TEST_F(ImportTest, WhatIsNoPuzzleIsNamedAndCostsNothingElse) {
    const std::string list = Puzzles(3);
    const std::string content = "junk\n" + list + "\n12345\n" + kEmptyGrid + "\n";
    const Outcome all = Invoke({"import", "-"}, content);
    EXPECT_EQ(all.code, ExitCode::FaultyLine);
    EXPECT_EQ(all.out, list + kEmptyGrid + "\n");
    EXPECT_NE(all.err.find("-, line 1: "), std::string::npos) << all.err;
    EXPECT_NE(all.err.find("-, line 6: "), std::string::npos) << all.err;
    const Outcome unique = Invoke({"import", "--unique", "-"}, content);
    EXPECT_EQ(unique.out, list);
    EXPECT_NE(unique.err.find("line 7: This Sudoku has no unique solution and will be discarded !"),
              std::string::npos);
    EXPECT_EQ(Invoke({"import", (folder_ / "none").string()}).code, ExitCode::InputOutput);
    EXPECT_EQ(Invoke({"import", folder_.Path().string()}).code, ExitCode::InputOutput);
    EXPECT_EQ(Invoke({"import"}).code, ExitCode::Usage);
}

TEST_F(ImportTest, AForeignLayoutIsReadAsDescribed) {
    const std::string list = Puzzles(2);
    std::string content = "header";
    for (std::size_t at : {std::size_t{0}, std::size_t{82}}) {
        content += "#";
        for (char cell : list.substr(at, 81)) {
            content += cell == '.' ? '\xff' : static_cast<char>(cell - '0');
        }
        content += "..";
    }
    const std::string path = Written(content);
    EXPECT_EQ(Invoke({"import", "--record=84", "--header=6", "--offset=1", "--binary",
                      "--empty=255", path})
                  .out,
              list);
    for (const std::vector<std::string>& wrong : {std::vector<std::string>{"--header=6"},
                                                  {"--record=80"},
                                                  {"--record=84", "--offset=4"},
                                                  {"--record=84", "--empty=ab"},
                                                  {"--record=0"}}) {
        std::vector<std::string> words = {"import", path};
        words.insert(words.end(), wrong.begin(), wrong.end());
        EXPECT_EQ(Invoke(words).code, ExitCode::Usage) << wrong.back();
    }
}

TEST_F(ImportTest, LevelFilesTakeEachPuzzleOnceByItsRating) {
    const std::string list = Puzzles(8);  // rated 1, 2, 3 and above in turn
    const std::string turned = WriteGrid81(Transposed(ReadPuzzleLine(list.substr(0, 81)).clues));
    const std::string path = Written(list + turned + "\n" + kEmptyGrid + "\n");
    const std::string into = folder_.Path().string();
    const Outcome first = Invoke({"import", "--into", into, "--threads=3", path});
    EXPECT_EQ(first.code, ExitCode::FaultyLine);
    PlainFiles files;
    RecordFiles records(files, folder_.Path());
    EXPECT_EQ(records.PuzzleCount(1), 2);
    EXPECT_EQ(records.PuzzleCount(2), 2);
    EXPECT_EQ(records.PuzzleCount(3), 2);
    EXPECT_EQ(files.Size(records.ProgressPath(3)), 2 * kPlayStateRecordSize);
    EXPECT_TRUE(first.out.starts_with(list.substr(0, 81) + "\t1\tEasy\t"));
    EXPECT_NE(first.err.find("line 9: the puzzle, or an equivalent one"), std::string::npos);
    EXPECT_NE(first.err.find("8 puzzles, 2 pieces rejected"), std::string::npos);
    const Outcome again = Invoke({"import", "--into", into, path});
    EXPECT_EQ(again.out, "");
    EXPECT_EQ(records.PuzzleCount(1), 2);
}

}  // namespace
}  // namespace vemo
