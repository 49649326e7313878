// vemosud make-levels: the level files of the game, and a list of puzzles for tests.
#include <filesystem>
#include <span>
#include <system_error>

#include "cli/commands.h"
#include "cli/progress.h"
#include "model/files.h"
#include "platform/plain_files.h"
#include "tools/level_maker.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

constexpr Option kOutputOption = {"--output", "DIR", "write nine level files into this folder"};
constexpr Option kSeedOption = {"--seed", "N", "where the random numbers begin (1)"};
constexpr Option kCountOption = {"--count", "N", "puzzles a level (60)"};
constexpr Option kTriesOption = {"--tries", "N", "puzzles tried for one that is kept (500)"};
constexpr Option kCorpusOption = {"--corpus", "FILE", "write a list of mixed puzzles to this file"};
constexpr Option kCorpusCountOption = {"--corpus-count", "N", "puzzles of that list (400)"};
constexpr Option kOptions[] = {kOutputOption, kSeedOption,        kCountOption, kTriesOption,
                               kCorpusOption, kCorpusCountOption, kQuietOption};

constexpr std::uint64_t kMostPuzzles = 100'000;
constexpr std::uint64_t kMostTries = 10'000;

std::string Notes() {
    return "Writes Sudoku_Easy.sds to Sudoku_Outlaw.sds, or a list of puzzles, one a line,\n"
           "or both. Every puzzle has exactly one solution. The same numbers make the same\n"
           "files. Where the puzzles of a level are too rare for so many tries, its file\n"
           "stays short. A folder with a player's progress in it is left alone. Tells of each\n"
           "file that it wrote the name TAB the number of puzzles.\n";
}

struct Order {
    LevelSettings levels;
    int corpusCount = 400;
};

// Reads an option's number, where the option is given; a message where it is none.
template <typename Number>
std::string ReadNumberOf(const Arguments& arguments, const Option& option, std::uint64_t least,
                         std::uint64_t most, Number& number) {
    const auto text = arguments.ValueOf(option.name);
    if (!text) {
        return "";
    }
    const auto read = WholeNumber(*text, least, most);
    if (!read) {
        return std::string(option.name) + " is a number from " + std::to_string(least) + " to " +
               std::to_string(most) + ": " + std::string(*text);
    }
    number = static_cast<Number>(*read);
    return "";
}

std::string ReadOrder(const Arguments& arguments, Order& order) {
    const auto has = [&](const Option& option) { return arguments.Has(option.name); };
    if (!has(kOutputOption) && !has(kCorpusOption)) {
        return "--output DIR or --corpus FILE is missing";
    }
    if ((has(kCountOption) || has(kTriesOption)) && !has(kOutputOption)) {
        return "--count and --tries go with --output";
    }
    if (has(kCorpusCountOption) && !has(kCorpusOption)) {
        return "--corpus-count goes with --corpus";
    }
    std::string error =
        ReadNumberOf(arguments, kSeedOption, 0, ~std::uint64_t{0}, order.levels.seed);
    if (error.empty()) {
        error = ReadNumberOf(arguments, kCountOption, 1, kMostPuzzles, order.levels.count);
    }
    if (error.empty()) {
        error = ReadNumberOf(arguments, kTriesOption, 1, kMostTries, order.levels.triesPerPuzzle);
    }
    if (error.empty()) {
        error = ReadNumberOf(arguments, kCorpusCountOption, 1, kMostPuzzles, order.corpusCount);
    }
    return error;
}

MakerProgress ProgressOn(Progress& progress, const char* what) {
    return [&progress, what](int made, int wanted) {
        if (progress.IsDue()) {
            progress.Show(std::string(what) + ": " + std::to_string(made) + " of " +
                          std::to_string(wanted) + " puzzles");
        }
    };
}

ExitCode Failure(Streams& streams, const FileError& error) {
    Tell(streams, Utf8(error.path) + ": " + error.reason);
    return ExitCode::InputOutput;
}

// The report of a file that stands: its name TAB the number of puzzles.
ExitCode Report(Streams& streams, const std::filesystem::path& path, std::size_t count) {
    const std::string line = Utf8(path) + '\t' + std::to_string(count) + '\n';
    return WriteResult(streams, line) ? ExitCode::Fine : ExitCode::InputOutput;
}

bool HoldsProgress(Files& files, const RecordFiles& records) {
    bool holds = files.Size(records.StatisticsPath()).has_value();
    for (int level = 1; level <= kLevels; ++level) {
        holds |= files.Size(records.ProgressPath(level)).has_value();
    }
    return holds;
}

ExitCode WriteLevel(Streams& streams, Files& files, const std::filesystem::path& path,
                    std::span<const PuzzleRecord> puzzles) {
    Bytes bytes;
    for (const PuzzleRecord& puzzle : puzzles) {
        const PuzzleBytes record = Pack(puzzle);
        bytes.insert(bytes.end(), record.begin(), record.end());
    }
    if (const auto error = files.Replace(path, bytes)) {
        return Failure(streams, *error);
    }
    return Report(streams, path, puzzles.size());
}

ExitCode WriteLevels(Streams& streams, Progress& progress, const Order& order,
                     const std::filesystem::path& folder) {
    PlainFiles files;
    const RecordFiles records(files, folder);
    if (HoldsProgress(files, records)) {
        return Failure(streams, {folder, "holds a player's progress; no level is replaced there"});
    }
    if (const auto error = files.MakeFolder(folder)) {
        return Failure(streams, *error);
    }
    const LevelPuzzles levels = MakeLevels(order.levels, ProgressOn(progress, "Levels"));
    progress.Clear();
    for (int level = 1; level <= kLevels; ++level) {
        const auto& puzzles = levels[static_cast<std::size_t>(level) - 1];
        if (puzzles.size() < static_cast<std::size_t>(order.levels.count)) {
            Tell(streams, "level " + std::string(LevelName(level)) +
                              " stays short: " + std::to_string(puzzles.size()) + " puzzles");
        }
        const ExitCode code = WriteLevel(streams, files, records.PuzzlePath(level), puzzles);
        if (code != ExitCode::Fine) {
            return code;
        }
    }
    return ExitCode::Fine;
}

// Devices and links are not: the new file would take their place.
bool MayBeReplaced(const std::filesystem::path& path) {
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::symlink_status(path, error);
    return !std::filesystem::exists(status) || std::filesystem::is_regular_file(status);
}

ExitCode WriteCorpus(Streams& streams, Progress& progress, const Order& order,
                     const std::filesystem::path& path) {
    if (!MayBeReplaced(path)) {
        return Failure(streams, {path, "is no regular file"});
    }
    const std::string count = std::to_string(order.corpusCount);
    std::string text =
        "# " + count +
        " puzzles with one solution each: Easy, Medium, Hard and harder in turn. By\n"
        "# vemosud make-levels --corpus FILE --corpus-count " +
        count + " --seed " + std::to_string(order.levels.seed) + "\n";
    for (const Digits& clues :
         MakeCorpus(order.levels.seed, order.corpusCount, ProgressOn(progress, "List"))) {
        text += WriteGrid81(clues) + '\n';
    }
    progress.Clear();
    PlainFiles files;
    if (const auto error = files.Replace(path, Bytes(text.begin(), text.end()))) {
        return Failure(streams, *error);
    }
    return Report(streams, path, static_cast<std::size_t>(order.corpusCount));
}

CommandResult RunMakeLevels(const Arguments& arguments, Streams& streams) {
    Order order;
    if (const std::string error = ReadOrder(arguments, order); !error.empty()) {
        return UsageError(error);
    }
    Progress progress(streams.err, streams.showsProgress && !arguments.Has(kQuietOption.name));
    ExitCode code = ExitCode::Fine;
    if (const auto folder = arguments.ValueOf(kOutputOption.name)) {
        code = WriteLevels(streams, progress, order, *folder);
    }
    const auto corpus = arguments.ValueOf(kCorpusOption.name);
    if (corpus && code == ExitCode::Fine) {
        code = WriteCorpus(streams, progress, order, *corpus);
    }
    return {code};
}

}  // namespace

Command MakeLevelsCommand() {
    return {"make-levels",
            Operands::None,
            "[--output DIR [--count N] [--tries N]] [--corpus FILE [--corpus-count N]] [--seed N] "
            "[--quiet]",
            "Makes the level files of the game, or a list of puzzles",
            kOptions,
            Notes,
            RunMakeLevels};
}

}  // namespace vemo
