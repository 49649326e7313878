// Reading and writing files in whole pieces: open, read or write once, close.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace vemo {

using Bytes = std::vector<std::uint8_t>;

// A path as a text for the player: UTF-8 on every system, with the separators that are usual there.
inline std::string Utf8(std::filesystem::path path) {
    const std::u8string text = path.make_preferred().u8string();
    return {text.begin(), text.end()};
}

// What went wrong with a file, for a message to the player: "<path>: <reason>".
struct FileError {
    std::filesystem::path path;
    std::string reason;
};

// No file stays open between two calls. Every call that writes has handed its bytes to the system
// when it returns without an error.
class Files {
  public:
    virtual ~Files() = default;

    // Length in bytes; nothing where there is no such regular file.
    virtual std::optional<std::uint64_t> Size(const std::filesystem::path& path) = 0;

    // Up to `length` bytes from `offset`: fewer where the file ends earlier, none past its end.
    // Nothing where the file cannot be opened or read.
    virtual std::optional<Bytes> ReadAt(const std::filesystem::path& path, std::uint64_t offset,
                                        std::size_t length) = 0;

    // Writes at `offset`. A program killed at any moment leaves the old bytes or the new ones;
    // where they begin at or past the end, the file may end within them. Makes the file where it is
    // missing; a gap before `offset` is filled with zeros.
    virtual std::optional<FileError> WriteAt(const std::filesystem::path& path,
                                             std::uint64_t offset,
                                             std::span<const std::uint8_t> bytes) = 0;

    // Puts a whole new content in place of the file's: written beside it, then renamed over it.
    // On an error the old file stands untouched and nothing is left beside it. A link to a file
    // stays a link; what is no regular file is not replaced.
    virtual std::optional<FileError> Replace(const std::filesystem::path& path,
                                             std::span<const std::uint8_t> bytes) = 0;

    // Copies a file that does not exist at `to` yet; a file that is there stays as it is.
    virtual std::optional<FileError> CopyIfMissing(const std::filesystem::path& from,
                                                   const std::filesystem::path& to) = 0;

    // Makes the folder and its parents; one that exists is no error.
    virtual std::optional<FileError> MakeFolder(const std::filesystem::path& path) = 0;
};

}  // namespace vemo
