// Long work on many rows of a table, beside whoever shows them: counting solutions, rating,
// looking for puzzles that need a technique, for duplicates, and for what a level file lacks.
#pragma once

#include <atomic>
#include <string>
#include <thread>

#include "tools/hand_over.h"
#include "tools/puzzle_table.h"
#include "tools/row_list.h"

namespace vemo {

struct TableTask {
    // What is found out of a row: always how many solutions it has; the rest of those with one.
    bool rates = false;
    int neededSlot = kNoSlot;  // whether it needs this technique, of a row that is rated anew
    bool signs = false;        // what it is known by when it is looked for again
    bool findsTwins = false;   // rows that occur twice, found when all are done
    Ladder ladder{};           // to rate by
};

// Of a row.
struct TableResult {
    std::uint32_t row = 0;
    SolutionCount solutions;
    std::optional<RatedPuzzle> rated{};
    bool needs = false;
    PuzzleSigns signs{};
};

class TableWork {
  public:
    // The table outlives the work; its rows are not read, only their clues. Begins at once.
    TableWork(const PuzzleTable& table, RowList rows, TableTask task, int threads);

    const TableTask& Task() const { return task_; }
    // Some of what has been found out, in the order of the rows.
    std::vector<TableResult> Take(std::size_t most) { return results_.Take(most); }
    // All is done, or stopped. Nothing more will come.
    bool IsOver() const { return isOver_ && results_.IsEmpty(); }
    bool IsStopped() const { return thread_.get_stop_token().stop_requested(); }
    // When it is over: the clues could not be read on.
    bool HasFailed() const { return hasFailed_; }
    // When it is over and was not stopped, once.
    std::vector<Duplicate> TakeTwins() { return std::move(twins_); }
    void Stop() { thread_.request_stop(); }

    std::size_t Total() const { return rows_.Size(); }
    // Of one of the puzzles that are being rated: the level reached, and the step that is tried;
    // null before the first.
    int ReachedLevel() const { return reachedLevel_; }
    const Step* TriedStep() const { return triedStep_; }

  private:
    struct Chunk;

    void Run(const std::stop_token& stop);
    std::optional<Chunk> Next(std::size_t& at) const;
    std::vector<TableResult> Work(const Chunk& chunk, const std::stop_token& stop);
    TableResult WorkOn(std::uint32_t row, const Digits& clues, const std::stop_token& stop);

    const PuzzleTable& table_;
    const RowList rows_;
    const TableTask task_;
    const int threads_;
    std::atomic<bool> isOver_ = false;
    std::atomic<bool> hasFailed_ = false;
    std::atomic<int> reachedLevel_ = 0;
    std::atomic<const Step*> triedStep_ = nullptr;
    DuplicateSearch search_;
    std::vector<Duplicate> twins_;
    HandOver<TableResult> results_;
    std::jthread thread_;  // the first to go
};

}  // namespace vemo
