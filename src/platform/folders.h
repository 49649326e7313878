// Where the program's own files and the player's files are.
#pragma once

#include <filesystem>

namespace vemo {

class Folders {
  public:
    virtual ~Folders() = default;

    // The folder of the executable.
    virtual std::filesystem::path Executable() = 0;

    // The current user's local application data folder, the base of the data folder.
    virtual std::filesystem::path LocalApplicationData() = 0;
};

}  // namespace vemo
