// vemosud solve: how many solutions a puzzle has, and the one.
#include "cli/answers.h"
#include "cli/commands.h"
#include "cli/json.h"
#include "cli/line_loop.h"
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
           "A puzzle that was given up has the word timeout, or with --report the sentence\n"
           "This Sudoku was given up. With --jsonl the fields \"line\", \"puzzle\", \"result\",\n"
           "\"solution\".\n"
           "\n" +
           std::string(kResumeNotes).append(kPuzzleNotes).append(kListNotes);
}

struct Style {
    bool isJson = false;
    bool isReport = false;
};

std::string_view AnswerIn(Style style, const BruteForceResult& result) {
    if (!style.isReport) {
        return AnswerWord(result);
    }
    return result.stopped ? "This Sudoku was given up" : ReportOf(result).text;
}

// The fields of a row up to the solution.
JsonObject ObjectOf(const InputLine& line, std::string_view puzzle, std::string_view answer) {
    return JsonObject().Add("line", line.number).Add("puzzle", puzzle).Add("result", answer);
}
std::string TextOf(const std::string& puzzle, std::string_view answer) {
    return (puzzle + '\t').append(answer) += '\t';
}

Answer AnswerTo(const InputLine& line, Style style, double seconds) {
    const PuzzleLine read = ReadPuzzleLine(line.text);
    if (!read.IsPuzzle()) {
        return Refusal(read.error);
    }
    const BruteForceResult result = BruteForceSolve(read.clues, TimeLeft(seconds));
    const std::string puzzle = WriteGrid81(read.clues);
    const std::string solution = result.IsUnique() ? WriteGrid81(result.solution) : "";
    const std::string_view answer = AnswerIn(style, result);
    return {style.isJson ? ObjectOf(line, puzzle, answer).Add("solution", solution).Line()
                         : TextOf(puzzle, answer) + solution + '\n',
            "", !result.IsUnique()};
}

RowBeginnings RowBeginningsOf(const InputLine& line, Style style) {
    const std::string puzzle = WriteGrid81(ReadPuzzleLine(line.text).clues);
    BruteForceResult results[4];
    results[1].solutionCount = 1;
    results[2].solutionCount = 2;
    results[3].stopped = true;
    RowBeginnings beginnings;
    for (const BruteForceResult& result : results) {
        const std::string_view answer = AnswerIn(style, result);
        beginnings.push_back(
            {style.isJson ? ObjectOf(line, puzzle, answer).Beginning() : TextOf(puzzle, answer),
             !result.IsUnique()});
    }
    return beginnings;
}

CommandResult Solve(const Arguments& arguments, Streams& streams) {
    const Style style = {arguments.Has(kJsonlOption.name), arguments.Has(kReportOption.name)};
    double seconds = 0;
    if (const std::string error = ReadTimeLimit(arguments, seconds); !error.empty()) {
        return UsageError(error);
    }
    return AnswerEachLine(
        arguments, streams, Working::AtOnce,
        [=](const InputLine& line) { return AnswerTo(line, style, seconds); },
        {.rowBeginnings = [=](const InputLine& line) { return RowBeginningsOf(line, style); }});
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
