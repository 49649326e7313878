// The rows of a grid as texts write them.
#include "tools/text_rows.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "tools/formats.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

constexpr CharacterSet kCellSeparators(" \t|,;:+!");
constexpr std::string_view kGroupSeparators = " \t|,;:+!(){}[]<>\"'";
constexpr std::string_view kFieldSeparators = ",;\t";
constexpr std::string_view kBorderCharacters = " \t|:+-=*.'`,";

// The code point of a whole UTF-8 character; 0 for a byte that belongs to none.
unsigned CodePoint(std::string_view character) {
    const auto first = static_cast<unsigned char>(character[0]);
    if (character.size() == 1) {
        return first < 0x80 ? first : 0;
    }
    unsigned code = first & (0x7Fu >> character.size());
    for (char byte : character.substr(1)) {
        code = code << 6 | (static_cast<unsigned char>(byte) & 0x3F);
    }
    return code;
}

// U+2500 to U+257F.
char PlainBorder(unsigned code) {
    static constexpr std::array<unsigned, 5> kHorizontal = {0x2500, 0x2501, 0x2550, 0x2504, 0x2508};
    static constexpr std::array<unsigned, 5> kVertical = {0x2502, 0x2503, 0x2551, 0x2506, 0x250A};
    if (std::ranges::find(kHorizontal, code) != kHorizontal.end()) {
        return '-';
    }
    return std::ranges::find(kVertical, code) != kVertical.end() ? '|' : '+';
}

bool IsWithin(unsigned code, unsigned first, unsigned last) {
    return code >= first && code <= last;
}

// The plain characters for one that is not ASCII; nothing where it has none.
std::optional<std::string_view> PlainCharacter(unsigned code) {
    static constexpr std::string_view kPlain = "0123456789|-+";
    const auto plain = [](char character) { return kPlain.substr(kPlain.find(character), 1); };
    if (IsWithin(code, 0x2500, 0x257F)) {
        return plain(PlainBorder(code));
    }
    if (IsWithin(code, 0xFF10, 0xFF19)) {
        return kPlain.substr(code - 0xFF10, 1);
    }
    if (code == 0xA0 || IsWithin(code, 0x2000, 0x200A) || code == 0x202F || code == 0x205F ||
        code == 0x3000) {
        return " ";
    }
    if (IsWithin(code, 0x200B, 0x200F) || code == 0x2060 || code == 0xFEFF) {
        return "";
    }
    if (code == 0xB7 || code == 0x2022 || code == 0x2219 || code == 0x22C5 || code == 0x25A1 ||
        code == 0xFF0E) {
        return ".";
    }
    return IsWithin(code, 0x2010, 0x2015) || code == 0x2212 ? std::optional(plain('-'))
                                                            : std::nullopt;
}

bool IsAscii(char character) {
    return static_cast<unsigned char>(character) < 0x80;
}

std::string_view Trimmed(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

// The parts between the separators; nothing unless there are nine.
std::optional<std::array<std::string_view, kRowCells>> NineFields(std::string_view line,
                                                                  std::string_view separators) {
    std::array<std::string_view, kRowCells> fields;
    for (std::string_view& field : fields) {
        if (line.data() == nullptr) {
            return std::nullopt;
        }
        const std::size_t end = line.find_first_of(separators);
        field = Trimmed(line.substr(0, end));
        line = end == line.npos ? std::string_view() : line.substr(end + 1);
    }
    return line.data() == nullptr ? std::optional(fields) : std::nullopt;
}

std::optional<CandidateGroup> GroupOf(std::string_view text) {
    CandidateGroup group;
    if (text.size() == 1 && DigitOf(text[0]) == 0) {
        if (text[0] == kNoCandidate) {
            group.marks = Marks{0};
            return group;
        }
        return IsCell(text[0]) ? std::optional(group) : std::nullopt;
    }
    if (text.size() == 2 && (text[0] == 'u' || text[0] == 'U')) {
        group.isEntered = true;
        text.remove_prefix(1);
    }
    Marks marks = 0;
    for (char character : text) {
        const int digit = DigitOf(character);
        if (digit == 0 || HasMark(marks, digit)) {
            return std::nullopt;
        }
        marks |= MarkOf(digit);
    }
    group.marks = marks;
    return group;
}

}  // namespace

std::string PlainText(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        const std::string_view character = text.substr(0, FirstCharacterLength(text));
        text.remove_prefix(character.size());
        plain += IsAscii(character[0]) ? character
                                       : PlainCharacter(CodePoint(character)).value_or(character);
    }
    return plain;
}

std::string_view PlainLine(std::string_view line, std::string& scratch) {
    if (std::ranges::all_of(line, IsAscii)) {
        return line;
    }
    scratch = PlainText(line);
    return scratch;
}

std::string_view WithoutTrailingComment(std::string_view line) {
    for (std::string_view mark : {" #", "\t#", " //", "\t//"}) {
        line = line.substr(0, line.find(mark));
    }
    return line;
}

bool IsBorder(std::string_view line, Borders which) {
    if (which == Borders::None || line.find_first_not_of(kBorderCharacters) != line.npos) {
        return false;
    }
    const bool hasRun = line.find("---") != line.npos || line.find("===") != line.npos;
    return hasRun && (which == Borders::All || line.find_first_of("+=") != line.npos);
}

bool MayBeRow(std::string_view line) {
    static constexpr CharacterSet kOfRows("0123456789.0*_-xX \t|,;:+!(){}[]<>\"'=`uU~");
    const auto isOfRow = [](char character) { return kOfRows.Has(character); };
    return std::ranges::all_of(line, isOfRow) ||
           std::ranges::all_of(WithoutTrailingComment(line), isOfRow);
}

std::optional<PlainCells> PlainRow(std::string_view line) {
    PlainCells cells;
    std::size_t count = 0;
    for (char character : line) {
        if (!IsCell(character)) {
            if (!kCellSeparators.Has(character)) {
                return std::nullopt;
            }
            continue;
        }
        if (count == kRowCells) {
            return std::nullopt;
        }
        cells[count++] = character;
    }
    return count == kRowCells ? std::optional(cells) : std::nullopt;
}

std::optional<PlainCells> RowWithBlanks(std::string_view line) {
    PlainCells cells;
    std::size_t count = 0;
    for (char character : line) {
        if (character == '|') {
            continue;
        }
        if (count == kRowCells || (character != ' ' && !IsCell(character))) {
            return std::nullopt;
        }
        cells[count++] = character;
    }
    return count == kRowCells ? std::optional(cells) : std::nullopt;
}

std::optional<PlainCells> RowOfFields(std::string_view line) {
    const auto fields = NineFields(line, kFieldSeparators);
    if (!fields) {
        return std::nullopt;
    }
    PlainCells cells;
    auto next = cells.begin();
    for (std::string_view field : *fields) {
        if (field.size() > 1 || (field.size() == 1 && !IsCell(field[0]))) {
            return std::nullopt;
        }
        *next++ = field.empty() ? ' ' : field[0];
    }
    return cells;
}

std::optional<CandidateRow> RowOfCandidates(std::string_view line) {
    CandidateRow row;
    std::size_t count = 0;
    for (std::size_t at = line.find_first_not_of(kGroupSeparators); at != line.npos;
         at = line.find_first_not_of(kGroupSeparators, at)) {
        const std::size_t end = std::min(line.find_first_of(kGroupSeparators, at), line.size());
        const auto group = GroupOf(line.substr(at, end - at));
        if (!group || count == kRowCells) {
            return std::nullopt;
        }
        row[count++] = *group;
        at = end;
    }
    return count == kRowCells ? std::optional(row) : std::nullopt;
}

std::optional<CandidateRow> RowOfCandidateFields(std::string_view line) {
    const auto fields = NineFields(line, ",");
    if (!fields) {
        return std::nullopt;
    }
    CandidateRow row;
    auto next = row.begin();
    for (std::string_view field : *fields) {
        const auto group = field.empty() ? std::optional(CandidateGroup{}) : GroupOf(field);
        if (!group) {
            return std::nullopt;
        }
        *next++ = *group;
    }
    return row;
}

bool LooksLikeCandidates(std::string_view line) {
    const bool isAscending = std::ranges::adjacent_find(line, [](char left, char right) {
                                 return DigitOf(right) != 0 && DigitOf(left) >= DigitOf(right);
                             }) == line.end();
    return isAscending && RowOfCandidates(line);
}

}  // namespace vemo
