// vemosud import: the puzzles of any file, as a list or into the level files.
#include <fstream>
#include <set>

#include "cli/answers.h"
#include "cli/commands.h"
#include "cli/progress.h"
#include "model/files.h"
#include "platform/plain_files.h"
#include "solver/fast_count.h"
#include "tools/canonical.h"
#include "tools/ordered_work.h"
#include "tools/puzzle_line.h"
#include "tools/puzzle_source.h"
#include "tools/rated_puzzle.h"
#include "tools/threads.h"

namespace vemo {
namespace {

constexpr Option kPositionsOption = {"--positions", "", "write digits and marks, not clues alone"};
constexpr Option kUniqueOption = {"--unique", "", "leave out what has not exactly one solution"};
constexpr Option kIntoOption = {"--into", "DIR", "rate, and add to the level files there"};
constexpr Option kRecordOption = {"--record", "N", "a foreign layout: bytes a record"};
constexpr Option kHeaderOption = {"--header", "N", "bytes before the first record (0)"};
constexpr Option kOffsetOption = {"--offset", "N", "of the 81 cells within a record (0)"};
constexpr Option kEmptyOption = {"--empty", "C", "an empty cell's character, or its code (.)"};
constexpr Option kBinaryOption = {"--binary", "", "digits are the bytes 1 to 9 (as text)"};
constexpr Option kOptions[] = {kPositionsOption, kUniqueOption, kIntoOption,  kRecordOption,
                               kHeaderOption,    kOffsetOption, kEmptyOption, kBinaryOption,
                               kThreadsOption,   kQuietOption};

constexpr std::size_t kPiecesAtOnce = 32;

std::string Notes() {
    std::string notes =
        "Understands lines of 81 with any sign for an empty cell, nine rows with or without\n"
        "borders, grids of pencil marks, lines of 729, library lines, the files .sdk, .sdx,\n"
        ".sdm, .ss and .opensudoku, tables with commas or tabs, and addresses, also mixed in\n"
        "one file; FILE - is standard input. With --record the file holds records of a\n"
        "length. Writes one puzzle a line. A piece that is none gets a message with its line\n"
        "and the reason; in the end a message says what was understood.\n"
        "With --into, each puzzle goes to the level file of its rating, unless it or an\n"
        "equivalent one is in one of the nine; one line a puzzle that was added: puzzle TAB\n"
        "level number TAB level name TAB hardest technique TAB steps TAB number.\n";
    return notes.append(kOneWriterNote);
}

// The layout that the options describe; a message where they do not.
std::string ReadLayout(const Arguments& arguments, std::optional<RecordLayout>& layout) {
    const auto has = [&](const Option& option) { return arguments.Has(option.name); };
    if (!has(kRecordOption)) {
        const bool isAlone =
            has(kHeaderOption) || has(kOffsetOption) || has(kEmptyOption) || has(kBinaryOption);
        return isAlone ? "--header, --offset, --empty and --binary go with --record" : "";
    }
    RecordLayout read;
    read.digits = has(kBinaryOption) ? RecordDigits::Binary : RecordDigits::Text;
    std::string error =
        ReadNumberOf(arguments, kRecordOption, 1, kLongestRecord, read.recordLength);
    const auto number = [&](const Option& option, std::uint64_t most, std::uint64_t& value) {
        error = error.empty() ? ReadNumberOf(arguments, option, 0, most, value) : error;
    };
    number(kHeaderOption, kLongestHeader, read.headerLength);
    number(kOffsetOption, kLongestRecord, read.cluesOffset);
    if (const auto empty = arguments.ValueOf(kEmptyOption.name); empty && error.empty()) {
        const auto code = WholeNumber(*empty, 0, 255);
        const bool isSign = empty->size() == 1 && !(code && read.digits == RecordDigits::Binary);
        if (!isSign && !code) {
            return "--empty is one character, or a number from 0 to 255: " + std::string(*empty);
        }
        read.empty =
            static_cast<std::uint8_t>(isSign ? static_cast<unsigned char>(empty->front()) : *code);
    }
    layout = read;
    return error.empty() ? LayoutFault(read) : error;
}

using Pieces = std::vector<ReadPiece>;

// What is found out of a piece by any thread.
struct Looked {
    ReadPiece piece;
    Digits clues{};
    SolutionCount solutions;
    std::optional<RatedPuzzle> rated;
    Digits form{};
};

class Import {
  public:
    Import(const Arguments& arguments, Streams& streams, int threads)
        : streams_(streams),
          threads_(threads),
          writesPositions_(arguments.Has(kPositionsOption.name)),
          isUniqueAsked_(arguments.Has(kUniqueOption.name)),
          progress_(streams.err, streams.showsProgress && !arguments.Has(kQuietOption.name)) {
        if (const auto folder = arguments.ValueOf(kIntoOption.name)) {
            records_.emplace(files_, *folder);
            for (int level = 1; level <= kLevels; ++level) {
                AddCanonicalForms(*records_, level, known_);
            }
        }
    }

    ExitCode Run(const std::string& name, PuzzleSource& source);

  private:
    Looked Look(ReadPiece piece) const;
    bool Give(const std::string& name, const Looked& looked);
    bool Keep(const std::string& name, const Looked& looked);
    void Reject(const std::string& name, const Looked& looked, const std::string& reason);

    Streams& streams_;
    int threads_;
    bool writesPositions_;
    bool isUniqueAsked_;
    PlainFiles files_;
    std::optional<RecordFiles> records_;
    std::set<Digits> known_;
    Progress progress_;
    std::int64_t puzzles_ = 0;
    std::int64_t rejected_ = 0;
};

Looked Import::Look(ReadPiece piece) const {
    Looked looked;
    looked.piece = std::move(piece);
    if (!looked.piece.IsPuzzle()) {
        return looked;
    }
    looked.clues = looked.piece.Clues();
    if (isUniqueAsked_ || records_) {
        looked.solutions = FastCount(looked.clues);
    }
    if (records_ && looked.solutions.IsUnique()) {
        looked.form = CanonicalForm(looked.clues, looked.solutions.first);
        looked.rated = Rate({looked.clues, looked.solutions.first, {}});
    }
    return looked;
}

void Import::Reject(const std::string& name, const Looked& looked, const std::string& reason) {
    progress_.Clear();
    Tell(streams_, name + ", line " + std::to_string(looked.piece.line) + ": " + reason);
    ++rejected_;
}

bool Import::Give(const std::string& name, const Looked& looked) {
    if (!looked.piece.IsPuzzle()) {
        Reject(name, looked, looked.piece.error);
        return true;
    }
    if ((isUniqueAsked_ || records_) && !looked.solutions.IsUnique()) {
        Reject(name, looked, "This Sudoku has no unique solution and will be discarded !");
        return true;
    }
    if (records_) {
        return Keep(name, looked);
    }
    ++puzzles_;
    return WriteResult(streams_, (writesPositions_ ? WritePositionLine(looked.piece.grid)
                                                   : WriteGrid81(looked.clues)) +
                                     '\n');
}

bool Import::Keep(const std::string& name, const Looked& looked) {
    if (!known_.insert(looked.form).second) {
        Reject(name, looked, "the puzzle, or an equivalent one, is there already");
        return true;
    }
    const RatedPuzzle& rated = *looked.rated;
    const auto saved = records_->SaveSudoku(rated.rating, rated.puzzle);
    if (saved.error) {
        Tell(streams_, Utf8(saved.error->path) + ": " + saved.error->reason);
        return false;
    }
    ++puzzles_;
    return WriteResult(streams_,
                       RatingText(WriteGrid81(looked.clues),
                                  FieldsOf(rated.rating, rated.hardestSlot, rated.steps)) +
                           '\t' + std::to_string(saved.number) + '\n');
}

ExitCode Import::Run(const std::string& name, PuzzleSource& source) {
    puzzles_ = rejected_ = 0;
    bool isWritten = true;
    OrderedWork<Pieces, std::vector<Looked>> work;
    work.next = [&]() -> std::optional<Pieces> {
        Pieces pieces;
        while (pieces.size() < kPiecesAtOnce && !streams_.isInterrupted()) {
            auto piece = source.Next();
            if (!piece) {
                break;
            }
            pieces.push_back(std::move(*piece));
        }
        return pieces.empty() ? std::nullopt : std::optional(std::move(pieces));
    };
    work.work = [&](const Pieces& pieces, const std::stop_token&) {
        std::vector<Looked> all;
        for (const ReadPiece& piece : pieces) {
            all.push_back(Look(piece));
        }
        return all;
    };
    work.give = [&](const Pieces&, std::vector<Looked>&& all) {
        for (const Looked& looked : all) {
            isWritten = isWritten && Give(name, looked);
        }
        if (progress_.IsDue()) {
            progress_.Show(std::to_string(puzzles_) + " puzzles");
        }
        return isWritten && !streams_.isInterrupted();
    };
    RunInOrder(threads_, work);
    progress_.Clear();
    const std::string format(source.Format());
    Tell(streams_, name + ": " + (format.empty() ? "no puzzles understood" : format) + "; " +
                       std::to_string(puzzles_) + " puzzles, " + std::to_string(rejected_) +
                       " pieces rejected");
    return !isWritten                 ? ExitCode::InputOutput
           : streams_.isInterrupted() ? ExitCode::Interrupted
           : rejected_ > 0            ? ExitCode::FaultyLine
                                      : ExitCode::Fine;
}

ExitCode ImportFile(const std::string& name, const std::optional<RecordLayout>& layout,
                    Import& import, Streams& streams) {
    std::ifstream file;
    std::istream& in = name == "-" ? streams.in : file;
    if (name != "-") {
        errno = 0;
        file.open(name, std::ios::binary);
        // A folder opens, and fails at the first byte.
        if (!file || (file.peek(), file.bad())) {
            Tell(streams, name + " cannot be read" + SystemReason());
            return ExitCode::InputOutput;
        }
        file.clear();
    }
    PuzzleSource source = layout ? PuzzleSource(in, *layout) : PuzzleSource(in);
    source.StopWhen(streams.isInterrupted);
    const ExitCode code = import.Run(name, source);
    if (in.bad()) {
        Tell(streams, name + " cannot be read on" + SystemReason());
        return ExitCode::InputOutput;
    }
    return code;
}

CommandResult RunImport(const Arguments& arguments, Streams& streams) {
    if (arguments.operands.empty()) {
        return UsageError("FILE is missing; \"-\" stands for standard input");
    }
    std::optional<RecordLayout> layout;
    int threads = DefaultThreads();
    std::string error = ReadLayout(arguments, layout);
    error =
        error.empty() ? ReadNumberOf(arguments, kThreadsOption, 1, kMostThreads, threads) : error;
    if (!error.empty()) {
        return UsageError(error);
    }
    Import import(arguments, streams, threads);
    ExitCode worst = ExitCode::Fine;
    for (const std::string& name : arguments.operands) {
        worst = std::max(worst, ImportFile(name, layout, import, streams));
        if (worst == ExitCode::Interrupted) {
            break;
        }
    }
    return {worst};
}

}  // namespace

Command ImportCommand() {
    return {"import",
            Operands::Several,
            "[--positions] [--unique] [--into DIR] [--record N [--header N] [--offset N]\n"
            "      [--empty C] [--binary]] [--threads N] [--quiet] FILE...",
            "Reads the puzzles of any file",
            kOptions,
            Notes,
            RunImport};
}

}  // namespace vemo
