// Where the program's own files and the player's files are.
#pragma once

#include "platform/folders.h"

namespace vemo {

class QtFolders final : public Folders {
  public:
    QtFolders() = default;
    // The player's files stand in another folder, for tests and demonstrations.
    explicit QtFolders(std::filesystem::path localData) : localData_(std::move(localData)) {}

    std::filesystem::path Executable() override;
    std::filesystem::path LocalApplicationData() override;

  private:
    std::filesystem::path localData_;  // empty: the user's
};

}  // namespace vemo
