// Colour brushes and links.
#include "game/brushes.h"

#include <algorithm>

namespace vemo {
namespace {

std::size_t LabelIndex(UnitKind kind, int index) {
    return static_cast<std::size_t>(UnitNumber(kind, index));
}

bool JoinsSameMarks(const LinkView& a, const LinkView& b) {
    const auto isFrom = [&](int cell, int digit) {
        return a.fromCell == cell && a.fromDigit == digit;
    };
    const auto isTo = [&](int cell, int digit) { return a.toCell == cell && a.toDigit == digit; };
    return (isFrom(b.fromCell, b.fromDigit) && isTo(b.toCell, b.toDigit)) ||
           (isFrom(b.toCell, b.toDigit) && isTo(b.fromCell, b.fromDigit));
}

}  // namespace

Brushes::Brushes() {
    Clear();
}

void Brushes::Arm(int color, MouseButton button) {
    int& brush = button == MouseButton::Left ? left_ : right_;
    int& other = button == MouseButton::Left ? right_ : left_;
    brush = brush == color ? kNoBrush : color;
    if (other == color) {
        other = kNoBrush;
    }
}

int Brushes::Armed(MouseButton button) const {
    return button == MouseButton::Left ? left_ : right_;
}

void Brushes::PaintCell(int cell, MouseButton button) {
    const int brush = Armed(button);
    if (brush == kNoBrush) {
        return;
    }
    int& color = cells_[static_cast<std::size_t>(cell)];
    color = color == brush ? kNoBrush : brush;
}

void Brushes::PaintUnit(UnitKind kind, int index, MouseButton button) {
    const int brush = Armed(button);
    if (brush == kNoBrush) {
        return;
    }
    int& label = labels_[LabelIndex(kind, index)];
    const bool takesOff = label == brush;
    label = takesOff ? kNoBrush : brush;
    for (int cell : UnitOf(kind, index).cells) {
        int& color = cells_[static_cast<std::size_t>(cell)];
        if (!takesOff || color == brush) {
            color = label;
        }
    }
}

int Brushes::LabelColor(UnitKind kind, int index) const {
    return labels_[LabelIndex(kind, index)];
}

void Brushes::Clear() {
    cells_.fill(kNoBrush);
    labels_.fill(kNoBrush);
}

void Links::Toggle() {
    isOn_ = !isOn_;
    ForgetStart();
}

void Links::ForgetStart() {
    startCell_ = kNoLinkCell;
    startDigit_ = 0;
}

void Links::Click(int cell, int digit, MouseButton button) {
    if (startCell_ == kNoLinkCell) {
        startCell_ = cell;
        startDigit_ = digit;
        return;
    }
    LinkView link{startCell_, startDigit_, cell, digit};
    link.isStrong = button == MouseButton::Left;
    ForgetStart();
    if (link.fromCell == link.toCell && link.fromDigit == link.toDigit) {
        return;
    }
    const auto isSame = [&](const LinkView& other) { return JoinsSameMarks(link, other); };
    if (std::erase_if(links_, isSame) == 0) {
        links_.push_back(link);
    }
}

void Links::Clear() {
    links_.clear();
    ForgetStart();
}

}  // namespace vemo
