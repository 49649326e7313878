// Writing rows of a table to a file, beside whoever shows them.
#pragma once

#include <atomic>
#include <filesystem>
#include <string>
#include <thread>

#include "tools/puzzle_export.h"
#include "tools/puzzle_table.h"
#include "tools/row_list.h"

namespace vemo {

// The file is there when all is written, and not before: stopped, or failed, it is as it was.
class TableExport {
  public:
    // The table outlives the export; its rows are not changed meanwhile. Begins at once.
    TableExport(const PuzzleTable& table, RowList rows, ExportFormat format,
                std::filesystem::path path);

    bool IsOver() const { return isOver_; }
    bool IsStopped() const { return thread_.get_stop_token().stop_requested(); }
    void Stop() { thread_.request_stop(); }
    std::size_t Total() const { return rows_.Size(); }
    std::size_t Written() const { return written_; }
    // When it is over: why there is no file.
    const std::optional<FileError>& Failure() const { return failure_; }

  private:
    void Run(const std::stop_token& stop);

    const PuzzleTable& table_;
    const RowList rows_;
    const ExportFormat format_;
    const std::filesystem::path path_;
    std::atomic<std::size_t> written_ = 0;
    std::atomic<bool> isOver_ = false;
    std::optional<FileError> failure_;
    std::jthread thread_;  // the first to go
};

}  // namespace vemo
