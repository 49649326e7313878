// What a command is. A command is added by a function that describes it, and its row in Commands.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "cli/options.h"
#include "cli/streams.h"

namespace vemo {

struct CommandResult {
    ExitCode code = ExitCode::Fine;
    std::string usageError{};  // names the offending word; goes with ExitCode::Usage
};

// The usage line of a command with several operands names them itself.
enum class Operands : std::uint8_t { None, OneFile, Several };

struct Command {
    std::string_view name;
    Operands operands;
    std::string_view usage;    // the options of its usage line
    std::string_view summary;  // one line
    std::span<const Option> options;
    std::string (*notes)();  // further lines of its help
    CommandResult (*run)(const Arguments& arguments, Streams& streams);
};

Command SolveCommand();
Command RateCommand();
Command HintCommand();
Command FindCommand();
Command ImportCommand();
Command ExportCommand();
Command CheckCommand();
Command FilterCommand();
Command DedupeCommand();
Command GenerateCommand();
Command LevelsCommand();
Command MakeLevelsCommand();

inline std::array<Command, 12> Commands() {
    return {SolveCommand(),  RateCommand(),     HintCommand(),   FindCommand(),
            ImportCommand(), ExportCommand(),   CheckCommand(),  FilterCommand(),
            DedupeCommand(), GenerateCommand(), LevelsCommand(), MakeLevelsCommand()};
}

// The options of every command that reads a list of puzzles.
inline constexpr Option kJsonlOption = {"--jsonl", "",
                                        "write JSON Lines, one object a line of input"};
inline constexpr Option kQuietOption = {"--quiet", "", "show no progress"};
inline constexpr Option kThreadsOption = {"--threads", "N",
                                          "how many threads work (one a core; 1 for a pipe)"};

// Of commands that add to level files.
inline constexpr std::string_view kOneWriterNote =
    "One program at a time may add to a level file: two that do so at once, the game among\n"
    "them, can write over each other's puzzle.\n";

// How the input is described in their help.
inline constexpr std::string_view kListNotes =
    "FILE holds one of them a line; \"-\" is standard input. Blank lines and lines that\n"
    "begin with # are passed over. A line that cannot be read gets a message with its\n"
    "number, and the run goes on.\n";
inline constexpr std::string_view kPuzzleNotes =
    "A puzzle is 81 characters row by row: a digit, or one of . 0 * _ - x X for an\n"
    "empty cell. Of a position (see vemosud hint --help) the givens are the puzzle.\n";
inline constexpr std::string_view kPositionNotes =
    "A position is the grid, 81 characters row by row: a digit, or one of\n"
    ". 0 * _ - x X for an empty cell; optionally TAB and 81 comma-separated groups of\n"
    "the digits still possible, empty for a filled cell; optionally TAB and the 81\n"
    "givens. Without the groups they follow from the grid; without the givens every\n"
    "filled cell is one.\n";

inline CommandResult UsageError(std::string text) {
    return {ExitCode::Usage, std::move(text)};
}

}  // namespace vemo
