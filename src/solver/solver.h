// The one walk down the ladder and the one change of the grid under it. Rating, hint, autosolve
// and batch check differ only in the ladder that they pass and in what they do between two passes.
#pragma once

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "solver/catalogue.h"
#include "solver/position.h"
#include "solver/settings.h"

namespace vemo {

// Apply changes the grid; Hint keeps the find and leaves the grid as it is.
enum class Mode : std::uint8_t { Apply, Hint };

struct LadderStep {
    const Step* step;
    Mode mode;
};
using Ladder = std::vector<LadderStep>;

// Every step in the order of the catalogue: the ladder of the rating.
Ladder FixedLadder();

// Slots 3..7 alone.
Ladder QuickLadder();
// The fixed ladder without its trials: what a trial itself may use.
Ladder TrialLadder();
Ladder WithoutTrials(Ladder ladder);

// Slots 3..7, then positions 8..39 in the player's order, switched-off slots left out.
Ladder HintLadder(const TechniqueSettings& settings);       // every step in hint mode
Ladder AutosolveLadder(const TechniqueSettings& settings);  // slots that halt in hint mode
Ladder BatchLadder(const TechniqueSettings& settings);      // every step in apply mode

enum class PassResult : std::uint8_t {
    Stopped,  // by the step watcher
    DeadEnd,  // an empty cell has no candidate left; no step was tried
    Nothing,  // no step found anything
    Hint,     // a step in hint mode found something; see Solver::LastFind
    Changed,  // a step was applied
    Solved,   // a single was applied and filled the grid
};

// What the log says of a trial that fails: a cell was left without a candidate, or nothing was
// found any more.
struct TrialTexts {
    std::string_view emptyCell;
    std::string_view stalled;
};
inline constexpr TrialTexts kGameTrialTexts = {
    "Current Bifurcation attempt failed due to empty cell",
    "Current Bifurcation attempt failed: more than one Bifurcation needed"};
inline constexpr TrialTexts kCollectionTrialTexts = {
    "Bifurcation failed due to empty cell", "Bifurcation failed: more than one Bifurcation needed"};

// State of one run, on a copy of the puzzle.
class Solver {
  public:
    // Called with each log line, without its line end.
    using LogSink = std::function<void(std::string_view)>;
    // Called before each step's search; answers whether to go on.
    using StepWatcher = std::function<bool(const Step&)>;

    explicit Solver(const Grid& grid);

    void SetLog(LogSink log) { log_ = std::move(log); }
    void SetTrialTexts(const TrialTexts& texts) { trialTexts_ = texts; }
    const TrialTexts& TextsOfTrials() const { return trialTexts_; }
    void SetStepWatcher(StepWatcher watcher) { watcher_ = std::move(watcher); }
    // The puzzle's one solution, where it is known: finds that contradict it are counted, and a
    // debug build asserts that there are none.
    void SetSolution(const Digits& solution) { solution_ = solution; }

    const Position& State() const { return position_; }
    int EmptyCount() const { return emptyCount_; }
    int ReachedLevel() const { return reachedLevel_; }
    // The highest slot that found something, kNoSlot where none did.
    int HardestSlot() const { return hardestSlot_; }
    // Finds that changed the grid.
    int StepCount() const { return stepCount_; }
    int UnsoundFinds() const { return unsoundFinds_; }

    // The step and the find that ended the last pass.
    const Step* LastStep() const { return lastStep_; }
    const Find& LastFind() const { return lastFind_; }

    // Offers the step's finds on the grid as it stands.
    void Search(const Step& step, FindSink& sink);

    // Tests for a dead end, then tries each step in turn; the first find that changes something,
    // or that is kept as a hint, ends the pass. A find that changes nothing is logged and passed
    // over.
    PassResult Pass(const Ladder& ladder);

    // The only change: log line, placements, removals, empty count, reached level. Effects that
    // the grid does not allow are left out. Answers whether anything changed.
    bool Apply(const Step& step, const Find& find);

    // For trials. A copy of the state with the digit placed, which logs and can be stopped like
    // this run.
    Solver BeginTrial(int digit, int cell);
    // Kept: a cell that had a single candidate before the trial stays as the trial left it, its
    // peers as they were. In the ladder there is no such cell: naked singles come first.
    void KeepLeftover(const Solver& trial);
    void Log(std::string_view line) const;
    bool IsStopped() const { return isStopped_; }

  private:
    bool MayTry(const Step& step);
    void CheckAgainstSolution(const Find& find);
    bool ApplyEffects(const Find& find);
    void Record(const Find& find);

    Position position_;
    int emptyCount_;
    int reachedLevel_ = 0;
    int hardestSlot_ = kNoSlot;
    int stepCount_ = 0;
    int unsoundFinds_ = 0;
    bool isStopped_ = false;
    const Step* triedStep_ = nullptr;
    const Step* lastStep_ = nullptr;
    Find lastFind_;
    std::optional<Digits> solution_;
    LogSink log_;
    TrialTexts trialTexts_ = kGameTrialTexts;
    StepWatcher watcher_;
};

// Passes until nothing is found any more. Answers whether the grid is full. `yield` is called
// before each pass and answers whether to go on.
bool RunToTheEnd(Solver& solver, const Ladder& ladder, const std::function<bool()>& yield = {});

// The rating of a run that ended: the reached level, or Outlaw where the logic could not finish.
int RatingOf(const Solver& solver, bool solved);

}  // namespace vemo
