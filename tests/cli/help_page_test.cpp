// The help's page on the command line.
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "cli/commands.h"

namespace vemo {
namespace {

TEST(CommandLinePage, NamesEveryCommandAndOption) {
    std::ifstream file(std::filesystem::path(VEMO_ASSETS) / "help" / "command-line.html");
    const std::string page(std::istreambuf_iterator<char>(file), {});
    for (const Command& command : Commands()) {
        const std::string name(command.name);
        EXPECT_NE(page.find("<code>" + name + "</code>"), page.npos) << name;
        for (const Option& option : command.options) {
            EXPECT_NE(page.find("<code>" + std::string(option.name)), page.npos)
                << name << " " << option.name;
        }
    }
}

}  // namespace
}  // namespace vemo
