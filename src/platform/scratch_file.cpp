// A file without a name.
#include "platform/scratch_file.h"

#include <cerrno>
#include <random>
#include <string>
#include <system_error>

#include "platform/file_pieces.h"

namespace vemo {
namespace {

// What a call reads ahead: the next rows of a table, as a rule.
constexpr std::size_t kBufferSize = std::size_t{1} << 16;

#ifdef _WIN32
std::FILE* OpenUnnamed(const std::filesystem::path& path) {
    return _wfopen(path.c_str(), L"w+bTD");  // deleted by the system when it is closed
}
bool Seek(std::FILE* file, std::uint64_t offset) {
    return _fseeki64(file, static_cast<std::int64_t>(offset), SEEK_SET) == 0;
}
#else
std::FILE* OpenUnnamed(const std::filesystem::path& path) {
    std::FILE* file = std::fopen(path.c_str(), "w+bx");
    if (file != nullptr) {
        std::remove(path.c_str());
    }
    return file;
}
bool Seek(std::FILE* file, std::uint64_t offset) {
    return fseeko(file, static_cast<off_t>(offset), SEEK_SET) == 0;
}
#endif

}  // namespace

std::optional<FileError> ScratchFile::Open() {
    std::error_code error;
    folder_ = std::filesystem::temp_directory_path(error);
    if (error) {
        return FileError{"The folder for temporary files", "cannot be found: " + error.message()};
    }
    std::random_device random;
    errno = 0;
    file_.reset(OpenUnnamed(
        folder_ / ("vemosud2-" + std::to_string(random()) + std::to_string(random()) + ".tmp")));
    if (!file_) {
        return ErrorOf(folder_, "no temporary file can be made there");
    }
    // Without a buffer given, the library is free to take a smaller one.
    buffer_.resize(kBufferSize);
    std::setvbuf(file_.get(), buffer_.data(), _IOFBF, buffer_.size());
    return std::nullopt;
}

std::optional<FileError> ScratchFile::Append(std::span<const std::uint8_t> bytes) {
    const std::lock_guard lock(mutex_);
    if (!file_) {
        if (auto error = Open()) {
            return error;
        }
    }
    errno = 0;
    // Flushed at once: a full disk shows here, and not when a later call reads.
    if (!Seek(file_.get(), size_) ||
        std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size() ||
        std::fflush(file_.get()) != 0) {
        return ErrorOf(folder_, "a temporary file there cannot be written");
    }
    size_ += bytes.size();
    return std::nullopt;
}

bool ScratchFile::ReadAt(std::uint64_t offset, std::span<std::uint8_t> bytes) const {
    const std::lock_guard lock(mutex_);
    return file_ && offset + bytes.size() <= size_ && Seek(file_.get(), offset) &&
           std::fread(bytes.data(), 1, bytes.size(), file_.get()) == bytes.size();
}

std::uint64_t ScratchFile::Size() const {
    const std::lock_guard lock(mutex_);
    return size_;
}

}  // namespace vemo
