// vemosud rate: the level of a puzzle by the hardest step that it needs.
#include "cli/answers.h"
#include "cli/commands.h"
#include "cli/json.h"
#include "cli/ladder_options.h"
#include "cli/line_loop.h"
#include "cli/time_limit.h"
#include "model/levels.h"
#include "solver/brute_force.h"
#include "solver/solver.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

constexpr Option kLogOption = {"--log", "", "write the solve log's lines after each puzzle"};
constexpr Option kOptions[] = {kOrderOption,  kOffOption,   kLogOption,     kTimeoutOption,
                               kResumeOption, kJsonlOption, kThreadsOption, kQuietOption};

std::string Notes() {
    return "One line a puzzle: puzzle TAB level number TAB level name TAB hardest technique\n"
           "used TAB number of steps. A puzzle without exactly one solution has the level 0,\n"
           "named none or multiple, no technique, and 0 steps; one that was given up is named\n"
           "timeout. With --jsonl the fields \"line\", \"puzzle\", \"level\", \"name\", "
           "\"hardest\",\n"
           "\"steps\", and with --log \"log\".\n"
           "\n" +
           std::string(kResumeNotes)
               .append(kLadderNotes)
               .append("\n")
               .append(kPuzzleNotes)
               .append(kListNotes);
}

struct Rating {
    RatingFields fields;
    int unsoundFinds = 0;
    std::vector<std::string> log;
};

enum class Logging : std::uint8_t { Off, On };

struct Order {
    Ladder ladder;
    Logging logging = Logging::Off;
    double seconds = 0;  // for a puzzle; 0: as long as it takes
};

Rating Rate(const Digits& clues, const Order& order) {
    const std::function<bool()> hasTime = TimeLeft(order.seconds);
    const BruteForceResult known = BruteForceSolve(clues, hasTime);
    Rating rating;
    if (!known.IsUnique()) {
        rating.fields.name = AnswerWord(known);
        return rating;
    }
    Solver solver(Grid::FromClues(clues));
    solver.SetSolution(known.solution);
    if (order.logging == Logging::On) {
        solver.SetLog([&](std::string_view line) { rating.log.emplace_back(line); });
    }
    if (hasTime) {
        solver.SetStepWatcher([&](const Step&) { return hasTime(); });
    }
    const int level = RatingOf(solver, RunToTheEnd(solver, order.ladder));
    if (solver.IsStopped()) {
        rating.fields.name = kTimeout;
        return rating;
    }
    rating.fields = FieldsOf(level, solver.HardestSlot(), solver.StepCount());
    rating.unsoundFinds = solver.UnsoundFinds();
    return rating;
}

std::string AsText(const std::string& puzzle, const Rating& rating) {
    std::string text = RatingText(puzzle, rating.fields) + '\n';
    for (const std::string& line : rating.log) {
        text.append(line) += '\n';
    }
    return text;
}

std::string AsJson(long number, const std::string& puzzle, const Rating& rating, Logging logging) {
    JsonObject object;
    object.Add("line", number).Add("puzzle", puzzle);
    AddRating(rating.fields, object);
    if (logging == Logging::On) {
        std::vector<std::string> lines;
        for (const std::string& line : rating.log) {
            lines.push_back(JsonString(line));
        }
        object.AddJson("log", JsonArray(lines));
    }
    return object.Line();
}

Answer AnswerTo(const InputLine& line, const Order& order, bool isJson) {
    const PuzzleLine read = ReadPuzzleLine(line.text);
    if (!read.IsPuzzle()) {
        return Refusal(read.error);
    }
    const Rating rating = Rate(read.clues, order);
    const std::string puzzle = WriteGrid81(read.clues);
    Answer answer;
    answer.text =
        isJson ? AsJson(line.number, puzzle, rating, order.logging) : AsText(puzzle, rating);
    answer.isFaulty = rating.fields.level == 0 || rating.unsoundFinds > 0;
    if (rating.unsoundFinds > 0) {
        answer.message = "the rating took " + std::to_string(rating.unsoundFinds) +
                         " step(s) that contradict the solution";
    }
    return answer;
}

RowBeginnings RowBeginningsOf(const InputLine& line, bool isJson) {
    const std::string puzzle = WriteGrid81(ReadPuzzleLine(line.text).clues);
    RowBeginnings beginnings;
    const auto add = [&](int level, std::string_view name) {
        JsonObject object;
        object.Add("line", line.number).Add("puzzle", puzzle);
        object.Add("level", level).Add("name", name);
        const std::string text = puzzle + '\t' + std::to_string(level) + '\t' + std::string(name);
        beginnings.push_back({isJson ? object.Beginning() : text + '\t', level == 0});
    };
    for (int level = 1; level <= kLevels; ++level) {
        add(level, LevelName(level));
    }
    for (std::string_view name : {SolutionCountWord(0), SolutionCountWord(2), kTimeout}) {
        add(0, name);
    }
    return beginnings;
}

CommandResult RunRate(const Arguments& arguments, Streams& streams) {
    const bool isJson = arguments.Has(kJsonlOption.name);
    const bool hasLog = arguments.Has(kLogOption.name);
    ChosenLadder chosen = ChooseLadder(arguments, streams);
    if (chosen.refusal.code != ExitCode::Fine) {
        return chosen.refusal;
    }
    if (hasLog && !isJson && arguments.Has(kResumeOption.name)) {
        return UsageError("--resume goes on behind rows: with --log it needs --jsonl");
    }
    Order order{std::move(chosen.ladder), hasLog ? Logging::On : Logging::Off};
    if (const std::string error = ReadTimeLimit(arguments, order.seconds); !error.empty()) {
        return UsageError(error);
    }
    return AnswerEachLine(
        arguments, streams, Working::AtOnce,
        [&](const InputLine& line) { return AnswerTo(line, order, isJson); },
        {.rowBeginnings = [=](const InputLine& line) { return RowBeginningsOf(line, isJson); }});
}

}  // namespace

Command RateCommand() {
    return {"rate",
            Operands::OneFile,
            "[--order FILE] [--off SLOT] [--log] [--timeout SECONDS]\n"
            "      [--resume RESULTS] [--threads N] [--jsonl] [--quiet]",
            "Rates each puzzle by the hardest step that it needs",
            kOptions,
            Notes,
            RunRate};
}

}  // namespace vemo
