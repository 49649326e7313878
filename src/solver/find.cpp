// Building and collecting finds.
#include "solver/find.h"

#include <algorithm>

namespace vemo {

CellSet CellsOf(std::span<const std::uint8_t> cells) {
    CellSet set;
    for (int cell : cells) {
        set.Add(cell);
    }
    return set;
}

CellSet CellsOf(std::span<const CellDigit> candidates) {
    CellSet set;
    for (const CellDigit& candidate : candidates) {
        set.Add(candidate.cell);
    }
    return set;
}

Marks MarksOf(std::span<const CellDigit> candidates) {
    Marks marks = 0;
    for (const CellDigit& candidate : candidates) {
        marks |= MarkOf(candidate.digit);
    }
    return marks;
}

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
    for (int digit : DigitsOf(marks)) {
        AddDigit(digit);
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
        for (int digit : DigitsOf(grid.MarksAt(cell) & marks)) {
            candidates.push_back(At(cell, digit));
        }
    }
    return candidates;
}

bool Find::Remove(const Grid& grid, CellSet from, Marks marks) {
    for (int cell : from) {
        for (int digit : DigitsOf(grid.MarksAt(cell) & marks)) {
            if (removals.IsFull()) {
                return true;
            }
            removals.Add(At(cell, digit));
        }
    }
    return !removals.Empty();
}

bool Find::Remove(const Grid& grid, const CellsByDigit& from) {
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
