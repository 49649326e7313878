// The text of the collection window: what was read and imported, and the steps of solved puzzles.
#pragma once

#include <string>
#include <string_view>

namespace vemo {

// Each line ends with CR LF. Reports of many lines are cut: what is left out is counted.
class CollectionLog {
  public:
    const std::string& Text() const { return text_; }
    void AddText(std::string_view text) { text_ += text; }
    void AddLine(std::string_view line);

    // Lines of which there can be any number, between these two.
    void BeginReport() { reported_ = 0; }
    void ReportLine(std::string_view line);
    // Tells how many lines were left out, where some were.
    void EndReport();

    void Clear() { text_.clear(); }

  private:
    std::string text_;
    std::size_t reported_ = 0;
};

}  // namespace vemo
