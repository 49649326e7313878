// The times that are kept.
#include "game/play_times.h"

#include <algorithm>

#include "model/levels.h"

namespace vemo {
namespace {

bool IsBetter(int seconds, PlayTime best) {
    return best.IsNone() || seconds < best.InSeconds();
}

// Writes the puzzle record back with its new best time. A file that has gone is not begun anew with
// it: the next start would not bring the shipped one back.
void BewaarBestTime(Stage& stage) {
    const Session& session = stage.session;
    if (!stage.files.ReadPuzzle(session.level, session.number) ||
        stage.files.WritePuzzle(session.level, session.number, session.puzzle)) {
        TellWriteFailed(stage);
    }
}

// The times alone: which puzzle was opened last and whether it is offered may differ between the
// file and the memory, and stays.
void CopyTimes(const LevelStatistics& from, LevelStatistics& to) {
    to.best = from.best;
    to.solvedCount = from.solvedCount;
    to.totalMinutes = from.totalMinutes;
    to.totalSeconds = from.totalSeconds;
    to.average = from.average;
}

bool AgreeToErase(Stage& stage, const std::string& what) {
    return AskYesNo(stage, "Erase Time", "Do you really want to erase " + what + " ?",
                    EnterKey::No);
}

}  // namespace

void TakeNewerTimes(Stage& stage) {
    const LevelStatistics kept = stage.files.ReadStatistics(stage.session.level);
    if (kept.solvedCount > stage.session.statistics.solvedCount) {
        CopyTimes(kept, stage.session.statistics);
    }
}

void CountCompletion(Stage& stage, int seconds) {
    TakeNewerTimes(stage);
    Session& session = stage.session;
    LevelStatistics& level = session.statistics;
    const PlayTime time = TimeOfSeconds(seconds);
    ++level.solvedCount;
    level.totalMinutes += time.minutes;
    level.totalSeconds += time.seconds;
    level.average = AverageTime(level.totalMinutes, level.totalSeconds, level.solvedCount);
    if (!IsBetter(seconds, session.puzzle.best)) {
        return;
    }
    Tell(stage, "Congratulations", "New best time for this Sudoku!!!");
    session.puzzle.best = time;
    BewaarBestTime(stage);
    if (IsBetter(seconds, level.best)) {
        Tell(stage, "Congratulations", "New best time for this Level!!!");
        level.best = time;
    }
}

void EraseSudokuTime(Stage& stage) {
    Session& session = stage.session;
    std::optional<PuzzleRecord> puzzle = stage.files.ReadPuzzle(session.level, session.number);
    if (!puzzle) {
        TellWriteFailed(stage);
        return;
    }
    LevelStatistics statistics = stage.files.ReadStatistics(session.level);
    // Kept: every solve was added to the totals, but only the best one is taken off them.
    statistics.totalMinutes -= puzzle->best.minutes;
    statistics.totalSeconds -= puzzle->best.seconds;
    statistics.solvedCount = std::max(statistics.solvedCount - 1, 0);
    statistics.average =
        AverageTime(statistics.totalMinutes, statistics.totalSeconds, statistics.solvedCount);
    puzzle->best = PlayTime();
    if (stage.files.WritePuzzle(session.level, session.number, *puzzle) ||
        stage.files.WriteStatistics(session.level, statistics)) {
        TellWriteFailed(stage);
        return;
    }
    session.puzzle.best = PlayTime();
    CopyTimes(statistics, session.statistics);
}

void EraseLevelTime(Stage& stage) {
    Session& session = stage.session;
    if (!AgreeToErase(
            stage, "the best times of all " + std::string(LevelName(session.level)) + " sudokus")) {
        return;
    }
    LevelStatistics statistics = stage.files.ReadStatistics(session.level);
    statistics.best = PlayTime();
    if (stage.files.EraseBestTimes(session.level) ||
        stage.files.WriteStatistics(session.level, statistics)) {
        TellWriteFailed(stage);
        return;
    }
    session.puzzle.best = PlayTime();
    CopyTimes(statistics, session.statistics);
}

void EraseAllTime(Stage& stage) {
    if (!AgreeToErase(stage, "all times of all levels")) {
        return;
    }
    std::array<LevelStatistics, kLevels> all;
    bool hasFailed = false;
    for (int level = 1; level <= kLevels; ++level) {
        LevelStatistics& statistics = all[static_cast<std::size_t>(level - 1)];
        statistics = stage.files.ReadStatistics(level);
        CopyTimes(LevelStatistics(), statistics);
        hasFailed |= stage.files.EraseBestTimes(level).has_value();
    }
    hasFailed |= stage.files.WriteAllStatistics(all).has_value();
    if (hasFailed) {
        TellWriteFailed(stage);
        return;
    }
    stage.session.puzzle.best = PlayTime();
    CopyTimes(LevelStatistics(), stage.session.statistics);
}

std::array<std::string, kStatusPanels> StatusPanels(const Session& session) {
    const bool hasPuzzle = session.number != 0;
    const LevelStatistics& level = session.statistics;
    const bool hasLevelTimes = !level.best.IsNone();
    return {
        // Before the first choice of a level the panel names Medium.
        "Level: " + std::string(session.level == 0 ? LevelName(2) : LevelName(session.level)),
        "Number: " + (hasPuzzle ? std::to_string(session.number) : std::string("none")),
        "Time to Beat: " + FormatTime(hasPuzzle ? session.puzzle.best : PlayTime()),
        "Level Best Time: " + FormatTime(hasLevelTimes ? level.best : PlayTime()),
        "Level Average Time: " + FormatTime(hasLevelTimes ? level.average : PlayTime()),
    };
}

}  // namespace vemo
