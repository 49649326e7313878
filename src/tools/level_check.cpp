// Judging level files.
#include "tools/level_check.h"

#include "solver/fast_count.h"
#include "tools/canonical.h"

namespace vemo {

void LevelCheck::BeginFile(int level, std::string name) {
    level_ = level;
    file_ = std::move(name);
    number_ = 0;
    before_ = {};
}

std::vector<std::string> LevelCheck::FaultsOf(const std::optional<PuzzleRecord>& puzzle) {
    ++number_;
    if (!puzzle || !IsWhole(*puzzle)) {
        return {"is damaged"};
    }
    std::vector<std::string> faults;
    const SolutionCount solutions = FastCount(puzzle->clues);
    if (!solutions.IsUnique()) {
        return {"has more than one solution"};
    }
    if (solutions.first != puzzle->solution) {
        return {"has another solution than the one stored"};
    }
    const auto [place, isNew] = places_.emplace(CanonicalForm(puzzle->clues, puzzle->solution),
                                                std::to_string(number_) + " of " + file_);
    if (!isNew) {
        faults.push_back("is equivalent to puzzle " + place->second);
    }
    if ((number_ - 1) % ratesOneIn_ == 0) {
        CheckRating(*puzzle, faults);
    }
    return faults;
}

void LevelCheck::CheckRating(const PuzzleRecord& puzzle, std::vector<std::string>& faults) {
    const RatedPuzzle rated = Rate(puzzle);
    if (rated.rating != level_) {
        faults.push_back("is rated " + std::string(LevelName(rated.rating)));
    } else if (IsGentler(rated, before_)) {
        faults.emplace_back("is gentler than one before it");
    } else {
        before_ = rated;
    }
}

}  // namespace vemo
