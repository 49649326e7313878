// The <game> of a .opensudoku file.
#include <algorithm>
#include <charconv>

#include "tools/file_formats.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

// The value of an attribute, as it is written; nothing where the tag has none of this name.
std::optional<std::string_view> AttributeOf(std::string_view tag, std::string_view name) {
    constexpr std::string_view kBlanks = " \t\r\n";
    for (std::size_t at = tag.find_first_of(kBlanks); at != tag.npos;) {
        at = tag.find_first_not_of(kBlanks, at);
        const std::size_t equals = tag.find('=', at);
        const std::size_t open = tag.find_first_of("\"'", equals);
        if (at == tag.npos || equals == tag.npos || open == tag.npos) {
            return std::nullopt;
        }
        const std::size_t close = tag.find(tag[open], open + 1);
        const std::string_view key = tag.substr(at, equals - at);
        if (key.substr(0, key.find_last_not_of(kBlanks) + 1) == name) {
            return tag.substr(open + 1, close == tag.npos ? close : close - open - 1);
        }
        at = close == tag.npos ? close : close + 1;
    }
    return std::nullopt;
}

// Without the line breaks, whether they stand as they are or as an entity.
std::string WithoutLineBreaks(std::string_view text) {
    static constexpr std::array<std::string_view, 8> kBreaks = {"\n",    "\r",    "&#10;", "&#13;",
                                                                "&#xA;", "&#xD;", "&#xa;", "&#xd;"};
    std::string plain;
    while (!text.empty()) {
        const auto found = std::ranges::find_if(
            kBreaks, [&](std::string_view part) { return text.starts_with(part); });
        if (found == kBreaks.end()) {
            plain += text.front();
        }
        text.remove_prefix(found == kBreaks.end() ? 1 : found->size());
    }
    return plain;
}

// "1,2,3,", or one number of which bit d-1 stands for the digit d, or "-": none is noted.
std::optional<Marks> NotesOf(std::string_view text) {
    Marks marks = 0;
    if (text.find(',') != text.npos) {
        for (char character : text) {
            marks |= DigitOf(character) == 0 ? Marks{0} : MarkOf(DigitOf(character));
        }
    } else {
        unsigned number = 0;
        std::from_chars(text.data(), text.data() + text.size(), number);
        marks = static_cast<Marks>(number << 1 & kAllMarks);
    }
    return marks == 0 ? std::nullopt : std::optional(marks);
}

// value|notes|editable| a cell, or with a second field of notes, which is not read.
FoundPuzzle ReadCells(std::string_view text) {
    std::vector<std::string_view> fields;
    while (!text.empty()) {
        fields.push_back(text.substr(0, text.find('|')));
        text.remove_prefix(std::min(fields.back().size() + 1, text.size()));
    }
    const std::size_t width = fields.size() / kCells;
    if (fields.size() % kCells != 0 || (width != 3 && width != 4)) {
        return {{},
                "the data of the game are " + std::to_string(fields.size()) +
                    " fields, which do not make 81 cells"};
    }
    FoundPuzzle found;
    for (std::size_t at = 0; at < kCells; ++at) {
        const std::string_view value = fields[at * width];
        const std::string_view editable = fields[at * width + width - 1];
        if (value.size() != 1 || (value[0] != '0' && DigitOf(value[0]) == 0)) {
            return {{}, "cell " + CellName(static_cast<int>(at)) + " of the game has no digit"};
        }
        found.grid.digits[at] = DigitOf(value[0]);
        if (found.grid.digits[at] == 0) {
            found.grid.marks[at] = NotesOf(fields[at * width + 1]);
        } else if (editable == "0" || editable == "false") {
            found.grid.givens.Add(static_cast<int>(at));
        }
    }
    return found;
}

}  // namespace

FoundPuzzle ReadGameTag(std::string_view tag) {
    const auto data = AttributeOf(tag, "data");
    if (!data) {
        return {{}, "a game without data"};
    }
    const std::string text = WithoutLineBreaks(*data);
    constexpr std::string_view kVersion = "version: ";
    if (text.starts_with(kVersion)) {
        // One digit of version, and the cells right behind it.
        return ReadCells(std::string_view(text).substr(std::min(kVersion.size() + 1, text.size())));
    }
    const auto wrong = std::ranges::find_if_not(text, IsCell);
    if (text.size() != kCells || wrong != text.end()) {
        return {{},
                "the data of the game are " + std::to_string(text.size()) +
                    " characters, not all 81 of them cells"};
    }
    Digits clues;
    std::ranges::transform(text, clues.begin(), DigitOf);
    return {OfClues(clues)};
}

}  // namespace vemo
