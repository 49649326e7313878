// The game's files in the data folder: puzzles and saved progress by level, and the statistics.
//
// Records are numbered from 1. Every call opens a file, reads or writes once, and closes it.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "model/levels.h"
#include "model/records.h"
#include "platform/files.h"

namespace vemo {

// The name of a level's puzzle file: "Sudoku_Easy.sds".
std::string PuzzleFileName(int level);

// Where a puzzle stands in the level files.
struct StoredPlace {
    int level = 0;
    int number = 0;
};

struct NumberedPuzzle {
    int number = 0;
    PuzzleRecord record;

    bool operator==(const NumberedPuzzle&) const = default;
};

class RecordFiles {
  public:
    RecordFiles(Files& files, std::filesystem::path dataFolder);

    const std::filesystem::path& DataFolder() const { return folder_; }
    std::filesystem::path PuzzlePath(int level) const;
    std::filesystem::path ProgressPath(int level) const;
    std::filesystem::path StatisticsPath() const;

    // Makes the data folder and copies each puzzle file that is missing there. What cannot be
    // copied stays missing.
    void InstallShippedPuzzles(const std::filesystem::path& programFolder);

    bool HasPuzzleFile(int level);
    // Whole records in the level's puzzle file; 0 where it is missing.
    int PuzzleCount(int level);

    // Nothing where the file has no such record or cannot be read.
    std::optional<PuzzleRecord> ReadPuzzle(int level, int number);
    // The records `first` to `last`, in one reading of the file: as they are, damaged or not. Fewer
    // where the file ends before `last` or cannot be read.
    std::vector<PuzzleRecord> ReadRun(int level, int first, int last);
    // All records of the level, damaged ones too, in one reading of the file.
    std::vector<PuzzleRecord> ReadRecords(int level);
    // Those of them that are whole.
    std::vector<NumberedPuzzle> ReadPuzzles(int level);
    std::optional<FileError> WritePuzzle(int level, int number, const PuzzleRecord& record);

    // Gives every puzzle of the level the best time 0:00, in one replacement of the file.
    std::optional<FileError> EraseBestTimes(int level);

    // A record past the end, or in a missing file, is the empty play state.
    PlayState ReadPlayState(int level, int number);
    std::optional<FileError> WritePlayState(int level, int number, const PlayState& state);

    // A new progress file for the level: `count` empty play states. A player whose settings are
    // lost does not lose the sudokus in progress with them: the states that belong to their puzzles
    // stay.
    std::optional<FileError> CreateProgressFile(int level, int count);

    // A new puzzle after the last one, its empty play state under the same number; `number` is
    // where it went. On an error no play state that was there is lost.
    struct SavedPuzzle {
        int number = 0;
        std::optional<FileError> error;
    };
    SavedPuzzle SaveSudoku(int level, const PuzzleRecord& record);

    // A record past the end, or in a missing file, is all zero.
    LevelStatistics ReadStatistics(int level);
    std::optional<FileError> WriteStatistics(int level, const LevelStatistics& statistics);
    // All nine levels, in one replacement of the file.
    std::optional<FileError> WriteAllStatistics(
        const std::array<LevelStatistics, kLevels>& statistics);

  private:
    Files& files_;
    std::filesystem::path folder_;
};

}  // namespace vemo
