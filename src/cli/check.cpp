// vemosud check: which puzzles of a list have exactly one solution, in bulk.
#include "cli/answers.h"
#include "cli/commands.h"
#include "cli/json.h"
#include "cli/line_loop.h"
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

std::string Row(const InputLine& line, const std::string& puzzle, int count, bool isJson) {
    const std::string word(SolutionCountWord(count));
    if (!isJson) {
        return puzzle + '\t' + word + '\n';
    }
    JsonObject object;
    return object.Add("line", line.number).Add("puzzle", puzzle).Add("result", word).Line();
}

CommandResult RunCheck(const Arguments& arguments, Streams& streams) {
    const bool isJson = arguments.Has(kJsonlOption.name);
    const auto check = [=](const InputLine& line) -> Answer {
        const PuzzleLine read = ReadPuzzleLine(line.text);
        if (!read.IsPuzzle()) {
            return Refusal(read.error);
        }
        const SolutionCount solutions = FastCount(read.clues);
        return {Row(line, WriteGrid81(read.clues), solutions.count, isJson), "",
                !solutions.IsUnique()};
    };
    const auto rowBeginnings = [=](const InputLine& line) {
        const std::string puzzle = WriteGrid81(ReadPuzzleLine(line.text).clues);
        RowBeginnings beginnings;
        for (int count : {0, 1, 2}) {
            beginnings.push_back({Row(line, puzzle, count, isJson), count != 1});
        }
        return beginnings;
    };
    return AnswerEachLine(arguments, streams, Working::AtOnce, check,
                          {.rowBeginnings = rowBeginnings});
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
