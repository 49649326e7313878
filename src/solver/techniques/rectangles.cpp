// What unique and avoidable rectangles have in common.
#include "solver/techniques/rectangles.h"

#include "solver/techniques/families.h"
#include "solver/text.h"

namespace vemo {

Sequence<std::uint8_t, 2> UnitsOfBoth(int one, int other) {
    Sequence<std::uint8_t, 2> units;
    for (UnitKind kind : kUnitKinds) {
        const int index = UnitIndexOf(kind, one);
        if (index == UnitIndexOf(kind, other)) {
            units.Add(static_cast<std::uint8_t>(UnitNumber(kind, index)));
        }
    }
    return units;
}

// Counts the places of all digits of a unit at once.
Confinement::Confinement(const Grid& grid) : grid_(grid) {
    for (std::size_t unit = 0; unit < kUnitCount; ++unit) {
        Marks any = 0;
        Marks two = 0;  // at least
        Marks more = 0;
        for (int cell : kUnits[unit].cells) {
            const Marks marks = grid.MarksAt(cell);
            more |= two & marks;
            two |= any & marks;
            any |= marks;
        }
        once_[unit] = static_cast<Marks>(any & ~two);
        twice_[unit] = static_cast<Marks>(two & ~more);
    }
}

Marks Confinement::DigitsIn(int unit, int one, int other) const {
    const std::size_t at = static_cast<std::size_t>(unit);
    const Marks a = grid_.MarksAt(one);
    const Marks b = grid_.MarksAt(other);
    return static_cast<Marks>((twice_[at] & a & b) | (once_[at] & (a | b)));
}

Marks Confinement::Digits(int one, int other) const {
    Marks digits = 0;
    for (int unit : UnitsOfBoth(one, other)) {
        digits |= DigitsIn(unit, one, other);
    }
    return digits;
}

std::optional<int> Confinement::UnitOf(int digit, int one, int other) const {
    for (int unit : UnitsOfBoth(one, other)) {
        if (HasMark(DigitsIn(unit, one, other), digit)) {
            return unit;
        }
    }
    return std::nullopt;
}

std::optional<Find> UniqueRectangleFind(const Grid& grid, UniqueType type,
                                        const std::array<int, 4>& corners, Marks pair, CellSet from,
                                        Marks going) {
    std::optional<Find> find(std::in_place);
    if (!find->Remove(grid, from, going)) {
        return std::nullopt;
    }
    find->kind = HintKind::UniqueRectangle;
    find->variant = static_cast<int>(type);
    for (int cell : corners) {
        find->AddCell(cell);
    }
    find->AddDigits(pair);
    const CellSet cells = CornersOf(*find);
    find->firstColor = Find::CandidatesOf(grid, cells, pair);
    find->secondColor = Find::CandidatesOf(grid, cells, static_cast<Marks>(kAllMarks & ~pair));
    return find;
}

CellSet CornersOf(const Find& find) {
    return CellsOf(Items(find.cells).first(4));
}

std::string JoinCorners(const Find& find) {
    return JoinCells(CornersOf(find));
}

}  // namespace vemo
