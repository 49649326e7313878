// Long work on many rows.
#include "tools/table_work.h"

#include <algorithm>

#include "solver/fast_count.h"
#include "tools/ordered_work.h"

namespace vemo {
namespace {

constexpr std::size_t kMostWaiting = 32768;

// Rows that one thread takes at a time: counting is a matter of microseconds, rating of up to a
// tenth of a second.
constexpr std::size_t kRowsAtOnce = 128;
constexpr std::size_t kRatedAtOnce = 8;

}  // namespace

struct TableWork::Chunk {
    std::vector<std::uint32_t> rows;
    std::vector<Digits> clues;
};

TableWork::TableWork(const PuzzleTable& table, RowList rows, TableTask task, int threads)
    : table_(table),
      rows_(std::move(rows)),
      task_(std::move(task)),
      threads_(threads),
      results_(kMostWaiting),
      thread_([this](const std::stop_token& stop) { Run(stop); }) {}

void TableWork::Run(const std::stop_token& stop) {
    OrderedWork<Chunk, std::vector<TableResult>> work;
    std::size_t at = 0;
    work.next = [&] { return stop.stop_requested() ? std::nullopt : Next(at); };
    work.work = [&](const Chunk& chunk, const std::stop_token&) { return Work(chunk, stop); };
    work.give = [&](const Chunk& chunk, std::vector<TableResult>&& results) {
        hasFailed_ = hasFailed_ || chunk.clues.size() != chunk.rows.size();
        if (task_.findsTwins) {
            for (const TableResult& result : results) {
                search_.Add(result.row, result.signs);
            }
        }
        // What was cut short says nothing.
        return !hasFailed_ && !stop.stop_requested() && results_.Put(std::move(results), stop);
    };
    RunInOrder(threads_, work);
    if (task_.findsTwins && !stop.stop_requested() && !hasFailed_) {
        twins_ = search_.Take();
    }
    isOver_ = true;
}

// Neighbouring rows are read together.
std::optional<TableWork::Chunk> TableWork::Next(std::size_t& at) const {
    const std::size_t most =
        task_.rates || task_.neededSlot != kNoSlot ? kRatedAtOnce : kRowsAtOnce;
    Chunk chunk;
    while (at < rows_.Size() && chunk.rows.size() < most) {
        chunk.rows.push_back(rows_[at++]);
    }
    for (std::size_t first = 0; first < chunk.rows.size();) {
        std::size_t count = 1;
        while (first + count < chunk.rows.size() &&
               chunk.rows[first + count] == chunk.rows[first] + count) {
            ++count;
        }
        std::ranges::copy(table_.CluesOf(chunk.rows[first], count),
                          std::back_inserter(chunk.clues));
        first += count;
    }
    return chunk.rows.empty() ? std::nullopt : std::optional(std::move(chunk));
}

std::vector<TableResult> TableWork::Work(const Chunk& chunk, const std::stop_token& stop) {
    std::vector<TableResult> results;
    // Short only where the clues could not be read: then nothing is given on.
    for (std::size_t at = 0; at < chunk.clues.size() && !stop.stop_requested(); ++at) {
        results.push_back(WorkOn(chunk.rows[at], chunk.clues[at], stop));
    }
    return results;
}

TableResult TableWork::WorkOn(std::uint32_t row, const Digits& clues, const std::stop_token& stop) {
    TableResult result{row, FastCount(clues)};
    if (task_.signs || task_.findsTwins) {
        result.signs = SignsOf(clues, result.solutions);
    }
    if (!result.solutions.IsUnique() || !task_.rates) {
        return result;
    }
    result.rated = RateBy(task_.ladder, {clues, result.solutions.first, {}}, stop,
                          [this](int level, const Step& step) {
                              reachedLevel_.store(level, std::memory_order_relaxed);
                              triedStep_.store(&step, std::memory_order_relaxed);
                          });
    if (result.rated && task_.neededSlot != kNoSlot) {
        result.needs = NeedsTechnique(*result.rated, task_.neededSlot, task_.ladder, stop);
    }
    return result;
}

}  // namespace vemo
