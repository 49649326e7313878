// Importing the puzzles of the collection window into the level files.
#include <utility>

#include "game/collection_runs.h"
#include "game/collection_texts.h"
#include "game/collection_window.h"
#include "tools/threads.h"

namespace vemo {

void CollectionWindow::ImportCurrent() {
    if (!IsBusy() && current_ != kNoRow) {
        ForgetOldRatings();
        BeginWork(CollectionJob::Import, RowList::Of({current_}));
    }
}

// Which puzzles the level files hold is known now.
void CollectionWindow::BeginImport() {
    if (isCancelled_) {
        End("Stopped: nothing was imported.");
        return;
    }
    if (!runs_->stored->AreReady()) {
        return;
    }
    begin_ = Clock::now();
    TableTask task;
    task.rates = true;
    task.signs = true;
    task.ladder = BatchLadder(techniques_);
    runs_->work = std::make_unique<TableWork>(*table_, std::move(runs_->importing), std::move(task),
                                              DefaultThreads());
}

void CollectionWindow::Store(const TableResult& result) {
    const std::string name = "Sudoku " + NumberOf(result.row);
    if (!result.solutions.IsUnique()) {
        ++counts_.discarded;
        log_.ReportLine(name + ": " + kDiscardedText);
        return;
    }
    TableRow& row = table_->Row(result.row);
    if (const auto known = runs_->stored->Find(result.signs.form)) {
        ++counts_.known;
        row.SetStored(known->level, static_cast<std::uint32_t>(known->number));
        log_.ReportLine(name + " is there already: " + PlaceText(*known));
        return;
    }
    const RatedPuzzle& rated = *result.rated;
    const auto saved =
        files_.SaveSudoku(rated.rating, {rated.puzzle.clues, result.solutions.first, {}});
    if (saved.error) {
        runs_->work->Stop();
        Fail(Utf8(saved.error->path) + ": " + saved.error->reason +
             ". Sudokus imported before: " + Grouped(counts_.stored) + ".");
        return;
    }
    ++counts_.stored;
    const StoredPlace place{rated.rating, saved.number};
    runs_->stored->Add(result.signs.form, place);
    row.SetStored(place.level, static_cast<std::uint32_t>(place.number));
    log_.ReportLine(rated.rating == kOutlaw ? name + kUnsolvedText
                                            : name + ": " + PlaceText(place));
}

}  // namespace vemo
