// vemosud generate: puzzles of chosen levels.
#include <algorithm>
#include <optional>

#include "cli/answers.h"
#include "cli/commands.h"
#include "cli/level_counts.h"
#include "cli/progress.h"
#include "model/files.h"
#include "platform/plain_files.h"
#include "tools/canonical.h"
#include "tools/generator.h"
#include "tools/puzzle_line.h"
#include "tools/threads.h"

namespace vemo {
namespace {

constexpr Option kLevelsOption = {"--levels", "LIST", "how many puzzles of which level"};
constexpr Option kUnratedOption = {"--unrated", "N", "make N puzzles of any level"};
constexpr Option kSymmetryOption = {"--symmetry", "NAME", "of the places of the clues (none)"};
constexpr Option kCluesOption = {"--clues", "A-B", "how many clues (what suits the level)"};
constexpr Option kMinimalOption = {"--minimal", "", "no clue that the puzzle could do without"};
constexpr Option kNeedsOption = {"--needs", "SLOT", "a technique that the puzzle needs, 3 to 39"};
constexpr Option kSeedOption = {"--seed", "N", "where the random numbers begin (1)"};
constexpr Option kTriesOption = {"--tries", "N", "puzzles tried before it gives up (10000000)"};
constexpr Option kTimeOption = {"--time", "SECONDS", "end after this time"};
constexpr Option kAppendOption = {"--append", "DIR", "add the puzzles to the level files there"};
constexpr Option kOptions[] = {kLevelsOption,  kUnratedOption, kSymmetryOption, kCluesOption,
                               kMinimalOption, kNeedsOption,   kSeedOption,     kTriesOption,
                               kTimeOption,    kThreadsOption, kAppendOption,   kJsonlOption,
                               kQuietOption};

constexpr std::chrono::milliseconds kBetweenTwoLooks{100};

std::string Notes() {
    std::string notes =
        "One line a puzzle: puzzle TAB level number TAB level name TAB hardest technique\n"
        "used TAB number of steps; of --unrated the puzzle alone. With --append the last\n"
        "field is the puzzle's number in its level file, and none is made that is equivalent\n"
        "to one there. With --jsonl the fields \"puzzle\", \"level\", \"name\", \"hardest\",\n"
        "\"steps\", \"number\". Every puzzle has exactly one solution. The same options give the\n"
        "same puzzles with any number of threads, unless --time ends the run. Where puzzles\n"
        "are missing in the end, a message says so; the exit code is 1.\n"
        "\n";
    notes.append(kLevelCountsNotes).append("NAME is one of");
    for (const SymmetryRow& row : Symmetries()) {
        notes.append(" ").append(row.word);
    }
    notes.append(
        ".\nSLOT needs: the techniques up to the puzzle's hardest do not solve it without this\n"
        "one. Slots are numbered as in vemosud rate --order.\n");
    return notes.append(kOneWriterNote);
}

struct Order {
    GeneratorSettings settings;
    int threads = DefaultThreads();
};

std::string ReadClues(const Arguments& arguments, GeneratorSettings& settings) {
    ClueRange clues;
    const std::string error =
        ReadRangeOf(arguments, kCluesOption, kCells, clues.fewest, clues.most);
    if (arguments.Has(kCluesOption.name)) {
        settings.clues = clues;
    }
    return error;
}

std::string ReadNames(const Arguments& arguments, GeneratorSettings& settings) {
    if (const auto list = arguments.ValueOf(kLevelsOption.name)) {
        const ReadLevelCounts read = ParseLevelCounts(*list);
        if (!read.error.empty()) {
            return "--levels: " + read.error;
        }
        settings.wanted = read.counts;
    }
    if (const auto word = arguments.ValueOf(kSymmetryOption.name)) {
        const std::optional<Symmetry> symmetry = SymmetryNamed(*word);
        if (!symmetry) {
            return "--symmetry is no symmetry: " + std::string(*word);
        }
        settings.symmetry = *symmetry;
    }
    if (arguments.Has(kMinimalOption.name)) {
        settings.minimality = Minimality::Minimal;
    }
    return ReadClues(arguments, settings);
}

// Answers what is wrong; empty where all was read.
std::string ReadOrder(const Arguments& arguments, Order& order) {
    GeneratorSettings& settings = order.settings;
    int seconds = 0;
    std::string error = ReadNames(arguments, settings);
    const auto read = [&](const Option& option, std::uint64_t least, std::uint64_t most,
                          auto& number) {
        error = error.empty() ? ReadNumberOf(arguments, option, least, most, number) : error;
    };
    read(kUnratedOption, 0, kMostWanted, settings.wanted[0]);
    read(kNeedsOption, kFirstTechniqueSlot, kSlots - 1, settings.neededSlot);
    read(kSeedOption, 0, ~std::uint64_t{0}, settings.seed);
    read(kTriesOption, 1, kMostTries, settings.mostTries);
    read(kTimeOption, 1, kMostTime.count(), seconds);
    read(kThreadsOption, 1, kMostThreads, order.threads);
    settings.mostTime = std::chrono::seconds(seconds);
    if (error.empty() && settings.wanted[0] > 0 && arguments.Has(kAppendOption.name)) {
        return "--append goes with --levels: a puzzle that is not rated belongs to no level file";
    }
    return error.empty() ? SettingsError(settings) : error;
}

// Where puzzles go: to the results, and perhaps to level files.
class Output {
  public:
    Output(const Arguments& arguments, Streams& streams)
        : streams_(streams), isJson_(arguments.Has(kJsonlOption.name)) {
        if (const auto folder = arguments.ValueOf(kAppendOption.name)) {
            records_.emplace(files_, *folder);
        }
    }

    // The canonical forms of what stands in the files that puzzles are added to.
    std::set<Digits> Known(const GeneratorSettings& settings);
    // Answers whether all went well; the puzzle is among the results in any case.
    bool Write(const RatedPuzzle& rated);

  private:
    Streams& streams_;
    bool isJson_;
    PlainFiles files_;
    std::optional<RecordFiles> records_;
};

std::set<Digits> Output::Known(const GeneratorSettings& settings) {
    std::set<Digits> known;
    for (int level = 1; level <= kLevels && records_; ++level) {
        if (settings.wanted[static_cast<std::size_t>(level)] > 0) {
            AddCanonicalForms(*records_, level, known);
        }
    }
    return known;
}

bool Output::Write(const RatedPuzzle& rated) {
    const std::string puzzle = WriteGrid81(rated.puzzle.clues);
    RecordFiles::SavedPuzzle saved;
    if (records_) {
        saved = records_->SaveSudoku(rated.rating, rated.puzzle);
        if (saved.error) {
            Tell(streams_, Utf8(saved.error->path) + ": " + saved.error->reason);
        }
    }
    const bool isRated = rated.rating > 0;
    const bool hasNumber = records_ && !saved.error;
    const RatingFields fields =
        isRated ? FieldsOf(rated.rating, rated.hardestSlot, rated.steps) : RatingFields{};
    std::string line;
    if (isJson_) {
        JsonObject object;
        object.Add("puzzle", puzzle);
        if (isRated) {
            AddRating(fields, object);
        }
        if (hasNumber) {
            object.Add("number", saved.number);
        }
        line = object.Line();
    } else {
        line = isRated ? RatingText(puzzle, fields) : puzzle;
        line += hasNumber ? '\t' + std::to_string(saved.number) + '\n' : "\n";
    }
    return WriteResult(streams_, line) && !saved.error;
}

std::string ProgressText(const GeneratorCounts& counts, const GeneratorSettings& settings) {
    std::string text = std::to_string(counts.tried) + " tried";
    for (std::size_t level = 0; level < counts.kept.size(); ++level) {
        if (settings.wanted[level] > 0) {
            text +=
                level == 0 ? ", " : ", " + std::string(LevelName(static_cast<int>(level))) + ' ';
            text +=
                std::to_string(counts.kept[level]) + '/' + std::to_string(settings.wanted[level]);
        }
    }
    return text;
}

// Says which puzzles are missing, and why.
ExitCode TellEnding(const GeneratorCounts& counts, const GeneratorSettings& settings,
                    Streams& streams) {
    if (counts.ending == Ending::Complete) {
        return ExitCode::Fine;
    }
    const char* reason = counts.ending == Ending::Tries       ? "all tries are used up: "
                         : counts.ending == Ending::Time      ? "the time is over: "
                         : counts.ending == Ending::NoThreads ? "the system has no thread left: "
                                                              : "interrupted: ";
    Tell(streams, reason + ProgressText(counts, settings));
    return counts.ending == Ending::Stopped ? ExitCode::Interrupted : ExitCode::FaultyLine;
}

CommandResult RunGenerate(const Arguments& arguments, Streams& streams) {
    Order order;
    if (const std::string error = ReadOrder(arguments, order); !error.empty()) {
        return UsageError(error);
    }
    Progress progress(streams.err, streams.showsProgress && !arguments.Has(kQuietOption.name));
    Output output(arguments, streams);
    Generator generator(order.settings, order.threads, output.Known(order.settings));
    GeneratorCounts counts;
    bool isWritten = true;
    while (counts.ending == Ending::None && isWritten) {
        generator.Wait(kBetweenTwoLooks);
        if (streams.isInterrupted()) {
            generator.Stop();
        }
        counts = generator.Counts();
        for (const RatedPuzzle& rated : generator.Take()) {
            isWritten = output.Write(rated) && isWritten;
        }
        if (progress.IsDue()) {
            progress.Show(ProgressText(counts, order.settings));
        }
    }
    progress.Clear();
    return {isWritten ? TellEnding(counts, order.settings, streams) : ExitCode::InputOutput};
}

}  // namespace

Command GenerateCommand() {
    return {"generate",
            Operands::None,
            "[--levels LIST] [--unrated N] [--symmetry NAME] [--clues A-B] [--minimal]\n"
            "      [--needs SLOT] [--seed N] [--tries N] [--time SECONDS] [--threads N]\n"
            "      [--append DIR] [--jsonl] [--quiet]",
            "Makes puzzles of chosen levels",
            kOptions,
            Notes,
            RunGenerate};
}

}  // namespace vemo
