// The technique catalogue: forty slots, the steps of the ladder, and the kinds of hint, as three
// tables. Nothing elsewhere repeats what stands here.
//
// A technique is added by its search and texts in a family file and its rows here.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "model/sequence.h"
#include "solver/find.h"
#include "solver/techniques/families.h"

namespace vemo {

inline constexpr int kSlots = 40;
inline constexpr int kFirstTechniqueSlot = 3;  // slots 0..2 check the player's own entries
inline constexpr int kFirstMovableSlot = 8;    // slots 0..7 keep their places
inline constexpr int kLastMovableSlot = 38;    // slot 39 keeps the last place
inline constexpr int kNoSlot = -1;             // a search outside the ladder

// One row of the technique manager.
struct Slot {
    std::string_view caption;
    std::string_view tooltip;  // empty: none
};

// One call of a search, in the order of the ladder.
struct Step {
    int slot;
    Search search;  // null where there is a trial
    Args args;
    int level;                         // the rating level that a find applies
    Sequence<HintKind, 2> kinds;       // what it can find
    std::string_view statusText;       // while a hint or autosolve scans
    std::string_view batchStatusText;  // the suffix while a batch check scans
    int penalty;                       // seconds charged for a hint
    Trial trial = nullptr;             // instead of a search
};

// What the legend calls the candidates of a pattern, those in its one colour and those in its
// other.
struct ColorWords {
    std::string_view first = "pattern";
    std::string_view second = {};
};

std::span<const Slot, kSlots> Slots();
// The steps of slots 3..39 in the order of the catalogue.
std::span<const Step> Steps();
// The searches that stand in no ladder.
std::span<const Step> StepsOutsideTheLadder();

// The title of the find's kind and variant, "Naked Pair". A variant outside 1..n takes the last.
std::string_view HintTitle(const Find& find);
// All titles of a kind.
std::span<const std::string_view> HintTitles(HintKind kind);
ColorWords ColorWordsOf(const Find& find);
// The line of the solve log, without its line end.
std::string LogLine(const Find& find);
// The explanation, `SchrijfHint`'s text.
std::string HintText(const Find& find);

// "Solving Sudoku : Rated Easy or higher", at level 0 as at level 1; of an imported puzzle
// "Solving Imported Sudoku : Rated …".
enum class PuzzleOrigin : std::uint8_t { Own, Imported };
std::string BatchStatusText(int reachedLevel, PuzzleOrigin origin);

// "Sudoku solved and rated as Easy", levels 1..8.
std::string RatedText(int level);

}  // namespace vemo
