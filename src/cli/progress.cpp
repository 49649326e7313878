// One line of progress on a terminal.
#include "cli/progress.h"

namespace vemo {

bool Progress::IsDue() {
    constexpr std::chrono::milliseconds kBetween{200};
    if (!isShown_ || Clock::now() - last_ < kBetween) {
        return false;
    }
    last_ = Clock::now();
    return true;
}

void Progress::Show(std::string_view text) {
    Clear();
    terminal_ << text << std::flush;
    width_ = text.size();
}

void Progress::Clear() {
    if (width_ > 0) {
        terminal_ << '\r' << std::string(width_, ' ') << '\r' << std::flush;
        width_ = 0;
    }
}

}  // namespace vemo
