// The technique manager.
#include "game/solve_tech.h"

#include <utility>

namespace vemo {
namespace {

std::size_t Index(int number) {
    return static_cast<std::size_t>(number);
}

void Flip(bool& value) {
    value = !value;
}

}  // namespace

std::array<TechniqueRow, kSlots> SolveTech::Rows() const {
    std::array<TechniqueRow, kSlots> rows;
    for (int slot = 0; slot < kSlots; ++slot) {
        const std::size_t at = Index(slot);
        const bool canInclude = slot >= kFirstMovableSlot;
        rows[Index(settings_.order[at])] = {
            .slot = slot,
            .caption = Slots()[at].caption,
            .tooltip = Slots()[at].tooltip,
            .isIncluded = settings_.onOff[at],
            .canInclude = canInclude,
            .isHalting = settings_.halt[at],
            .canHalt = slot >= kFirstTechniqueSlot && settings_.onOff[at],
            .canMove = canInclude && slot <= kLastMovableSlot,
        };
    }
    return rows;
}

void SolveTech::CheckInclude(int index) {
    const int slot = index % kSlots;
    if (index < kSlots && slot >= kFirstMovableSlot) {
        Flip(settings_.onOff[Index(slot)]);
    } else if (index >= kSlots && slot >= kFirstTechniqueSlot) {
        Flip(settings_.halt[Index(slot)]);
    }
}

void SolveTech::OptionOrder(int position) {
    if (position >= kFirstMovableSlot && position <= kLastMovableSlot) {
        position_ = position;
    }
}

void SolveTech::KnopUp() {
    if (CanGoUp()) {
        Exchange(position_ - 1);
    }
}

void SolveTech::KnopDown() {
    if (CanGoDown()) {
        Exchange(position_ + 1);
    }
}

void SolveTech::SetDefaults() {
    const int slot = settings_.SlotAt(position_);
    settings_ = TechniqueSettings();
    position_ = settings_.order[Index(slot)];
}

void SolveTech::Exchange(int otherPosition) {
    const int slot = settings_.SlotAt(position_);
    const int other = settings_.SlotAt(otherPosition);
    std::swap(settings_.order[Index(slot)], settings_.order[Index(other)]);
    position_ = otherPosition;
}

}  // namespace vemo
