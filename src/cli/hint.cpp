// vemosud hint: the next step of a position, explained.
#include "cli/answers.h"
#include "cli/commands.h"
#include "cli/json.h"
#include "cli/line_loop.h"
#include "solver/solver.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

constexpr Option kOptions[] = {kJsonlOption, kThreadsOption, kQuietOption};

std::string Notes() {
    return "A block a position, with a blank line behind it: the title of the hint, its text,\n"
           "and one line each \"place A1 5\" or \"remove B2 7\"; \"none\" alone where there is no\n"
           "hint. With --jsonl the fields \"line\", \"title\", \"text\", \"place\", \"remove\"; "
           "title and\n"
           "text are empty where there is no hint.\n"
           "\n" +
           std::string(kPositionNotes).append(kListNotes);
}

std::string AsText(const Find& find) {
    return std::string(HintTitle(find)) + '\n' + HintText(find) + '\n' + EffectLines(find) + '\n';
}

std::string AsJson(long number, std::string_view title, std::string_view text, const Find& find) {
    JsonObject object;
    object.Add("line", number).Add("title", title).Add("text", text);
    AddEffects(find, object);
    return object.Line();
}

CommandResult Hint(const Arguments& arguments, Streams& streams) {
    const bool isJson = arguments.Has(kJsonlOption.name);
    const Ladder ladder = HintLadder(TechniqueSettings());
    return AnswerEachLine(
        arguments, streams, Working::AtOnce, [&](const InputLine& line) -> Answer {
            const PositionLine read = ReadPositionLine(line.text);
            if (!read.IsPosition()) {
                return Refusal(read.error);
            }
            Solver solver(read.grid);
            if (solver.Pass(ladder) != PassResult::Hint) {
                return {isJson ? AsJson(line.number, "", "", Find()) : std::string(kNoFind)};
            }
            const Find& find = solver.LastFind();
            return {isJson ? AsJson(line.number, HintTitle(find), HintText(find), find)
                           : AsText(find)};
        });
}

}  // namespace

Command HintCommand() {
    return {"hint",
            Operands::OneFile,
            "[--threads N] [--jsonl] [--quiet]",
            "Finds the next logical step of each position and explains it",
            kOptions,
            Notes,
            Hint};
}

}  // namespace vemo
