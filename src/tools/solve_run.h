// Solving one puzzle step by step, or by brute force, beside whoever shows it.
#pragma once

#include <atomic>
#include <string>
#include <thread>

#include "solver/brute_force.h"
#include "solver/solver.h"
#include "tools/hand_over.h"

namespace vemo {

class SolveRun {
  public:
    struct SolvedStep {
        Grid grid;        // after it
        std::string log;  // its lines, and those of failed trials before it; each ends with CR LF
        int reachedLevel = 0;
    };

    // Begins at once.
    SolveRun(const Digits& clues, Ladder ladder);

    // The next steps in their order, no more than `most`.
    std::vector<SolvedStep> Take(std::size_t most) { return steps_.Take(most); }
    bool IsOver() const { return isOver_ && steps_.IsEmpty(); }
    bool IsStopped() const { return thread_.get_stop_token().stop_requested(); }
    void Stop() { thread_.request_stop(); }

    // The step that is tried, null before the first.
    const Step* TriedStep() const { return triedStep_; }
    // When it is over and was not stopped: 1..9, or 0 where the puzzle has not exactly one
    // solution; it is not solved then.
    int Rating() const { return rating_; }

  private:
    void Run(const std::stop_token& stop);

    const Digits clues_;
    const Ladder ladder_;
    std::atomic<const Step*> triedStep_ = nullptr;
    std::atomic<bool> isOver_ = false;
    int rating_ = 0;
    HandOver<SolvedStep> steps_;
    std::jthread thread_;  // the first to go
};

// BruteForceSolve, which can take long for a grid with few clues.
class BruteRun {
  public:
    explicit BruteRun(const Digits& clues);

    bool IsOver() const { return isOver_; }
    void Stop() { thread_.request_stop(); }
    // When it is over.
    const BruteForceResult& Result() const { return result_; }

  private:
    std::atomic<bool> isOver_ = false;
    BruteForceResult result_;
    std::jthread thread_;  // the first to go
};

}  // namespace vemo
