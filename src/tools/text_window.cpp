// A stream of text seen through a window of bounded size.
#include "tools/text_window.h"

#include <algorithm>

namespace vemo {
namespace {

constexpr std::size_t kChunk = kTextAhead / 2;

void AppendUtf8(std::string& text, unsigned unit) {
    const auto append = [&](unsigned byte) { text += static_cast<char>(byte); };
    if (unit < 0x80) {
        append(unit);
    } else if (unit < 0x800) {
        append(0xC0 | unit >> 6);
        append(0x80 | (unit & 0x3F));
    } else {
        append(0xE0 | unit >> 12);
        append(0x80 | (unit >> 6 & 0x3F));
        append(0x80 | (unit & 0x3F));
    }
}

}  // namespace

void TextWindow::Begin() {
    isBegun_ = true;
    ReadMore();
    if (held_.starts_with("\xEF\xBB\xBF")) {
        at_ = 3;
    } else if (held_.starts_with("\xFF\xFE") || held_.starts_with("\xFE\xFF")) {
        encoding_ = held_[0] == '\xFF' ? Encoding::Utf16Little : Encoding::Utf16Big;
        const std::string bytes = held_.substr(2);
        held_.clear();
        AppendUtf16(bytes);
    }
}

std::string_view TextWindow::Ahead() {
    if (!isBegun_) {
        Begin();
    }
    while (!isAtEnd_ && held_.size() - at_ < kTextAhead) {
        held_.erase(0, at_);
        at_ = 0;
        ReadMore();
    }
    return std::string_view(held_).substr(at_);
}

// A chunk has an even number of bytes, so that no unit of UTF-16 is cut but the last of a file.
void TextWindow::ReadMore() {
    chunk_.resize(kChunk);
    in_->read(chunk_.data(), static_cast<std::streamsize>(kChunk));
    chunk_.resize(static_cast<std::size_t>(in_->gcount()));
    isAtEnd_ = chunk_.size() < kChunk;
    if (encoding_ == Encoding::Utf8) {
        held_ += chunk_;
    } else {
        AppendUtf16(chunk_);
    }
}

// Surrogates become characters that belong to no puzzle, and so does half a unit at the end.
void TextWindow::AppendUtf16(std::string_view bytes) {
    const std::size_t high = encoding_ == Encoding::Utf16Big ? 0 : 1;
    for (; bytes.size() >= 2; bytes.remove_prefix(2)) {
        AppendUtf8(held_, static_cast<unsigned>(static_cast<unsigned char>(bytes[high])) << 8 |
                              static_cast<unsigned char>(bytes[1 - high]));
    }
    held_ += bytes;
}

void TextWindow::MoveOn(std::size_t bytes) {
    for (char byte : std::string_view(held_).substr(at_, bytes)) {
        line_ += byte == '\r' || (byte == '\n' && !isAfterReturn_) ? 1 : 0;
        isAfterReturn_ = byte == '\r';
    }
    at_ += bytes;
    offset_ += bytes;
}

std::optional<std::string_view> LineCursor::Next() {
    const auto rest = text_.substr(offset_);
    const auto end = std::ranges::find_if(
        rest, [](char character) { return character == '\n' || character == '\r'; });
    const auto length = static_cast<std::size_t>(end - rest.begin());
    if (length == rest.size() && (end_ == TextEnd::CutLine || rest.empty())) {
        return std::nullopt;
    }
    const bool isPair = rest.substr(length).starts_with("\r\n");
    offset_ += std::min(length + (isPair ? 2 : 1), rest.size());
    return rest.substr(0, length);
}

}  // namespace vemo
