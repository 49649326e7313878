// What a player orders to be printed.
#include "game/print_order.h"

#include <algorithm>
#include <charconv>

#include "model/levels.h"

namespace vemo {
namespace {

constexpr std::string_view kSection = "Print";

constexpr std::array<std::string_view, 4> kContentWords = {"puzzle", "marks", "state", "solution"};
constexpr std::array<std::string_view, 2> kPaperWords = {"a4", "letter"};

// The value whose word stands at its own number.
template <typename Value, std::size_t kCount>
std::optional<Value> Named(const std::array<std::string_view, kCount>& words,
                           std::string_view word) {
    const auto found = std::ranges::find(words, word);
    return found == words.end() ? std::nullopt
                                : std::optional(static_cast<Value>(found - words.begin()));
}

// Nothing but digits, and not 0.
std::optional<int> NumberIn(std::string_view text) {
    int number = 0;
    const char* end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    const bool isNumber = error == std::errc() && stopped == end && number > 0;
    return isNumber ? std::optional(number) : std::nullopt;
}

template <typename Value>
void Read(SettingsStore& store, std::string_view key, int most, Value& value) {
    const long number = ReadNumber(store, kSection, key, static_cast<long>(value));
    if (number >= 0 && number <= most) {
        value = static_cast<Value>(number);
    }
}

}  // namespace

LevelRun ParseLevelRun(std::string_view text) {
    LevelRun run;
    const std::size_t colon = text.find(':');
    const std::string_view level = text.substr(0, colon);
    run.level = LevelNamed(level);
    if (run.level == 0) {
        run.error = "there is no level '" + std::string(level) + "'";
        return run;
    }
    if (colon == text.npos) {
        return run;
    }
    const std::string_view numbers = text.substr(colon + 1);
    const std::size_t dash = numbers.find('-');
    const std::optional<int> first = NumberIn(numbers.substr(0, dash));
    const std::optional<int> last =
        dash == numbers.npos ? first : NumberIn(numbers.substr(dash + 1));
    if (!first || !last) {
        run.error = "'" + std::string(numbers) + "' is no number, nor two such as 1-4";
        return run;
    }
    run.first = *first;
    run.last = *last;
    return run;
}

std::string RunError(int level, int first, int last, int count) {
    const std::string name(LevelName(level));
    if (count == 0) {
        return "There are no " + name + " sudokus to print.";
    }
    if (first > last) {
        return "The first number, " + std::to_string(first) + ", is behind the last, " +
               std::to_string(last) + ".";
    }
    if (first < 1 || last > count) {
        return "The " + name + " sudokus have the numbers 1 to " + std::to_string(count) +
               ", not " + std::to_string(first < 1 ? first : last) + ".";
    }
    if (last - first >= kMostPrinted) {
        return "At most " + std::to_string(kMostPrinted) + " sudokus are printed at a time.";
    }
    return "";
}

std::optional<PrintContent> PrintContentNamed(std::string_view word) {
    return Named<PrintContent>(kContentWords, word);
}

std::optional<Paper> PaperNamed(std::string_view word) {
    return Named<Paper>(kPaperWords, word);
}

PageStyle ReadPageStyle(SettingsStore& store) {
    PageStyle style;
    int perPage = style.perPage;
    Read(store, "PerPage", kPerPage.back(), perPage);
    if (std::ranges::find(kPerPage, perPage) != kPerPage.end()) {
        style.perPage = perPage;
    }
    Read(store, "Content", static_cast<int>(PrintContent::Solution), style.content);
    Read(store, "Solutions", static_cast<int>(SolutionPlace::LastPages), style.solutions);
    Read(store, "Paper", static_cast<int>(Paper::Letter), style.paper);
    return style;
}

void WritePageStyle(SettingsStore& store, const PageStyle& style) {
    const auto write = [&store](std::string_view key, auto value) {
        store.Save(kSection, key, std::to_string(static_cast<int>(value)));
    };
    write("PerPage", style.perPage);
    write("Content", style.content);
    write("Solutions", style.solutions);
    write("Paper", style.paper);
    store.Flush();
}

}  // namespace vemo
