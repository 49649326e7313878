// The symmetries that the places of a puzzle's clues can have.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "model/grid.h"
#include "model/sequence.h"

namespace vemo {

// What the grid is turned or mirrored by. A mirror stands upright, lies flat, or is a diagonal:
// the main one from the top left corner, the other from the top right.
enum class Symmetry : std::uint8_t {
    None,
    HalfTurn,
    QuarterTurn,
    UprightMirror,
    FlatMirror,
    MainDiagonal,
    OtherDiagonal,
};

struct SymmetryRow {
    Symmetry symmetry;
    std::string_view word;     // on a command line: "half-turn"
    std::string_view caption;  // in a window: "Half turn"
};
// One for each symmetry, in their order.
std::span<const SymmetryRow> Symmetries();
std::optional<Symmetry> SymmetryNamed(std::string_view word);

// The cells that the symmetry moves a cell to, the cell itself first: one to four.
using Orbit = Sequence<int, 4>;
Orbit OrbitOf(int cell, Symmetry symmetry);

// Rows become columns.
Digits Transposed(const Digits& digits);

// Whether every orbit has clues in all of its cells or in none.
bool HasSymmetry(const Digits& clues, Symmetry symmetry);

// The one to name among those that hold: a quarter turn before the half turn that is part of it.
template <typename Holds>
Symmetry MainSymmetry(Holds holds) {
    using enum Symmetry;
    for (Symmetry symmetry :
         {QuarterTurn, HalfTurn, UprightMirror, FlatMirror, MainDiagonal, OtherDiagonal}) {
        if (holds(symmetry)) {
            return symmetry;
        }
    }
    return None;
}

// The symmetry of the clues' places.
Symmetry SymmetryOf(const Digits& clues);

}  // namespace vemo
