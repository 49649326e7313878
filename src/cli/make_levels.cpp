// vemosud make-levels: the level files of the game, and a list of puzzles for tests.
#include <algorithm>
#include <filesystem>
#include <span>
#include <system_error>

#include "cli/commands.h"
#include "cli/level_counts.h"
#include "cli/progress.h"
#include "model/files.h"
#include "platform/plain_files.h"
#include "tools/generator.h"
#include "tools/level_maker.h"
#include "tools/puzzle_line.h"
#include "tools/threads.h"

namespace vemo {
namespace {

constexpr std::string_view kShippedCounts =
    "Easy:1000,Medium:1000,Hard:1000,Crazy:1000,Insane:1000,Kamikaze:1000,Extreme:1000,"
    "Mayhem:500,Outlaw:220";

constexpr Option kOutputOption = {"--output", "DIR", "write nine level files into this folder"};
constexpr Option kLevelsOption = {"--levels", "LIST", "puzzles a level (as shipped)"};
constexpr Option kSeedOption = {"--seed", "N", "where the random numbers begin (1)"};
constexpr Option kTriesOption = {"--tries", "N", "puzzles tried before it gives up (1000000000)"};
constexpr Option kCorpusOption = {"--corpus", "FILE", "write a list of mixed puzzles to this file"};
constexpr Option kCorpusCountOption = {"--corpus-count", "N", "puzzles of that list (400)"};
constexpr Option kOptions[] = {kOutputOption, kLevelsOption,      kSeedOption,    kTriesOption,
                               kCorpusOption, kCorpusCountOption, kThreadsOption, kQuietOption};

constexpr std::uint64_t kMostPuzzles = 100'000;

std::string Notes() {
    return "Writes Sudoku_Easy.sds to Sudoku_Outlaw.sds, or a list of puzzles, one a line,\n"
           "or both. Every puzzle has exactly one solution. The same options make the same\n"
           "files, with any number of threads; without --levels and with --seed 2026 those of\n"
           "the game, in about half an hour. Where the puzzles of a level are too rare for so\n"
           "many tries, its file stays short, and the exit code is 1. A folder with a player's\n"
           "progress in it is left alone. Tells of each file that it wrote the name TAB the\n"
           "number of puzzles. An interrupt ends it with no further file written.\n"
           "\n" +
           std::string(kLevelCountsNotes);
}

struct Order {
    LevelSettings levels;
    int corpusCount = 400;
};

std::string ReadOrder(const Arguments& arguments, Order& order) {
    const auto has = [&](const Option& option) { return arguments.Has(option.name); };
    if (!has(kOutputOption) && !has(kCorpusOption)) {
        return "--output DIR or --corpus FILE is missing";
    }
    if ((has(kLevelsOption) || has(kTriesOption) || has(kThreadsOption)) && !has(kOutputOption)) {
        return "--levels, --tries and --threads go with --output";
    }
    if (has(kCorpusCountOption) && !has(kCorpusOption)) {
        return "--corpus-count goes with --corpus";
    }
    const ReadLevelCounts read =
        ParseLevelCounts(arguments.ValueOf(kLevelsOption.name).value_or(kShippedCounts));
    std::copy(read.counts.begin() + 1, read.counts.end(), order.levels.counts.begin());
    order.levels.threads = DefaultThreads();
    std::string error = read.error.empty() ? "" : "--levels: " + read.error;
    const auto readNumber = [&](const Option& option, std::uint64_t least, std::uint64_t most,
                                auto& number) {
        error = error.empty() ? ReadNumberOf(arguments, option, least, most, number) : error;
    };
    readNumber(kSeedOption, 0, ~std::uint64_t{0}, order.levels.seed);
    readNumber(kTriesOption, 1, kMostTries, order.levels.mostTries);
    readNumber(kCorpusCountOption, 1, kMostPuzzles, order.corpusCount);
    readNumber(kThreadsOption, 1, kMostThreads, order.levels.threads);
    return error;
}

MakerProgress ProgressOn(Progress& progress, const Streams& streams, const char* what) {
    return [&progress, &streams, what](int made, int wanted) {
        if (progress.IsDue()) {
            progress.Show(std::string(what) + ": " + std::to_string(made) + " of " +
                          std::to_string(wanted) + " puzzles");
        }
        return !streams.isInterrupted();
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
    const auto levels = MakeLevels(order.levels, ProgressOn(progress, streams, "Levels"));
    progress.Clear();
    if (!levels && !streams.isInterrupted()) {
        Tell(streams, "the system has no thread left");
        return ExitCode::InputOutput;
    }
    if (!levels) {
        return ExitCode::Interrupted;
    }
    ExitCode worst = ExitCode::Fine;
    for (int level = 1; level <= kLevels; ++level) {
        const auto& puzzles = (*levels)[static_cast<std::size_t>(level) - 1];
        const int wanted = order.levels.counts[static_cast<std::size_t>(level) - 1];
        if (puzzles.size() < static_cast<std::size_t>(wanted)) {
            Tell(streams, "level " + std::string(LevelName(level)) +
                              " stays short: " + std::to_string(puzzles.size()) + " puzzles");
            worst = ExitCode::FaultyLine;
        }
        const ExitCode code = WriteLevel(streams, files, records.PuzzlePath(level), puzzles);
        if (code != ExitCode::Fine) {
            return code;
        }
    }
    return worst;
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
    const auto corpus =
        MakeCorpus(order.levels.seed, order.corpusCount, ProgressOn(progress, streams, "List"));
    progress.Clear();
    if (!corpus) {
        return ExitCode::Interrupted;
    }
    const std::string count = std::to_string(order.corpusCount);
    std::string text =
        "# " + count +
        " puzzles with one solution each: Easy, Medium, Hard and harder in turn. By\n"
        "# vemosud make-levels --corpus FILE --corpus-count " +
        count + " --seed " + std::to_string(order.levels.seed) + "\n";
    for (const Digits& clues : *corpus) {
        text += WriteGrid81(clues) + '\n';
    }
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
    if (corpus && code <= ExitCode::FaultyLine) {
        code = std::max(code, WriteCorpus(streams, progress, order, *corpus));
    }
    return {code};
}

}  // namespace

Command MakeLevelsCommand() {
    return {"make-levels",
            Operands::None,
            "[--output DIR [--levels LIST] [--tries N] [--threads N]]\n"
            "      [--corpus FILE [--corpus-count N]] [--seed N] [--quiet]",
            "Makes the level files of the game, or a list of puzzles",
            kOptions,
            Notes,
            RunMakeLevels};
}

}  // namespace vemo
