// One line of progress on a terminal, overwritten in place.
#pragma once

#include <chrono>
#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

namespace vemo {

class Progress {
  public:
    // Without a terminal there is nothing to overwrite: nothing is shown.
    Progress(std::ostream& terminal, bool isShown) : terminal_(terminal), isShown_(isShown) {}
    ~Progress() { Clear(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    // Whether the time has come to show something again, a few times a second.
    bool IsDue();
    void Show(std::string_view text);
    // Makes room for a message.
    void Clear();

  private:
    using Clock = std::chrono::steady_clock;

    std::ostream& terminal_;
    bool isShown_;
    Clock::time_point last_ = Clock::now();
    std::size_t width_ = 0;
};

}  // namespace vemo
