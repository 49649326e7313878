// Puzzles that occur twice, as they are or under another look, among very many.
#pragma once

#include <cstdint>
#include <deque>
#include <vector>

#include "model/grid.h"
#include "solver/fast_count.h"

namespace vemo {

// What a puzzle is known by when it is looked for again. Two puzzles that are not equivalent have
// equal marks once in 10^19 times.
struct PuzzleSigns {
    std::uint64_t form = 0;   // of the canonical form
    std::uint32_t exact = 0;  // of the clues as they stand
};
PuzzleSigns SignsOf(const Digits& clues);
PuzzleSigns SignsOf(const Digits& clues, const SolutionCount& solutions);

enum class Sameness : std::uint8_t { Exact, Equivalent };

struct Duplicate {
    std::uint32_t number = 0;  // the later one
    std::uint32_t of = 0;      // the first that it equals
    Sameness sameness = Sameness::Exact;
};

// Keeps 16 bytes a puzzle.
class DuplicateSearch {
  public:
    void Add(std::uint32_t number, const PuzzleSigns& signs) {
        entries_.push_back({signs.form, signs.exact, number});
    }

    // All duplicates by their number, the lower being the first. Ends the search: the entries are
    // gone.
    std::vector<Duplicate> Take();

  private:
    struct Entry {
        std::uint64_t form;
        std::uint32_t exact;
        std::uint32_t number;
    };
    static_assert(sizeof(Entry) == 16);

    std::deque<Entry> entries_;
};

}  // namespace vemo
