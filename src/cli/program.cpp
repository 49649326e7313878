// The program vemosud: its dispatch.
#include "cli/program.h"

#include <algorithm>

#include "cli/commands.h"
#include "cli/help.h"

namespace vemo {
namespace {

constexpr std::string_view kVersionText = "vemosud " VEMO_VERSION "\n";

ExitCode Show(Streams& streams, std::string_view text) {
    return WriteResult(streams, text) ? ExitCode::Fine : ExitCode::InputOutput;
}

ExitCode WrongUsage(Streams& streams, const std::string& error, const std::string& command) {
    Tell(streams, error + " (see vemosud " + (command.empty() ? "" : command + " ") + "--help)");
    return ExitCode::Usage;
}

bool IsHelp(const std::string& word) {
    return word == "--help" || word == "-h";
}

// What is wrong with the number of operands; empty where it is right.
std::string OperandError(const Command& command, const std::vector<std::string>& operands) {
    if (command.operands == Operands::Several) {
        return "";  // the command looks at them itself
    }
    const std::size_t wanted = command.operands == Operands::OneFile ? 1 : 0;
    if (operands.size() > wanted) {
        return "unexpected word " + operands[wanted];
    }
    return operands.size() < wanted ? "FILE is missing; \"-\" stands for standard input" : "";
}

ExitCode RunCommand(const Command& command, std::span<const std::string> words, Streams& streams) {
    const auto optionsEnd = std::ranges::find(words, "--");
    if (std::any_of(words.begin(), optionsEnd, IsHelp)) {
        return Show(streams, CommandHelp(command));
    }
    const std::string name(command.name);
    const ParsedArguments parsed = ParseArguments(words, command.options);
    if (!parsed.error.empty()) {
        return WrongUsage(streams, parsed.error, name);
    }
    if (const std::string error = OperandError(command, parsed.arguments.operands);
        !error.empty()) {
        return WrongUsage(streams, error, name);
    }
    const CommandResult result = command.run(parsed.arguments, streams);
    return result.code == ExitCode::Usage ? WrongUsage(streams, result.usageError, name)
                                          : result.code;
}

}  // namespace

ExitCode RunProgram(std::span<const std::string> words, Streams& streams) {
    if (words.empty()) {
        return WrongUsage(streams, "a command is missing", "");
    }
    const std::string& first = words.front();
    if (IsHelp(first)) {
        return Show(streams, ProgramHelp());
    }
    if (first == "--version") {
        return Show(streams, kVersionText);
    }
    if (first == "--man") {
        return Show(streams, ManPage());
    }
    if (first == "--bash-completion") {
        return Show(streams, BashCompletion());
    }
    const auto commands = Commands();
    const auto command = std::ranges::find(commands, first, &Command::name);
    if (command == commands.end()) {
        const bool isOption = first.starts_with('-');
        return WrongUsage(streams, (isOption ? "unknown option " : "unknown command ") + first, "");
    }
    return RunCommand(*command, words.subspan(1), streams);
}

}  // namespace vemo
