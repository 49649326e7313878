// Duplicates among very many puzzles.
#include "tools/duplicates.h"

#include <algorithm>
#include <tuple>

#include "tools/canonical.h"
#include "tools/random.h"

namespace vemo {
namespace {

std::uint64_t HashOf(const Digits& digits) {
    std::uint64_t hash = 0;
    for (std::size_t at = 0; at < digits.size(); at += 9) {
        std::uint64_t row = hash;
        for (std::size_t k = at; k < at + 9; ++k) {
            row = 10 * row + digits[k];
        }
        hash = Random(row).Next();
    }
    return hash;
}

}  // namespace

PuzzleSigns SignsOf(const Digits& clues) {
    return SignsOf(clues, FastCount(clues));
}

PuzzleSigns SignsOf(const Digits& clues, const SolutionCount& solutions) {
    const Digits form =
        solutions.IsUnique() ? CanonicalForm(clues, solutions.first) : CanonicalClues(clues);
    return {HashOf(form), static_cast<std::uint32_t>(HashOf(clues))};
}

std::vector<Duplicate> DuplicateSearch::Take() {
    std::ranges::sort(entries_, {}, [](const Entry& entry) {
        return std::tuple(entry.form, entry.exact, entry.number);
    });
    std::vector<Duplicate> duplicates;
    auto group = entries_.begin();
    while (group != entries_.end()) {
        const auto end = std::find_if(
            group, entries_.end(), [&](const Entry& entry) { return entry.form != group->form; });
        // Among those of one form: the first of all, and the first of each look.
        const std::uint32_t first =
            std::min_element(group, end, [](const Entry& a, const Entry& b) {
                return a.number < b.number;
            })->number;
        for (auto at = group, look = group; at != end; ++at) {
            look = at->exact == look->exact ? look : at;
            if (look != at) {
                duplicates.push_back({at->number, look->number, Sameness::Exact});
            } else if (at->number != first) {
                duplicates.push_back({at->number, first, Sameness::Equivalent});
            }
        }
        group = end;
    }
    entries_.clear();
    std::ranges::sort(duplicates, {}, &Duplicate::number);
    return duplicates;
}

}  // namespace vemo
