// Files on a real disk: what is written stands there whole, what fails leaves the old file.
#include "platform/plain_files.h"

#include <algorithm>
#include <random>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace vemo {
namespace {

namespace fs = std::filesystem;

Bytes BytesOf(std::string_view text) {
    return {text.begin(), text.end()};
}

class PlainFilesTest : public testing::Test {
  protected:
    Bytes Content(const fs::path& path) {
        return files.ReadAt(path, 0, 1 << 20).value_or(BytesOf("cannot be read"));
    }
    std::ptrdiff_t FilesInFolder() const {
        return std::distance(fs::directory_iterator(folder.Path()), {});
    }

    test::TempFolder folder;
    PlainFiles files{"me"};
};

// The errors name the file that the caller meant, and say why.
void ExpectErrorAt(const std::optional<FileError>& error, const fs::path& path) {
    ASSERT_TRUE(error);
    EXPECT_EQ(error->path, path);
    EXPECT_NE(error->reason, "");
}

TEST_F(PlainFilesTest, ReadingStopsAtTheEndOfTheFile) {
    const fs::path path = folder / "ten";
    ASSERT_FALSE(files.WriteAt(path, 0, BytesOf("0123456789")));
    EXPECT_EQ(files.Size(path), 10u);
    EXPECT_EQ(files.ReadAt(path, 3, 4), BytesOf("3456"));
    EXPECT_EQ(files.ReadAt(path, 8, 4), BytesOf("89"));
    EXPECT_EQ(files.ReadAt(path, 10, 4), Bytes());
    EXPECT_EQ(files.ReadAt(path, 4000, 4), Bytes());
}

TEST_F(PlainFilesTest, AMissingFileAndAFolderHaveNoSizeAndNoContent) {
    for (const fs::path& path : {folder / "missing", folder.Path()}) {
        EXPECT_FALSE(files.Size(path));
        EXPECT_FALSE(files.ReadAt(path, 0, 4));
    }
}

TEST_F(PlainFilesTest, AFileIsWhatItsWritesLeft) {
    const fs::path path = folder / "file";
    std::mt19937 random(1);
    Bytes expected;
    for (int k = 0; k < 400; ++k) {
        const std::size_t offset = random() % 15000;  // over several pages, gaps included
        Bytes bytes(random() % 2000);
        std::ranges::generate(bytes, [&] { return static_cast<std::uint8_t>(random()); });
        ASSERT_FALSE(files.WriteAt(path, offset, bytes));
        if (!bytes.empty()) {
            expected.resize(std::max(expected.size(), offset + bytes.size()));
        }
        std::ranges::copy(bytes, expected.begin() + static_cast<std::ptrdiff_t>(offset));
        ASSERT_EQ(Content(path), expected) << "after write " << k;
    }
    EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(PlainFilesTest, ReplacePutsAWholeNewContent) {
    const fs::path path = folder / "file";
    for (const char* content : {"a long first content", "short", ""}) {
        ASSERT_FALSE(files.Replace(path, BytesOf(content)));
        EXPECT_EQ(Content(path), BytesOf(content));
    }
    EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(PlainFilesTest, CopyIfMissingLeavesAFileThatIsThere) {
    ASSERT_FALSE(files.Replace(folder / "from", BytesOf("shipped")));
    ASSERT_FALSE(files.CopyIfMissing(folder / "from", folder / "to"));
    EXPECT_EQ(Content(folder / "to"), BytesOf("shipped"));

    ASSERT_FALSE(files.Replace(folder / "to", BytesOf("the player's")));
    EXPECT_FALSE(files.CopyIfMissing(folder / "from", folder / "to"));
    EXPECT_FALSE(files.CopyIfMissing(folder / "missing", folder / "to"));
    EXPECT_EQ(Content(folder / "to"), BytesOf("the player's"));

    ExpectErrorAt(files.CopyIfMissing(folder / "missing", folder / "new"), folder / "missing");
    EXPECT_FALSE(files.Size(folder / "new"));
}

TEST_F(PlainFilesTest, MakeFolderMakesItsParentsAndAcceptsOneThatIsThere) {
    for (int k = 0; k < 2; ++k) {
        EXPECT_FALSE(files.MakeFolder(folder / "a" / "b" / "c"));
        EXPECT_TRUE(fs::is_directory(folder / "a" / "b" / "c"));
    }
}

TEST_F(PlainFilesTest, NothingCanBeWrittenBelowAFile) {
    ASSERT_FALSE(files.Replace(folder / "file", BytesOf("old")));
    const fs::path below = folder / "file" / "below";
    ExpectErrorAt(files.WriteAt(below, 0, BytesOf("x")), below);
    ExpectErrorAt(files.Replace(below, BytesOf("x")), below);
    ExpectErrorAt(files.CopyIfMissing(folder / "file", below), below);
    ExpectErrorAt(files.MakeFolder(below), below);
    EXPECT_EQ(Content(folder / "file"), BytesOf("old"));
}

TEST_F(PlainFilesTest, AReplaceThatCannotBeRenamedLeavesNothingBeside) {
    fs::create_directories(folder / "taken" / "within");
    ExpectErrorAt(files.Replace(folder / "taken", BytesOf("x")), folder / "taken");
    EXPECT_TRUE(fs::is_directory(folder / "taken" / "within"));
    EXPECT_EQ(FilesInFolder(), 1);
}

// Another program is at one of them still.
TEST_F(PlainFilesTest, WhatAKilledProgramLeftHalfWrittenGoesWithTheNextReplace) {
    for (const char* name :
         {"file.vemo-1.new", "file.vemo-2.new", "file.new", "other.vemo-1.new"}) {
        ASSERT_FALSE(files.Replace(folder / name, BytesOf("half")));
        if (std::string_view(name) != "file.vemo-2.new") {
            fs::last_write_time(folder / name,
                                fs::file_time_type::clock::now() - std::chrono::hours(1));
        }
    }
    ASSERT_FALSE(files.Replace(folder / "file", BytesOf("whole")));
    EXPECT_FALSE(files.Size(folder / "file.vemo-1.new"));
    EXPECT_EQ(FilesInFolder(), 4);

    // By its bare name, in the current folder.
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    EXPECT_FALSE(files.Replace("other", BytesOf("whole")));
    fs::current_path(before);
    EXPECT_FALSE(files.Size(folder / "other.vemo-1.new"));
}

TEST_F(PlainFilesTest, TwoProgramsThatReplaceAFileAtOnceDisturbNeither) {
    const auto replaceOften = [path = folder / "file"](char letter) {
        PlainFiles own;
        for (int round = 0; round < 100; ++round) {
            const auto error = own.Replace(path, Bytes(5000, static_cast<std::uint8_t>(letter)));
            ASSERT_FALSE(error) << error->reason;
        }
    };
    std::thread other(replaceOften, 'a');
    replaceOften('b');
    other.join();
    const Bytes content = Content(folder / "file");
    EXPECT_EQ(content, Bytes(5000, content.front()));
    EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(PlainFilesTest, AFullDiskIsReportedAndLeavesTheOldFile) {
    const fs::path full = "/dev/full";
    if (!fs::exists(full)) {
        GTEST_SKIP() << "needs /dev/full";
    }
    ExpectErrorAt(files.WriteAt(full, 0, BytesOf("x")), full);

    // The new content goes to the device that is always full.
    const fs::path path = folder / "file";
    const Bytes old(5000, 'o');
    ASSERT_FALSE(files.Replace(path, old));
    fs::create_symlink(full, folder / "file.vemo-me.new");
    ExpectErrorAt(files.Replace(path, BytesOf("new")), path);
    EXPECT_EQ(FilesInFolder(), 1);

    fs::create_symlink(full, folder / "file.vemo-me.new");
    ExpectErrorAt(files.WriteAt(path, 4000, Bytes(200)), path);
    EXPECT_EQ(Content(path), old);
}

}  // namespace
}  // namespace vemo
