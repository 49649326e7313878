// What a search returns: one step, with everything that applying, logging, explaining and
// colouring it need. A find speaks for itself: no text or colour is worked out from the grid.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "model/cellset.h"
#include "model/grid.h"
#include "model/sequence.h"
#include "model/units.h"

namespace vemo {

enum class HintKind : std::uint8_t;  // see techniques/families.h

struct CellDigit {
    std::uint8_t cell = 0;
    std::uint8_t digit = 0;

    bool operator==(const CellDigit&) const = default;
};

constexpr CellDigit At(int cell, int digit) {
    return {static_cast<std::uint8_t>(cell), static_cast<std::uint8_t>(digit)};
}

// What a list of cells or of candidates comes to.
CellSet CellsOf(std::span<const std::uint8_t> cells);
CellSet CellsOf(std::span<const CellDigit> candidates);
Marks MarksOf(std::span<const CellDigit> candidates);

using CellsByDigit = std::array<CellSet, kDigits>;  // by digit - 1

// One link of a chain, from a set of cells to another: a node of one cell is a single candidate.
struct ChainLink {
    CellSet from;
    CellSet to;
    std::uint8_t fromDigit = 0;
    std::uint8_t toDigit = 0;
    bool strong = false;
    bool directed = false;  // the explanation follows the chain this way
    CellSet set{};          // the almost locked set that gives the link; empty: a unit or a cell

    bool operator==(const ChainLink&) const = default;
};

// A find holds at most this many removals: the first in order of cell, then digit. What is left
// over is found again by the next search.
inline constexpr std::size_t kMaxEffects = 50;

struct Find {
    HintKind kind{};  // HintKind::None
    int variant = 0;  // the sub-code of kinds with several titles; else the family's own

    // The pattern. Which unit, cell or digit plays which part is fixed by the kind's own family.
    Sequence<std::uint8_t, kUnitCount> units;  // indices into kUnits
    Sequence<std::uint8_t, kCells> cells;
    Sequence<std::uint8_t, 2 * kDigits> digits;
    std::vector<ChainLink> links;
    // The candidates of the pattern, in its one colour and in its other; where both are empty,
    // every digit in every cell, in the one.
    std::vector<CellDigit> firstColor;
    std::vector<CellDigit> secondColor;

    // The effects.
    Sequence<CellDigit, kMaxEffects> placements;
    Sequence<CellDigit, kMaxEffects> removals;  // by cell, then digit

    // One digit comes to one cell.
    static Find Placing(HintKind kind, int cell, int digit);

    void AddUnit(int unit) { units.Add(static_cast<std::uint8_t>(unit)); }
    void AddUnit(const Unit& unit) { AddUnit(UnitNumber(unit.kind, unit.index)); }
    void AddCell(int cell) { cells.Add(static_cast<std::uint8_t>(cell)); }
    void AddDigit(int digit) { digits.Add(static_cast<std::uint8_t>(digit)); }
    void AddCells(CellSet set);
    void AddDigits(Marks marks);
    // A link between two candidates of one cell or of one digit.
    enum class Strength : std::uint8_t { Weak, Strong };
    void AddLink(CellDigit from, CellDigit to, Strength strength);
    // The candidates of `marks` that these cells hold, by cell, then digit.
    static std::vector<CellDigit> CandidatesOf(const Grid& grid, CellSet cells, Marks marks);
    const Unit& UnitAt(std::size_t at) const { return kUnits[units[at]]; }

    // Takes the candidates of `marks` that these cells hold as removals, as far as there is room.
    // Answers whether there is any removal now. Call it once a find: the order is by cell.
    bool Remove(const Grid& grid, CellSet from, Marks marks);
    // The same, each digit from its own cells.
    bool Remove(const Grid& grid, const CellsByDigit& from);

    bool ChangesSomething() const { return !placements.Empty() || !removals.Empty(); }
    bool HasSameEffects(const Find& other) const {
        return placements == other.placements && removals == other.removals;
    }
};

// Takes the finds of one search in scan order.
class FindSink {
  public:
    virtual ~FindSink() = default;

    // Answers whether the search shall go on.
    virtual bool Offer(const Find& find) = 0;
};

// Keeps the first find and ends the search.
class FirstFind final : public FindSink {
  public:
    bool Offer(const Find& find) override {
        found = find;
        any = true;
        return false;
    }

    Find found;
    bool any = false;
};

// Keeps every find; two with the same effects are one.
class AllFinds final : public FindSink {
  public:
    bool Offer(const Find& find) override;

    std::vector<Find> finds;
};

}  // namespace vemo
