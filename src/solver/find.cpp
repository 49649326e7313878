// Building and collecting finds.
#include "solver/find.h"

#include <algorithm>

namespace vemo {

Find Find::Placing(HintKind kind, int cell, int digit) {
    Find find;
    find.kind = kind;
    find.AddCell(cell);
    find.AddDigit(digit);
    find.placements.Add(At(cell, digit));
    return find;
}

void Find::AddCells(CellSet set) {
    for (int cell : set) {
        AddCell(cell);
    }
}

void Find::AddDigits(Marks marks) {
    for (int digit = 1; digit <= kDigits; ++digit) {
        if (HasMark(marks, digit)) {
            AddDigit(digit);
        }
    }
}

bool Find::Remove(const Grid& grid, CellSet from, Marks marks) {
    for (int cell : from) {
        Marks going = grid.MarksAt(cell) & marks;
        for (; going != 0 && !removals.IsFull(); going &= static_cast<Marks>(going - 1)) {
            removals.Add(At(cell, FirstDigit(going)));
        }
    }
    return !removals.Empty();
}

bool AllFinds::Offer(const Find& find) {
    const bool known =
        std::ranges::any_of(finds, [&](const Find& other) { return other.HasSameEffects(find); });
    if (!known) {
        finds.push_back(find);
    }
    return true;
}

}  // namespace vemo
