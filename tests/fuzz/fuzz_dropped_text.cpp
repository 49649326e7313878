// Any bytes as a text file that is dropped: it is refused with a reason, or its text is UTF-8 that
// can be dropped again.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "game/dropped_text.h"
#include "target.h"
#include "tools/formats.h"

namespace vemo {
namespace {

// One file, whatever its name; nothing can be written.
class OneFile final : public Files {
  public:
    explicit OneFile(std::span<const std::uint8_t> content) : content_(content) {}

    std::optional<std::uint64_t> Size(const std::filesystem::path&) override {
        return content_.size();
    }
    std::optional<Bytes> ReadAt(const std::filesystem::path&, std::uint64_t offset,
                                std::size_t length) override {
        const auto start = std::min(static_cast<std::size_t>(offset), content_.size());
        const auto part = content_.subspan(start, std::min(length, content_.size() - start));
        return Bytes(part.begin(), part.end());
    }
    std::optional<FileError> WriteAt(const std::filesystem::path& path, std::uint64_t,
                                     std::span<const std::uint8_t>) override {
        return FileError{path, "cannot be written"};
    }
    std::optional<FileError> Replace(const std::filesystem::path& path,
                                     std::span<const std::uint8_t>) override {
        return FileError{path, "cannot be written"};
    }
    std::optional<FileError> CopyIfMissing(const std::filesystem::path&,
                                           const std::filesystem::path& to) override {
        return FileError{to, "cannot be written"};
    }
    std::optional<FileError> MakeFolder(const std::filesystem::path& path) override {
        return FileError{path, "cannot be made"};
    }

  private:
    std::span<const std::uint8_t> content_;
};

DroppedText Dropped(std::span<const std::uint8_t> content) {
    OneFile file(content);
    return ReadDroppedText(file, {"dropped.txt"});
}

}  // namespace

void Check(std::span<const std::uint8_t> content) {
    const DroppedText dropped = Dropped(content);
    if (!dropped.error.empty()) {
        Require(dropped.text.empty(), "what is refused has no text");
        return;
    }
    for (std::string_view rest = dropped.text; !rest.empty();) {
        const std::size_t length = FirstCharacterLength(rest);
        Require(length > 1 || static_cast<unsigned char>(rest[0]) < 128, "the text is UTF-8");
        rest.remove_prefix(length);
    }
    const Bytes bytes(dropped.text.begin(), dropped.text.end());
    const bool hasMark = dropped.text.starts_with("\xEF\xBB\xBF");
    Require(hasMark || dropped.text == Dropped(bytes).text, "a text that was read is read again");
}

}  // namespace vemo
