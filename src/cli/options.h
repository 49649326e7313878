// What a command's words may be, and what they were.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vemo {

struct Option {
    std::string_view name;         // "--seed"
    std::string_view placeholder;  // "N"; empty: the option takes no value
    std::string_view help;
};

// The words behind a command's name, sorted into options and operands.
struct Arguments {
    std::vector<std::pair<std::string_view, std::string>> options;  // name and value, as given
    std::vector<std::string> operands;

    bool Has(std::string_view option) const { return ValueOf(option).has_value(); }
    // What the option was given with, "" for one that takes no value; the last counts.
    std::optional<std::string_view> ValueOf(std::string_view option) const;
};

struct ParsedArguments {
    Arguments arguments;
    std::string error;  // names the offending word; empty: all is well
};

// "--name value" or "--name=value"; "-" is an operand, and so is every word behind "--".
ParsedArguments ParseArguments(std::span<const std::string> words, std::span<const Option> options);

// The decimal number that a text is, where it lies between the two.
std::optional<std::uint64_t> WholeNumber(std::string_view text, std::uint64_t least,
                                         std::uint64_t most);

// Reads an option's number, where the option is given; answers a message where it is none.
template <typename Number>
std::string ReadNumberOf(const Arguments& arguments, const Option& option, std::uint64_t least,
                         std::uint64_t most, Number& number) {
    const auto text = arguments.ValueOf(option.name);
    const auto read = WholeNumber(text.value_or("0"), text ? least : 0, most);
    if (!read) {
        return std::string(option.name) + " is a number from " + std::to_string(least) + " to " +
               std::to_string(most) + ": " + std::string(*text);
    }
    number = text ? static_cast<Number>(*read) : number;
    return "";
}

// Reads an option's "A-B", or "A" for both, where the option is given; answers a message where it
// is neither.
std::string ReadRangeOf(const Arguments& arguments, const Option& option, int most, int& first,
                        int& last);

}  // namespace vemo
