// What the shipped level files promise.
#include <filesystem>
#include <sstream>

#include <gtest/gtest.h>

#include "cli/invoke.h"
#include "model/files.h"

namespace vemo {
namespace {

// All of it: vemosud levels verify assets/levels/*.sds
TEST(ShippedLevels, HoldUniqueDifferentPuzzlesRatedAsFiled) {
    std::vector<std::string> words = {"levels", "verify", "--one-in", "25"};
    for (int level = 1; level <= kLevels; ++level) {
        words.push_back((std::filesystem::path(VEMO_ASSETS) / PuzzleFileName(level)).string());
    }
    const Outcome verified = Invoke(words);
    EXPECT_EQ(verified.code, ExitCode::Fine) << verified.err;
    std::istringstream lines(verified.out);
    int level = 0;
    for (std::string name; std::getline(lines, name, '\t');) {
        int count = 0;
        int symmetrical = 0;
        lines >> count >> symmetrical;
        std::getline(lines, name);
        ++level;
        EXPECT_GE(count, level <= 7 ? 1000 : level == 8 ? 500 : 50) << level;
        EXPECT_TRUE(level > 5 || (symmetrical >= count * 4 / 10 && symmetrical <= count * 6 / 10));
    }
    EXPECT_EQ(level, kLevels);
}

}  // namespace
}  // namespace vemo
