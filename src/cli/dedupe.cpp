// vemosud dedupe: a list without the puzzles that occur in it twice.
#include <filesystem>

#include "cli/commands.h"
#include "cli/line_source.h"
#include "cli/progress.h"
#include "tools/duplicates.h"
#include "tools/ordered_work.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

constexpr Option kExactOption = {"--exact", "", "only those that are written alike"};
constexpr Option kReportOption = {"--report", "", "write the duplicates instead of the rest"};
constexpr Option kOptions[] = {kExactOption, kReportOption, kThreadsOption, kQuietOption};

// Enough that handing them over does not count.
constexpr std::size_t kLinesAtOnce = 64;

std::string Notes() {
    return "Writes each puzzle once, where it comes first. Puzzles are the same puzzle where\n"
           "relabelling digits, transposing, and exchanging bands, stacks, rows within a band\n"
           "and columns within a stack turn one into the other. With --report one line a\n"
           "duplicate: puzzle TAB its line TAB exact or equivalent TAB the line of the first.\n"
           "FILE is read twice; standard input is not taken.\n"
           "\n" +
           std::string(kPuzzleNotes).append(kListNotes);
}

struct SignedLine {
    long number = 0;
    std::string error;
    PuzzleSigns signs;
};
using SignedLines = std::vector<SignedLine>;

SignedLines Sign(const Lines& lines) {
    SignedLines result;
    for (const Line& line : lines) {
        const PuzzleLine read = ReadPuzzleLine(line.text);
        result.push_back({line.number, line.isTooLong ? "too long" : read.error, {}});
        if (result.back().error.empty()) {
            result.back().signs = SignsOf(read.clues);
        }
    }
    return result;
}

class Dedupe {
  public:
    Dedupe(const Arguments& arguments, Streams& streams)
        : arguments_(arguments),
          streams_(streams),
          progress_(streams.err, streams.showsProgress && !arguments.Has(kQuietOption.name)) {}

    CommandResult Run();

  private:
    void Find(LineSource& source, int threads);
    bool Write(LineSource& source, const std::vector<Duplicate>& duplicates);

    const Arguments& arguments_;
    Streams& streams_;
    Progress progress_;
    DuplicateSearch search_;
    bool hasFaults_ = false;
};

void Dedupe::Find(LineSource& source, int threads) {
    OrderedWork<Lines, SignedLines> work;
    work.next = [&] { return source.Next(kLinesAtOnce); };
    work.work = [](const Lines& lines, const std::stop_token&) { return Sign(lines); };
    work.give = [&](const Lines&, SignedLines&& lines) {
        for (const SignedLine& line : lines) {
            if (!line.error.empty()) {
                progress_.Clear();
                Tell(streams_, "line " + std::to_string(line.number) + ": " + line.error);
                hasFaults_ = true;
                continue;
            }
            search_.Add(static_cast<std::uint32_t>(line.number), line.signs);
        }
        if (progress_.IsDue()) {
            progress_.Show(std::to_string(lines.back().number) + " lines");
        }
        return !streams_.isInterrupted();
    };
    RunInOrder(threads, work);
    progress_.Clear();
}

bool Dedupe::Write(LineSource& source, const std::vector<Duplicate>& duplicates) {
    const bool isReport = arguments_.Has(kReportOption.name);
    auto next = duplicates.begin();
    for (auto lines = source.Next(kLinesAtOnce); lines; lines = source.Next(kLinesAtOnce)) {
        std::string text;
        for (const Line& line : *lines) {
            const PuzzleLine read = ReadPuzzleLine(line.text);
            if (!read.IsPuzzle() || line.isTooLong) {
                continue;
            }
            const bool isDuplicate =
                next != duplicates.end() && static_cast<long>(next->number) == line.number;
            if (isDuplicate && isReport) {
                text += WriteGrid81(read.clues) + '\t' + std::to_string(line.number) +
                        (next->sameness == Sameness::Exact ? "\texact\t" : "\tequivalent\t") +
                        std::to_string(next->of) + '\n';
            } else if (!isDuplicate && !isReport) {
                text += WriteGrid81(read.clues) + '\n';
            }
            next += isDuplicate ? 1 : 0;
        }
        if (!text.empty() && !WriteResult(streams_, text)) {
            return false;
        }
    }
    return true;
}

CommandResult Dedupe::Run() {
    const std::string& name = arguments_.operands.front();
    std::error_code none;
    if (!std::filesystem::is_regular_file(name, none)) {
        Tell(streams_, name + " is no regular file, and is to be read twice");
        return {ExitCode::InputOutput};
    }
    LineSource first(name, streams_);
    LineSource second(name, streams_);
    std::string error;
    const std::optional<int> threads = first.Threads(arguments_, error);
    if (!threads) {
        return UsageError(error);
    }
    if (!first.IsOpen() || !second.IsOpen()) {
        return {ExitCode::InputOutput};
    }
    Find(first, *threads);
    if (!first.IsFine()) {
        return {ExitCode::InputOutput};
    }
    std::vector<Duplicate> duplicates = search_.Take();
    if (arguments_.Has(kExactOption.name)) {
        std::erase_if(duplicates,
                      [](const Duplicate& at) { return at.sameness != Sameness::Exact; });
    }
    if (streams_.isInterrupted()) {
        return {ExitCode::Interrupted};  // what is a duplicate of what is not known
    }
    if (!Write(second, duplicates) || !second.IsFine()) {
        return {ExitCode::InputOutput};
    }
    if (streams_.isInterrupted()) {
        return {ExitCode::Interrupted};
    }
    return {hasFaults_ ? ExitCode::FaultyLine : ExitCode::Fine};
}

CommandResult RunDedupe(const Arguments& arguments, Streams& streams) {
    return Dedupe(arguments, streams).Run();
}

}  // namespace

Command DedupeCommand() {
    return {"dedupe",
            Operands::OneFile,
            "[--exact] [--report] [--threads N] [--quiet]",
            "Writes a list without the puzzles that occur in it twice",
            kOptions,
            Notes,
            RunDedupe};
}

}  // namespace vemo
