// vemosud export: a list of puzzles or positions in the format of another program.
#include "cli/commands.h"
#include "cli/line_loop.h"
#include "tools/puzzle_export.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

constexpr Option kFormatOption = {"--format", "NAME", "the format to write"};
constexpr Option kOptions[] = {kFormatOption, kThreadsOption, kQuietOption};

std::string Notes() {
    std::string notes =
        "Writes the puzzles, or positions, of a list in a format that vemosud import,"
        "\nand other programs, read. NAME is one of\n";
    for (const ExportFormatRow& row : kExportFormats) {
        const char* holds = row.holds == ExportHolds::Clues        ? "clues"
                            : row.holds == ExportHolds::Candidates ? "candidates"
                                                                   : "clues, digits and marks";
        notes.append("  ").append(row.word).append(": ").append(row.caption);
        notes.append(" (").append(row.ending).append("), ").append(holds).append("\n");
    }
    return notes.append("\n").append(kPositionNotes).append(kListNotes);
}

CommandResult RunExport(const Arguments& arguments, Streams& streams) {
    const auto word = arguments.ValueOf(kFormatOption.name);
    const auto format = ExportFormatOf(word.value_or(""));
    if (!format) {
        return UsageError(word ? "--format is no format: " + std::string(*word)
                               : "--format NAME is missing");
    }
    const auto write = [&](const InputLine& line) -> Answer {
        const PositionLine read = ReadPositionLine(line.text);
        return read.IsPosition() ? Answer{WriteExport(*format, read.grid)} : Refusal(read.error);
    };
    return AnswerEachLine(arguments, streams, Working::AtOnce, write,
                          {ExportHeader(*format), ExportFooter(*format)});
}

}  // namespace

Command ExportCommand() {
    return {"export",
            Operands::OneFile,
            "--format NAME [--threads N] [--quiet]",
            "Writes a list in the format of another program",
            kOptions,
            Notes,
            RunExport};
}

}  // namespace vemo
