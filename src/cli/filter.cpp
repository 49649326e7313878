// vemosud filter: those puzzles of a list that are looked for.
#include "cli/commands.h"
#include "cli/level_counts.h"
#include "cli/line_loop.h"
#include "solver/fast_count.h"
#include "tools/puzzle_filter.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

constexpr Option kCluesOption = {"--clues", "A-B", "this many clues"};
constexpr Option kDigitsOption = {"--digits", "A-B", "this many different digits among them"};
constexpr Option kBoxesOption = {"--empty-boxes", "A-B", "this many boxes without a clue"};
constexpr Option kSymmetryOption = {"--symmetry", "NAME", "of the places of the clues, or any"};
constexpr Option kLevelsOption = {"--levels", "LIST", "one of these levels: Easy,Hard or 1,3"};
constexpr Option kNeedsOption = {"--needs", "SLOT", "a technique that the puzzle needs, 3 to 39"};
constexpr Option kOptions[] = {kCluesOption,  kDigitsOption, kBoxesOption,   kSymmetryOption,
                               kLevelsOption, kNeedsOption,  kThreadsOption, kQuietOption};

std::string Notes() {
    std::string notes =
        "Writes the puzzles that all the options like, one a line. A number alone stands for\n"
        "itself: --clues 17. With --levels or --needs, a puzzle without exactly one solution\n"
        "is none of them. NAME is one of any";
    for (const SymmetryRow& row : Symmetries()) {
        notes.append(" ").append(row.word);
    }
    return notes.append(".\n\n").append(kPuzzleNotes).append(kListNotes);
}

std::string ReadLevels(std::string_view list, PuzzleFilter& filter) {
    while (true) {
        const std::string_view word = list.substr(0, list.find(','));
        const int level = LevelNamed(word);
        if (level == 0) {
            return "--levels has no such level: " + std::string(word);
        }
        filter.levels.set(static_cast<std::size_t>(level));
        if (word.size() == list.size()) {
            return "";
        }
        list.remove_prefix(word.size() + 1);
    }
}

std::string ReadFilter(const Arguments& arguments, PuzzleFilter& filter) {
    std::string error;
    const auto read = [&](const Option& option, int most, int& first, int& last) {
        error = error.empty() ? ReadRangeOf(arguments, option, most, first, last) : error;
    };
    read(kCluesOption, kCells, filter.clues.fewest, filter.clues.most);
    read(kDigitsOption, kDigits, filter.digits.least, filter.digits.most);
    read(kBoxesOption, kDigits, filter.emptyBoxes.least, filter.emptyBoxes.most);
    if (const auto word = arguments.ValueOf(kSymmetryOption.name); word && error.empty()) {
        filter.isSymmetrical = *word == "any";
        filter.symmetry = SymmetryNamed(*word);
        error = filter.isSymmetrical || filter.symmetry
                    ? ""
                    : "--symmetry is no symmetry: " + std::string(*word);
    }
    if (const auto list = arguments.ValueOf(kLevelsOption.name); list && error.empty()) {
        error = ReadLevels(*list, filter);
    }
    return error.empty() ? ReadNumberOf(arguments, kNeedsOption, kFirstTechniqueSlot, kSlots - 1,
                                        filter.neededSlot)
                         : error;
}

bool IsLiked(const Digits& clues, const PuzzleFilter& filter) {
    if (!filter.Likes(FactsOf(clues))) {
        return false;
    }
    if (!filter.AsksForRating()) {
        return true;
    }
    const SolutionCount solutions = FastCount(clues);
    return solutions.IsUnique() && filter.LikesRating(Rate({clues, solutions.first, {}}));
}

CommandResult RunFilter(const Arguments& arguments, Streams& streams) {
    PuzzleFilter filter;
    if (const std::string error = ReadFilter(arguments, filter); !error.empty()) {
        return UsageError(error);
    }
    return AnswerEachLine(
        arguments, streams, Working::AtOnce, [&](const InputLine& line) -> Answer {
            const PuzzleLine read = ReadPuzzleLine(line.text);
            if (!read.IsPuzzle()) {
                return Refusal(read.error);
            }
            return {IsLiked(read.clues, filter) ? WriteGrid81(read.clues) + '\n' : ""};
        });
}

}  // namespace

Command FilterCommand() {
    return {"filter",
            Operands::OneFile,
            "[--clues A-B] [--digits A-B] [--empty-boxes A-B] [--symmetry NAME]\n"
            "      [--levels LIST] [--needs SLOT] [--threads N] [--quiet]",
            "Writes the puzzles of a list that are looked for",
            kOptions,
            Notes,
            RunFilter};
}

}  // namespace vemo
