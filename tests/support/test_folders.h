// The folders of a test: the executable stands where the test says.
#pragma once

#include <filesystem>
#include <utility>

#include "platform/folders.h"

namespace vemo::test {

class TestFolders final : public Folders {
  public:
    TestFolders(std::filesystem::path program, std::filesystem::path data)
        : program_(std::move(program)), data_(std::move(data)) {}
    std::filesystem::path Executable() override { return program_; }
    std::filesystem::path LocalApplicationData() override { return data_; }

  private:
    std::filesystem::path program_;
    std::filesystem::path data_;
};

}  // namespace vemo::test
