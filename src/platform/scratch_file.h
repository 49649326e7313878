// A file without a name for what does not have to last and is too much for the memory.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <vector>

#include "platform/files.h"

namespace vemo {

// It stands in the system's folder for temporary files and is gone with its owner, also when the
// program is killed. Any thread may call.
class ScratchFile {
  public:
    // Behind what was appended before. On an error the file is as before.
    std::optional<FileError> Append(std::span<const std::uint8_t> bytes);

    // Whether all of these bytes, which were appended before, could be read.
    bool ReadAt(std::uint64_t offset, std::span<std::uint8_t> bytes) const;

    std::uint64_t Size() const;

  private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    std::optional<FileError> Open();

    mutable std::mutex mutex_;
    std::filesystem::path folder_;
    std::vector<char> buffer_;                 // of the file, which goes first
    std::unique_ptr<std::FILE, Closer> file_;  // made by the first call that appends
    std::uint64_t size_ = 0;
};

}  // namespace vemo
