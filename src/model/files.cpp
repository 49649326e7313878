// The game's files in the data folder.
#include "model/files.h"

#include <algorithm>
#include <utility>

namespace vemo {
namespace {

constexpr std::size_t kBestTimeOffset = 162;

std::uint64_t OffsetOf(int number, std::size_t recordSize) {
    return static_cast<std::uint64_t>(number - 1) * recordSize;
}

// One whole record, zeros where the file ends before or within it.
template <std::size_t kSize>
std::array<std::uint8_t, kSize> ReadRecord(Files& files, const std::filesystem::path& path,
                                           int number) {
    std::array<std::uint8_t, kSize> record{};
    if (number < 1) {
        return record;
    }
    const std::optional<Bytes> bytes = files.ReadAt(path, OffsetOf(number, kSize), kSize);
    if (bytes && bytes->size() == kSize) {
        std::ranges::copy(*bytes, record.begin());
    }
    return record;
}

template <std::size_t kSize>
std::optional<FileError> WriteRecord(Files& files, const std::filesystem::path& path, int number,
                                     const std::array<std::uint8_t, kSize>& record) {
    // The folder may have gone since the start; what is wrong with it the write tells.
    files.MakeFolder(path.parent_path());
    return files.WriteAt(path, OffsetOf(number, kSize), record);
}

}  // namespace

std::string PuzzleFileName(int level) {
    return "Sudoku_" + std::string(LevelName(level)) + ".sds";
}

RecordFiles::RecordFiles(Files& files, std::filesystem::path dataFolder)
    : files_(files), folder_(std::move(dataFolder)) {}

std::filesystem::path RecordFiles::PuzzlePath(int level) const {
    return folder_ / PuzzleFileName(level);
}

std::filesystem::path RecordFiles::ProgressPath(int level) const {
    return PuzzlePath(level).replace_extension(".sdl");
}

std::filesystem::path RecordFiles::StatisticsPath() const {
    return folder_ / "LevelsLog.msl";
}

void RecordFiles::InstallShippedPuzzles(const std::filesystem::path& programFolder) {
    files_.MakeFolder(folder_);
    for (int level = 1; level <= kLevels; ++level) {
        files_.CopyIfMissing(programFolder / PuzzleFileName(level), PuzzlePath(level));
    }
}

bool RecordFiles::HasPuzzleFile(int level) {
    return files_.Size(PuzzlePath(level)).has_value();
}

int RecordFiles::PuzzleCount(int level) {
    return static_cast<int>(files_.Size(PuzzlePath(level)).value_or(0) / kPuzzleRecordSize);
}

std::optional<PuzzleRecord> RecordFiles::ReadPuzzle(int level, int number) {
    if (number < 1 || number > PuzzleCount(level)) {
        return std::nullopt;
    }
    const std::optional<Bytes> bytes =
        files_.ReadAt(PuzzlePath(level), OffsetOf(number, kPuzzleRecordSize), kPuzzleRecordSize);
    if (!bytes || bytes->size() != kPuzzleRecordSize) {
        return std::nullopt;
    }
    return UnpackPuzzle(std::span<const std::uint8_t, kPuzzleRecordSize>(*bytes));
}

std::vector<PuzzleRecord> RecordFiles::ReadRun(int level, int first, int last) {
    std::vector<PuzzleRecord> puzzles;
    if (first < 1 || last < first) {
        return puzzles;
    }
    const std::size_t length = static_cast<std::size_t>(last - first + 1) * kPuzzleRecordSize;
    const Bytes content =
        files_.ReadAt(PuzzlePath(level), OffsetOf(first, kPuzzleRecordSize), length)
            .value_or(Bytes());
    for (std::span<const std::uint8_t> rest(content); rest.size() >= kPuzzleRecordSize;
         rest = rest.subspan(kPuzzleRecordSize)) {
        puzzles.push_back(UnpackPuzzle(rest.first<kPuzzleRecordSize>()));
    }
    return puzzles;
}

std::vector<PuzzleRecord> RecordFiles::ReadRecords(int level) {
    return ReadRun(level, 1, PuzzleCount(level));
}

std::vector<NumberedPuzzle> RecordFiles::ReadPuzzles(int level) {
    std::vector<NumberedPuzzle> puzzles;
    int number = 0;
    for (const PuzzleRecord& record : ReadRecords(level)) {
        ++number;
        if (IsWhole(record)) {
            puzzles.push_back({number, record});
        }
    }
    return puzzles;
}

std::optional<FileError> RecordFiles::WritePuzzle(int level, int number,
                                                  const PuzzleRecord& record) {
    return WriteRecord(files_, PuzzlePath(level), number, Pack(record));
}

std::optional<FileError> RecordFiles::EraseBestTimes(int level) {
    const std::filesystem::path path = PuzzlePath(level);
    const std::uint64_t size = files_.Size(path).value_or(0);
    std::optional<Bytes> content = files_.ReadAt(path, 0, static_cast<std::size_t>(size));
    if (!content) {
        return FileError{path, "cannot be read"};
    }
    for (std::size_t start = 0; start + kPuzzleRecordSize <= content->size();
         start += kPuzzleRecordSize) {
        std::fill_n(content->begin() + static_cast<std::ptrdiff_t>(start + kBestTimeOffset),
                    kPuzzleRecordSize - kBestTimeOffset, std::uint8_t{0});
    }
    return files_.Replace(path, *content);
}

PlayState RecordFiles::ReadPlayState(int level, int number) {
    return UnpackPlayState(ReadRecord<kPlayStateRecordSize>(files_, ProgressPath(level), number));
}

std::optional<FileError> RecordFiles::WritePlayState(int level, int number,
                                                     const PlayState& state) {
    return WriteRecord(files_, ProgressPath(level), number, Pack(state));
}

std::optional<FileError> RecordFiles::CreateProgressFile(int level, int count) {
    // The empty play state is all zero.
    Bytes content(static_cast<std::size_t>(count) * kPlayStateRecordSize);
    const bool hasStates = files_.Size(ProgressPath(level)).has_value();
    for (int number = 1; hasStates && number <= count; ++number) {
        const PlayState state = ReadPlayState(level, number);
        const std::optional<PuzzleRecord> puzzle = ReadPuzzle(level, number);
        if (puzzle && BelongsTo(state, *puzzle)) {
            std::ranges::copy(Pack(state), content.begin() + static_cast<std::ptrdiff_t>(OffsetOf(
                                                                 number, kPlayStateRecordSize)));
        }
    }
    return files_.Replace(ProgressPath(level), content);
}

RecordFiles::SavedPuzzle RecordFiles::SaveSudoku(int level, const PuzzleRecord& record) {
    SavedPuzzle saved;
    saved.number = PuzzleCount(level) + 1;
    const PlayState before = ReadPlayState(level, saved.number);
    // The progress record goes first: a puzzle is never there without one.
    saved.error = WritePlayState(level, saved.number, PlayState{});
    if (saved.error) {
        return saved;
    }
    saved.error = WritePuzzle(level, saved.number, record);
    if (saved.error && before != PlayState{}) {
        // Its puzzle may only be out of reach for now.
        WritePlayState(level, saved.number, before);
    }
    return saved;
}

LevelStatistics RecordFiles::ReadStatistics(int level) {
    return UnpackStatistics(ReadRecord<kStatisticsRecordSize>(files_, StatisticsPath(), level));
}

std::optional<FileError> RecordFiles::WriteStatistics(int level,
                                                      const LevelStatistics& statistics) {
    return WriteRecord(files_, StatisticsPath(), level, Pack(statistics));
}

std::optional<FileError> RecordFiles::WriteAllStatistics(
    const std::array<LevelStatistics, kLevels>& statistics) {
    Bytes content;
    for (const LevelStatistics& level : statistics) {
        const StatisticsBytes record = Pack(level);
        content.insert(content.end(), record.begin(), record.end());
    }
    return files_.Replace(StatisticsPath(), content);
}

}  // namespace vemo
