// What a command's words were.
#include "cli/options.h"

#include <algorithm>
#include <charconv>

namespace vemo {
namespace {

// Takes the option at the front of the words, with its value. Answers how many words it took.
std::size_t TakeOption(std::span<const std::string> words, std::span<const Option> options,
                       ParsedArguments& parsed) {
    const std::string& word = words.front();
    const std::size_t equals = word.find('=');
    const std::string name = word.substr(0, equals);
    const bool hasValue = equals != word.npos;
    const auto option = std::ranges::find(options, name, &Option::name);
    if (option == options.end()) {
        parsed.error = "unknown option " + name;
        return 1;
    }
    const bool takesValue = !option->placeholder.empty();
    if (hasValue && !takesValue) {
        parsed.error = name + " takes no value: " + word;
        return 1;
    }
    if (takesValue && !hasValue && words.size() == 1) {
        parsed.error = name + " needs a value: " + name + " " + std::string(option->placeholder);
        return 1;
    }
    const bool isNextWord = takesValue && !hasValue;
    const std::string value = isNextWord ? words[1] : hasValue ? word.substr(equals + 1) : "";
    parsed.arguments.options.emplace_back(option->name, value);
    return isNextWord ? 2 : 1;
}

}  // namespace

std::optional<std::string_view> Arguments::ValueOf(std::string_view option) const {
    std::optional<std::string_view> value;
    for (const auto& [name, given] : options) {
        value = name == option ? given : value;
    }
    return value;
}

ParsedArguments ParseArguments(std::span<const std::string> words,
                               std::span<const Option> options) {
    ParsedArguments parsed;
    std::vector<std::string>& operands = parsed.arguments.operands;
    while (!words.empty() && parsed.error.empty()) {
        const std::string& word = words.front();
        if (word == "--") {
            operands.insert(operands.end(), words.begin() + 1, words.end());
            break;
        }
        if (word == "-" || !word.starts_with('-')) {
            operands.push_back(word);
            words = words.subspan(1);
        } else {
            words = words.subspan(TakeOption(words, options, parsed));
        }
    }
    return parsed;
}

std::optional<std::uint64_t> WholeNumber(std::string_view text, std::uint64_t least,
                                         std::uint64_t most) {
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isNumber = error == std::errc() && end == text.data() + text.size();
    return isNumber && number >= least && number <= most ? std::optional(number) : std::nullopt;
}

std::string ReadRangeOf(const Arguments& arguments, const Option& option, int most, int& first,
                        int& last) {
    const auto text = arguments.ValueOf(option.name);
    if (!text) {
        return "";
    }
    const auto numberOf = [&](std::string_view word) {
        return WholeNumber(word, 0, static_cast<std::uint64_t>(most));
    };
    const std::size_t dash = text->find('-');
    const auto from = numberOf(text->substr(0, dash));
    const auto to = dash == text->npos ? from : numberOf(text->substr(dash + 1));
    if (!from || !to || *from > *to) {
        return std::string(option.name) + " is a number or two such as 3-5, up to " +
               std::to_string(most) + ": " + std::string(*text);
    }
    first = static_cast<int>(*from);
    last = static_cast<int>(*to);
    return "";
}

}  // namespace vemo
