// The shipped puzzles, as orders to the generator.
#include "tools/level_maker.h"

#include <algorithm>
#include <numeric>
#include <set>

#include "tools/canonical.h"
#include "tools/generator.h"

namespace vemo {
namespace {

constexpr int kLastSymmetricalLevel = 5;

constexpr std::chrono::milliseconds kBetweenTwoLooks{200};

// How many of the level's puzzles have this symmetry.
int ShareOf(Symmetry symmetry, int level, int count) {
    const int symmetrical = level <= kLastSymmetricalLevel ? count / 2 : 0;
    if (symmetry == Symmetry::None) {
        return count - symmetrical;
    }
    const int symmetries = static_cast<int>(Symmetries().size()) - 1;
    const int at = static_cast<int>(symmetry);
    return symmetrical * at / symmetries - symmetrical * (at - 1) / symmetries;
}

class LevelMaker {
  public:
    LevelMaker(const LevelSettings& settings, const MakerProgress& progress)
        : settings_(settings), progress_(progress) {}

    // Answers whether to go on.
    bool Make(Symmetry symmetry);
    LevelPuzzles Sorted();

  private:
    bool MayGoOn() const;

    const LevelSettings& settings_;
    const MakerProgress& progress_;
    std::array<std::vector<RatedPuzzle>, kLevels> levels_;
    std::set<Digits> known_;  // canonical forms
};

bool LevelMaker::MayGoOn() const {
    const int wanted = std::accumulate(settings_.counts.begin(), settings_.counts.end(), 0);
    return !progress_ || progress_(static_cast<int>(known_.size()), wanted);
}

bool LevelMaker::Make(Symmetry symmetry) {
    GeneratorSettings order;
    order.seed = settings_.seed;
    order.symmetry = symmetry;
    order.mostTries = settings_.mostTries;
    for (int level = 1; level <= kLevels; ++level) {
        const int count = settings_.counts[static_cast<std::size_t>(level) - 1];
        order.wanted[static_cast<std::size_t>(level)] = ShareOf(symmetry, level, count);
    }
    if (!SettingsError(order).empty()) {
        return true;  // nothing of this symmetry is wanted
    }
    Generator generator(order, settings_.threads, known_);
    bool isOver = false;
    while (!isOver) {
        generator.Wait(kBetweenTwoLooks);
        const Ending ending = generator.Counts().ending;
        isOver = ending != Ending::None;
        for (const RatedPuzzle& rated : generator.Take()) {
            levels_[static_cast<std::size_t>(rated.rating) - 1].push_back(rated);
            known_.insert(CanonicalForm(rated.puzzle.clues, rated.puzzle.solution));
        }
        if (ending == Ending::NoThreads || !MayGoOn()) {
            return false;
        }
    }
    return true;
}

LevelPuzzles LevelMaker::Sorted() {
    LevelPuzzles sorted;
    for (std::size_t at = 0; at < kLevels; ++at) {
        std::ranges::stable_sort(levels_[at], IsGentler);
        for (const RatedPuzzle& rated : levels_[at]) {
            sorted[at].push_back(rated.puzzle);
        }
    }
    return sorted;
}

// Keeps the corpus of a seed apart from its other puzzles.
constexpr std::uint64_t kCorpusStream = 0x636f72707573;
// Rated 1, 2, 3, and all above in one.
constexpr std::array<ClueRange, 4> kCorpusClues = {{{32, 40}, {28, 34}, {25, 31}, {}}};
// The others look the same after half a turn.
constexpr int kOneUnsymmetricalIn = 4;

PuzzleRecord CorpusPuzzle(ClueRange clues, Random& random) {
    PuzzleRecord puzzle;
    puzzle.solution = RandomSolution(random);
    const Symmetry symmetry =
        random.Below(kOneUnsymmetricalIn) == 0 ? Symmetry::None : Symmetry::HalfTurn;
    const int fewest = clues.fewest == 0 ? 0 : random.Between(clues.fewest, clues.most);
    puzzle.clues = DigClues(puzzle.solution, symmetry, fewest, random);
    return puzzle;
}

}  // namespace

std::optional<LevelPuzzles> MakeLevels(const LevelSettings& settings,
                                       const MakerProgress& progress) {
    LevelMaker maker(settings, progress);
    for (const SymmetryRow& row : Symmetries()) {
        if (!maker.Make(row.symmetry)) {
            return std::nullopt;
        }
    }
    return maker.Sorted();
}

std::optional<std::vector<Digits>> MakeCorpus(std::uint64_t seed, int count,
                                              const MakerProgress& progress) {
    Random random(seed ^ kCorpusStream);
    std::vector<Digits> corpus;
    std::set<Digits> known;
    constexpr int kSorts = static_cast<int>(kCorpusClues.size());
    while (static_cast<int>(corpus.size()) < count) {
        const int sort = 1 + static_cast<int>(corpus.size()) % kSorts;
        const PuzzleRecord puzzle =
            CorpusPuzzle(kCorpusClues[static_cast<std::size_t>(sort) - 1], random);
        const int rating = Rate(puzzle).rating;
        if (std::min(rating, kSorts) == sort && known.insert(puzzle.clues).second) {
            corpus.push_back(puzzle.clues);
        }
        if (progress && !progress(static_cast<int>(corpus.size()), count)) {
            return std::nullopt;
        }
    }
    return corpus;
}

}  // namespace vemo
