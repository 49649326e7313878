// Making puzzles on worker threads.
//
// The search runs in lanes, each a line of search with a seed of its own, and each lane in chunks
// of tries. Workers run the chunks in any order; what they found is taken over lane by lane, round
// by round, so that neither the number of threads nor their speed can be seen in the outcome.
#include "tools/generator.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <utility>

#include "tools/canonical.h"
#include "tools/threads.h"

namespace vemo {
namespace {

using Method = PuzzleSearch::Method;
using Clock = std::chrono::steady_clock;

// What suits a level: a puzzle of the first ones is friendlier with more clues than it needs.
constexpr std::array<ClueRange, 4> kSuitingClues = {{{}, {32, 40}, {28, 34}, {25, 31}}};

// Walks take long to get anywhere, so that many at a time would come late.
constexpr int LanesOf(Method method) {
    return method == Method::Digs ? 16 : 4;
}
// Some hundredths of a second.
constexpr int TriesOfAChunk(Method method) {
    return method == Method::Digs ? 50 : 20;
}
// How many chunks a lane may be ahead of what was taken over.
constexpr std::int64_t kMostAhead = 16;

// Lanes that look for the same levels.
struct Stream {
    Method method = Method::Digs;
    bool isRated = true;
    PuzzleWish wish;
    LevelSet levels{};
};

ClueRange CluesFor(const GeneratorSettings& settings, int level) {
    if (settings.clues) {
        return *settings.clues;
    }
    const bool isFriendly =
        level < static_cast<int>(kSuitingClues.size()) && settings.minimality == Minimality::Any;
    return isFriendly ? kSuitingClues[static_cast<std::size_t>(level)] : ClueRange{};
}

std::vector<Stream> StreamsOf(const GeneratorSettings& settings) {
    std::vector<Stream> streams;
    for (int level = 0; level <= kLevels; ++level) {
        const auto at = static_cast<std::size_t>(level);
        if (settings.wanted[at] == 0) {
            continue;
        }
        Stream stream;
        stream.method = level < kFirstWalkedLevel ? Method::Digs : Method::Walks;
        stream.isRated = level > 0;
        stream.wish = {settings.symmetry, CluesFor(settings, level), settings.minimality,
                       settings.neededSlot};
        const auto same = std::ranges::find_if(streams, [&](const Stream& other) {
            return other.method == stream.method && other.isRated == stream.isRated &&
                   other.wish.clues == stream.wish.clues;
        });
        (same == streams.end() ? streams.emplace_back(stream) : *same).levels.set(at);
    }
    return streams;
}

// Depends on nothing but what the lane looks for, so that the puzzles of a level are the same
// whatever other levels are wanted.
std::uint64_t SeedOf(std::uint64_t seed, const Stream& stream, int lane) {
    const int parts[] = {static_cast<int>(stream.method), stream.isRated ? 1 : 0,
                         stream.wish.clues.fewest, stream.wish.clues.most, lane};
    for (int part : parts) {
        seed = Random(seed ^ static_cast<std::uint64_t>(part)).Next();
    }
    return seed;
}

int LeastLevelOf(int slot) {
    const auto step = std::ranges::find(Steps(), slot, &Step::slot);
    return step->level;
}

std::string ClueRangeError(const ClueRange& clues) {
    const auto number = [](int count) { return std::to_string(count); };
    if (clues.fewest < 0 || clues.most > kCells) {
        return "The number of clues lies between 0 and " + number(kCells) + ".";
    }
    if (clues.most < kFewestClues) {
        return "No sudoku has fewer than " + number(kFewestClues) + " clues.";
    }
    if (clues.fewest > clues.most) {
        return "The fewest clues, " + number(clues.fewest) + ", are more than the most, " +
               number(clues.most) + ".";
    }
    return "";
}

std::string NeededSlotError(const GeneratorSettings& settings) {
    const int slot = settings.neededSlot;
    if (slot == kNoSlot) {
        return "";
    }
    if (slot < kFirstTechniqueSlot || slot >= kSlots) {
        return "There is no technique number " + std::to_string(slot) + ".";
    }
    if (settings.wanted[0] > 0) {
        return "Only rated sudokus can be asked to need a technique.";
    }
    if (settings.wanted[kOutlaw] > 0) {
        return "No technique leads through an " + std::string(LevelName(kOutlaw)) +
               " sudoku, so that it can need none.";
    }
    const int level = LeastLevelOf(slot);
    for (int easier = 1; easier < level; ++easier) {
        if (settings.wanted[static_cast<std::size_t>(easier)] > 0) {
            return std::string(Slots()[static_cast<std::size_t>(slot)].caption) +
                   " makes a sudoku " + std::string(LevelName(level)) + " or harder: no " +
                   std::string(LevelName(easier)) + " sudoku needs it.";
        }
    }
    return "";
}

}  // namespace

std::string SettingsError(const GeneratorSettings& settings) {
    const auto isOutOfRange = [](int count) { return count < 0 || count > kMostWanted; };
    if (std::ranges::any_of(settings.wanted, isOutOfRange)) {
        return "Of a level, 0 to " + std::to_string(kMostWanted) + " sudokus can be made.";
    }
    if (std::ranges::all_of(settings.wanted, [](int count) { return count == 0; })) {
        return "No sudoku is asked for.";
    }
    if (settings.mostTries < 1 || settings.mostTries > kMostTries) {
        return "The search ends after 1 to " + std::to_string(kMostTries) + " tries.";
    }
    if (settings.mostTime < settings.mostTime.zero() || settings.mostTime > kMostTime) {
        return "The search ends within a year.";
    }
    std::string error = settings.clues ? ClueRangeError(*settings.clues) : "";
    return error.empty() ? NeededSlotError(settings) : error;
}

class Generator::Work {
  public:
    Work(const GeneratorSettings& settings, int threads, std::set<Digits> known);
    ~Work() { Stop(); }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;

    void Stop();
    GeneratorCounts Counts() const;
    std::vector<RatedPuzzle> Take();
    void Wait(std::chrono::milliseconds longest);

  private:
    struct Found {
        RatedPuzzle puzzle;
        Digits form{};  // canonical; of unrated puzzles none is needed
        int tries = 0;  // of the chunk, this one included
    };
    struct Chunk {
        std::vector<Found> found;
        int tries = 0;
    };
    struct Lane {
        std::size_t stream;
        PuzzleSearch search;
        bool isBusy = false;
        std::int64_t begun = 0;        // chunks
        std::deque<Chunk> finished{};  // and not yet taken over
    };

    void RunWorker();
    Lane* NextLane();
    Chunk RunChunk(Lane& lane, LevelSet open);
    LevelSet OpenLevelsOf(const Lane& lane) const;
    void TakeOver();
    void TakeOver(const Chunk& chunk, const Lane& lane);
    void TakeOverTheRest();
    void Keep(const Found& found);
    void End(Ending ending);

    const GeneratorSettings settings_;
    const std::vector<Stream> streams_;
    const Clock::time_point deadline_;
    std::stop_source stop_;
    std::atomic<std::int64_t> tried_{0};

    mutable std::mutex mutex_;  // of all below
    std::condition_variable changed_;
    std::vector<Lane> lanes_;
    std::size_t atLane_ = 0;  // whose next chunk is taken over next
    std::int64_t round_ = 0;
    LevelSet filled_;
    std::set<Digits> known_;
    std::vector<RatedPuzzle> made_;
    std::array<int, kLevels + 1> kept_{};
    std::int64_t triesTakenOver_ = 0;
    Ending reason_ = Ending::None;
    int working_ = 0;  // threads
    std::vector<std::jthread> threads_;
};

Generator::Work::Work(const GeneratorSettings& settings, int threads, std::set<Digits> known)
    : settings_(settings),
      streams_(StreamsOf(settings)),
      deadline_(settings.mostTime.count() > 0 ? Clock::now() + settings.mostTime
                                              : Clock::time_point::max()),
      known_(std::move(known)) {
    for (std::size_t at = 0; at < streams_.size(); ++at) {
        const Stream& stream = streams_[at];
        for (int lane = 0; lane < LanesOf(stream.method); ++lane) {
            const std::uint64_t seed = SeedOf(settings.seed, stream, lane);
            lanes_.push_back({at, PuzzleSearch(seed, stream.method, stream.wish)});
        }
    }
    // The first one waits until it is known how many there are.
    const std::lock_guard lock(mutex_);
    threads_ = StartThreads(threads, [this] { RunWorker(); });
    working_ = static_cast<int>(threads_.size());
    if (threads_.empty()) {
        End(Ending::NoThreads);
    }
}

void Generator::Work::Stop() {
    {
        const std::lock_guard lock(mutex_);
        End(Ending::Stopped);
    }
    for (std::jthread& thread : threads_) {
        if (thread.joinable()) {
            thread.join();
        }
    }
}

GeneratorCounts Generator::Work::Counts() const {
    const std::lock_guard lock(mutex_);
    // Tries that came too late to count are forgotten in the end.
    return working_ > 0 ? GeneratorCounts{tried_, kept_, Ending::None}
                        : GeneratorCounts{triesTakenOver_, kept_, reason_};
}

std::vector<RatedPuzzle> Generator::Work::Take() {
    const std::lock_guard lock(mutex_);
    return std::exchange(made_, {});
}

void Generator::Work::Wait(std::chrono::milliseconds longest) {
    std::unique_lock lock(mutex_);
    changed_.wait_for(lock, longest, [&] { return !made_.empty() || working_ == 0; });
}

void Generator::Work::RunWorker() {
    std::unique_lock lock(mutex_);
    while (reason_ == Ending::None) {
        Lane* lane = NextLane();
        if (lane == nullptr) {
            changed_.wait(lock);
            continue;
        }
        lane->isBusy = true;
        ++lane->begun;
        const LevelSet open = OpenLevelsOf(*lane);
        lock.unlock();
        Chunk chunk = RunChunk(*lane, open);
        lock.lock();
        lane->isBusy = false;
        lane->finished.push_back(std::move(chunk));
        TakeOver();
        changed_.notify_all();
    }
    if (--working_ == 0 && (reason_ == Ending::Time || reason_ == Ending::Stopped)) {
        TakeOverTheRest();
    }
    changed_.notify_all();
}

// The free lane that is furthest behind.
Generator::Work::Lane* Generator::Work::NextLane() {
    Lane* next = nullptr;
    for (Lane& lane : lanes_) {
        if (!lane.isBusy && lane.begun < round_ + kMostAhead && OpenLevelsOf(lane).any() &&
            (next == nullptr || lane.begun < next->begun)) {
            next = &lane;
        }
    }
    return next;
}

Generator::Work::Chunk Generator::Work::RunChunk(Lane& lane, LevelSet open) {
    Chunk chunk;
    const int tries = TriesOfAChunk(streams_[lane.stream].method);
    while (chunk.tries < tries && !stop_.stop_requested()) {
        if (Clock::now() >= deadline_) {
            const std::lock_guard lock(mutex_);
            End(Ending::Time);
            break;
        }
        const auto found = lane.search.Next(open, stop_.get_token());
        ++chunk.tries;
        ++tried_;
        if (found) {
            const PuzzleRecord& made = found->puzzle;
            const Digits form =
                found->rating > 0 ? CanonicalForm(made.clues, made.solution) : Digits{};
            chunk.found.push_back({*found, form, chunk.tries});
        }
    }
    return chunk;
}

LevelSet Generator::Work::OpenLevelsOf(const Lane& lane) const {
    return streams_[lane.stream].levels & ~filled_;
}

// Lane after lane, as far as their chunks are there. Lanes whose levels are filled are passed over.
void Generator::Work::TakeOver() {
    while (reason_ == Ending::None) {
        Lane& lane = lanes_[atLane_];
        if (OpenLevelsOf(lane).any()) {
            if (lane.finished.empty()) {
                return;
            }
            TakeOver(lane.finished.front(), lane);
            lane.finished.pop_front();
        }
        atLane_ = (atLane_ + 1) % lanes_.size();
        round_ += atLane_ == 0 ? 1 : 0;
    }
}

void Generator::Work::TakeOver(const Chunk& chunk, const Lane& lane) {
    int tries = 0;
    for (const Found& found : chunk.found) {
        if (triesTakenOver_ + found.tries > settings_.mostTries) {
            break;
        }
        tries = found.tries;
        Keep(found);
        if (OpenLevelsOf(lane).none()) {
            break;
        }
    }
    if (OpenLevelsOf(lane).any()) {
        tries = chunk.tries;
    }
    triesTakenOver_ = std::min(triesTakenOver_ + tries, settings_.mostTries);
    if (std::ranges::all_of(lanes_, [&](const Lane& at) { return OpenLevelsOf(at).none(); })) {
        End(Ending::Complete);
    } else if (triesTakenOver_ == settings_.mostTries) {
        End(Ending::Tries);
    }
}

// Where the search was cut short, whatever was found is kept.
void Generator::Work::TakeOverTheRest() {
    for (Lane& lane : lanes_) {
        for (const Chunk& chunk : lane.finished) {
            for (const Found& found : chunk.found) {
                Keep(found);
            }
            triesTakenOver_ += chunk.tries;
        }
    }
}

void Generator::Work::Keep(const Found& found) {
    const auto level = static_cast<std::size_t>(found.puzzle.rating);
    // Unrated puzzles are made in bulk, and chance does not repeat one.
    if (filled_[level] || (level > 0 && !known_.insert(found.form).second)) {
        return;
    }
    made_.push_back(found.puzzle);
    filled_[level] = ++kept_[level] == settings_.wanted[level];
}

void Generator::Work::End(Ending ending) {
    reason_ = reason_ == Ending::None ? ending : reason_;
    stop_.request_stop();
    changed_.notify_all();
}

Generator::Generator(const GeneratorSettings& settings, int threads, std::set<Digits> known)
    : work_(std::make_unique<Work>(settings, threads, std::move(known))) {}

Generator::~Generator() = default;

void Generator::Stop() {
    work_->Stop();
}

GeneratorCounts Generator::Counts() const {
    return work_->Counts();
}

std::vector<RatedPuzzle> Generator::Take() {
    return work_->Take();
}

void Generator::Wait(std::chrono::milliseconds longest) {
    work_->Wait(longest);
}

}  // namespace vemo
