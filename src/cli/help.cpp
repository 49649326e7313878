// Help texts, the manual page and the completion.
#include "cli/help.h"

#include <algorithm>

namespace vemo {
namespace {

constexpr std::string_view kPurpose =
    "Solves, rates and makes Sudoku puzzles, and finds the next logical step";

constexpr Option kHelpOption = {"--help", "", "show this help"};
constexpr Option kProgramOptions[] = {
    {"--help", "", "show this help; behind a command, the command's"},
    {"--version", "", "show the version"},
    {"--man", "", "write the manual page"},
    {"--bash-completion", "", "write a script that completes words in bash"},
};

struct ExitRow {
    std::string_view code;
    std::string_view meaning;
};
constexpr ExitRow kExitRows[] = {
    {"0", "fine"},
    {"1", "some line was no puzzle or had no or several solutions, or a puzzle is missing"},
    {"2", "wrong usage"},
    {"3", "input or output failed"},
    {"130", "interrupted, with what was finished written"},
};

void AddRow(std::string& text, const std::string& name, std::string_view help) {
    constexpr std::size_t kNameWidth = 22;
    text += "  " + name + std::string(kNameWidth - std::min(kNameWidth - 2, name.size()), ' ');
    text.append(help) += '\n';
}

std::string NameOf(const Option& option) {
    std::string name(option.name);
    return option.placeholder.empty() ? name : name.append(" ").append(option.placeholder);
}

void AddExitCodes(std::string& text) {
    text += "\nExit codes:\n";
    for (const auto& [code, meaning] : kExitRows) {
        AddRow(text, std::string(code), meaning);
    }
}

std::string UsageLine(const Command& command) {
    std::string text = "vemosud ";
    text.append(command.name).append(" ").append(command.usage);
    return text + (command.operands == Operands::OneFile ? " FILE\n" : "\n");
}

// Text as it stands, in the macros' own alphabet.
std::string Escaped(std::string_view text) {
    std::string escaped;
    bool isLineStart = true;
    for (char character : text) {
        if (isLineStart && (character == '.' || character == '\'')) {
            escaped += "\\&";
        }
        if (character == '\\' || character == '-') {
            escaped += '\\';
        }
        escaped += character == '\\' ? 'e' : character;
        isLineStart = character == '\n';
    }
    return escaped;
}

void AddTag(std::string& page, std::string_view tag, std::string_view text) {
    page.append(".TP\n.B ").append(Escaped(tag)).append("\n").append(Escaped(text)) += '\n';
}

// Lines that stay as they are broken.
void AddLines(std::string& page, std::string_view text) {
    page.append(".nf\n").append(Escaped(text));
    page.append(text.ends_with('\n') ? "" : "\n").append(".fi\n");
}

}  // namespace

std::string ProgramHelp() {
    std::string text = std::string(kPurpose).append(".\n\nUsage:\n");
    for (const Command& command : Commands()) {
        text += "  " + UsageLine(command);
    }
    text += "\nCommands:\n";
    for (const Command& command : Commands()) {
        AddRow(text, std::string(command.name), command.summary);
    }
    text += "\nOptions:\n";
    for (const Option& option : kProgramOptions) {
        AddRow(text, NameOf(option), option.help);
    }
    AddExitCodes(text);
    return text;
}

std::string CommandHelp(const Command& command) {
    std::string text = "Usage: " + UsageLine(command) + '\n';
    text.append(command.summary).append(".\n\n").append(command.notes()) += "\nOptions:\n";
    for (const Option& option : command.options) {
        AddRow(text, NameOf(option), option.help);
    }
    AddRow(text, NameOf(kHelpOption), kHelpOption.help);
    AddExitCodes(text);
    return text;
}

std::string ManPage() {
    std::string page = ".TH VEMOSUD 1 \"\" \"vemosud " VEMO_VERSION "\" \"User Commands\"\n";
    page.append(".SH NAME\nvemosud \\- Sudoku puzzles on the command line\n.SH SYNOPSIS\n");
    std::string synopsis;
    for (const Command& command : Commands()) {
        synopsis += UsageLine(command);
    }
    AddLines(page, synopsis);
    page.append(".SH DESCRIPTION\n").append(Escaped(kPurpose)).append(".\n");
    for (const Option& option : kProgramOptions) {
        AddTag(page, NameOf(option), option.help);
    }
    page += ".SH COMMANDS\n";
    for (const Command& command : Commands()) {
        page.append(".SS ").append(Escaped(command.name)).append("\n");
        page.append(Escaped(command.summary)).append(".\n.PP\n");
        AddLines(page, command.notes());
        for (const Option& option : command.options) {
            AddTag(page, NameOf(option), option.help);
        }
    }
    page += ".SH EXIT STATUS\n";
    for (const auto& [code, meaning] : kExitRows) {
        AddTag(page, code, meaning);
    }
    return page;
}

std::string BashCompletion() {
    std::string names;
    std::string cases;
    for (const Command& command : Commands()) {
        names.append(" ").append(command.name);
        cases.append("        ").append(command.name).append(") words=\"--help");
        for (const Option& option : command.options) {
            cases.append(" ").append(option.name);
        }
        cases.append("\" ;;\n");
    }
    std::string options;
    for (const Option& option : kProgramOptions) {
        options.append(" ").append(option.name);
    }
    return "# Completes the words of vemosud in bash.\n"
           "_vemosud() {\n"
           "    local word=${COMP_WORDS[COMP_CWORD]} words=\n"
           "    if ((COMP_CWORD == 1)); then\n"
           "        mapfile -t COMPREPLY < <(compgen -W '" +
           names.substr(1) + options +
           "' -- \"$word\")\n"
           "        return\n"
           "    fi\n"
           "    case ${COMP_WORDS[1]} in\n" +
           cases +
           "    esac\n"
           "    if [[ $word == -* ]]; then\n"
           "        mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$word\")\n"
           "    else\n"
           "        mapfile -t COMPREPLY < <(compgen -f -- \"$word\")\n"
           "        compopt -o filenames 2>/dev/null\n"
           "    fi\n"
           "}\n"
           "complete -F _vemosud vemosud\n";
}

}  // namespace vemo
