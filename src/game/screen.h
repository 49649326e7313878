// Everything that the player sees of the main window, as a plain value. The game makes it anew
// after every event; a front end paints it and knows no rule of the game.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "game/menu_ids.h"
#include "model/units.h"

namespace vemo {

inline constexpr int kBrushes = 10;
inline constexpr int kNoBrush = -1;
inline constexpr int kNoCell = -1;

// The part that a candidate or a cell plays in the hint on display. Each has a shape of its own
// beside its colour.
enum class Role : std::uint8_t {
    None,
    Pattern,   // filled round: the pattern, or its one colour
    Second,    // outlined square: its other colour
    Attacked,  // struck through: goes
    Placed,    // filled round with a ring: comes
};

struct CellView {
    int digit = 0;  // 0: empty
    bool isClue = false;
    bool isHintCell = false;  // tinted: the explanation speaks of it
    bool isUnitTint = false;  // lightly tinted: in a row, column or box of the explanation
    bool isWrong = false;     // the digit itself is reported as wrong
    int brush = kNoBrush;
    bool isSameDigit = false;  // holds the digit that is highlighted
    bool isDimmed = false;     // holds another digit while a filter is on
};

struct MarkView {
    bool isShown = false;
    bool isDimmed = false;
    bool isFiltered = false;  // stands out: of the digit whose filter is on, or a link begun here
    Role role = Role::None;
};

struct LabelView {
    bool isRed = false;
    int brush = kNoBrush;
};

struct LinkView {
    int fromCell = 0;
    int fromDigit = 0;
    int toCell = 0;
    int toDigit = 0;
    bool isStrong = false;
    bool isDirected = false;  // with an arrow head at its end

    bool operator==(const LinkView&) const = default;
};

struct CommandView {
    bool isEnabled = false;
    bool isChecked = false;
};

struct LinkLook {
    bool isStrong = false;
    bool isDirected = false;

    bool operator==(const LinkLook&) const = default;
};

// One entry of the legend that explains what is drawn on the board, a role's or a link's: "goes".
struct LegendEntry {
    Role role = Role::None;
    std::string text;
    std::optional<LinkLook> link = {};

    bool operator==(const LegendEntry&) const = default;
};

inline constexpr std::size_t kStatusPanels = 5;

struct Screen {
    std::array<CellView, kCells> cells{};
    std::array<std::array<MarkView, kDigits>, kCells> marks{};  // [cell][digit - 1]
    bool isBoardEnabled = false;
    bool isBoardCovered = false;  // the clock is stopped by the player: the board is hidden
    bool isMaking = false;        // a puzzle is made: its text box is shown, on with the board
    std::string sudTekst;         // the text of that box, UTF-8
    int selectedCell = kNoCell;
    std::vector<LinkView> links;

    std::array<LabelView, 9> rowLabels{};
    std::array<LabelView, 9> columnLabels{};
    bool areWellsShown = false;
    std::array<Marks, 9> rowWells{};  // the digits that the unit holds
    std::array<Marks, 9> columnWells{};

    int leftBrush = kNoBrush;
    int rightBrush = kNoBrush;
    bool isLinkMode = false;
    bool isBrushPointer = false;  // the mouse pointer is the brush
    int digitFilter = 0;          // 0: off

    std::string hintCaption;  // "Hint - Naked Pair"; empty: no hint on display
    std::string textHint;     // the small hint text box
    std::vector<LegendEntry> legend;
    std::string hintButton;  // the caption of CommandHint
    bool canApply = false;   // the hint on display can be applied
    bool hasHelpOnHint = false;

    std::string stepText;  // LabelStap
    std::string timeText;  // LabelTijd, "mm:ss"
    bool isClockShown = false;
    bool isClockStopped = false;
    std::array<std::string, kStatusPanels> status{};

    std::array<CommandView, kCommands> commands{};
    const CommandView& Command(CommandId id) const {
        return commands[static_cast<std::size_t>(id)];
    }
};

}  // namespace vemo
