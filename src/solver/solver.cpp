// The walk down the ladder and the change of the grid.
#include "solver/solver.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "model/levels.h"

namespace vemo {
namespace {

constexpr int kNakedSingleSlot = 4;
constexpr int kLastFixedSlot = kFirstMovableSlot - 1;

void AppendSlot(Ladder& ladder, int slot, Mode mode) {
    for (const Step& step : Steps()) {
        if (step.slot == slot) {
            ladder.push_back({&step, mode});
        }
    }
}

template <typename ModeOfSlot>
Ladder UserLadder(const TechniqueSettings& settings, ModeOfSlot modeOf) {
    Ladder ladder;
    for (int slot = kFirstTechniqueSlot; slot <= kLastFixedSlot; ++slot) {
        AppendSlot(ladder, slot, modeOf(slot));
    }
    for (int position = kFirstMovableSlot; position < kSlots; ++position) {
        const int slot = settings.SlotAt(position);
        if (settings.onOff[static_cast<std::size_t>(slot)]) {
            AppendSlot(ladder, slot, modeOf(slot));
        }
    }
    return ladder;
}

// Kept: only the two singles test whether the grid is full now. Any other step that places the
// last digit leaves that to one more pass, which finds nothing.
bool TestsForCompletion(const Step& step) {
    return step.slot <= kNakedSingleSlot;
}

}  // namespace

Ladder FixedLadder() {
    Ladder ladder;
    for (const Step& step : Steps()) {
        ladder.push_back({&step, Mode::Apply});
    }
    return ladder;
}

Ladder QuickLadder() {
    Ladder ladder = FixedLadder();
    std::erase_if(ladder, [](const LadderStep& at) { return at.step->slot >= kFirstMovableSlot; });
    return ladder;
}

Ladder TrialLadder() {
    return WithoutTrials(FixedLadder());
}

Ladder WithoutTrials(Ladder ladder) {
    std::erase_if(ladder, [](const LadderStep& at) { return at.step->trial != nullptr; });
    return ladder;
}

Ladder HintLadder(const TechniqueSettings& settings) {
    return UserLadder(settings, [](int) { return Mode::Hint; });
}

Ladder AutosolveLadder(const TechniqueSettings& settings) {
    return UserLadder(settings, [&](int slot) {
        return settings.halt[static_cast<std::size_t>(slot)] ? Mode::Hint : Mode::Apply;
    });
}

Ladder BatchLadder(const TechniqueSettings& settings) {
    return UserLadder(settings, [](int) { return Mode::Apply; });
}

Solver::Solver(const Grid& grid) : position_(grid), emptyCount_(grid.EmptyCount()) {}

PassResult Solver::Pass(const Ladder& ladder) {
    if (position_.Cells().EmptyCell()) {
        return PassResult::DeadEnd;
    }
    for (const auto& [step, mode] : ladder) {
        if (!MayTry(*step)) {
            return PassResult::Stopped;
        }
        FirstFind first;
        Search(*step, first);
        if (isStopped_) {
            return PassResult::Stopped;
        }
        // A hint must lead on.
        if (!first.any || (mode == Mode::Hint && !first.found.ChangesSomething())) {
            continue;
        }
        lastStep_ = step;
        lastFind_ = std::move(first.found);
        if (mode == Mode::Hint) {
            Record(lastFind_);
            return PassResult::Hint;
        }
        if (Apply(*step, lastFind_)) {
            const bool isFull = emptyCount_ == 0 && TestsForCompletion(*step);
            return isFull ? PassResult::Solved : PassResult::Changed;
        }
    }
    return PassResult::Nothing;
}

bool Solver::MayTry(const Step& step) {
    triedStep_ = &step;
    isStopped_ = watcher_ && !watcher_(step);
    return !isStopped_;
}

void Solver::Search(const Step& step, FindSink& sink) {
    if (step.trial != nullptr) {
        step.trial(*this, sink);
    } else {
        step.search(position_, step.args, sink);
    }
}

Solver Solver::BeginTrial(int digit, int cell) {
    Solver trial(position_.Cells());
    Grid& grid = trial.position_.Change();
    // What an earlier trial left behind must not mislead this one into a clash.
    for (int filled : CellSet::All() - grid.EmptyCells()) {
        for (int peer : Peers(filled) & grid.Candidates(grid.Digit(filled))) {
            grid.VerwijderKnop(peer, grid.Digit(filled));
        }
    }
    if (grid.KnopAan(cell, digit)) {
        grid.Zet(digit, cell);
        --trial.emptyCount_;
    } else {
        grid.WisKnop(cell);  // a dead end from the start
    }
    trial.log_ = log_;
    if (watcher_) {
        // Whatever the trial tries, the run is still at the same step.
        const Step& step = *triedStep_;
        trial.watcher_ = [this, &step](const Step&) { return MayTry(step); };
    }
    return trial;
}

void Solver::KeepLeftover(const Solver& trial) {
    const Grid before = position_.Cells();
    for (int cell : before.EmptyCells()) {
        const int digit = trial.position_.Cells().Digit(cell);
        if (BitCount(before.MarksAt(cell)) != 1 || digit == 0) {
            continue;
        }
        Grid& grid = position_.Change();
        grid.Zet(digit, cell);
        for (int peer : before.Candidates(digit) - CellSet::Of(cell)) {
            grid.GiveBack(peer, digit);
        }
    }
}

void Solver::Log(std::string_view line) const {
    if (log_) {
        log_(line);
    }
}

bool Solver::Apply(const Step& step, const Find& find) {
    CheckAgainstSolution(find);
    if (log_) {
        log_(LogLine(find));
    }
    const bool changed = ApplyEffects(find);
    stepCount_ += changed ? 1 : 0;
    reachedLevel_ = std::max(reachedLevel_, step.level);
    hardestSlot_ = std::max(hardestSlot_, step.slot);
    return changed;
}

bool Solver::ApplyEffects(const Find& find) {
    Grid& grid = position_.Change();
    bool changed = false;
    for (const auto& [cell, digit] : find.placements) {
        if (grid.KnopAan(cell, digit)) {
            grid.Zet(digit, cell);
            --emptyCount_;
            changed = true;
        }
    }
    for (const auto& [cell, digit] : find.removals) {
        if (grid.KnopAan(cell, digit)) {
            grid.VerwijderKnop(cell, digit);
            changed = true;
        }
    }
    return changed;
}

void Solver::Record(const Find& find) {
    CheckAgainstSolution(find);
    Grid& grid = position_.Change();
    grid.ClearRemovedMarks();
    for (const auto& [cell, digit] : find.removals) {
        grid.MarkRemoved(cell, digit);
    }
}

void Solver::CheckAgainstSolution(const Find& find) {
    if (!solution_) {
        return;
    }
    const auto isTrue = [&](CellDigit at) { return (*solution_)[at.cell] == at.digit; };
    const bool sound =
        std::ranges::all_of(find.placements, isTrue) && std::ranges::none_of(find.removals, isTrue);
    unsoundFinds_ += sound ? 0 : 1;
    assert((sound || find.kind == HintKind::BivalueGrave) &&
           "no step removes a solution digit or places a wrong one");
}

bool RunToTheEnd(Solver& solver, const Ladder& ladder, const std::function<bool()>& yield) {
    PassResult result = PassResult::Changed;
    while (result == PassResult::Changed) {
        if (yield && !yield()) {
            return false;
        }
        result = solver.Pass(ladder);
    }
    return solver.EmptyCount() == 0;
}

int RatingOf(const Solver& solver, bool solved) {
    return solved ? std::max(solver.ReachedLevel(), 1) : kOutlaw;
}

}  // namespace vemo
