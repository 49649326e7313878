// vemosud solve: how many solutions a puzzle has, and the one.
#include "cli/answers.h"
#include "cli/commands.h"
#include "cli/json.h"
#include "cli/line_loop.h"
#include "cli/resume.h"
#include "cli/time_limit.h"
#include "solver/brute_force.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

constexpr Option kReportOption = {"--report", "", "give the answer as a sentence"};
constexpr Option kOptions[] = {kReportOption, kTimeoutOption, kResumeOption,
                               kJsonlOption,  kThreadsOption, kQuietOption};

std::string Notes() {
    return "One line a puzzle: puzzle TAB unique, none or multiple TAB solution, which is\n"
           "empty unless there is exactly one. With --report the middle field is a sentence:\n"
           "This Sudoku has one unique solution, ... no solution, ... more than one solution.\n"
           "A puzzle that was given up has the word timeout. With --jsonl the fields \"line\",\n"
           "\"puzzle\", \"result\", \"solution\".\n"
           "\n" +
           std::string(kResumeNotes).append(kPuzzleNotes).append(kListNotes);
}

CommandResult Solve(const Arguments& arguments, Streams& streams) {
    const bool isJson = arguments.Has(kJsonlOption.name);
    const bool isReport = arguments.Has(kReportOption.name);
    double seconds = 0;
    if (const std::string error = ReadTimeLimit(arguments, seconds); !error.empty()) {
        return UsageError(error);
    }
    return AnswerEachLine(
        arguments, streams, Working::AtOnce, [=](const InputLine& line) -> Answer {
            const PuzzleLine read = ReadPuzzleLine(line.text);
            if (!read.IsPuzzle()) {
                return Refusal(read.error);
            }
            const BruteForceResult result = BruteForceSolve(read.clues, TimeLeft(seconds));
            const std::string puzzle = WriteGrid81(read.clues);
            const std::string solution = result.IsUnique() ? WriteGrid81(result.solution) : "";
            const std::string_view word =
                isReport ? ReportOf(result).text : SolutionCountWord(result.solutionCount);
            const bool isFaulty = !result.IsUnique();
            if (isJson) {
                JsonObject object;
                object.Add("line", line.number).Add("puzzle", puzzle);
                object.Add("result", word).Add("solution", solution);
                return {object.Line(), "", isFaulty};
            }
            return {puzzle + '\t' + std::string(word) + '\t' + solution + '\n', "", isFaulty};
        });
    ;
}

}  // namespace

Command SolveCommand() {
    return {"solve",
            Operands::OneFile,
            "[--report] [--timeout SECONDS] [--resume RESULTS] [--threads N]\n"
            "       [--jsonl] [--quiet]",
            "Counts the solutions of each puzzle and writes the one",
            kOptions,
            Notes,
            Solve};
}

}  // namespace vemo
