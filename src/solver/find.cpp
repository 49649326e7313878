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

void Find::AddLink(CellDigit from, CellDigit to, Strength strength) {
    links.push_back({.from = CellSet::Of(from.cell),
                     .to = CellSet::Of(to.cell),
                     .fromDigit = from.digit,
                     .toDigit = to.digit,
                     .strong = strength == Strength::Strong,
                     .set = {}});
}

std::vector<CellDigit> Find::CandidatesOf(const Grid& grid, CellSet cells, Marks marks) {
    std::vector<CellDigit> candidates;
    for (int cell : cells) {
        Marks held = grid.MarksAt(cell) & marks;
        for (; held != 0; held &= static_cast<Marks>(held - 1)) {
            candidates.push_back(At(cell, FirstDigit(held)));
        }
    }
    return candidates;
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

bool Find::Remove(const Grid& grid, const std::array<CellSet, kDigits>& from) {
    CellSet losers;
    for (const CellSet& ofDigit : from) {
        losers |= ofDigit;
    }
    for (int cell : losers) {
        Marks going = 0;
        for (std::size_t k = 0; k < kDigits; ++k) {
            going |= from[k].Has(cell) ? MarkOf(static_cast<int>(k) + 1) : Marks{0};
        }
        Remove(grid, CellSet::Of(cell), going);
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
