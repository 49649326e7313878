// Results of an earlier run.
#include "cli/resume.h"

#include <cerrno>
#include <filesystem>
#include <ios>

namespace vemo {
namespace {

constexpr std::size_t kShownOfRow = 120;

}  // namespace

Resume::Resume(const std::string& path) : path_(path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (!std::filesystem::exists(status)) {
        return;
    }
    if (!std::filesystem::is_regular_file(status)) {
        error_ = path_ + " is no regular file";
        return;
    }
    errno = 0;
    rows_.open(path, std::ios::binary);
    if (!rows_) {
        error_ = path_ + " cannot be read" + SystemReason();
    }
}

std::optional<RowBeginning> Resume::Next(const RowBeginnings& beginnings) {
    std::string text;
    errno = 0;
    if (!error_.empty() || !rows_.is_open() || !std::getline(rows_, text)) {
        error_ = rows_.bad() ? path_ + " cannot be read" + SystemReason() : error_;
        return std::nullopt;
    }
    const bool isWhole = !rows_.eof();
    const std::string row = text + (isWhole ? "\n" : "");
    for (const RowBeginning& beginning : beginnings) {
        if (isWhole && row.starts_with(beginning.text)) {
            wholeLength_ += row.size();
            return beginning;
        }
        if (!isWhole && (row.starts_with(beginning.text) || beginning.text.starts_with(row))) {
            hasCutRow_ = true;
            return std::nullopt;
        }
    }
    error_ = path_ + " holds the results of another list, or of another command: " +
             text.substr(0, kShownOfRow);
    return std::nullopt;
}

void Resume::GoOn() {
    std::error_code error;
    if (!error_.empty()) {
        return;
    }
    rows_.close();
    if (hasCutRow_) {
        std::filesystem::resize_file(path_, wholeLength_, error);
    }
    errno = 0;
    out_.open(path_, std::ios::binary | std::ios::app);
    if (error || !out_) {
        error_ = path_ + " cannot be written" + (error ? ": " + error.message() : SystemReason());
    }
}

}  // namespace vemo
