// What the collection window does in the background.
#include <algorithm>
#include <utility>

#include "game/collection_runs.h"
#include "game/collection_texts.h"
#include "game/collection_window.h"
#include "tools/threads.h"

namespace vemo {
namespace {

constexpr std::size_t kMostAtOnce = 65536;
constexpr std::size_t kMostStored = 256;
// A tick that stores sudokus gives the window time after so long.
constexpr std::chrono::milliseconds kLongestTick(25);
// So many ticks a step stands, so that it can be followed.
constexpr int kStepStands = 2;

bool NeedsRating(CollectionJob job) {
    return job == CollectionJob::Rate || job == CollectionJob::FindNeed ||
           job == CollectionJob::Import;
}

}  // namespace

void CollectionWindow::Begin(CollectionJob job, std::size_t total) {
    job_ = job;
    isCancelled_ = false;
    refusal_.clear();
    isWarning_ = false;
    message_.clear();
    begin_ = Clock::now();
    done_ = 0;
    total_ = total;
    counts_ = {};
    ended_.reset();
}

void CollectionWindow::End(const std::string& message) {
    job_ = CollectionJob::None;
    refusal_.clear();
    isWarning_ = false;
    message_ = message;
    *runs_ = {};
}

void CollectionWindow::Fail(const std::string& message) {
    log_.AddLine(message);
    checked_.reset();
    End(message);
    isWarning_ = true;
}

void CollectionWindow::Start(CollectionJob job) {
    if (IsBusy()) {
        return;
    }
    checked_.reset();
    if (job == CollectionJob::Check) {
        checked_ = Chosen();
        job = CollectionJob::Rate;
    }
    if (job == CollectionJob::Solve || job == CollectionJob::Report) {
        StartOne(job);
        return;
    }
    const bool areOld = NeedsRating(job) && ForgetOldRatings();
    RowList rows = RowsToDo(job);
    BeginWork(job, std::move(rows));
    if (areOld) {
        log_.AddLine("The solving techniques have changed: sudokus are rated anew.");
    }
}

// Solves the selected one, or finds out the solve report.
void CollectionWindow::StartOne(CollectionJob job) {
    const auto clues = current_ == kNoRow ? std::nullopt : table_->Clues(current_);
    if (!clues) {
        return;
    }
    Begin(job, 0);
    jobRow_ = current_;
    ShowCurrent();
    if (job == CollectionJob::Report) {
        runs_->brute = std::make_unique<BruteRun>(*clues);
        return;
    }
    log_.AddText("\r\nSolving Sudoku " + NumberOf(current_) + "\r\n");
    stepStands_ = 0;
    solveLevel_ = 0;
    runs_->solve = std::make_unique<SolveRun>(*clues, BatchLadder(techniques_));
}

// Ratings by other techniques than now say nothing; what stands in a level file keeps its level.
bool CollectionWindow::ForgetOldRatings() {
    const bool areOld = ratedBy_ && *ratedBy_ != techniques_;
    for (std::uint32_t row = 0; areOld && row < table_->Size(); ++row) {
        if (table_->Row(row).Note() != RowNote::Stored) {
            table_->Row(row).ClearRating();
        }
    }
    ratedBy_ = techniques_;
    return areOld;
}

bool CollectionWindow::IsToDo(std::uint32_t number, CollectionJob job) const {
    const TableRow& row = table_->Row(number);
    const bool isUnchecked = row.HasSolutions() == Solutions::Unknown;
    switch (job) {
    case CollectionJob::BruteCheck:
        return isUnchecked;
    case CollectionJob::Rate:
        return isUnchecked || (row.HasSolutions() == Solutions::One && row.Level() == 0);
    case CollectionJob::FindNeed:
        return row.Level() != 0 && row.NeedsIt() == Needs::Unknown &&
               row.HardestSlot() >= order_.filter.neededSlot && MayBeLiked(row, order_);
    case CollectionJob::Import:
        return row.Note() != RowNote::Stored;
    default:
        return true;
    }
}

RowList CollectionWindow::RowsToDo(CollectionJob job) const {
    // A row that may need the technique is not shown yet.
    const RowList from = job == CollectionJob::FindNeed ? RowList::First(table_->Size()) : Chosen();
    RowList rows;
    for (std::size_t at = 0; at < from.Size(); ++at) {
        if (IsToDo(from[at], job)) {
            rows.Add(from[at]);
        }
    }
    return rows;
}

void CollectionWindow::BeginWork(CollectionJob job, RowList rows) {
    Begin(job, rows.Size());
    log_.BeginReport();
    if (job == CollectionJob::FindTwins) {
        ForgetTwins(rows);
    }
    if (job == CollectionJob::Import) {
        runs_->stored = std::make_unique<StoredPuzzles>(files_);
        runs_->importing = std::move(rows);
        return;
    }
    TableTask task;
    task.rates = NeedsRating(job);
    task.neededSlot = job == CollectionJob::FindNeed ? order_.filter.neededSlot : kNoSlot;
    task.findsTwins = job == CollectionJob::FindTwins;
    task.ladder = BatchLadder(techniques_);
    runs_->work =
        std::make_unique<TableWork>(*table_, std::move(rows), std::move(task), DefaultThreads());
}

void CollectionWindow::ForgetTwins(const RowList& rows) {
    for (std::size_t at = 0; at < rows.Size(); ++at) {
        TableRow& row = table_->Row(rows[at]);
        if (row.Note() != RowNote::Stored) {
            row.SetNote(RowNote::None, 0);
        }
    }
}

void CollectionWindow::Export(ExportFormat format, const std::filesystem::path& path) {
    if (!IsBusy()) {
        RowList rows = Chosen();
        Begin(CollectionJob::Export, rows.Size());
        runs_->exporting = std::make_unique<TableExport>(*table_, std::move(rows), format, path);
    }
}

void CollectionWindow::Cancel() {
    isCancelled_ = IsBusy();
    const auto stop = [](const auto& runs) {
        if (runs) {
            runs->Stop();
        }
    };
    stop(runs_->reading);
    stop(runs_->work);
    stop(runs_->exporting);
    stop(runs_->solve);
    stop(runs_->brute);
}

void CollectionWindow::Tick() {
    if (runs_->reading) {
        TakeRead();
    } else if (runs_->work) {
        TakeWork();
    } else if (runs_->stored) {
        BeginImport();
    } else if (runs_->exporting) {
        TakeExport();
    } else if (runs_->solve) {
        TakeSolved();
    } else if (runs_->brute && runs_->brute->IsOver()) {
        if (!isCancelled_) {
            ended_ = Ended{CollectionJob::Report, 0, runs_->brute->Result(), jobRow_};
        }
        End(isCancelled_ ? "Stopped." : "");
    }
}

void CollectionWindow::TakeRead() {
    const bool isOver = runs_->reading->IsOver();
    std::vector<PuzzleTable::NewRow> rows;
    for (TableReading::Piece& piece : runs_->reading->Take(kMostAtOnce)) {
        if (piece.row) {
            rows.push_back(*piece.row);
        } else {
            ++counts_.rejected;
            log_.ReportLine(Utf8(paths_[pathsRead_].filename()) + ", line " +
                            std::to_string(piece.line) + ": " + piece.error);
        }
    }
    const std::uint32_t first = table_->Size();
    if (const auto error = table_->Add(rows)) {
        runs_->reading->Stop();
        Fail(Utf8(error->path) + ": " + error->reason);
        return;
    }
    done_ += rows.size();
    for (std::uint32_t row = first; row < table_->Size(); ++row) {
        if (IsLiked(table_->Row(row), order_)) {
            shown_.Add(row);
        }
    }
    if (isOver) {
        EndOfFile();
    }
}

void CollectionWindow::EndOfFile() {
    log_.EndReport();
    const std::string report = ReadText(
        {Utf8(paths_[pathsRead_].filename()), runs_->reading->Format(), done_, counts_.rejected});
    log_.AddLine(report);
    const std::string failure = runs_->reading->Failure();
    if (!failure.empty()) {
        Fail(failure);
    } else if (isCancelled_) {
        End("Stopped: " + report);
    } else if (++pathsRead_ < paths_.size()) {
        counts_.rejected = 0;
        done_ = 0;
        ReadNext();
        return;
    } else {
        End(report);
    }
    // Rows came at the end, whatever the order.
    if (order_ != TableOrder()) {
        Rebuild();
    }
    LookAtFirst();
}

void CollectionWindow::TakeWork() {
    const bool isOver = runs_->work->IsOver();
    const auto results =
        runs_->work->Take(job_ == CollectionJob::Import ? kMostStored : kMostAtOnce);
    runs_->waiting.insert(runs_->waiting.end(), results.begin(), results.end());
    const auto begin = Clock::now();
    while (!runs_->waiting.empty() && Clock::now() - begin < kLongestTick) {
        TakeOver(runs_->waiting.front());
        if (job_ == CollectionJob::None) {
            return;  // it failed
        }
        runs_->waiting.pop_front();
    }
    if (isOver && runs_->waiting.empty()) {
        EndOfWork();
    }
}

void CollectionWindow::TakeOver(const TableResult& result) {
    TableRow& row = table_->Row(result.row);
    const Solutions solutions = SolutionsOf(result.solutions);
    row.SetSolutions(solutions);
    ++done_;
    ++counts_.solutions[static_cast<std::size_t>(solutions)];
    if (result.rated && row.Note() != RowNote::Stored) {
        row.SetRating(*result.rated);
    }
    if (result.rated) {
        ++counts_.levels[static_cast<std::size_t>(result.rated->rating)];
    }
    if (job_ == CollectionJob::FindNeed) {
        if (runs_->work->Task().neededSlot != order_.filter.neededSlot) {
            return;  // another one is asked for meanwhile
        }
        row.SetNeeds(result.needs ? Needs::Yes : Needs::No);
        if (IsLiked(row, order_)) {
            shown_.Add(result.row);
        }
    } else if (job_ == CollectionJob::Import) {
        Store(result);
    }
}

void CollectionWindow::EndOfWork() {
    const CollectionJob job = job_;
    log_.EndReport();
    if (runs_->work->HasFailed()) {
        Fail("The sudokus could not be read on from their temporary file.");
        return;
    }
    if (job == CollectionJob::FindTwins && !isCancelled_) {
        NoteTwins();
    }
    const std::string text = EndOfWorkText();
    log_.AddLine(text);
    if (job == CollectionJob::Import) {
        ended_ = Ended{job, counts_.discarded, std::nullopt, kNoRow};
    }
    End(text);
    if (order_ != TableOrder()) {
        Rebuild();
    }
    std::optional<RowList> checked = std::exchange(checked_, std::nullopt);
    if (isCancelled_) {
        return;
    }
    isNeedDue_ |= job == CollectionJob::Rate;
    if (checked) {
        BeginWork(CollectionJob::FindTwins, std::move(*checked));
    }
}

void CollectionWindow::NoteTwins() {
    for (const Duplicate& twin : runs_->work->TakeTwins()) {
        TableRow& row = table_->Row(twin.number);
        const bool isExact = twin.sameness == Sameness::Exact;
        ++(isExact ? counts_.exact : counts_.equivalent);
        if (row.Note() != RowNote::Stored) {
            row.SetNote(isExact ? RowNote::Exact : RowNote::Equivalent, twin.of);
        }
    }
}

void CollectionWindow::TakeExport() {
    if (!runs_->exporting->IsOver()) {
        done_ = runs_->exporting->Written();
        return;
    }
    done_ = runs_->exporting->Written();
    if (const auto& failure = runs_->exporting->Failure()) {
        Fail(Utf8(failure->path) + ": " + failure->reason);
    } else {
        End(isCancelled_ ? "Stopped: no file was written."
                         : "Sudokus exported: " + Grouped(done_) + ".");
    }
}

void CollectionWindow::TakeSolved() {
    const bool isOver = runs_->solve->IsOver();
    if (!isCancelled_ && !isOver && ++stepStands_ >= kStepStands) {
        for (const SolveRun::SolvedStep& step : runs_->solve->Take(1)) {
            board_ = step.grid;
            solveLevel_ = step.reachedLevel;
            log_.AddText(step.log);
            stepStands_ = 0;
        }
    }
    if (isCancelled_) {
        runs_->solve->Take(kMostAtOnce);
    }
    if (isOver) {
        const std::string text =
            isCancelled_ ? "Stopped."
                         : SolvedText("Sudoku " + NumberOf(jobRow_), runs_->solve->Rating());
        log_.AddLine(text);
        End(text);
    }
}

std::optional<CollectionWindow::Ended> CollectionWindow::TakeEnded() {
    return std::exchange(ended_, std::nullopt);
}

}  // namespace vemo
