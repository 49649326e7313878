// The rows of a grid as texts write them: nine cells, or nine groups of candidates, in a line.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "model/units.h"

namespace vemo {

inline constexpr std::size_t kRowCells = 9;
// Nine characters that stand for cells, or a blank.
using PlainCells = std::array<char, kRowCells>;

// Characters, looked up at once.
class CharacterSet {
  public:
    constexpr explicit CharacterSet(std::string_view characters) {
        for (char character : characters) {
            has_[static_cast<unsigned char>(character)] = true;
        }
    }
    constexpr bool Has(char character) const { return has_[static_cast<unsigned char>(character)]; }

  private:
    std::array<bool, 256> has_{};
};

// The text in ASCII as far as it matters here: blanks and full-width digits become the plain ones,
// drawn borders | - and +, dots and squares a dot; what has no width goes. Other characters stay.
std::string PlainText(std::string_view text);
// The same line where it is ASCII; otherwise a view of `scratch`, which holds it as PlainText.
std::string_view PlainLine(std::string_view line, std::string& scratch);

// The line up to a '#' or "//" that stands after a blank.
std::string_view WithoutTrailingComment(std::string_view line);

// A line that only frames the rows. One without crossings may as well be a row of empty cells.
enum class Borders : std::uint8_t { None, WithCrossings, All };
bool IsBorder(std::string_view line, Borders which);

// False where no reader of rows, and no border, can take the line.
bool MayBeRow(std::string_view line);

// Each reads a line of ASCII; nothing where it is no such row.

// Nine cells, anything between them a separator.
std::optional<PlainCells> PlainRow(std::string_view line);
// Nine characters, bars aside, of which blanks are empty cells.
std::optional<PlainCells> RowWithBlanks(std::string_view line);
// Nine fields between commas, semicolons or tabs, of which some are left empty.
std::optional<PlainCells> RowOfFields(std::string_view line);

struct CandidateGroup {
    std::optional<Marks> marks;  // nothing: not noted
    bool isEntered = false;      // 'u' stands before it: a digit of the player's
};
using CandidateRow = std::array<CandidateGroup, kRowCells>;

// A cell that can be nothing, where a character for an empty cell notes nothing.
inline constexpr char kNoCandidate = '~';

// Nine groups of digits, none twice in its group.
std::optional<CandidateRow> RowOfCandidates(std::string_view line);
// The same between commas, where an empty field notes nothing.
std::optional<CandidateRow> RowOfCandidateFields(std::string_view line);
// Nine groups of ascending digits: such a line is hardly 81 cells, though it may have as many.
bool LooksLikeCandidates(std::string_view line);

}  // namespace vemo
