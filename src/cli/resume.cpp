// Results of an earlier run.
#include "cli/resume.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <ios>

namespace vemo {
namespace {

// The length of the file up to its last line end; nothing where it cannot be read.
std::optional<std::uint64_t> WholeLength(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::array<char, 65536> piece;
    std::uint64_t length = 0;
    std::uint64_t whole = 0;
    while (file.read(piece.data(), piece.size()) || file.gcount() > 0) {
        const auto end = piece.begin() + file.gcount();
        const auto last = std::find(std::make_reverse_iterator(end), piece.rend(), '\n');
        if (last != piece.rend()) {
            whole = length + static_cast<std::uint64_t>(piece.rend() - last);
        }
        length += static_cast<std::uint64_t>(file.gcount());
    }
    return file.is_open() && !file.bad() ? std::optional(whole) : std::nullopt;
}

}  // namespace

Resume::Resume(const std::string& path) : path_(path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (std::filesystem::exists(status)) {
        if (!std::filesystem::is_regular_file(status)) {
            error_ = path_ + " is no regular file";
            return;
        }
        CutOff();
    }
    errno = 0;
    out_.open(path, std::ios::binary | std::ios::app);
    if (error_.empty() && !out_) {
        error_ = path_ + " cannot be written" + SystemReason();
    }
    rows_.open(path, std::ios::binary);
}

void Resume::CutOff() {
    errno = 0;
    const std::optional<std::uint64_t> length = WholeLength(path_);
    std::error_code error;
    if (!length) {
        error_ = path_ + " cannot be read" + SystemReason();
        return;
    }
    std::filesystem::resize_file(path_, *length, error);
    if (error) {
        error_ = path_ + " cannot be written: " + error.message();
    }
}

bool Resume::Has(const std::string& puzzle) {
    std::string row;
    if (!error_.empty() || !std::getline(rows_, row)) {
        return false;
    }
    if (row.find(puzzle) == row.npos) {
        error_ = path_ + " holds the results of another list, or of another command: " + row;
    }
    return error_.empty();
}

}  // namespace vemo
