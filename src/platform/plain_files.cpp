// Files on the standard library alone.
#include "platform/plain_files.h"

#include <algorithm>
#include <fstream>
#include <ios>
#include <system_error>

#include "platform/file_pieces.h"
#include "platform/replacing_file.h"

namespace vemo {
namespace {

namespace fs = std::filesystem;

// A system takes a write page by page, and a program killed meanwhile has written the first pages
// only. No system has smaller pages than these.
constexpr std::uint64_t kPageSize = 4096;

bool LiesInOnePage(std::uint64_t offset, std::size_t length) {
    return length == 0 || offset / kPageSize == (offset + length - 1) / kPageSize;
}

}  // namespace

std::optional<std::uint64_t> PlainFiles::Size(const fs::path& path) {
    std::error_code error;
    if (!fs::is_regular_file(path, error)) {
        return std::nullopt;
    }
    const std::uintmax_t size = fs::file_size(path, error);
    if (error) {
        return std::nullopt;
    }
    return size;
}

std::optional<Bytes> PlainFiles::ReadAt(const fs::path& path, std::uint64_t offset,
                                        std::size_t length) {
    const std::optional<std::uint64_t> size = Size(path);
    if (!size) {
        return std::nullopt;
    }
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return std::nullopt;
    }
    Bytes bytes;
    if (offset >= *size) {
        return bytes;
    }
    bytes.resize(static_cast<std::size_t>(std::min<std::uint64_t>(length, *size - offset)));
    file.seekg(static_cast<std::streamoff>(offset));
    file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    if (file.bad()) {
        return std::nullopt;
    }
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

std::optional<FileError> PlainFiles::WriteAt(const fs::path& path, std::uint64_t offset,
                                             std::span<const std::uint8_t> bytes) {
    if (offset < Size(path).value_or(0) && !LiesInOnePage(offset, bytes.size())) {
        return ReplacePart(path, offset, bytes);
    }
    std::fstream file;
    if (!OpenUnbuffered(file, path, std::ios::in | std::ios::out)) {
        // Opening for reading and writing makes no file; appending makes one and cuts none.
        std::fstream maker;
        if (Size(path) || !OpenUnbuffered(maker, path, std::ios::out | std::ios::app)) {
            return ErrorOf(path, "cannot be opened for writing");
        }
        maker.close();
        if (!OpenUnbuffered(file, path, std::ios::in | std::ios::out)) {
            return ErrorOf(path, "cannot be opened for writing");
        }
    }
    file.seekp(static_cast<std::streamoff>(offset));
    if (!file.good()) {
        return ErrorOf(path, "cannot be written");
    }
    const bool isWritten = WritePiece(file, bytes);
    file.close();
    return isWritten && !file.fail() ? std::nullopt
                                     : std::optional(ErrorOf(path, "cannot be written"));
}

std::optional<FileError> PlainFiles::ReplacePart(const fs::path& path, std::uint64_t offset,
                                                 std::span<const std::uint8_t> bytes) {
    const std::uint64_t size = Size(path).value_or(0);
    std::optional<Bytes> content = ReadAt(path, 0, static_cast<std::size_t>(size));
    if (!content || content->size() != size) {
        return FileError{path, "cannot be read"};
    }
    const std::size_t start = static_cast<std::size_t>(offset);
    content->resize(std::max(content->size(), start + bytes.size()));
    std::ranges::copy(bytes, content->begin() + static_cast<std::ptrdiff_t>(start));
    return Replace(path, *content);
}

std::optional<FileError> PlainFiles::Replace(const fs::path& path,
                                             std::span<const std::uint8_t> bytes) {
    ReplacingFile file(path, writer_);
    file.Write(bytes);
    return file.Finish();
}

std::optional<FileError> PlainFiles::CopyIfMissing(const fs::path& from, const fs::path& to) {
    std::error_code error;
    if (fs::exists(to, error)) {
        return std::nullopt;
    }
    const std::optional<std::uint64_t> size = Size(from);
    if (!size) {
        return FileError{from, "does not exist"};
    }
    const std::optional<Bytes> content = ReadAt(from, 0, static_cast<std::size_t>(*size));
    if (!content || content->size() != *size) {
        return FileError{from, "cannot be read"};
    }
    return Replace(to, *content);
}

std::optional<FileError> PlainFiles::MakeFolder(const fs::path& path) {
    std::error_code error;
    fs::create_directories(path, error);
    if (error) {
        return FileError{path, "cannot be made: " + error.message()};
    }
    return std::nullopt;
}

}  // namespace vemo
