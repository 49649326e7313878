// A new content for a file, written piece by piece beside it and put in its place at the end.
#pragma once

#include <fstream>
#include <optional>
#include <span>
#include <string>

#include "platform/files.h"

namespace vemo {

// Until Finish has returned without an error the old file stands untouched; whatever ends it sooner
// leaves nothing beside it. A link to a file stays a link; what is no regular file is not replaced.
class ReplacingFile {
  public:
    // Writes "<path>.vemo-<writer>.new"; without a writer's name, a number drawn at random tells it
    // from those of others. What a program that was killed left there long ago is removed.
    explicit ReplacingFile(std::filesystem::path path, const std::string& writer = "");
    ~ReplacingFile();
    ReplacingFile(const ReplacingFile&) = delete;
    ReplacingFile& operator=(const ReplacingFile&) = delete;

    // These return the first error that there was, once and again.
    std::optional<FileError> Write(std::span<const std::uint8_t> bytes);
    std::optional<FileError> Finish();

  private:
    void Fail(FileError error);

    std::filesystem::path path_;
    std::filesystem::path target_;  // where a link leads
    std::filesystem::path beside_;
    std::fstream file_;
    bool isBeside_ = false;
    std::optional<FileError> error_;
};

}  // namespace vemo
