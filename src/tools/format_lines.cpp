// The formats that write a puzzle in one line.
#include <algorithm>
#include <array>

#include "solver/text.h"
#include "tools/file_formats.h"
#include "tools/puzzle_line.h"
#include "tools/text_rows.h"

namespace vemo {
namespace {

constexpr CharacterSet kTokenEnds(" \t,;|\"'=/\\?&()[]{}<>:");
constexpr CharacterSet kFieldEnds(",;\t");
constexpr std::size_t kMarkCells = kCells * kDigits;
// From so many cells on, a line is told that it is a puzzle with a cell too few or too many.
constexpr std::size_t kNearlyPuzzle = 60;
constexpr std::size_t kShownOfLine = 30;

using Table = std::array<std::optional<Marks>, kCells>;

std::size_t Index(int cell) {
    return static_cast<std::size_t>(cell);
}

bool IsAllCells(std::string_view text) {
    return std::ranges::all_of(text, IsCell);
}

Digits DigitsOfText(std::string_view cells) {
    Digits digits;
    std::ranges::transform(cells, digits.begin(), DigitOf);
    return digits;
}

FoundPuzzles OnePuzzle(FileFormat format, WrittenGrid grid) {
    return {format, {{std::move(grid)}}};
}

// Calls `take` with each part of the line between two of the ends, until it answers false.
template <typename Take>
void ForEachPart(std::string_view line, const CharacterSet& ends, Take take) {
    std::size_t start = 0;
    for (std::size_t at = 0; at <= line.size(); ++at) {
        if (at < line.size() && !ends.Has(line[at])) {
            continue;
        }
        if (!take(line.substr(start, at - start))) {
            return;
        }
        start = at + 1;
    }
}

std::vector<std::string_view> PartsOf(std::string_view line, const CharacterSet& ends) {
    std::vector<std::string_view> parts;
    ForEachPart(line, ends, [&](std::string_view part) {
        parts.push_back(part);
        return true;
    });
    return parts;
}

bool IsFull(const Digits& digits) {
    return std::ranges::find(digits, 0) == digits.end();
}

// The puzzle that the texts of 81 cells from `next` on begin with: one alone, with its solution, or
// with a position of it, in either order.
WrittenGrid TakePuzzle(const std::vector<Digits>& texts, std::size_t& next) {
    Digits clues = texts[next++];
    Digits digits = clues;
    if (next < texts.size() && Contains(texts[next], clues)) {
        digits = texts[next++];
    } else if (next < texts.size() && Contains(clues, texts[next])) {
        clues = texts[next++];
    }
    while (next < texts.size() && IsFull(texts[next]) && Contains(texts[next], digits)) {
        ++next;
    }
    WrittenGrid grid = OfClues(clues);
    grid.digits = IsFull(digits) ? clues : digits;
    return grid;
}

// 729 characters, of which the k-th of a cell's nine is the digit k or stands for its absence.
std::optional<WrittenGrid> ReadMarks(std::string_view text) {
    Table table;
    for (std::size_t at = 0; at < kMarkCells; ++at) {
        const int digit = static_cast<int>(at % kDigits) + 1;
        Marks& marks = table[at / kDigits] ? *table[at / kDigits] : table[at / kDigits].emplace(0);
        if (DigitOf(text[at]) == digit) {
            marks |= MarkOf(digit);
        } else if (DigitOf(text[at]) != 0) {
            return std::nullopt;
        }
    }
    return OfCandidates(table);
}

// The texts of 81 or 729 cells that stand by themselves anywhere in the line.
std::optional<FoundPuzzles> ReadTokens(std::string_view line) {
    std::vector<Digits> texts;
    std::optional<WrittenGrid> marks;
    ForEachPart(line, kTokenEnds, [&](std::string_view token) {
        if (token.size() == kCells && IsAllCells(token)) {
            texts.push_back(DigitsOfText(token));
        } else if (token.size() == kMarkCells && IsAllCells(token)) {
            marks = ReadMarks(token);
        }
        return !marks;
    });
    if (marks) {
        return OnePuzzle(FileFormat::Digits729, *marks);
    }
    if (texts.empty()) {
        return std::nullopt;
    }
    FoundPuzzles found;
    if (line.find("://") != line.npos || line.find("bd=") != line.npos ||
        line.find("/play/") != line.npos) {
        found.format = FileFormat::Link;
    } else if (std::ranges::any_of(line, [](char end) { return kFieldEnds.Has(end); })) {
        found.format = FileFormat::Table;
    }
    for (std::size_t next = 0; next < texts.size();) {
        found.puzzles.push_back({TakePuzzle(texts, next)});
    }
    return found;
}

// Three digits each: digit, row, column.
std::optional<std::string> TakeDeleted(std::string_view triplets, WrittenGrid& grid) {
    const Grid legal = MakeGrid(grid);
    std::optional<std::string> error;
    ForEachPart(triplets, CharacterSet(" "), [&](std::string_view part) {
        if (part.empty()) {
            return true;
        }
        if (part.size() != 3 || std::ranges::count_if(part, DigitOf) != 3) {
            error = "the deleted candidate \"" + std::string(part.substr(0, kShownOfLine)) +
                    "\" of the library line is not digit, row and column";
            return false;
        }
        const int cell = RowColumnCell(DigitOf(part[1]) - 1, DigitOf(part[2]) - 1);
        auto& marks = grid.marks[Index(cell)];
        marks = static_cast<Marks>(marks.value_or(legal.MarksAt(cell)) & ~MarkOf(DigitOf(part[0])));
        return true;
    });
    return error;
}

// `:code:digits:grid:deleted:eliminations:placements:`, where '+' stands before a player's digit.
std::optional<FoundPuzzles> ReadLibraryLine(std::string_view line) {
    constexpr std::size_t kGridField = 3;
    if (!line.starts_with(':')) {
        return std::nullopt;
    }
    const std::vector<std::string_view> fields = PartsOf(line, CharacterSet(":"));
    if (fields.size() <= kGridField) {
        return std::nullopt;
    }
    WrittenGrid grid;
    std::size_t count = 0;
    bool isEntered = false;
    for (char character : fields[kGridField]) {
        if (character == '+') {
            isEntered = true;
            continue;
        }
        if (!IsCell(character)) {
            return std::nullopt;
        }
        if (count < kCells && DigitOf(character) != 0) {
            grid.digits[count] = DigitOf(character);
            if (!isEntered) {
                grid.givens.Add(static_cast<int>(count));
            }
        }
        isEntered = false;
        ++count;
    }
    if (count != kCells) {
        return Rejected("the grid of the library line has " + std::to_string(count) +
                            " cells where a puzzle has 81",
                        0);
    }
    if (fields.size() > kGridField + 1) {
        if (const auto error = TakeDeleted(fields[kGridField + 1], grid)) {
            return Rejected(*error, 0);
        }
    }
    return OnePuzzle(FileFormat::LibraryLine, grid);
}

// Our own lines of a position: grid, marks, givens.
std::optional<FoundPuzzles> ReadPosition(std::string_view line) {
    if (line.size() <= kCells + 1 || line[kCells] != '\t' || !IsAllCells(line.substr(0, kCells))) {
        return std::nullopt;
    }
    const std::string_view rest = line.substr(kCells + 1);
    const std::string_view marks = rest.substr(0, rest.find('\t'));
    const bool isPosition =
        marks.empty() ? rest.size() == kCells + 1 : marks.find(',') != marks.npos;
    if (!isPosition || marks.find_first_not_of("123456789,") != marks.npos) {
        return std::nullopt;
    }
    const PositionLine position = ReadPositionLine(line);
    if (position.IsPosition()) {
        WrittenGrid grid{position.grid.AllDigits(), position.grid.Givens(), {}};
        for (int cell : position.grid.EmptyCells()) {
            grid.marks[Index(cell)] = position.grid.MarksAt(cell);
        }
        return OnePuzzle(FileFormat::Position, grid);
    }
    const PuzzleLine puzzle = ReadPuzzleLine(line);
    return puzzle.IsPuzzle() ? OnePuzzle(FileFormat::Position, OfClues(puzzle.clues))
                             : Rejected(puzzle.error, 0);
}

// 81 cells with anything between them that separates, or 81 fields of which some are empty.
std::optional<FoundPuzzles> ReadSpacedCells(std::string_view line) {
    std::string cells;
    bool isSpaced = true;
    for (char character : line) {
        if (IsCell(character)) {
            cells += character;
        } else if (character != '"' && character != '|' && character != ' ' &&
                   !kFieldEnds.Has(character)) {
            isSpaced = false;
        }
    }
    if (!isSpaced || LooksLikeCandidates(line)) {
        return std::nullopt;
    }
    if (cells.size() == kCells) {
        return OnePuzzle(FileFormat::Line, OfClues(DigitsOfText(cells)));
    }
    const std::vector<std::string_view> fields = PartsOf(line, kFieldEnds);
    if (fields.size() != kCells) {
        return std::nullopt;
    }
    Digits clues{};
    for (std::size_t at = 0; at < kCells; ++at) {
        const std::string_view field = fields[at];
        const auto digit = std::ranges::find_if(field, IsCell);
        if (std::ranges::count_if(field, IsCell) > 1) {
            return std::nullopt;
        }
        clues[at] = digit == field.end() ? std::uint8_t{0} : DigitOf(*digit);
    }
    return OnePuzzle(FileFormat::Table, OfClues(clues));
}

bool HasDigit(std::string_view text) {
    return std::ranges::any_of(text, [](char character) { return DigitOf(character) != 0; });
}

std::string Cells(std::size_t count) {
    return std::to_string(count) + " cells where a puzzle has 81";
}

std::string Quoted(std::string_view line) {
    std::string text;
    for (char character : line.substr(0, kShownOfLine)) {
        text += character >= ' ' && character <= '~' ? character : '?';
    }
    return '"' + text + (line.size() > kShownOfLine ? "..." : "") + '"';
}

}  // namespace

std::optional<FoundPuzzles> ReadPuzzlesOfLine(std::string_view line) {
    if (line.size() == kCells && IsAllCells(line) && HasDigit(line)) {
        return OnePuzzle(FileFormat::Line, OfClues(DigitsOfText(line)));
    }
    if (IsBorder(line, Borders::All)) {
        return std::nullopt;
    }
    for (auto read : {ReadLibraryLine, ReadPosition}) {
        if (auto found = read(line)) {
            return found;
        }
    }
    const std::string_view text = WithoutTrailingComment(line);
    // What looks like a comment may be the number in a puzzle's name.
    for (std::string_view part : {text, line}) {
        if (auto found = ReadTokens(part)) {
            return found;
        }
    }
    if (auto found = ReadSpacedCells(text)) {
        return found;
    }
    return LooksLikeCandidates(text) ? std::nullopt : ReadLineWithBlanks(line);
}

std::optional<FoundPuzzles> ReadLineWithBlanks(std::string_view line) {
    const auto isPuzzle = [](std::string_view text) {
        return text.size() == kCells && HasDigit(text) &&
               std::ranges::all_of(
                   text, [](char character) { return character == ' ' || IsCell(character); });
    };
    const std::string_view start = line.substr(0, kCells);
    const std::string_view rest = line.substr(start.size());
    const std::size_t next = std::min(rest.find_first_not_of(" \t"), rest.size());
    const bool isAlone = next == rest.size() || (next > 0 && rest[next] == '#');
    if (isAlone && isPuzzle(start)) {
        return OnePuzzle(FileFormat::Line, OfClues(DigitsOfText(start)));
    }
    for (std::string_view field : PartsOf(line, kFieldEnds)) {
        if (field.size() == kCells + 2 && field.front() == '"' && field.back() == '"') {
            field = field.substr(1, kCells);
        }
        if (field.size() != line.size() && isPuzzle(field)) {
            return OnePuzzle(FileFormat::Table, OfClues(DigitsOfText(field)));
        }
    }
    return std::nullopt;
}

std::string WhyNoPuzzle(std::string_view line) {
    std::string why;
    ForEachPart(WithoutTrailingComment(line), kTokenEnds, [&](std::string_view token) {
        const auto wrong = std::ranges::find_if_not(token, IsCell);
        if (token.size() < kNearlyPuzzle || !HasDigit(token)) {
            return true;
        }
        if (wrong == token.end() && token.size() == kMarkCells) {
            why = "729 characters that are not the digits 1 to 9 of each cell";
        } else if (wrong == token.end()) {
            why = Cells(token.size());
        } else if (token.size() == kCells) {
            why = "cell " + CellName(static_cast<int>(wrong - token.begin())) + " is " +
                  Quoted(std::string_view(&*wrong, 1)) + ", neither a digit nor a blank";
        }
        return why.empty();
    });
    return why.empty() ? "no puzzle: " + Quoted(line) : why;
}

bool IsTableHeader(std::string_view line) {
    static constexpr std::array<std::string_view, 9> kColumns = {
        "puzzle", "sudoku", "quiz", "grid", "clues", "givens", "board", "problem", "question"};
    constexpr std::size_t kLongestHeaderLine = 500;
    if (line.size() > kLongestHeaderLine) {
        return false;
    }
    std::string lower;
    for (char character : line) {
        lower += character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A'))
                                                      : character;
    }
    return std::ranges::any_of(
        kColumns, [&](std::string_view column) { return lower.find(column) != lower.npos; });
}

}  // namespace vemo
