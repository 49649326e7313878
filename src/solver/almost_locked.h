// Almost locked sets: open cells of one unit that hold few more digits than they are.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "model/cellset.h"
#include "model/grid.h"

namespace vemo {

inline constexpr int kLargestAlmostLocked = 5;  // cells

// n open cells of one unit with n + 1 digits between them: losing two digits, they could not be
// filled. Or n + 2 digits, where it takes three.
struct AlmostLocked {
    CellSet cells;
    Marks digits = 0;
    // By digit - 1: where the set holds it, and the cells outside the set that see all these
    // places. A digit that comes to one of the latter is lost to the whole set.
    std::array<CellSet, kDigits> places{};
    std::array<CellSet, kDigits> kills{};

    CellSet Places(int digit) const { return places[static_cast<std::size_t>(digit - 1)]; }
    CellSet Kills(int digit) const { return kills[static_cast<std::size_t>(digit - 1)]; }
};

// In the order that all searches promise: by number of cells, then unit (rows, columns, boxes),
// then the cells in lexicographic order. A set that lies in two units is listed once, at the first.
class AlmostLockedList {
  public:
    // All sets of up to `largest` cells with `excess` digits more than cells.
    AlmostLockedList(const Grid& grid, int largest, int excess);

    // Those of up to `largest` cells.
    std::span<const AlmostLocked> UpTo(int largest) const {
        return {sets_.data(), ends_[static_cast<std::size_t>(largest)]};
    }
    std::span<const AlmostLocked> All() const { return sets_; }

  private:
    std::vector<AlmostLocked> sets_;
    std::array<std::size_t, kLargestAlmostLocked + 1> ends_{};  // by number of cells
};

}  // namespace vemo
