// Exhaustive search: does a puzzle have no solution, exactly one, or more?
#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "model/grid.h"

namespace vemo {

struct BruteForceResult {
    int solutionCount = 0;  // 0, 1 or 2: the search stops at the second solution
    // The clues clash, or a cell is left without a candidate before the search begins.
    bool invalid = false;
    // Stopped by its yield: then the count says nothing.
    bool stopped = false;
    Digits solution{};  // where there is exactly one, else all 0

    bool IsUnique() const { return !stopped && solutionCount == 1; }
};

// Called now and then during a long search; answers whether to go on.
using SearchYield = std::function<bool()>;
inline constexpr int kPlacementsBetweenYields = 4096;

// A quick logical pass: singles, intersections and subsets until none finds anything.
struct PreSolveResult {
    Grid grid;  // as far as the pass came
    bool solved = false;
    bool invalid = false;  // met a cell without a candidate
};
PreSolveResult PreSolve(const Grid& grid);

// PreSolve first, then the search for what it left open.
BruteForceResult BruteForceSolve(const Digits& clues, const SearchYield& yield = {});

// The same search on the clues as they are.
BruteForceResult UniqueSud(const Digits& clues, const SearchYield& yield = {});

// The answer in the words of the solve report: title and text of its box. The search must have come
// to its end.
struct SolveReport {
    std::string_view title;
    std::string_view text;
};
SolveReport ReportOf(const BruteForceResult& result);

}  // namespace vemo
