// The technique manager: which techniques the player's ladder uses, in which order, and where
// Autosolve halts. Every change acts at once.
#pragma once

#include <array>
#include <string_view>

#include "solver/catalogue.h"
#include "solver/settings.h"

namespace vemo {

// One technique, as its row shows it.
struct TechniqueRow {
    int slot = 0;
    std::string_view caption;
    std::string_view tooltip;  // empty: none
    bool isIncluded = false;
    bool canInclude = false;  // else it is always part of the ladder
    bool isHalting = false;
    bool canHalt = false;
    bool canMove = false;

    bool operator==(const TechniqueRow&) const = default;
};

class SolveTech {
  public:
    // The settings outlive the manager.
    explicit SolveTech(TechniqueSettings& settings) : settings_(settings) {}

    // By position, from the top.
    std::array<TechniqueRow, kSlots> Rows() const;
    // The row that the buttons move, 8..38.
    int Position() const { return position_; }
    bool CanGoUp() const { return position_ > kFirstMovableSlot; }
    bool CanGoDown() const { return position_ < kLastMovableSlot; }
    // All on, in the order of the catalogue, no halt but that of the three checks.
    bool AreDefaults() const { return settings_ == TechniqueSettings(); }

    // The box `index`: 0..39 includes that slot, 40..79 halts at slot 0..39. What is fixed stays.
    void CheckInclude(int index);
    // Any other position than 8..38 changes nothing.
    void OptionOrder(int position);
    // Nothing at the first (last) position that can be moved to.
    void KnopUp();
    void KnopDown();
    // The technique that was in the current row stays in it, wherever that goes.
    void SetDefaults();

  private:
    void Exchange(int otherPosition);

    TechniqueSettings& settings_;
    int position_ = kFirstMovableSlot;
};

}  // namespace vemo
