// vemosud rate: the level of a puzzle by the hardest step that it needs.
#include "cli/answers.h"
#include "cli/commands.h"
#include "cli/json.h"
#include "cli/ladder_options.h"
#include "cli/line_loop.h"
#include "model/levels.h"
#include "solver/brute_force.h"
#include "solver/solver.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

constexpr Option kLogOption = {"--log", "", "write the solve log's lines after each puzzle"};
constexpr Option kOptions[] = {kOrderOption, kOffOption, kLogOption, kJsonlOption, kQuietOption};

std::string Notes() {
    return "One line a puzzle: puzzle TAB level number TAB level name TAB hardest technique\n"
           "used TAB number of steps. A puzzle without exactly one solution has the level 0,\n"
           "named none or multiple, no technique, and 0 steps. With --jsonl the fields\n"
           "\"line\", \"puzzle\", \"level\", \"name\", \"hardest\", \"steps\", and with --log "
           "\"log\".\n"
           "\n" +
           std::string(kLadderNotes).append("\n").append(kPuzzleNotes).append(kListNotes);
}

struct Rating {
    int level = 0;
    std::string_view name;
    std::string_view hardest;
    int steps = 0;
    int unsoundFinds = 0;
    std::vector<std::string> log;
};

enum class Logging : std::uint8_t { Off, On };

Rating Rate(const Digits& clues, const Ladder& ladder, Logging logging) {
    const BruteForceResult known = BruteForceSolve(clues);
    Rating rating;
    if (!known.IsUnique()) {
        rating.name = SolutionCountWord(known);
        return rating;
    }
    Solver solver(Grid::FromClues(clues));
    solver.SetSolution(known.solution);
    if (logging == Logging::On) {
        solver.SetLog([&](std::string_view line) { rating.log.emplace_back(line); });
    }
    rating.level = RatingOf(solver, RunToTheEnd(solver, ladder));
    rating.name = LevelName(rating.level);
    if (solver.HardestSlot() != kNoSlot) {
        rating.hardest = Slots()[static_cast<std::size_t>(solver.HardestSlot())].caption;
    }
    rating.steps = solver.StepCount();
    rating.unsoundFinds = solver.UnsoundFinds();
    return rating;
}

std::string AsText(const std::string& puzzle, const Rating& rating) {
    std::string text = puzzle + '\t' + std::to_string(rating.level) + '\t';
    text.append(rating.name).append("\t").append(rating.hardest).append("\t");
    text.append(std::to_string(rating.steps)) += '\n';
    for (const std::string& line : rating.log) {
        text.append(line) += '\n';
    }
    return text;
}

std::string AsJson(long number, const std::string& puzzle, const Rating& rating, Logging logging) {
    JsonObject object;
    object.Add("line", number).Add("puzzle", puzzle).Add("level", rating.level);
    object.Add("name", rating.name).Add("hardest", rating.hardest).Add("steps", rating.steps);
    if (logging == Logging::On) {
        std::vector<std::string> lines;
        for (const std::string& line : rating.log) {
            lines.push_back(JsonString(line));
        }
        object.AddJson("log", JsonArray(lines));
    }
    return object.Line();
}

CommandResult RunRate(const Arguments& arguments, Streams& streams) {
    const bool isJson = arguments.Has(kJsonlOption.name);
    const Logging logging = arguments.Has(kLogOption.name) ? Logging::On : Logging::Off;
    const ChosenLadder chosen = ChooseLadder(arguments, streams);
    if (chosen.refusal.code != ExitCode::Fine) {
        return chosen.refusal;
    }
    return {AnswerEachLine(arguments, streams, [&](const InputLine& line) -> Answer {
        const PuzzleLine read = ReadPuzzleLine(line.text);
        if (!read.IsPuzzle()) {
            return Refusal(read.error);
        }
        const Rating rating = Rate(read.clues, chosen.ladder, logging);
        const std::string puzzle = WriteGrid81(read.clues);
        Answer answer;
        answer.text =
            isJson ? AsJson(line.number, puzzle, rating, logging) : AsText(puzzle, rating);
        answer.isFaulty = rating.level == 0 || rating.unsoundFinds > 0;
        if (rating.unsoundFinds > 0) {
            answer.message = "the rating took " + std::to_string(rating.unsoundFinds) +
                             " step(s) that contradict the solution";
        }
        return answer;
    })};
}

}  // namespace

Command RateCommand() {
    return {"rate",
            Operands::OneFile,
            "[--order FILE] [--off SLOT] [--log] [--jsonl] [--quiet]",
            "Rates each puzzle by the hardest step that it needs",
            kOptions,
            Notes,
            RunRate};
}

}  // namespace vemo
