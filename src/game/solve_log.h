// The solve log: one text that grows until the program ends.
#pragma once

#include <string>
#include <string_view>

namespace vemo {

class SolveLog {
  public:
    // Appends the text as it stands; line ends are CR LF.
    void AddText(std::string_view text) { text_ += text; }
    void AddLine(std::string_view line);

    const std::string& Text() const { return text_; }

  private:
    std::string text_;
};

}  // namespace vemo
