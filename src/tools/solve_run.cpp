// Solving one puzzle beside whoever shows it.
#include "tools/solve_run.h"

#include <utility>

#include "solver/fast_count.h"

namespace vemo {
namespace {

constexpr std::size_t kMostWaiting = 1024;  // no puzzle has more steps

}  // namespace

SolveRun::SolveRun(const Digits& clues, Ladder ladder)
    : clues_(clues),
      ladder_(std::move(ladder)),
      steps_(kMostWaiting),
      thread_([this](const std::stop_token& stop) { Run(stop); }) {}

void SolveRun::Run(const std::stop_token& stop) {
    if (!FastCount(clues_).IsUnique()) {
        isOver_ = true;
        return;
    }
    std::string log;
    Solver solver(Grid::FromClues(clues_));
    solver.SetTrialTexts(kCollectionTrialTexts);
    solver.SetLog([&](std::string_view line) { log.append(line).append("\r\n"); });
    solver.SetStepWatcher([&](const Step& step) {
        triedStep_.store(&step, std::memory_order_relaxed);
        return !stop.stop_requested();
    });
    PassResult result = PassResult::Changed;
    while (result == PassResult::Changed) {
        result = solver.Pass(ladder_);
        const bool hasStep = result == PassResult::Changed || result == PassResult::Solved;
        if (!stop.stop_requested() && (hasStep || !log.empty())) {
            steps_.Put({{solver.State().Cells(), std::exchange(log, {}), solver.ReachedLevel()}},
                       stop);
        }
    }
    rating_ = RatingOf(solver, solver.EmptyCount() == 0);
    isOver_ = true;
}

BruteRun::BruteRun(const Digits& clues)
    : thread_([this, clues](const std::stop_token& stop) {
          result_ = BruteForceSolve(clues, [&] { return !stop.stop_requested(); });
          isOver_ = true;
      }) {}

}  // namespace vemo
