// Naked and hidden pairs to quints.
#include <array>
#include <span>

#include "solver/techniques/combinations.h"
#include "solver/techniques/families.h"
#include "solver/text.h"

namespace vemo {
namespace {

// 1..4 naked pair to quint, 5 and 6 hidden pair and triple: the order of the titles.
int VariantOf(const Args& args) {
    return args.naked ? args.size - 1 : args.size + 3;
}
bool IsNaked(const Find& find) {
    return find.variant <= 4;
}

Find SubsetFind(const Args& args, const Unit& unit, CellSet cells, Marks digits) {
    Find find;
    find.kind = HintKind::Subset;
    find.variant = VariantOf(args);
    find.AddUnit(unit);
    find.AddCells(cells);
    find.AddDigits(digits);
    return find;
}

// The subset's digits go from the other cells of the unit. Answers whether any goes.
bool VerwijderNS(const Grid& grid, const Unit& unit, CellSet subset, Marks digits, Find& find) {
    return find.Remove(grid, unit.set - subset, digits);
}

CellSet CellsAt(const Unit& unit, unsigned positions) {
    CellSet cells;
    for (int k = 0; k < 9; ++k) {
        if ((positions >> k & 1) != 0) {
            cells.Add(unit.cells[static_cast<std::size_t>(k)]);
        }
    }
    return cells;
}

Members DigitsOfCells(const Grid& grid, const Unit& unit) {
    Members members{};
    for (std::size_t k = 0; k < 9; ++k) {
        members[k] = grid.MarksAt(unit.cells[k]);
    }
    return members;
}

Members CellsOfDigits(const Members& digitsOfCells) {
    Members members{};
    for (unsigned k = 0; k < 9; ++k) {
        for (int digit : DigitsOf(static_cast<Marks>(digitsOfCells[k]))) {
            members[static_cast<std::size_t>(digit - 1)] |= 1u << k;
        }
    }
    return members;
}

bool OfferNaked(const Grid& grid, const Unit& unit, const Args& args, FindSink& sink) {
    const Members cells = DigitsOfCells(grid, unit);
    return ForEachSubset(cells, args.size, [&](unsigned chosen, unsigned bits) {
        const Marks digits = static_cast<Marks>(bits);
        const CellSet subset = CellsAt(unit, chosen);
        // More cells than digits would be a contradiction, and no subset.
        for (std::size_t k = 0; k < 9; ++k) {
            if (cells[k] != 0 && (cells[k] & ~bits) == 0 && !subset.Has(unit.cells[k])) {
                return true;
            }
        }
        Find find = SubsetFind(args, unit, subset, digits);
        return !VerwijderNS(grid, unit, subset, digits, find) || sink.Offer(find);
    });
}

bool OfferHidden(const Grid& grid, const Unit& unit, const Args& args, FindSink& sink) {
    const Members digits = CellsOfDigits(DigitsOfCells(grid, unit));
    return ForEachSubset(digits, args.size, [&](unsigned chosen, unsigned positions) {
        const Marks kept = static_cast<Marks>(chosen << 1);
        const CellSet subset = CellsAt(unit, positions);
        Find find = SubsetFind(args, unit, subset, kept);
        const Marks others = static_cast<Marks>(kAllMarks & ~kept);
        return !find.Remove(grid, subset, others) || sink.Offer(find);
    });
}

constexpr std::array<const char*, 6> kLogNames = {"Naked Pair",  "Naked Triple", "Naked Quad",
                                                  "Naked Quint", "Hidden Pair",  "Hidden Triple"};
constexpr std::array<const char*, 6> kHintNames = {"NAKED PAIR",  "NAKED TRIPLE", "NAKED QUAD",
                                                   "NAKED QUINT", "HIDDEN PAIR",  "HIDDEN TRIPLE"};

std::string NameOf(const std::array<const char*, 6>& names, const Find& find) {
    return names[static_cast<std::size_t>(find.variant - 1)];
}

}  // namespace

// Naked: n cells of a unit that hold only n digits between them use these digits up, so that they
// go from the unit's other cells. Hidden: n digits that have only n cells between them fill these,
// so that every other candidate goes from them. Rows, then columns, then boxes; within a unit by
// cells (naked) or digits (hidden).
void NakedHidden(const Position& position, const Args& args, FindSink& sink) {
    for (const Unit& unit : kUnits) {
        const bool goOn = args.naked ? OfferNaked(position.Cells(), unit, args, sink)
                                     : OfferHidden(position.Cells(), unit, args, sink);
        if (!goOn) {
            return;
        }
    }
}

std::string SubsetLog(const Find& find) {
    const std::string head = NameOf(kLogNames, find) + ": " + UnitInLog(find.UnitAt(0));
    const std::string digits = JoinDigits(Items(find.digits));
    if (IsNaked(find)) {
        return head + " => Removed candidates " + digits + " from cells" +
               SpacedCells(Items(find.removals));
    }
    return head + " => Kept candidates " + digits + " in cells" + SpacedCells(Items(find.cells));
}

std::string SubsetHint(const Find& find) {
    const std::string name = NameOf(kHintNames, find);
    const std::string digits = JoinDigits(Items(find.digits));
    const std::string cells = JoinCells(Items(find.cells));
    const Unit& unit = find.UnitAt(0);
    if (IsNaked(find)) {
        return name + ": Since cells " + cells + UnitInHint(unit) +
               " contains only the candidates " + digits +
               ", those candidates can't appear anywhere else in that " +
               std::string(UnitWord(unit));
    }
    return name + ": Since candidates " + digits + UnitInHint(unit) + " only occurs in cells " +
           cells + ", all other candidates can be discarded from those cells.";
}

}  // namespace vemo
