// A stream of text seen through a window of bounded size, and the lines in that window.
#pragma once

#include <cstddef>
#include <cstdint>
#include <istream>
#include <optional>
#include <string>
#include <string_view>

namespace vemo {

// No line is read that is longer than this, and no puzzle.
inline constexpr std::size_t kTextAhead = 65536;

// Moves on through a stream and holds what lies ahead.
class TextWindow {
  public:
    // A byte-order mark in front is left out; UTF-16 with one becomes UTF-8.
    explicit TextWindow(std::istream& in) : in_(&in) {}

    // At least kTextAhead bytes from here on, or all that are left.
    std::string_view Ahead();
    // Ahead() reaches to the end of the stream.
    bool IsToEnd() const { return isAtEnd_; }
    // Forward by so many bytes, no more than are ahead.
    void MoveOn(std::size_t bytes);
    // How many bytes were moved over.
    std::uint64_t Offset() const { return offset_; }
    // The number of the line, from 1, that begins here or goes on here.
    std::int64_t Line() const { return line_; }

  private:
    enum class Encoding : std::uint8_t { Utf8, Utf16Little, Utf16Big };

    void Begin();
    void ReadMore();
    void AppendUtf16(std::string_view bytes);

    std::istream* in_;
    Encoding encoding_ = Encoding::Utf8;
    std::string held_;
    std::string chunk_;
    std::size_t at_ = 0;
    bool isBegun_ = false;
    bool isAtEnd_ = false;
    bool isAfterReturn_ = false;  // the last byte moved over is CR: an LF now ends no further line
    std::uint64_t offset_ = 0;
    std::int64_t line_ = 1;
};

// Goes through the lines of a text, which end with LF, CR LF or CR. A value: a copy goes its own
// way.
class LineCursor {
  public:
    enum class TextEnd : std::uint8_t { LastLine, CutLine };

    // CutLine: the text goes on elsewhere, so that what follows the last line's end is no line.
    LineCursor(std::string_view text, TextEnd end) : text_(text), end_(end) {}

    // The next line without its end; nothing where none is left.
    std::optional<std::string_view> Next();
    // Bytes from the text's beginning to where the next line begins.
    std::size_t Offset() const { return offset_; }

  private:
    std::string_view text_;
    TextEnd end_;
    std::size_t offset_ = 0;
};

}  // namespace vemo
