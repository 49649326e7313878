// What all commands have in common: their words, their input, their messages.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "cli/commands.h"
#include "cli/invoke.h"
#include "cli/json.h"

namespace vemo {
namespace {

const std::string kBlank(81, '.');

TEST(Program, AWrongWordIsNamed) {
    const struct {
        std::vector<std::string> words;
        const char* named;
    } cases[] = {
        {{}, "a command is missing"},
        {{"sove"}, "unknown command sove"},
        {{"--foo"}, "unknown option --foo"},
        {{"rate"}, "FILE is missing"},
        {{"rate", "-", "more"}, "unexpected word more"},
        {{"rate", "--foo", "-"}, "unknown option --foo"},
        {{"rate", "--log=yes", "-"}, "--log takes no value: --log=yes"},
        {{"rate", "--off", "7", "-"}, "--off is a slot from 8 to 39: 7"},
        {{"find", "-"}, "--technique TITLE or --slot N"},
        {{"find", "--slot", "3", "--technique", "X-Wing", "-"}, "not both"},
        {{"find", "-", "--slot"}, "--slot needs a value"},
        {{"find", "--slot", "2", "-"}, "3 to 39, or extended-wxyz: 2"},
        {{"find", "--slot=40", "-"}, "3 to 39, or extended-wxyz: 40"},
        {{"find", "--technique", "naked pair", "-"},
         "unknown technique \"naked pair\"; near to it: \"Naked Pair\""},
        {{"find", "--technique", "Unique Rectangle", "-"}, "\"Unique Rectangle Type 4\""},
        {{"find", "--technique", "zzz", "-"}, "unknown technique \"zzz\" ("},
        {{"make-levels"}, "--output DIR or --corpus FILE is missing"},
        {{"make-levels", "--output", "x", "--seed", "-1"}, "--seed is a number from 0"},
        {{"make-levels", "--output", "x", "--tries", "2x"}, ": 2x"},
        {{"make-levels", "--corpus", "x", "--tries", "2"}, "--threads go with --output"},
    };
    for (const auto& [words, named] : cases) {
        const Outcome result = Invoke(words);
        EXPECT_EQ(result.code, ExitCode::Usage) << named;
        EXPECT_EQ(result.out, "") << named;
        EXPECT_NE(result.err.find(named), std::string::npos) << result.err;
    }
}

TEST(Program, HelpAndVersionAreResults) {
    EXPECT_EQ(Invoke({"--version"}).out, "vemosud 2.6\n");
    const std::string help = Invoke({"--help"}).out;
    const std::string page = Invoke({"--man"}).out;
    for (const Command& command : Commands()) {
        const std::string name(command.name);
        EXPECT_NE(help.find("\n  " + name + " "), std::string::npos) << name;
        EXPECT_NE(page.find("\n.SS " + name.substr(0, name.find('-'))), std::string::npos) << name;
        const Outcome own = Invoke({name, "--foo", "--help"});
        EXPECT_EQ(own.code, ExitCode::Fine) << "asked for help, nothing else matters";
        for (const Option& option : command.options) {
            EXPECT_NE(own.out.find("\n  " + std::string(option.name) + " "), std::string::npos)
                << name << ' ' << option.name;
        }
    }
    EXPECT_EQ(Invoke({"rate", "--", "--help"}).code, ExitCode::InputOutput)
        << "a file of this name";
}

TEST(Program, AFaultyLineCostsItsOwnAnswerAlone) {
    const Outcome result =
        Invoke({"solve", "-"}, "\xEF\xBB\xBF# list\r\n\r\n12\r\n" + kBlank + "\r\n" +
                                   std::string(1'000'000, '5') + "\n\n" + std::string(9, '\0') +
                                   "\n" + kBlank);
    EXPECT_EQ(result.code, ExitCode::FaultyLine);
    EXPECT_EQ(result.out, kBlank + "\tmultiple\t\n" + kBlank + "\tmultiple\t\n");
    EXPECT_EQ(result.err,
              "vemosud: line 3: the grid field has 2 characters instead of 81\n"
              "vemosud: line 5: longer than 4096 characters\n"
              "vemosud: line 7: the grid field has 9 characters instead of 81\n");
}

TEST(Program, NoInputIsNoFault) {
    for (const char* command : {"solve", "rate", "hint"}) {
        const Outcome result = Invoke({command, "-"}, "");
        EXPECT_EQ(result.code, ExitCode::Fine);
        EXPECT_EQ(result.out + result.err, "");
    }
}

TEST(Program, AnUnreadableFileIsNamed) {
    for (const char* name : {"no such file", VEMO_TEST_DATA}) {
        const Outcome result = Invoke({"rate", name});
        EXPECT_EQ(result.code, ExitCode::InputOutput);
        EXPECT_NE(result.err.find(name), std::string::npos) << result.err;
    }
}

TEST(Json, TextIsEscaped) {
    EXPECT_EQ(JsonString("a\"b\\c\n\x01é"), "\"a\\\"b\\\\c\\u000a\\u0001é\"");
}

}  // namespace
}  // namespace vemo
