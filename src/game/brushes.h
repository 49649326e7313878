// What the player paints and draws on the board: colour brushes on cells and labels, links between
// pencil marks.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "game/screen.h"
#include "model/units.h"

namespace vemo {

enum class MouseButton : std::uint8_t { Left, Right };
// Where a button went up, seen from what it went down on.
enum class Released : std::uint8_t { Inside, Outside };

// An empty cell field of a link record.
inline constexpr int kNoLinkCell = 65535;

class Brushes {
  public:
    Brushes();

    // Arms the colour label for this button; the armed one is disarmed. A label armed for the other
    // button changes over to this one.
    void Arm(int color, MouseButton button);
    int Armed(MouseButton button) const;
    bool IsArmed() const { return left_ != kNoBrush || right_ != kNoBrush; }

    // Paints with the brush of this button, if one is armed, or takes the paint off where it is
    // that colour already.
    void PaintCell(int cell, MouseButton button);
    // The nine cells of a row or column and its label, which tells whether the paint is on. Taken
    // off, it goes from the cells that have this colour.
    void PaintUnit(UnitKind kind, int index, MouseButton button);

    int CellColor(int cell) const { return cells_[static_cast<std::size_t>(cell)]; }
    int LabelColor(UnitKind kind, int index) const;

    // All paint off; the armed brushes stay armed.
    void Clear();

  private:
    int left_ = kNoBrush;
    int right_ = kNoBrush;
    std::array<int, kCells> cells_;
    std::array<int, 18> labels_;  // rows, then columns
};

// Link mode: a click on one mark and then on another draws a line between them. The button of the
// second click makes it strong (left) or weak (right). The same pair again takes the line off; the
// same mark again takes back the begun link.
class Links {
  public:
    bool IsOn() const { return isOn_; }
    // A link begun goes, the links stay.
    void Toggle();
    // The start mark of a link begun, kNoLinkCell while there is none.
    int StartCell() const { return startCell_; }
    int StartDigit() const { return startDigit_; }

    void Click(int cell, int digit, MouseButton button);
    const std::vector<LinkView>& All() const { return links_; }
    // All links and one begun; the mode stays.
    void Clear();

  private:
    void ForgetStart();

    bool isOn_ = false;
    int startCell_ = kNoLinkCell;
    int startDigit_ = 0;
    std::vector<LinkView> links_;
};

}  // namespace vemo
