// Files on the standard library alone.
#include "platform/plain_files.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <fstream>
#include <ios>
#include <random>
#include <system_error>

namespace vemo {
namespace {

namespace fs = std::filesystem;

// A system takes a write page by page, and a program killed meanwhile has written the first pages
// only. No system has smaller pages than these.
constexpr std::uint64_t kPageSize = 4096;

constexpr const char* kOfAWriter = ".vemo-";
constexpr const char* kHalfWritten = ".new";
// Nobody is still at a half-written file that is older.
constexpr std::chrono::minutes kLongestWrite(10);

bool LiesInOnePage(std::uint64_t offset, std::size_t length) {
    return length == 0 || offset / kPageSize == (offset + length - 1) / kPageSize;
}

FileError ErrorOf(const fs::path& path, const char* deed) {
    const int code = errno;
    return {path, std::string(deed) + (code != 0 ? std::string(": ") + std::strerror(code) : "")};
}

std::span<const char> AsChars(std::span<const std::uint8_t> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

// What a program that was killed while it wrote `target` left beside it.
void RemoveStale(const fs::path& target) {
    const std::string start = Utf8(target.filename()) + kOfAWriter;
    std::error_code error;
    for (fs::directory_iterator at(target.parent_path(), error), end; !error && at != end;
         at.increment(error)) {
        const std::string name = Utf8(at->path().filename());
        if (!name.starts_with(start) || !name.ends_with(kHalfWritten)) {
            continue;
        }
        std::error_code gone;
        const bool isLink = at->is_symlink(gone);
        const auto written = at->last_write_time(gone);
        if (!gone && !isLink && fs::file_time_type::clock::now() - written > kLongestWrite) {
            fs::remove(at->path(), gone);
        }
    }
}

// A stream without a buffer of its own hands each write to the system as one call.
bool OpenUnbuffered(std::fstream& file, const fs::path& path, std::ios::openmode mode) {
    file.rdbuf()->pubsetbuf(nullptr, 0);
    errno = 0;
    file.open(path, mode | std::ios::binary);
    return file.is_open();
}

std::optional<FileError> WriteAll(std::fstream& file, const fs::path& path,
                                  std::span<const std::uint8_t> bytes) {
    const std::span<const char> chars = AsChars(bytes);
    errno = 0;
    file.write(chars.data(), static_cast<std::streamsize>(chars.size()));
    file.flush();
    const bool written = file.good();
    file.close();
    if (!written || file.fail()) {
        return ErrorOf(path, "cannot be written");
    }
    return std::nullopt;
}

}  // namespace

PlainFiles::PlainFiles(const std::string& writer)
    : ending_(kOfAWriter + (writer.empty() ? std::to_string(std::random_device()()) : writer) +
              kHalfWritten) {}

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
    return WriteAll(file, path, bytes);
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
    std::error_code error;
    const fs::path target = fs::is_symlink(path, error) ? fs::canonical(path, error) : path;
    if (target.empty()) {
        return FileError{path, "cannot be written: " + error.message()};
    }
    if (fs::exists(target, error) && !fs::is_regular_file(target, error)) {
        return FileError{path, "is no regular file"};
    }
    RemoveStale(target);
    fs::path beside = target;
    beside += ending_;
    std::fstream file;
    if (!OpenUnbuffered(file, beside, std::ios::out | std::ios::trunc)) {
        return ErrorOf(path, "cannot be written");
    }
    if (std::optional<FileError> failed = WriteAll(file, path, bytes)) {
        fs::remove(beside, error);
        return failed;
    }
    fs::rename(beside, target, error);
    if (error) {
        const FileError failed{path, "cannot be replaced: " + error.message()};
        fs::remove(beside, error);
        return failed;
    }
    return std::nullopt;
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
