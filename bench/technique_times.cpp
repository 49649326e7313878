// What each step of the ladder costs and finds.
//     technique_times LIST...
// Walks each puzzle with the fixed ladder and tries every step, the one outside the ladder too, up
// to its first find: steps of slots 3 to 7 on every position, the others where slots 3 to 7 find
// nothing, as the ladder comes to them. Under a step whose finds have several titles stands how
// often it found which.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "main.h"
#include "puzzle_list.h"
#include "solver/solver.h"

namespace vemo {
namespace {

struct StepCost {
    const Step* step;
    long calls = 0;
    long finds = 0;
    double total = 0;  // microseconds
    double longest = 0;
    std::map<std::string_view, long> findsByTitle;
};

std::vector<StepCost> AllSteps() {
    std::vector<StepCost> costs;
    for (const std::span<const Step> steps : {Steps(), StepsOutsideTheLadder()}) {
        for (const Step& step : steps) {
            costs.push_back({.step = &step, .findsByTitle = {}});
        }
    }
    return costs;
}

// The shortest of a few runs in microseconds: what else the machine does then hardly counts. Each
// run has its own copy: what searches share is made anew, and its time counts.
double TimeOf(const Step& step, const Grid& grid, FirstFind& first) {
    using Clock = std::chrono::steady_clock;
    constexpr int kRuns = 3;
    double shortest = std::numeric_limits<double>::max();
    for (int run = 0; run < kRuns; ++run) {
        Solver solver(grid);
        first = FirstFind();
        const Clock::time_point start = Clock::now();
        solver.Search(step, first);
        const std::chrono::duration<double, std::micro> time = Clock::now() - start;
        shortest = std::min(shortest, time.count());
    }
    return shortest;
}

void Try(const Grid& grid, StepCost& cost) {
    FirstFind first;
    const double time = TimeOf(*cost.step, grid, first);
    ++cost.calls;
    cost.total += time;
    cost.longest = std::max(cost.longest, time);
    if (first.any) {
        ++cost.finds;
        ++cost.findsByTitle[HintTitle(first.found)];
    }
}

struct Ladders {
    Ladder whole = FixedLadder();
    Ladder quick = QuickLadder();
};

bool IsQuick(const Step& step) {
    return step.slot >= kFirstTechniqueSlot && step.slot < kFirstMovableSlot;
}

bool IsStuck(const Grid& grid, const Ladders& ladders) {
    return Solver(grid).Pass(ladders.quick) == PassResult::Nothing;
}

// Answers how many positions the puzzle led to where slots 3 to 7 find nothing.
long Walk(const Digits& clues, const Ladders& ladders, std::vector<StepCost>& costs) {
    long stuck = 0;
    Solver solver(Grid::FromClues(clues));
    RunToTheEnd(solver, ladders.whole, [&] {
        const Grid& grid = solver.State().Cells();
        if (grid.EmptyCount() == 0) {
            return true;
        }
        const bool isStuck = IsStuck(grid, ladders);
        stuck += isStuck ? 1 : 0;
        for (StepCost& cost : costs) {
            if (isStuck || IsQuick(*cost.step)) {
                Try(grid, cost);
            }
        }
        return true;
    });
    return stuck;
}

std::size_t TitleCount(const Step& step) {
    std::size_t count = 0;
    for (HintKind kind : step.kinds) {
        count += HintTitles(kind).size();
    }
    return count;
}

void PrintTable(const std::vector<StepCost>& costs) {
    std::printf("%4s  %-36s %9s %9s %9s %9s\n", "slot", "step", "calls", "finds", "mean us",
                "max us");
    for (const StepCost& cost : costs) {
        const Step& step = *cost.step;
        const bool isInLadder = step.slot != kNoSlot;
        const std::string slot = isInLadder ? std::to_string(step.slot) : "-";
        const std::string name(isInLadder ? Slots()[static_cast<std::size_t>(step.slot)].caption
                                          : HintTitles(step.kinds[0])[0]);
        std::printf("%4s  %-36s %9ld %9ld %9.3f %9.1f\n", slot.c_str(), name.c_str(), cost.calls,
                    cost.finds, cost.total / static_cast<double>(std::max(cost.calls, 1L)),
                    cost.longest);
        if (TitleCount(step) == 1) {
            continue;
        }
        for (const auto& [title, finds] : cost.findsByTitle) {
            std::printf("%4s    %-34s %9s %9ld\n", "", std::string(title).c_str(), "", finds);
        }
    }
}

}  // namespace

int Main(const std::vector<std::string>& lists) {
    if (lists.empty()) {
        std::cerr << "LIST is missing\nusage: technique_times LIST...\n";
        return 2;
    }
    const Ladders ladders;
    std::vector<StepCost> costs = AllSteps();
    std::size_t puzzleCount = 0;
    long stuck = 0;
    for (const std::string& name : lists) {
        const auto puzzles = ReadPuzzleList(name);
        if (!puzzles) {
            return 3;
        }
        puzzleCount += puzzles->size();
        for (const Digits& clues : *puzzles) {
            stuck += Walk(clues, ladders, costs);
        }
    }
    PrintTable(costs);
    std::printf("%zu puzzles, %ld positions where slots 3 to 7 find nothing\n", puzzleCount, stuck);
    return 0;
}

}  // namespace vemo
