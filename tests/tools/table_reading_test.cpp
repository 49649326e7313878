// Reading files that are none.
#include "tools/table_reading.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace vemo {
namespace {

std::string FailureOf(const std::filesystem::path& path) {
    TableReading reading(path, std::nullopt);
    while (!reading.IsOver()) {
        std::this_thread::yield();
    }
    return reading.Failure();
}

TEST(TableReading, WhatIsNoFileIsRefusedAtOnce) {
    const test::TempFolder folder;
    EXPECT_NE(FailureOf(folder.Path()).find("cannot be read"), std::string::npos);
    EXPECT_NE(FailureOf(folder / "missing").find("missing: cannot be read: "), std::string::npos);
#ifndef _WIN32
    // Opening it would wait for somebody who writes.
    const std::filesystem::path pipe = folder / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
    EXPECT_NE(FailureOf(pipe).find("pipe: cannot be read"), std::string::npos);
#endif
}

}  // namespace
}  // namespace vemo
