// The program vemosud: its dispatch and its help.
#include "cli/program.h"

#include <algorithm>

#include "cli/commands.h"

namespace vemo {
namespace {

constexpr std::string_view kVersionText = "vemosud " VEMO_VERSION "\n";

constexpr Option kHelpOption = {"--help", "", "show this help"};

constexpr std::string_view kExitCodes =
    "\n"
    "Exit codes: 0 fine, 1 some line was no puzzle or had no or several solutions,\n"
    "2 wrong usage, 3 input or output failed.\n";

void AddRow(std::string& text, const std::string& name, std::string_view help) {
    constexpr std::size_t kNameWidth = 22;
    text += "  " + name + std::string(kNameWidth - std::min(kNameWidth - 2, name.size()), ' ');
    text.append(help) += '\n';
}

std::string UsageLine(const Command& command) {
    std::string text = "vemosud ";
    text.append(command.name).append(" ").append(command.usage);
    return text + (command.operands == Operands::OneFile ? " FILE\n" : "\n");
}

std::string ProgramHelp() {
    std::string text =
        "Solves and rates Sudoku puzzles, and finds the next logical step.\n\n"
        "Usage:\n";
    for (const Command& command : Commands()) {
        text += "  " + UsageLine(command);
    }
    text += "\nCommands:\n";
    for (const Command& command : Commands()) {
        AddRow(text, std::string(command.name), command.summary);
    }
    text += "\nOptions:\n";
    AddRow(text, "--help", "show this help; behind a command, the command's");
    AddRow(text, "--version", "show the version");
    return text.append(kExitCodes);
}

std::string CommandHelp(const Command& command) {
    std::string text = "Usage: " + UsageLine(command) + '\n';
    text.append(command.summary).append(".\n\n").append(command.notes()) += "\nOptions:\n";
    for (const Option& option : command.options) {
        std::string name(option.name);
        if (!option.placeholder.empty()) {
            name.append(" ").append(option.placeholder);
        }
        AddRow(text, name, option.help);
    }
    AddRow(text, std::string(kHelpOption.name), kHelpOption.help);
    return text.append(kExitCodes);
}

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
    const auto commands = Commands();
    const auto command = std::ranges::find(commands, first, &Command::name);
    if (command == commands.end()) {
        const bool isOption = first.starts_with('-');
        return WrongUsage(streams, (isOption ? "unknown option " : "unknown command ") + first, "");
    }
    return RunCommand(*command, words.subspan(1), streams);
}

}  // namespace vemo
