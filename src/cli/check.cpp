// vemosud check: which puzzles of a list have exactly one solution, in bulk.
#include "cli/answers.h"
#include "cli/commands.h"
#include "cli/json.h"
#include "cli/line_loop.h"
#include "cli/resume.h"
#include "solver/fast_count.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

constexpr Option kOptions[] = {kResumeOption, kJsonlOption, kThreadsOption, kQuietOption};

std::string Notes() {
    return "One line a puzzle: puzzle TAB unique, none or multiple. With --jsonl the fields\n"
           "\"line\", \"puzzle\", \"result\". Counts like vemosud solve, many times as fast.\n"
           "\n" +
           std::string(kResumeNotes).append(kPuzzleNotes).append(kListNotes);
}

CommandResult RunCheck(const Arguments& arguments, Streams& streams) {
    const bool isJson = arguments.Has(kJsonlOption.name);
    const auto check = [=](const InputLine& line) -> Answer {
        const PuzzleLine read = ReadPuzzleLine(line.text);
        if (!read.IsPuzzle()) {
            return Refusal(read.error);
        }
        const SolutionCount solutions = FastCount(read.clues);
        const std::string puzzle = WriteGrid81(read.clues);
        const std::string word(SolutionCountWord(solutions.count));
        const bool isFaulty = !solutions.IsUnique();
        if (isJson) {
            JsonObject object;
            object.Add("line", line.number).Add("puzzle", puzzle).Add("result", word);
            return {object.Line(), "", isFaulty};
        }
        return {puzzle + '\t' + word + '\n', "", isFaulty};
    };
    return AnswerEachLine(arguments, streams, Working::AtOnce, check);
}

}  // namespace

Command CheckCommand() {
    return {"check",
            Operands::OneFile,
            "[--resume RESULTS] [--threads N] [--jsonl] [--quiet]",
            "Tells which puzzles have exactly one solution",
            kOptions,
            Notes,
            RunCheck};
}

}  // namespace vemo
