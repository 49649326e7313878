// Finding almost locked sets.
#include "solver/almost_locked.h"

#include <algorithm>
#include <cassert>

#include "model/units.h"

namespace vemo {
namespace {

constexpr unsigned kChoices = 1u << 9;  // of the cells of a unit

// By choice of cells, or by digits from bit 0 on, how many they are.
constexpr std::array<std::uint8_t, kChoices> kSizes = [] {
    std::array<std::uint8_t, kChoices> sizes{};
    for (unsigned choice = 1; choice < kChoices; ++choice) {
        sizes[choice] = static_cast<std::uint8_t>(sizes[choice & (choice - 1)] + 1);
    }
    return sizes;
}();

struct Bare {
    CellSet cells;
    Marks digits;
    std::size_t size;
};

// Was the set met in an earlier unit already?
bool IsListed(const Unit& unit, CellSet cells) {
    const int first = cells.First();
    switch (unit.kind) {
    case UnitKind::Row:
        return false;
    case UnitKind::Column:
        return cells == CellSet::Of(first);
    case UnitKind::Box:
        return UnitAround(UnitKind::Row, first).set.Contains(cells) ||
               UnitAround(UnitKind::Column, first).set.Contains(cells);
    }
    return false;
}

// Looks at every choice of a unit's open cells. The first cell has the highest bit: so of two
// choices of a size the one with the higher number comes first.
class Choices {
  public:
    Choices(const Grid& grid, std::size_t largest, std::size_t excess)
        : grid_(grid), largest_(largest), excess_(excess) {}

    void AddSetsOf(const Unit& unit, std::vector<Bare>& found) {
        const unsigned end = 1u << Gather(unit);
        for (unsigned choice = 1; choice < end; ++choice) {
            const auto lowest = static_cast<std::size_t>(std::countr_zero(choice));
            digits_[choice] = digits_[choice & (choice - 1)] | marks_[lowest];
        }
        for (unsigned choice = end - 1; choice > 0; --choice) {
            const std::size_t size = kSizes[choice];
            if (kSizes[digits_[choice] >> 1] != size + excess_ || size > largest_) {
                continue;
            }
            const CellSet cells = CellsOf(choice);
            if (!IsListed(unit, cells)) {
                found.push_back({cells, digits_[choice], size});
            }
        }
    }

  private:
    // The cells that can be in a set at all, last to first. Answers how many.
    std::size_t Gather(const Unit& unit) {
        std::size_t count = 0;
        for (std::size_t at = unit.cells.size(); at > 0; --at) {
            const int cell = unit.cells[at - 1];
            const Marks marks = grid_.MarksAt(cell);
            if (marks != 0 && kSizes[marks >> 1] <= largest_ + excess_) {
                cells_[count] = cell;
                marks_[count] = marks;
                ++count;
            }
        }
        return count;
    }

    CellSet CellsOf(unsigned choice) const {
        CellSet cells;
        for (; choice != 0; choice &= choice - 1) {
            cells.Add(cells_[static_cast<std::size_t>(std::countr_zero(choice))]);
        }
        return cells;
    }

    const Grid& grid_;
    std::size_t largest_;
    std::size_t excess_;
    std::array<int, 9> cells_{};
    std::array<Marks, 9> marks_{};
    std::array<Marks, kChoices> digits_{};  // by choice
};

void Complete(const Grid& grid, const Bare& bare, AlmostLocked& set) {
    set.cells = bare.cells;
    set.digits = bare.digits;
    for (int digit : DigitsOf(bare.digits)) {
        const std::size_t at = static_cast<std::size_t>(digit - 1);
        set.places[at] = bare.cells & grid.Candidates(digit);
        set.kills[at] = CommonPeers(set.places[at]) - bare.cells;
    }
}

}  // namespace

AlmostLockedList::AlmostLockedList(const Grid& grid, int largest, int excess) {
    assert(largest <= kLargestAlmostLocked && "larger sets are not listed");
    std::vector<Bare> found;
    found.reserve(512);
    Choices choices(grid, static_cast<std::size_t>(largest), static_cast<std::size_t>(excess));
    for (const Unit& unit : kUnits) {
        choices.AddSetsOf(unit, found);
    }
    for (const Bare& bare : found) {
        ++ends_[bare.size];
    }
    for (std::size_t size = 1; size < ends_.size(); ++size) {
        ends_[size] += ends_[size - 1];
    }
    std::array<std::size_t, kLargestAlmostLocked + 1> next = {0};
    std::copy(ends_.begin(), ends_.end() - 1, next.begin() + 1);
    sets_.resize(found.size());
    for (const Bare& bare : found) {
        Complete(grid, bare, sets_[next[bare.size]++]);
    }
}

}  // namespace vemo
