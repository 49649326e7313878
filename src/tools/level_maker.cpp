// Random puzzles and their sorting into levels.
#include "tools/level_maker.h"

#include <algorithm>
#include <numeric>
#include <set>
#include <tuple>
#include <utility>

#include "solver/brute_force.h"
#include "solver/solver.h"

namespace vemo {
namespace {

constexpr int kTriesPerPuzzle = 500;
// The others look the same after half a turn.
constexpr int kOneUnsymmetricalIn = 4;

// Keeps the corpus of a seed apart from its levels.
constexpr std::uint64_t kCorpusStream = 0x636f72707573;
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

struct Candidate {
    PuzzleRecord puzzle;
    int rating = 0;
    int openCells = 0;  // where the ladder stops
    int openMarks = 0;
    int steps = 0;
};

// From easier to harder.
bool IsEasier(const Candidate& a, const Candidate& b) {
    return std::tie(a.rating, a.openCells, a.openMarks, a.steps) <
           std::tie(b.rating, b.openCells, b.openMarks, b.steps);
}

Candidate Rate(const PuzzleRecord& puzzle, const Ladder& ladder) {
    Solver solver(Grid::FromClues(puzzle.clues));
    const bool solved = RunToTheEnd(solver, ladder);
    Candidate candidate{puzzle, RatingOf(solver, solved), solver.EmptyCount(), 0,
                        solver.StepCount()};
    for (int digit = 1; digit <= kDigits; ++digit) {
        candidate.openMarks += solver.State().Cells().Candidates(digit).Count();
    }
    return candidate;
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

// The highest level that has a step which searches, and below which every level has one.
int HighestRatedLevel(const Ladder& ladder) {
    std::array<bool, kLevels + 1> hasSearch{};
    for (const LadderStep& at : ladder) {
        hasSearch[static_cast<std::size_t>(at.step->level)] |= at.step->Finds();
    }
    int level = 0;
    while (level < kOutlaw - 1 && hasSearch[static_cast<std::size_t>(level + 1)]) {
        ++level;
    }
    return level;
}

// The levels that the ladder rates, one group each, and behind them one group of all that is
// harder.
class Sorter {
  public:
    explicit Sorter(const LevelSettings& settings)
        : count_(settings.count),
          random_(settings.seed),
          ladder_(FixedLadder()),
          ratedLevels_(HighestRatedLevel(ladder_)),
          groups_(static_cast<std::size_t>(ratedLevels_) + 1) {}

    void Fill(const MakerProgress& progress);
    LevelPuzzles Levels();

  private:
    int Wanted(std::size_t group) const {
        const bool isLast = group + 1 == groups_.size();
        return isLast ? count_ * (kLevels - ratedLevels_) : count_;
    }
    bool IsFull(std::size_t group) const {
        return static_cast<int>(groups_[group].size()) == Wanted(group);
    }
    void TryPuzzleFor(std::size_t group);

    int count_;
    Random random_;
    Ladder ladder_;
    int ratedLevels_;
    std::vector<std::vector<Candidate>> groups_;
    std::set<Digits> known_;
};

void Sorter::Fill(const MakerProgress& progress) {
    const int wanted = count_ * kLevels;
    int triesLeft = wanted * kTriesPerPuzzle;
    bool isDone = false;
    while (!isDone && triesLeft > 0) {
        isDone = true;
        for (std::size_t group = 0; group < groups_.size(); ++group) {
            if (!IsFull(group)) {
                TryPuzzleFor(group);
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
void Sorter::TryPuzzleFor(std::size_t group) {
    const PuzzleRecord puzzle = MakePuzzle(RangeOf(static_cast<int>(group) + 1), random_);
    const Candidate candidate = Rate(puzzle, ladder_);
    const int levelOfGroup = std::min(candidate.rating, ratedLevels_ + 1);
    const std::size_t home = static_cast<std::size_t>(levelOfGroup) - 1;
    const ClueRange range = RangeOf(levelOfGroup);
    const int clues = ClueCount(puzzle.clues);
    if (!IsFull(home) && clues >= range.fewest && clues <= range.most &&
        known_.insert(puzzle.clues).second) {
        groups_[home].push_back(candidate);
    }
}

// One of so many equal parts of a group.
std::vector<PuzzleRecord> PartOf(const std::vector<Candidate>& group, int part, int parts) {
    const auto start = [&](int of) {
        return group.size() * static_cast<std::size_t>(of) / static_cast<std::size_t>(parts);
    };
    std::vector<PuzzleRecord> puzzles;
    for (std::size_t at = start(part); at < start(part + 1); ++at) {
        puzzles.push_back(group[at].puzzle);
    }
    return puzzles;
}

LevelPuzzles Sorter::Levels() {
    for (std::vector<Candidate>& group : groups_) {
        std::ranges::stable_sort(group, IsEasier);
    }
    LevelPuzzles levels;
    for (int level = 1; level <= kLevels; ++level) {
        const std::size_t at = static_cast<std::size_t>(level) - 1;
        levels[at] = level <= ratedLevels_
                         ? PartOf(groups_[at], 0, 1)
                         : PartOf(groups_.back(), level - ratedLevels_ - 1, kLevels - ratedLevels_);
    }
    return levels;
}

}  // namespace

Digits RandomSolution(Random& random) {
    Digits solution{};
    FillAtRandom(Grid(), random, solution);
    return solution;
}

Digits DigClues(const Digits& solution, Symmetry symmetry, int fewest, Random& random) {
    std::array<std::size_t, kCells> order;
    std::iota(order.begin(), order.end(), std::size_t{0});
    random.Shuffle(order);
    Digits clues = solution;
    int clueCount = ClueCount(clues);
    for (std::size_t cell : order) {
        const std::size_t partner = symmetry == Symmetry::HalfTurn ? kCells - 1 - cell : cell;
        const int going = partner == cell ? 1 : 2;
        if (clues[cell] == 0 || clueCount - going < fewest) {
            continue;
        }
        Digits fewer = clues;
        fewer[cell] = 0;
        fewer[partner] = 0;
        if (BruteForceSolve(fewer).IsUnique()) {
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
    const Ladder ladder = FixedLadder();
    std::vector<Digits> corpus;
    std::set<Digits> known;
    while (static_cast<int>(corpus.size()) < count) {
        const int sort = 1 + static_cast<int>(corpus.size()) % kCorpusSorts;
        const PuzzleRecord puzzle = MakePuzzle(RangeOf(sort), random);
        const int rating = Rate(puzzle, ladder).rating;
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
