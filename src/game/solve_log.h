// The solve log: one text that grows until the program ends.
#pragma once

#include <string>
#include <string_view>

namespace vemo {

struct Stage;

class SolveLog {
  public:
    // Appends the text as it stands; line ends are CR LF.
    void AddText(std::string_view text) { text_ += text; }
    void AddLine(std::string_view line);

    const std::string& Text() const { return text_; }

  private:
    std::string text_;
};

// Saves the text as it stands in a file of the player's choice.
void SaveSolveLog(Stage& stage);

}  // namespace vemo
