// Lines of a list.
#include "cli/line_source.h"

#include <cerrno>
#include <filesystem>
#include <ios>
#include <limits>

#include "tools/puzzle_line.h"
#include "tools/threads.h"

namespace vemo {

LineSource::LineSource(const std::string& name, Streams& streams)
    : name_(name == "-" ? "standard input" : name),
      streams_(streams),
      in_(name == "-" ? streams.in : file_) {
    if (name != "-") {
        errno = 0;
        file_.open(name, std::ios::binary);
    }
}

bool LineSource::IsOpen() {
    const bool isOpen = &in_ != &file_ || file_.is_open();
    if (!isOpen) {
        Tell(streams_, name_ + " cannot be opened" + SystemReason());
    }
    return isOpen;
}

std::optional<int> LineSource::Threads(const Arguments& arguments, std::string& error) const {
    std::error_code none;
    const bool isFile = &in_ == &file_ && std::filesystem::is_regular_file(name_, none);
    int threads = isFile ? DefaultThreads() : 1;
    error = ReadNumberOf(arguments, kThreadsOption, 1, kMostThreads, threads);
    return error.empty() ? std::optional(threads) : std::nullopt;
}

std::optional<Lines> LineSource::Next(std::size_t most) {
    Lines lines;
    do {
        Line line;
        if (streams_.isInterrupted() || !ReadLine(line)) {
            break;
        }
        if (line.isTooLong || !IsBlankOrComment(line.text)) {
            lines.push_back(std::move(line));
        }
    } while (lines.empty() || (lines.size() < most && in_.rdbuf()->in_avail() > 0));
    return lines.empty() ? std::nullopt : std::optional(std::move(lines));
}

bool LineSource::IsFine() {
    if (in_.bad()) {
        Tell(streams_, name_ + " cannot be read" + SystemReason());
    }
    return !in_.bad();
}

bool LineSource::ReadLine(Line& line) {
    errno = 0;
    in_.getline(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
    const std::streamsize taken = in_.gcount();
    if (in_.bad() || (in_.eof() && taken == 0)) {
        return false;
    }
    line.number = ++number_;
    line.isTooLong = in_.fail();
    // A line end is counted, but not kept.
    const bool hasEnd = !in_.eof() && !line.isTooLong;
    line.text.assign(buffer_.data(), static_cast<std::size_t>(taken) - (hasEnd ? 1 : 0));
    if (line.isTooLong) {
        in_.clear();
        in_.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    }
    return true;
}

}  // namespace vemo
