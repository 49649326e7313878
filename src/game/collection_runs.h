// What runs beside the collection window.
#pragma once

#include <deque>
#include <memory>

#include "game/stored_puzzles.h"
#include "tools/solve_run.h"
#include "tools/table_export.h"
#include "tools/table_reading.h"
#include "tools/table_work.h"

namespace vemo {

// One of these, that of the job; an import first finds out what is stored, then works.
struct CollectionRuns {
    std::unique_ptr<TableReading> reading;
    std::unique_ptr<StoredPuzzles> stored;
    RowList importing;  // the work's rows
    std::unique_ptr<TableWork> work;
    std::deque<TableResult> waiting;  // found out by the work, to be taken over
    std::unique_ptr<TableExport> exporting;
    std::unique_ptr<SolveRun> solve;
    std::unique_ptr<BruteRun> brute;
};

}  // namespace vemo
