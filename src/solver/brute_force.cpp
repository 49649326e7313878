// Exhaustive search with an explicit undo stack.
#include "solver/brute_force.h"

#include <algorithm>
#include <array>
#include <utility>

#include "solver/solver.h"

namespace vemo {
namespace {

constexpr int kStopAt = 2;

// The search keeps a list of the empty cells, filled from its end towards its start: positions
// 0..p wait, those behind p hold a digit. At each step the waiting cell with the fewest candidates
// moves to position p; its digits are tried in ascending order.
class Search final {
  public:
    Search(const Grid& grid, const SearchYield& yield);

    BruteForceResult Run();

  private:
    // What one placement took away: the cells among the waiting ones that lost its digit.
    struct Undoable {
        std::uint8_t cell;
        std::uint8_t digit;
        CellSet losers;
    };

    static std::size_t At(int number) { return static_cast<std::size_t>(number); }
    int CellAt(int position) const { return list_[At(position)]; }
    int CountAt(int position) const { return BitCount(candidates_[At(CellAt(position))]); }

    void ChooseCell();
    bool PlaceNextDigit();
    void RemoveCandidates(int cell, int digit);
    void Undo();
    bool HasDeadCell() const;
    bool MayGoOn();

    Digits grid_;
    std::array<Marks, kCells> candidates_{};
    std::array<Marks, kCells> untried_{};  // of a cell that holds a digit: those still to be tried
    std::array<std::uint8_t, kCells> list_{};
    int count_ = 0;
    int position_ = 0;
    CellSet waiting_;  // the cells at positions 0..p-1 once p is chosen
    std::array<Undoable, kCells> stack_;
    int depth_ = 0;
    int placements_ = 0;
    const SearchYield& yield_;
};

Search::Search(const Grid& grid, const SearchYield& yield)
    : grid_(grid.AllDigits()), yield_(yield) {
    for (int cell : grid.EmptyCells()) {
        list_[At(count_++)] = static_cast<std::uint8_t>(cell);
        candidates_[At(cell)] = grid.MarksAt(cell);
    }
    waiting_ = grid.EmptyCells();
    position_ = count_ - 1;
}

BruteForceResult Search::Run() {
    BruteForceResult result;
    bool isNew = true;  // no digit was tried yet in the cell at this position
    while (position_ < count_) {
        if (position_ < 0) {
            if (++result.solutionCount == kStopAt) {
                break;
            }
            result.solution = grid_;
            position_ = 0;
            isNew = false;
            if (count_ == 0) {
                break;
            }
            continue;
        }
        if (isNew) {
            ChooseCell();
        } else {
            Undo();
        }
        if (!PlaceNextDigit()) {
            waiting_.Add(CellAt(position_));
            ++position_;
            isNew = false;
            continue;
        }
        if (!MayGoOn()) {
            result.stopped = true;
            break;
        }
        isNew = !HasDeadCell();
        position_ -= isNew ? 1 : 0;
    }
    if (!result.IsUnique()) {
        result.solution = {};
    }
    return result;
}

void Search::ChooseCell() {
    int fewest = CountAt(position_);
    for (int k = 0; k < position_ && fewest > 1; ++k) {
        if (CountAt(k) < fewest) {
            fewest = CountAt(k);
            std::swap(list_[At(k)], list_[At(position_)]);
        }
    }
    const int cell = CellAt(position_);
    untried_[At(cell)] = candidates_[At(cell)];
    waiting_.Remove(cell);
}

// False where every candidate of the cell was tried.
bool Search::PlaceNextDigit() {
    const int cell = CellAt(position_);
    Marks& untried = untried_[At(cell)];
    if (untried == 0) {
        return false;
    }
    const int digit = FirstDigit(untried);
    untried &= static_cast<Marks>(untried - 1);
    grid_[At(cell)] = static_cast<std::uint8_t>(digit);
    RemoveCandidates(cell, digit);
    return true;
}

// Takes the digit from the waiting cells that see the cell, and notes from which.
void Search::RemoveCandidates(int cell, int digit) {
    Undoable entry{static_cast<std::uint8_t>(cell), static_cast<std::uint8_t>(digit), {}};
    for (int peer : Peers(cell) & waiting_) {
        if (HasMark(candidates_[At(peer)], digit)) {
            candidates_[At(peer)] &= static_cast<Marks>(~MarkOf(digit));
            entry.losers.Add(peer);
        }
    }
    stack_[At(depth_++)] = entry;
}

void Search::Undo() {
    const Undoable& entry = stack_[At(--depth_)];
    for (int peer : entry.losers) {
        candidates_[At(peer)] |= MarkOf(entry.digit);
    }
    grid_[At(entry.cell)] = 0;
}

// Only a cell that the last placement took something from can have lost its last candidate.
bool Search::HasDeadCell() const {
    for (int peer : stack_[At(depth_ - 1)].losers) {
        if (candidates_[At(peer)] == 0) {
            return true;
        }
    }
    return false;
}

bool Search::MayGoOn() {
    return ++placements_ % kPlacementsBetweenYields != 0 || !yield_ || yield_();
}

BruteForceResult NoSolution() {
    BruteForceResult result;
    result.invalid = true;
    return result;
}

BruteForceResult SearchFrom(const Grid& grid, const SearchYield& yield) {
    return grid.EmptyCell() ? NoSolution() : Search(grid, yield).Run();
}

}  // namespace

PreSolveResult PreSolve(const Grid& grid) {
    Solver solver(grid);
    PreSolveResult result;
    result.solved = RunToTheEnd(solver, QuickLadder());
    result.grid = solver.State().Cells();
    result.invalid = result.grid.EmptyCell();
    return result;
}

BruteForceResult BruteForceSolve(const Digits& clues, const SearchYield& yield) {
    if (HasClash(clues)) {
        return NoSolution();
    }
    const PreSolveResult quick = PreSolve(Grid::FromClues(clues));
    if (quick.invalid) {
        return NoSolution();
    }
    if (quick.solved) {
        BruteForceResult result;
        result.solutionCount = 1;
        result.solution = quick.grid.AllDigits();
        return result;
    }
    return SearchFrom(quick.grid, yield);
}

BruteForceResult UniqueSud(const Digits& clues, const SearchYield& yield) {
    return HasClash(clues) ? NoSolution() : SearchFrom(Grid::FromClues(clues), yield);
}

}  // namespace vemo
