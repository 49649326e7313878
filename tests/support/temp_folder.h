// A folder of its own for a test, gone at its end.
#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace vemo::test {

class TempFolder {
  public:
    TempFolder() {
        std::random_device random;
        do {
            path_ =
                std::filesystem::temp_directory_path() / ("vemo_test_" + std::to_string(random()));
        } while (!std::filesystem::create_directory(path_));
    }
    ~TempFolder() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::filesystem::path operator/(const std::filesystem::path& name) const {
        return path_ / name;
    }
    const std::filesystem::path& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};

}  // namespace vemo::test
