// Exhaustive search with an explicit undo stack.
#include "solver/brute_force.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <utility>

#include "solver/solver.h"

namespace vemo {
namespace {

constexpr int kStopAt = 2;

// The search keeps a list of the empty cells, filled from its end towards its start: positions
// 0..p wait, those behind p hold a digit. At each step the waiting cell with the fewest candidates
// moves to position p; its digits are tried in ascending order. A placement is a dead end where it
// leaves a waiting cell without a candidate, or a unit without a place for one of its digits.
class Search final {
  public:
    Search(const Grid& grid, const SearchYield& yield);

    BruteForceResult Run();

  private:
    // What one placement took away: the waiting cells that lost its digit.
    struct Undoable {
        std::uint8_t cell;
        std::uint8_t digit;
        CellSet losers;
    };

    static std::size_t At(int number) { return static_cast<std::size_t>(number); }
    int CellAt(int position) const { return list_[At(position)]; }
    int CountAt(int position) const { return BitCount(candidates_[At(CellAt(position))]); }

    void ChooseCell();
    void PutBack(int cell);
    bool PlaceNextDigit();
    void RemoveCandidates(int cell, int digit);
    void Undo();
    bool HasPlace(const Unit& unit, int digit) const;
    bool HasPlaceAround(int cell, int digit) const;
    bool IsDeadEnd() const;
    bool HasUnitWithoutPlace() const;
    bool MayGoOn();

    Digits grid_;
    std::array<Marks, kCells> candidates_{};
    std::array<Marks, kCells> untried_{};  // of a cell that holds a digit: those still to be tried
    std::array<CellSet, kDigits + 1> places_{};  // by digit: the waiting cells that can take it
    std::array<CellSet, kDigits + 1> held_{};    // by digit: the cells that hold it
    std::array<std::uint8_t, kCells> list_{};
    int count_ = 0;
    int position_ = 0;
    std::array<Undoable, kCells> stack_;
    int depth_ = 0;
    unsigned placements_ = 0;
    const SearchYield& yield_;
};

Search::Search(const Grid& grid, const SearchYield& yield)
    : grid_(grid.AllDigits()), yield_(yield) {
    for (int cell = 0; cell < kCells; ++cell) {
        if (const int digit = grid.Digit(cell); digit != 0) {
            held_[At(digit)].Add(cell);
            continue;
        }
        list_[At(count_++)] = static_cast<std::uint8_t>(cell);
        candidates_[At(cell)] = grid.MarksAt(cell);
    }
    for (int digit = 1; digit <= kDigits; ++digit) {
        places_[At(digit)] = grid.Candidates(digit);
    }
    position_ = count_ - 1;
}

BruteForceResult Search::Run() {
    BruteForceResult result;
    if (HasUnitWithoutPlace()) {
        return result;
    }
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
            PutBack(CellAt(position_));
            ++position_;
            isNew = false;
            continue;
        }
        if (!MayGoOn()) {
            result.stopped = true;
            break;
        }
        isNew = !IsDeadEnd();
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
    for (int digit : DigitsOf(candidates_[At(cell)])) {
        places_[At(digit)].Remove(cell);
    }
}

// The cell waits again.
void Search::PutBack(int cell) {
    for (int digit : DigitsOf(candidates_[At(cell)])) {
        places_[At(digit)].Add(cell);
    }
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
    const CellSet losers = places_[At(digit)] & Peers(cell);
    for (int peer : losers) {
        candidates_[At(peer)] &= static_cast<Marks>(~MarkOf(digit));
    }
    places_[At(digit)] -= losers;
    held_[At(digit)].Add(cell);
    stack_[At(depth_++)] = {static_cast<std::uint8_t>(cell), static_cast<std::uint8_t>(digit),
                            losers};
}

void Search::Undo() {
    const Undoable& entry = stack_[At(--depth_)];
    for (int peer : entry.losers) {
        candidates_[At(peer)] |= MarkOf(entry.digit);
    }
    places_[At(entry.digit)] |= entry.losers;
    held_[At(entry.digit)].Remove(entry.cell);
    grid_[At(entry.cell)] = 0;
}

bool Search::HasPlace(const Unit& unit, int digit) const {
    return ((places_[At(digit)] | held_[At(digit)]) & unit.set).Any();
}

bool Search::HasPlaceAround(int cell, int digit) const {
    return std::ranges::all_of(
        kUnitKinds, [&](UnitKind kind) { return HasPlace(UnitAround(kind, cell), digit); });
}

// Only what the last placement touched can be without a candidate or a place now.
bool Search::IsDeadEnd() const {
    const Undoable& last = stack_[At(depth_ - 1)];
    for (int peer : last.losers) {
        if (candidates_[At(peer)] == 0 || !HasPlaceAround(peer, last.digit)) {
            return true;
        }
    }
    for (int other : DigitsOf(candidates_[At(last.cell)] & ~MarkOf(last.digit))) {
        if (!HasPlaceAround(last.cell, other)) {
            return true;
        }
    }
    return false;
}

bool Search::HasUnitWithoutPlace() const {
    for (int digit = 1; digit <= kDigits; ++digit) {
        if (!std::ranges::all_of(kUnits, [&](const Unit& unit) { return HasPlace(unit, digit); })) {
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

SolveReport ReportOf(const BruteForceResult& result) {
    assert(!result.stopped && "a search that was stopped has no answer");
    if (result.IsUnique()) {
        return {"Valid Sudoku", "This Sudoku has one unique solution"};
    }
    return {"Invalid Sudoku", result.solutionCount == 0 ? "This Sudoku has no solution"
                                                        : "This Sudoku has more than one solution"};
}

}  // namespace vemo
