// vemosud levels: level files checked, and turned into lists of puzzles and back.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <span>

#include "cli/commands.h"
#include "cli/level_counts.h"
#include "cli/line_loop.h"
#include "cli/progress.h"
#include "model/files.h"
#include "platform/plain_files.h"
#include "solver/fast_count.h"
#include "tools/level_check.h"
#include "tools/puzzle_line.h"
#include "tools/symmetry.h"

namespace vemo {
namespace {

constexpr Option kOneInOption = {"--one-in", "N", "verify: rate only every Nth puzzle (1)"};
constexpr Option kOptions[] = {kOneInOption, kQuietOption};

constexpr std::uint64_t kMostOneIn = 1'000'000;

std::string Notes() {
    return "verify  proves of every puzzle that it has exactly one solution, the one stored with\n"
           "        it, is equivalent to no other in any of the files, is of its file's level,\n"
           "        and that a file goes from gentle to hard. A message for each that fails. One\n"
           "        line a file: name TAB puzzles TAB those with a symmetry TAB faults. A file is\n"
           "        named after its level: Sudoku_Easy.sds.\n"
           "export  writes the puzzles of a level file, one a line.\n"
           "import  adds the puzzles of LIST to a level file, which it makes where there is\n"
           "        none; one without exactly one solution gets a message and stays out. One\n"
           "        line a puzzle: puzzle TAB its number in the file.\n" +
           std::string(kOneWriterNote).append("\n").append(kPuzzleNotes).append(kListNotes);
}

int LevelOfFile(const std::filesystem::path& path) {
    for (int level = 1; level <= kLevels; ++level) {
        if (path.filename() == PuzzleFileName(level)) {
            return level;
        }
    }
    return 0;
}

// A level file anywhere, under any name.
class LevelFile {
  public:
    explicit LevelFile(std::filesystem::path path) : path_(std::move(path)) {}

    bool Exists() { return files_.Size(path_).has_value(); }
    int Count() { return static_cast<int>(files_.Size(path_).value_or(0) / kPuzzleRecordSize); }
    // Bytes behind the last whole record.
    int Rest() { return static_cast<int>(files_.Size(path_).value_or(0) % kPuzzleRecordSize); }

    std::optional<PuzzleRecord> Read(int number) {
        const auto bytes = files_.ReadAt(path_, OffsetOf(number), kPuzzleRecordSize);
        if (!bytes || bytes->size() != kPuzzleRecordSize) {
            return std::nullopt;
        }
        return UnpackPuzzle(std::span<const std::uint8_t, kPuzzleRecordSize>(*bytes));
    }
    std::optional<FileError> Write(int number, const PuzzleRecord& puzzle) {
        return files_.WriteAt(path_, OffsetOf(number), Pack(puzzle));
    }

  private:
    static std::uint64_t OffsetOf(int number) {
        return (static_cast<std::uint64_t>(number) - 1) * kPuzzleRecordSize;
    }

    PlainFiles files_;
    std::filesystem::path path_;
};

ExitCode TellUnreadable(Streams& streams, const std::string& name) {
    Tell(streams, name + " is no file, or cannot be read");
    return ExitCode::InputOutput;
}

ExitCode VerifyFile(const std::string& name, int level, LevelCheck& check, Streams& streams,
                    Progress& progress) {
    LevelFile file(name);
    check.BeginFile(level, name);
    const int count = file.Count();
    int symmetrical = 0;
    int faults = 0;
    const auto tell = [&](const std::string& text) {
        progress.Clear();
        Tell(streams, name + ": " + text);
        ++faults;
    };
    for (int number = 1; number <= count; ++number) {
        if (streams.isInterrupted()) {
            return ExitCode::Interrupted;
        }
        const auto puzzle = file.Read(number);
        for (const std::string& fault : check.FaultsOf(puzzle)) {
            tell("puzzle " + std::to_string(number) + ' ' + fault);
        }
        symmetrical += puzzle && SymmetryOf(puzzle->clues) != Symmetry::None ? 1 : 0;
        if (progress.IsDue()) {
            progress.Show(name + ": " + std::to_string(number) + " of " + std::to_string(count));
        }
    }
    if (file.Rest() != 0) {
        tell("the last record is cut off");
    }
    progress.Clear();
    const std::string line = name + '\t' + std::to_string(count) + '\t' +
                             std::to_string(symmetrical) + '\t' + std::to_string(faults) + '\n';
    return !WriteResult(streams, line) ? ExitCode::InputOutput
           : faults > 0                ? ExitCode::FaultyLine
                                       : ExitCode::Fine;
}

CommandResult Verify(const Arguments& arguments, std::span<const std::string> names,
                     Streams& streams) {
    int oneIn = 1;
    if (const std::string error = ReadNumberOf(arguments, kOneInOption, 1, kMostOneIn, oneIn);
        !error.empty()) {
        return UsageError(error);
    }
    for (const std::string& name : names) {
        if (LevelOfFile(name) == 0) {
            return UsageError(name + " is not named after a level, such as " + PuzzleFileName(1));
        }
    }
    LevelCheck check(oneIn);
    Progress progress(streams.err, streams.showsProgress && !arguments.Has(kQuietOption.name));
    ExitCode worst = ExitCode::Fine;
    for (const std::string& name : names) {
        const ExitCode code = LevelFile(name).Exists()
                                  ? VerifyFile(name, LevelOfFile(name), check, streams, progress)
                                  : TellUnreadable(streams, name);
        worst = std::max(worst, code);
        if (code == ExitCode::Interrupted) {
            break;
        }
    }
    return {worst};
}

CommandResult Export(const Arguments&, std::span<const std::string> names, Streams& streams) {
    const std::string& name = names.front();
    LevelFile file(name);
    if (!file.Exists()) {
        return {TellUnreadable(streams, name)};
    }
    ExitCode code = ExitCode::Fine;
    for (int number = 1; number <= file.Count() && !streams.isInterrupted(); ++number) {
        const auto puzzle = file.Read(number);
        if (!puzzle || !IsWhole(*puzzle)) {
            Tell(streams, name + ": puzzle " + std::to_string(number) + " is damaged");
            code = ExitCode::FaultyLine;
        } else if (!WriteResult(streams, WriteGrid81(puzzle->clues) + '\n')) {
            return {ExitCode::InputOutput};
        }
    }
    return {streams.isInterrupted() ? ExitCode::Interrupted : code};
}

CommandResult Import(const Arguments& arguments, std::span<const std::string> names,
                     Streams& streams) {
    const std::string& name = names.front();
    LevelFile file(name);
    Arguments list = arguments;
    list.operands = {names.back()};
    bool isStored = true;
    const auto store = [&](const InputLine& line) -> Answer {
        const PuzzleLine read = ReadPuzzleLine(line.text);
        if (!read.IsPuzzle()) {
            return Refusal(read.error);
        }
        const SolutionCount solutions = FastCount(read.clues);
        if (!solutions.IsUnique()) {
            return Refusal("the puzzle does not have exactly one solution");
        }
        const int number = file.Count() + 1;
        if (const auto error = file.Write(number, {read.clues, solutions.first, {}})) {
            isStored = false;
            return Refusal(Utf8(error->path) + ": " + error->reason);
        }
        return {WriteGrid81(read.clues) + '\t' + std::to_string(number) + '\n'};
    };
    const CommandResult result = AnswerEachLine(list, streams, Working::InTurn, store);
    return isStored ? result : CommandResult{ExitCode::InputOutput};
}

struct Deed {
    std::string_view name;
    std::size_t fewest;
    std::size_t most;
    std::string_view operands;
    CommandResult (*run)(const Arguments&, std::span<const std::string> names, Streams&);
};

constexpr Deed kDeeds[] = {
    {"verify", 1, 1000, "the names of level files", Verify},
    {"export", 1, 1, "the name of one level file", Export},
    {"import", 2, 2, "the names of a level file and of a list", Import},
};

CommandResult RunLevels(const Arguments& arguments, Streams& streams) {
    const std::span<const std::string> words = arguments.operands;
    if (words.empty()) {
        return UsageError("verify, export or import is missing");
    }
    const auto* deed = std::ranges::find(kDeeds, words.front(), &Deed::name);
    if (deed == std::end(kDeeds)) {
        return UsageError("neither verify, export nor import: " + words.front());
    }
    const std::span<const std::string> names = words.subspan(1);
    if (names.size() < deed->fewest || names.size() > deed->most) {
        return UsageError(words.front() + " takes " + std::string(deed->operands));
    }
    return deed->run(arguments, names, streams);
}

}  // namespace

Command LevelsCommand() {
    return {"levels",
            Operands::Several,
            "verify [--one-in N] FILE... | export FILE | import FILE LIST",
            "Proves level files, and turns them into lists and back",
            kOptions,
            Notes,
            RunLevels};
}

}  // namespace vemo
