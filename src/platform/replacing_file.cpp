// A new content for a file, piece by piece.
#include "platform/replacing_file.h"

#include <chrono>
#include <random>
#include <system_error>
#include <utility>

#include "platform/file_pieces.h"
#include "platform/rename_over.h"

namespace vemo {
namespace {

namespace fs = std::filesystem;

constexpr const char* kOfAWriter = ".vemo-";
constexpr const char* kHalfWritten = ".new";
// Nobody is still at a half-written file that has not grown for so long.
constexpr std::chrono::minutes kLongestWrite(10);

// What a program that was killed while it wrote `target` left beside it.
void RemoveStale(const fs::path& target) {
    const std::string start = Utf8(target.filename()) + kOfAWriter;
    const fs::path folder = target.has_parent_path() ? target.parent_path() : ".";
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
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

}  // namespace

ReplacingFile::ReplacingFile(fs::path path, const std::string& writer) : path_(std::move(path)) {
    std::error_code error;
    target_ = fs::is_symlink(path_, error) ? fs::canonical(path_, error) : path_;
    if (target_.empty()) {
        Fail({path_, "cannot be written: " + error.message()});
        return;
    }
    if (fs::exists(target_, error) && !fs::is_regular_file(target_, error)) {
        Fail({path_, "is no regular file"});
        return;
    }
    RemoveStale(target_);
    beside_ = target_;
    beside_ += kOfAWriter + (writer.empty() ? std::to_string(std::random_device()()) : writer) +
               kHalfWritten;
    isBeside_ = OpenUnbuffered(file_, beside_, std::ios::out | std::ios::trunc);
    if (!isBeside_) {
        Fail(ErrorOf(path_, "cannot be written"));
    }
}

ReplacingFile::~ReplacingFile() {
    if (isBeside_) {
        file_.close();
        std::error_code error;
        fs::remove(beside_, error);
    }
}

void ReplacingFile::Fail(FileError error) {
    error_ = error_ ? error_ : std::move(error);
}

std::optional<FileError> ReplacingFile::Write(std::span<const std::uint8_t> bytes) {
    if (!error_ && !WritePiece(file_, bytes)) {
        Fail(ErrorOf(path_, "cannot be written"));
    }
    return error_;
}

std::optional<FileError> ReplacingFile::Finish() {
    if (error_) {
        return error_;
    }
    file_.close();
    if (file_.fail()) {
        Fail(ErrorOf(path_, "cannot be written"));
        return error_;
    }
    std::error_code error;
    RenameOver(beside_, target_, error);
    if (error) {
        Fail({path_, "cannot be replaced: " + error.message()});
        return error_;
    }
    isBeside_ = false;
    return std::nullopt;
}

}  // namespace vemo
