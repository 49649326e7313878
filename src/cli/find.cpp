// vemosud find: one kind of step alone, on a position as it stands.
#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

#include "cli/answers.h"
#include "cli/commands.h"
#include "cli/line_loop.h"
#include "solver/catalogue.h"
#include "solver/solver.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

constexpr Option kTechniqueOption = {"--technique", "TITLE", "the kind of step, by its hint title"};
constexpr Option kSlotOption = {"--slot", "N", "its slot in the ladder, 3 to 39, or extended-wxyz"};
constexpr Option kAllOption = {"--all", "", "every find on the position, not only the first"};
constexpr Option kOptions[] = {kTechniqueOption, kSlotOption,    kAllOption,
                               kJsonlOption,     kThreadsOption, kQuietOption};

constexpr std::string_view kOutsideTheLadder = "extended-wxyz";

// What is looked for: the steps in the order in which they are tried.
struct Target {
    std::vector<const Step*> steps;
    std::string_view title;  // only finds of this title count; empty: all do
};

std::vector<std::string_view> AllTitles() {
    std::vector<std::string_view> all;
    for (int kind = 1; kind <= kHintKinds; ++kind) {
        const auto titles = HintTitles(static_cast<HintKind>(kind));
        all.insert(all.end(), titles.begin(), titles.end());
    }
    return all;
}

bool HasTitle(const Step& step, std::string_view title) {
    return std::ranges::any_of(
        step.kinds, [&](HintKind kind) { return std::ranges::count(HintTitles(kind), title) > 0; });
}

template <typename Wanted>
std::vector<const Step*> StepsWhere(std::span<const Step> steps, Wanted wanted) {
    std::vector<const Step*> chosen;
    for (const Step& step : steps) {
        if (wanted(step)) {
            chosen.push_back(&step);
        }
    }
    return chosen;
}

std::string InLowerCase(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
    });
    return lower;
}

// How many letters must be put in, taken out or exchanged to turn one word into the other.
std::size_t EditDistance(std::string_view from, std::string_view to) {
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= from.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i);
        for (std::size_t j = 1; j <= to.size(); ++j) {
            const std::size_t exchanged = diagonal + (from[i - 1] == to[j - 1] ? 0 : 1);
            diagonal = std::exchange(row[j], std::min({row[j] + 1, row[j - 1] + 1, exchanged}));
        }
    }
    return row.back();
}

// The titles that may have been meant, the nearest first.
std::vector<std::string_view> NearTitles(std::string_view asked) {
    constexpr std::size_t kMost = 6;
    constexpr std::size_t kShortestPart = 3;
    std::vector<std::pair<std::size_t, std::string_view>> near;
    const std::string wanted = InLowerCase(asked);
    for (std::string_view title : AllTitles()) {
        const std::string lower = InLowerCase(title);
        const std::size_t distance = EditDistance(wanted, lower);
        const bool isPart = wanted.size() >= kShortestPart && lower.find(wanted) != lower.npos;
        if (isPart || 3 * distance <= lower.size()) {
            near.emplace_back(distance, title);
        }
    }
    std::ranges::stable_sort(near, {}, [](const auto& entry) { return entry.first; });
    std::vector<std::string_view> titles;
    for (std::size_t at = 0; at < std::min(near.size(), kMost); ++at) {
        titles.push_back(near[at].second);
    }
    return titles;
}

std::string UnknownTitle(std::string_view asked) {
    std::string message = "unknown technique \"" + std::string(asked) + "\"";
    std::string_view joint = "; near to it: ";
    for (std::string_view title : NearTitles(asked)) {
        message.append(joint).append("\"").append(title).append("\"");
        joint = ", ";
    }
    return message;
}

// What the options ask for; a message where they ask for nothing that there is.
std::string ReadTarget(const Arguments& arguments, Target& target) {
    const auto title = arguments.ValueOf(kTechniqueOption.name);
    const auto slot = arguments.ValueOf(kSlotOption.name);
    if (title.has_value() == slot.has_value()) {
        return "either --technique TITLE or --slot N must be given" +
               std::string(title ? ", not both" : "");
    }
    if (title) {
        target.title = *title;
        target.steps =
            StepsWhere(Steps(), [&](const Step& step) { return HasTitle(step, *title); });
        const bool isKnown = std::ranges::count(AllTitles(), *title) > 0;
        return isKnown ? "" : UnknownTitle(*title);
    }
    if (*slot == kOutsideTheLadder) {
        target.steps = StepsWhere(StepsOutsideTheLadder(), [](const Step&) { return true; });
        return "";
    }
    const auto number = WholeNumber(*slot, kFirstTechniqueSlot, kSlots - 1);
    if (!number) {
        return "--slot is a number from 3 to 39, or extended-wxyz: " + std::string(*slot);
    }
    target.steps = StepsWhere(
        Steps(), [&](const Step& step) { return step.slot == static_cast<int>(*number); });
    return "";
}

enum class Amount : std::uint8_t { First, All };

// Keeps the finds that count.
class Collector final : public FindSink {
  public:
    Collector(std::string_view title, Amount amount) : title_(title), amount_(amount) {}

    bool Offer(const Find& find) override {
        if (find.ChangesSomething() && (title_.empty() || HintTitle(find) == title_)) {
            kept_.Offer(find);
        }
        return !IsFull();
    }

    bool IsFull() const { return amount_ == Amount::First && !kept_.finds.empty(); }
    const std::vector<Find>& Finds() const { return kept_.finds; }

  private:
    std::string_view title_;
    Amount amount_;
    AllFinds kept_;
};

std::vector<Find> Search(const Grid& grid, const Target& target, Amount amount) {
    Solver solver(grid);
    Collector collector(target.title, amount);
    for (const Step* step : target.steps) {
        if (!collector.IsFull()) {
            solver.Search(*step, collector);
        }
    }
    return collector.Finds();
}

std::string AsText(const std::vector<Find>& finds, Amount amount) {
    std::string text;
    for (const Find& find : finds) {
        if (amount == Amount::All) {
            text.append(LogLine(find)) += '\n';
        }
        text.append(EffectLines(find)) += '\n';
    }
    return finds.empty() ? std::string(kNoFind) : text;
}

std::string AsJson(long number, const std::vector<Find>& finds) {
    std::vector<std::string> items;
    for (const Find& find : finds) {
        JsonObject item;
        item.Add("title", HintTitle(find)).Add("log", LogLine(find));
        AddEffects(find, item);
        items.push_back(item.Text());
    }
    return JsonObject().Add("line", number).AddJson("finds", JsonArray(items)).Line();
}

CommandResult RunFind(const Arguments& arguments, Streams& streams) {
    Target target;
    if (const std::string error = ReadTarget(arguments, target); !error.empty()) {
        return UsageError(error);
    }
    const bool isJson = arguments.Has(kJsonlOption.name);
    const Amount amount = arguments.Has(kAllOption.name) ? Amount::All : Amount::First;
    return AnswerEachLine(arguments, streams, Working::AtOnce,
                          [&](const InputLine& line) -> Answer {
                              const PositionLine read = ReadPositionLine(line.text);
                              if (!read.IsPosition()) {
                                  return Refusal(read.error);
                              }
                              const std::vector<Find> finds = Search(read.grid, target, amount);
                              return {isJson ? AsJson(line.number, finds) : AsText(finds, amount)};
                          });
}

std::string Notes() {
    std::string text =
        "A block a find, with a blank line behind it: one line each \"place A1 5\" or\n"
        "\"remove B2 7\"; \"none\" alone where there is nothing of the kind. With --all every\n"
        "find on the position, each block beginning with its log line; two finds with the\n"
        "same effects are one. With --jsonl the fields \"line\" and \"finds\", of each find\n"
        "\"title\", \"log\", \"place\", \"remove\".\n"
        "\n" +
        std::string(kPositionNotes).append(kListNotes) + "\nTitles:\n";
    for (std::string_view title : AllTitles()) {
        text.append("  ").append(title) += '\n';
    }
    return text;
}

}  // namespace

Command FindCommand() {
    return {"find",
            Operands::OneFile,
            "--technique TITLE|--slot N [--all] [--threads N] [--jsonl] [--quiet]",
            "Finds one kind of step alone on each position",
            kOptions,
            Notes,
            RunFind};
}

}  // namespace vemo
