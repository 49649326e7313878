// Reading a dropped text file.
#include "game/dropped_text.h"

#include <algorithm>

#include "tools/formats.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

namespace fs = std::filesystem;

bool IsTextFileName(const fs::path& path) {
    std::string extension = Utf8(path.extension());
    std::ranges::transform(extension, extension.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return extension == ".txt";
}

bool IsBinary(const Bytes& bytes) {
    return std::ranges::any_of(bytes, [](std::uint8_t byte) {
        const bool isBlank = byte >= '\t' && byte <= '\r';
        return byte < ' ' && !isBlank;
    });
}

// UTF-8 whatever the file held: a byte that belongs to no character becomes a question mark.
std::string TextOf(const Bytes& bytes) {
    const std::string content(bytes.begin(), bytes.end());
    std::string_view rest = WithoutByteOrderMark(content);
    std::string text;
    while (!rest.empty()) {
        const std::string_view character = rest.substr(0, FirstCharacterLength(rest));
        rest.remove_prefix(character.size());
        const bool isBroken =
            character.size() == 1 && static_cast<unsigned char>(character[0]) > 127;
        text += isBroken ? "?" : character;
    }
    return text;
}

DroppedText ReadFile(Files& files, const fs::path& path) {
    const std::string file = Utf8(path.filename());
    const std::optional<std::uint64_t> size = files.Size(path);
    if (size && *size > kMostOfFile) {
        return {"", "This file is too large to be a sudoku, it has more than 1 MB: " + file};
    }
    const std::optional<Bytes> bytes = size ? files.ReadAt(path, 0, kMostOfFile) : std::nullopt;
    if (!bytes) {
        return {"", "This file cannot be read: " + file};
    }
    if (bytes->empty()) {
        return {"", "This file is empty: " + file};
    }
    if (IsBinary(*bytes)) {
        return {"", "This file does not hold plain text: " + file};
    }
    return {TextOf(*bytes), ""};
}

}  // namespace

DroppedText ReadDroppedText(Files& files, const std::vector<fs::path>& paths) {
    std::error_code error;
    if (paths.size() > 1) {
        return {"", "Vemo Sudoku only allows 1 file at a time to drop!"};
    }
    if (fs::is_directory(paths.front(), error)) {
        return {"", "Vemo Sudoku don't allow maps to be dropped"};
    }
    if (!IsTextFileName(paths.front())) {
        return {"", "This file is not a txt-file (*.txt)"};
    }
    return ReadFile(files, paths.front());
}

}  // namespace vemo
