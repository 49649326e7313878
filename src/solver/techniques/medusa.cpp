// 3D Medusa: the strong links between candidates of all digits tie them together into parts of two
// colours, of which exactly one is right.
#include <algorithm>
#include <array>
#include <bit>
#include <string>
#include <vector>

#include "solver/techniques/chain_text.h"
#include "solver/techniques/families.h"
#include "solver/text.h"

namespace vemo {
namespace {

constexpr std::size_t kCandidates = kCells * kDigits;

// What makes a colour wrong, as the variant of the find; with None, either may be right.
enum class Flaw : std::uint8_t { None, TwoInCell, TwiceInUnit, NoneInCell };

// One colour of a part.
struct Color {
    CellsByDigit places{};
    CellsByDigit seen{};  // by a place of the same digit
    CellSet cells;        // of all places
    CellSet crowded;      // cells with two places or more

    void Add(CellDigit candidate) {
        const std::size_t digit = candidate.digit - 1u;
        if (cells.Has(candidate.cell)) {
            crowded.Add(candidate.cell);
        }
        cells.Add(candidate.cell);
        places[digit].Add(candidate.cell);
        seen[digit] |= Peers(candidate.cell);
    }
    bool Has(CellDigit candidate) const { return places[candidate.digit - 1u].Has(candidate.cell); }
};

// The first place has colour 0. In a contradictory grid a candidate can have both colours.
struct Part {
    std::array<Color, 2> color;
    bool isTwoColored = true;
};

// The cells at the other ends of the conjugate pairs of this place.
CellSet PartnersOf(const Grid& grid, CellDigit place) {
    CellSet partners;
    for (const UnitKind kind : kUnitKinds) {
        CellSet others = UnitAround(kind, place.cell).set & grid.Candidates(place.digit);
        others.Remove(place.cell);
        if (others.Any() && others == CellSet::Of(others.First())) {
            partners |= others;
        }
    }
    return partners;
}

// The other candidate of a cell that has two; no digit elsewhere.
int OtherDigit(const Grid& grid, CellDigit candidate) {
    const unsigned others = grid.MarksAt(candidate.cell) & ~MarkOf(candidate.digit);
    return std::has_single_bit(others) ? FirstDigit(static_cast<Marks>(others)) : 0;
}

// Calls `visit(other)` for each strong link of a candidate.
template <typename Visit>
void ForEachLink(const Grid& grid, CellDigit candidate, Visit visit) {
    if (const int other = OtherDigit(grid, candidate); other != 0) {
        visit(At(candidate.cell, other));
    }
    for (const int cell : PartnersOf(grid, candidate)) {
        visit(At(cell, candidate.digit));
    }
}

// What hangs together with a candidate.
Part PartAround(const Grid& grid, CellDigit first) {
    Part part;
    Sequence<CellDigit, kCandidates> reached = {first};
    part.color[0].Add(first);
    for (std::size_t next = 0; next < reached.Size(); ++next) {
        const CellDigit from = reached[next];
        const std::size_t own = part.color[0].Has(from) ? 0 : 1;
        ForEachLink(grid, from, [&](CellDigit to) {
            if (part.color[own].Has(to)) {
                part.isTwoColored = false;
            } else if (!part.color[1 - own].Has(to)) {
                part.color[1 - own].Add(to);
                reached.Add(to);
            }
        });
    }
    return part;
}

CellSet CellsWithCandidates(const Grid& grid) {
    CellSet cells;
    for (int digit = 1; digit <= kDigits; ++digit) {
        cells |= grid.Candidates(digit);
    }
    return cells;
}

// The cells that have candidates but none of the colour's, and would lose all to it.
CellSet EmptiedBy(const Grid& grid, const Color& color) {
    CellSet left = color.cells;
    for (int digit = 1; digit <= kDigits; ++digit) {
        left |= grid.Candidates(digit) - color.seen[static_cast<std::size_t>(digit - 1)];
    }
    return CellsWithCandidates(grid) - left;
}

// A flaw, with the cell that would hold two numbers or none, or with the digit and the unit that
// would hold it twice.
struct FlawAt {
    Flaw flaw = Flaw::None;
    int where = 0;
    int digit = 0;
};

FlawAt FlawOf(const Grid& grid, const Color& color) {
    if (color.crowded.Any()) {
        return {Flaw::TwoInCell, color.crowded.First()};
    }
    for (std::size_t k = 0; k < kDigits; ++k) {
        if ((color.places[k] & color.seen[k]).Any()) {
            const Unit& unit = UnitOfTwo(color.places[k]);
            return {Flaw::TwiceInUnit, UnitNumber(unit.kind, unit.index), static_cast<int>(k) + 1};
        }
    }
    const CellSet emptied = EmptiedBy(grid, color);
    return emptied.Any() ? FlawAt{Flaw::NoneInCell, emptied.First()} : FlawAt();
}

// The candidates without a colour that go whichever colour is right.
CellsByDigit TakenByBoth(const Grid& grid, const Part& part) {
    CellsByDigit taken;
    for (std::size_t k = 0; k < kDigits; ++k) {
        const auto& [one, other] = part.color;
        taken[k] = grid.Candidates(static_cast<int>(k) + 1) & (one.cells | one.seen[k]) &
                   (other.cells | other.seen[k]);
        taken[k] -= one.places[k] | other.places[k];
    }
    return taken;
}

std::vector<CellDigit> CandidatesOf(const Color& color) {
    std::vector<CellDigit> candidates;
    for (const int cell : color.cells) {
        for (int digit = 1; digit <= kDigits; ++digit) {
            if (color.Has(At(cell, digit))) {
                candidates.push_back(At(cell, digit));
            }
        }
    }
    return candidates;
}

// Each once.
void AddStrongLinks(const Grid& grid, const std::vector<CellDigit>& candidates, Find& find) {
    const auto isBefore = [](CellDigit one, CellDigit other) {
        return one.cell != other.cell ? one.cell < other.cell : one.digit < other.digit;
    };
    for (const CellDigit from : candidates) {
        ForEachLink(grid, from, [&](CellDigit to) {
            if (isBefore(from, to)) {
                find.AddLink(from, to, Find::Strength::Strong);
            }
        });
    }
}

// A find on a part, the one colour as the first; without effects yet. The cell of a flaw is the
// find's first, the others are in order.
Find PartFind(const Grid& grid, const Part& part, std::size_t first, const FlawAt& at) {
    Find find;
    find.kind = HintKind::Medusa;
    find.variant = static_cast<int>(at.flaw);
    CellSet cells = part.color[0].cells | part.color[1].cells;
    if (at.flaw == Flaw::TwiceInUnit) {
        find.AddUnit(at.where);
        find.AddDigit(at.digit);
    } else if (at.flaw != Flaw::None) {
        find.AddCell(at.where);
        cells.Remove(at.where);
    }
    find.AddCells(cells);
    find.firstColor = CandidatesOf(part.color[first]);
    find.secondColor = CandidatesOf(part.color[1 - first]);
    AddStrongLinks(grid, find.firstColor, find);
    AddStrongLinks(grid, find.secondColor, find);
    return find;
}

bool OfferPart(const Grid& grid, const Part& part, FindSink& sink) {
    bool isFlawed = false;
    for (const std::size_t wrong : {0u, 1u}) {
        const FlawAt at = FlawOf(grid, part.color[wrong]);
        if (at.flaw == Flaw::None) {
            continue;
        }
        isFlawed = true;
        Find find = PartFind(grid, part, 1 - wrong, at);
        find.Remove(grid, part.color[wrong].places);
        if (!sink.Offer(find)) {
            return false;
        }
    }
    const CellsByDigit taken = isFlawed ? CellsByDigit() : TakenByBoth(grid, part);
    if (std::ranges::none_of(taken, &CellSet::Any)) {
        return true;
    }
    Find find = PartFind(grid, part, 0, {});
    find.Remove(grid, taken);
    return sink.Offer(find);
}

// "A1(3), A1(4) and B2(3)"
std::string JoinCandidates(const std::vector<CellDigit>& candidates) {
    std::vector<std::string> items;
    for (const auto [cell, digit] : candidates) {
        items.push_back(NodeText(CellSet::Of(cell), digit));
    }
    return Join(items);
}

// A colour is named by its lowest candidate.
std::string NameOf(const std::vector<CellDigit>& color) {
    return "number " + std::to_string(color[0].digit) + " at cell " + CellName(color[0].cell);
}

// What the colour of a flaw would do.
std::string FlawInHint(const Find& find) {
    switch (static_cast<Flaw>(find.variant)) {
    case Flaw::TwoInCell:
        return "place two numbers at cell " + CellName(find.cells[0]);
    case Flaw::TwiceInUnit:
        return "place number " + JoinDigits(Items(find.digits)) + " twice" +
               UnitInHint(find.UnitAt(0));
    case Flaw::NoneInCell:
        return "leave no number for cell " + CellName(find.cells[0]);
    case Flaw::None:
        break;
    }
    return {};
}

bool HasFlaw(const Find& find) {
    return find.variant != static_cast<int>(Flaw::None);
}

}  // namespace

// Two candidates are tied where exactly one of them is right: the only two of a cell, or the only
// two places of a digit in a unit. In what hangs together so, all candidates of one colour are
// right and all of the other are wrong. A colour is wrong that has two candidates in a cell, or the
// same digit twice in a unit, or that would take every candidate of a cell: all its candidates go.
// Where neither colour is wrong that way, a candidate outside goes that both colours would take: it
// shares its cell with one of the colour, or sees its digit in it. In a contradictory grid a
// candidate can have both colours: such a part is passed over.
//
// By the lowest candidate of the part, cell before digit, whose colour is the first: the wrong
// colours, then what both take, all in one find. The colour that goes is drawn in the second
// colour.
void Medusa(const Position& position, const Args&, FindSink& sink) {
    const Grid& grid = position.Cells();
    CellsByDigit known{};
    for (const int cell : CellsWithCandidates(grid)) {
        for (int digit : DigitsOf(grid.MarksAt(cell))) {
            const CellDigit first = At(cell, digit);
            const bool isKnown = known[first.digit - 1u].Has(cell);
            if (isKnown || (OtherDigit(grid, first) == 0 && !PartnersOf(grid, first).Any())) {
                continue;
            }
            const Part part = PartAround(grid, first);
            for (std::size_t k = 0; k < kDigits; ++k) {
                known[k] |= part.color[0].places[k] | part.color[1].places[k];
            }
            if (part.isTwoColored && !OfferPart(grid, part, sink)) {
                return;
            }
        }
    }
}

std::string MedusaLog(const Find& find) {
    const std::string colors = HasFlaw(find) ? "Color of " + JoinCandidates(find.secondColor)
                                             : "Colors of " + JoinCandidates(find.firstColor) +
                                                   " against " + JoinCandidates(find.secondColor);
    return "3D Medusa: " + colors + RemovedInLog(find);
}

std::string MedusaHint(const Find& find) {
    const std::string since = "3D MEDUSA: Since all candidates of one of the two colors ";
    if (HasFlaw(find)) {
        return since + "must be true, and the color of " + NameOf(find.secondColor) + " would " +
               FlawInHint(find) + ", all candidates of that color can be discarded";
    }
    return since + "(that of " + NameOf(find.firstColor) + " and that of " +
           NameOf(find.secondColor) +
           ") must be true, every other candidate that conflicts with both colors can be discarded";
}

}  // namespace vemo
