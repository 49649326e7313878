// Reading a file of puzzles into rows of a table, beside whoever shows them.
#pragma once

#include <atomic>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include "tools/hand_over.h"
#include "tools/puzzle_source.h"
#include "tools/puzzle_table.h"

namespace vemo {

class TableReading {
  public:
    // A puzzle, or a piece of the file that is none and why.
    struct Piece {
        std::optional<PuzzleTable::NewRow> row;
        std::int64_t line = 0;
        std::string error;
    };

    // With a layout the file holds such records. Begins at once.
    TableReading(std::filesystem::path path, std::optional<RecordLayout> layout);

    // Some of what has been read, in its order.
    std::vector<Piece> Take(std::size_t most) { return pieces_.Take(most); }
    // Nothing more will come. A failure is known by then.
    bool IsOver() const { return isOver_ && pieces_.IsEmpty(); }
    void Stop() { thread_.request_stop(); }

    // 0..1: the part of the file that is behind.
    double Progress() const;
    // When it is over: what was understood, as of PuzzleSource, and why the file could not be read
    // to its end, empty where it could.
    const std::string& Format() const { return format_; }
    const std::string& Failure() const { return failure_; }

  private:
    void Run(const std::stop_token& stop);
    void Read(std::istream& in, const std::stop_token& stop);

    const std::filesystem::path path_;
    const std::optional<RecordLayout> layout_;
    std::atomic<std::uint64_t> size_ = 0;
    std::atomic<std::uint64_t> behind_ = 0;
    std::atomic<bool> isOver_ = false;
    std::string format_;
    std::string failure_;
    HandOver<Piece> pieces_;
    std::jthread thread_;  // the first to go
};

}  // namespace vemo
