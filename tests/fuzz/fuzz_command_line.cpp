// Any words, order file and input for the command line program: it ends with one of its codes, and
// says why where it is not content.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/program.h"
#include "target.h"

namespace vemo {
namespace {

constexpr char kEnd = '\0';  // of the words, and of the order
constexpr std::size_t kMostLines = 4;

std::string_view TakeUntil(std::string_view& rest, char end) {
    const std::string_view part = rest.substr(0, rest.find(end));
    rest.remove_prefix(std::min(part.size() + 1, rest.size()));
    return part;
}

// Only the order file of the input is read, and nothing is written: a word that could be the name
// of another file is no input. Making puzzles takes too long besides.
bool IsHarmless(const std::vector<std::string>& words) {
    for (const std::string& word : words) {
        if (word == "make-levels" || word == "generate" || word == "import" ||
            word.starts_with("--resume") || word.find('/') != word.npos || word.starts_with('.')) {
            return false;
        }
    }
    return true;
}

std::string WrittenOrder(std::string_view order) {
    static const std::string path =
        (std::filesystem::temp_directory_path() / "vemo_fuzz_order").string();
    std::ofstream(path, std::ios::binary) << order;
    return path;
}

}  // namespace

void Check(std::span<const std::uint8_t> input) {
    std::string_view text = TextOf(input);
    std::vector<std::string> words;
    for (std::string_view rest = TakeUntil(text, kEnd); !rest.empty();) {
        words.emplace_back(TakeUntil(rest, '\n'));
    }
    const std::string_view order = TakeUntil(text, kEnd);
    if (!IsHarmless(words) || std::ranges::count(text, '\n') > std::ptrdiff_t{kMostLines}) {
        return;
    }
    for (std::size_t index = 1; index < words.size(); ++index) {
        if (words[index - 1] == "--order") {
            words[index] = WrittenOrder(order);
        }
    }
    std::istringstream in{std::string(text)};
    std::ostringstream out;
    std::ostringstream err;
    Streams streams{in, out, err};
    const ExitCode code = RunProgram(words, streams);
    Require(code >= ExitCode::Fine && code <= ExitCode::InputOutput, "a code is one of four");
    Require((code == ExitCode::Usage || code == ExitCode::InputOutput) <= !err.str().empty(),
            "what failed is told");
    Require(out.str().empty() || out.str().ends_with('\n'), "an answer is made of whole lines");
}

}  // namespace vemo
