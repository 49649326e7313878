// Files on the standard library alone.
#pragma once

#include <utility>

#include "platform/files.h"

namespace vemo {

class PlainFiles final : public Files {
  public:
    // `writer` tells this program's half-written files from those of another that writes the same
    // file meanwhile: "<file>.vemo-<writer>.new". Without one, a number drawn at random.
    explicit PlainFiles(std::string writer = "") : writer_(std::move(writer)) {}

    std::optional<std::uint64_t> Size(const std::filesystem::path& path) override;
    std::optional<Bytes> ReadAt(const std::filesystem::path& path, std::uint64_t offset,
                                std::size_t length) override;
    std::optional<FileError> WriteAt(const std::filesystem::path& path, std::uint64_t offset,
                                     std::span<const std::uint8_t> bytes) override;
    std::optional<FileError> Replace(const std::filesystem::path& path,
                                     std::span<const std::uint8_t> bytes) override;
    std::optional<FileError> CopyIfMissing(const std::filesystem::path& from,
                                           const std::filesystem::path& to) override;
    std::optional<FileError> MakeFolder(const std::filesystem::path& path) override;

  private:
    // The content with these bytes at `offset`, in place of the file's.
    std::optional<FileError> ReplacePart(const std::filesystem::path& path, std::uint64_t offset,
                                         std::span<const std::uint8_t> bytes);

    std::string writer_;
};

}  // namespace vemo
