// Random puzzles and their sorting into levels.
#include "tools/level_maker.h"

#include <algorithm>
#include <numeric>
#include <set>
#include <utility>

#include "solver/fast_count.h"
#include "solver/solver.h"
#include "tools/hard_walk.h"
#include "tools/rated_puzzle.h"

namespace vemo {
namespace {

// The others look the same after half a turn.
constexpr int kOneUnsymmetricalIn = 4;

// Puzzles of the levels from here on are walked to: at random they are too rare.
constexpr int kFirstWalkedLevel = 7;

// Keep the corpus and the walk of a seed apart from its other puzzles.
constexpr std::uint64_t kCorpusStream = 0x636f72707573;
constexpr std::uint64_t kWalkStream = 0x77616c6b;
// Rated 1, 2, 3, and all above in one.
constexpr int kCorpusSorts = 4;

struct ClueRange {
    int fewest;
    int most;
};

// How far puzzles are dug out. A puzzle of the first levels is friendlier with more clues than it
// needs; from the fourth on each is dug as far as it goes.
constexpr std::array<ClueRange, 4> kClueRanges = {{{32, 40}, {28, 34}, {25, 31}, {17, 81}}};

ClueRange RangeOf(int level) {
    const std::size_t at = static_cast<std::size_t>(level) - 1;
    return kClueRanges[std::min(at, kClueRanges.size() - 1)];
}

int ClueCount(const Digits& clues) {
    return kCells - static_cast<int>(std::ranges::count(clues, 0));
}

// Fills the cell with the fewest candidates, then the rest.
bool FillAtRandom(const Grid& grid, Random& random, Digits& solution) {
    if (grid.EmptyCount() == 0) {
        solution = grid.AllDigits();
        return true;
    }
    const auto markCount = [&](int cell) { return BitCount(grid.MarksAt(cell)); };
    int chosen = grid.EmptyCells().First();
    for (int cell : grid.EmptyCells()) {
        chosen = markCount(cell) < markCount(chosen) ? cell : chosen;
    }
    std::array<int, kDigits> digits;
    std::iota(digits.begin(), digits.end(), 1);
    random.Shuffle(digits);
    for (int digit : digits) {
        if (!grid.KnopAan(chosen, digit)) {
            continue;
        }
        Grid next = grid;
        next.Zet(digit, chosen);
        if (FillAtRandom(next, random, solution)) {
            return true;
        }
    }
    return false;
}

PuzzleRecord MakePuzzle(ClueRange range, Random& random) {
    PuzzleRecord puzzle;
    puzzle.solution = RandomSolution(random);
    const Symmetry symmetry =
        random.Below(kOneUnsymmetricalIn) == 0 ? Symmetry::None : Symmetry::HalfTurn;
    const bool digsAllTheWay = range.most == kCells;
    const int fewest = digsAllTheWay ? range.fewest : random.Between(range.fewest, range.most);
    puzzle.clues = DigClues(puzzle.solution, symmetry, fewest, random);
    return puzzle;
}

// A puzzle of each level in turn, as long as the level is not full.
class Sorter {
  public:
    explicit Sorter(const LevelSettings& settings)
        : settings_(settings), random_(settings.seed), walk_(settings.seed ^ kWalkStream) {}

    void Fill(const MakerProgress& progress);
    LevelPuzzles Levels();

  private:
    bool IsFull(int level) const {
        return static_cast<int>(PuzzlesOf(level).size()) == settings_.count;
    }
    const std::vector<RatedPuzzle>& PuzzlesOf(int level) const {
        return puzzles_[static_cast<std::size_t>(level) - 1];
    }
    void TryPuzzleFor(int level);

    LevelSettings settings_;
    Random random_;
    HardWalk walk_;
    std::array<std::vector<RatedPuzzle>, kLevels> puzzles_;
    std::set<Digits> known_;
};

void Sorter::Fill(const MakerProgress& progress) {
    const int wanted = settings_.count * kLevels;
    std::int64_t triesLeft = std::int64_t{wanted} * settings_.triesPerPuzzle;
    bool isDone = false;
    while (!isDone && triesLeft > 0) {
        isDone = true;
        for (int level = 1; level <= kLevels; ++level) {
            if (!IsFull(level)) {
                TryPuzzleFor(level);
                --triesLeft;
                isDone = false;
            }
        }
        if (progress) {
            progress(static_cast<int>(known_.size()), wanted);
        }
    }
}

// A puzzle goes where its rating sends it, if there is room and it has clues enough for the level.
void Sorter::TryPuzzleFor(int level) {
    const std::optional<RatedPuzzle> rated =
        level < kFirstWalkedLevel ? Rate(MakePuzzle(RangeOf(level), random_)) : walk_.Next();
    if (!rated || IsFull(rated->rating)) {
        return;
    }
    const ClueRange range = RangeOf(rated->rating);
    const int clues = ClueCount(rated->puzzle.clues);
    if (clues >= range.fewest && clues <= range.most && known_.insert(rated->puzzle.clues).second) {
        puzzles_[static_cast<std::size_t>(rated->rating) - 1].push_back(*rated);
    }
}

LevelPuzzles Sorter::Levels() {
    LevelPuzzles levels;
    for (std::size_t at = 0; at < kLevels; ++at) {
        std::ranges::stable_sort(puzzles_[at], IsGentler);
        for (const RatedPuzzle& rated : puzzles_[at]) {
            levels[at].push_back(rated.puzzle);
        }
    }
    return levels;
}

// Answers whether the solution is still the only one.
bool TakeClue(Digits& clues, std::size_t cell) {
    const bool isNeeded = NeedsClue(clues, static_cast<int>(cell));
    clues[cell] = 0;
    return !isNeeded;
}

}  // namespace

Digits RandomSolution(Random& random) {
    Digits solution{};
    FillAtRandom(Grid(), random, solution);
    return solution;
}

Digits DigClues(const Digits& from, Symmetry symmetry, int fewest, Random& random) {
    std::array<std::size_t, kCells> order;
    std::iota(order.begin(), order.end(), std::size_t{0});
    random.Shuffle(order);
    Digits clues = from;
    int clueCount = ClueCount(clues);
    for (std::size_t cell : order) {
        const std::size_t partner = symmetry == Symmetry::HalfTurn ? kCells - 1 - cell : cell;
        const int going = partner == cell ? 1 : 2;
        if (clues[cell] == 0 || clueCount - going < fewest) {
            continue;
        }
        Digits fewer = clues;
        if (TakeClue(fewer, cell) && (partner == cell || TakeClue(fewer, partner))) {
            clues = fewer;
            clueCount -= going;
        }
    }
    return clues;
}

LevelPuzzles MakeLevels(const LevelSettings& settings, const MakerProgress& progress) {
    Sorter sorter(settings);
    sorter.Fill(progress);
    return sorter.Levels();
}

std::vector<Digits> MakeCorpus(std::uint64_t seed, int count, const MakerProgress& progress) {
    Random random(seed ^ kCorpusStream);
    std::vector<Digits> corpus;
    std::set<Digits> known;
    while (static_cast<int>(corpus.size()) < count) {
        const int sort = 1 + static_cast<int>(corpus.size()) % kCorpusSorts;
        const PuzzleRecord puzzle = MakePuzzle(RangeOf(sort), random);
        const int rating = Rate(puzzle).rating;
        if (std::min(rating, kCorpusSorts) == sort && known.insert(puzzle.clues).second) {
            corpus.push_back(puzzle.clues);
        }
        if (progress) {
            progress(static_cast<int>(corpus.size()), count);
        }
    }
    return corpus;
}

}  // namespace vemo
