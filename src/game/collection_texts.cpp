// What the collection window says.
#include "game/collection_texts.h"

#include "game/collection_runs.h"
#include "game/collection_window.h"

namespace vemo {
namespace {

// "Checked", "Rated".
std::string Begun(const char* deed, std::size_t done, std::size_t total, bool isCancelled) {
    std::string text = std::string(deed) + ": " + Grouped(done);
    if (isCancelled) {
        text = "Stopped. " + text + " of " + Grouped(total);
    }
    return text;
}

}  // namespace

std::string Grouped(std::size_t number) {
    std::string text = std::to_string(number);
    for (std::size_t at = text.size(); at > 3; at -= 3) {
        text.insert(at - 3, 1, ',');
    }
    return text;
}

std::string PlaceText(const StoredPlace& place) {
    return std::string(LevelName(place.level)) + " " + std::to_string(place.number);
}

std::string ReadText(const ReadReport& report) {
    return report.name + ": " + (report.format.empty() ? "nothing understood" : report.format) +
           "; sudokus: " + Grouped(report.puzzles) + "; rejected: " + Grouped(report.rejected) +
           ".";
}

std::string SolvedText(const std::string& name, int rating) {
    return rating == 0         ? name + " has no unique solution and is not solved"
           : rating == kOutlaw ? name + kUnsolvedText
                               : RatedText(rating);
}

std::string CollectionWindow::NumberOf(std::uint32_t row) const {
    return std::to_string(row + 1);
}

std::string CollectionWindow::StateOf(std::uint32_t number) const {
    const TableRow& row = table_->Row(number);
    switch (row.Note()) {
    case RowNote::Stored:
        return PlaceText({row.Level(), static_cast<int>(row.Other())});
    case RowNote::Exact:
        return "same as " + NumberOf(row.Other());
    case RowNote::Equivalent:
        return "equivalent to " + NumberOf(row.Other());
    case RowNote::None:
        break;
    }
    switch (row.HasSolutions()) {
    case Solutions::Unknown:
        return "not checked";
    case Solutions::None:
        return "no solution";
    case Solutions::Several:
        return "more than one solution";
    case Solutions::One:
        break;
    }
    return row.Level() == 0         ? "one solution"
           : row.Level() == kOutlaw ? std::string(kUnsolvedText).substr(1)
                                    : "solved";
}

double CollectionWindow::Progress() const {
    if (job_ == CollectionJob::Read) {
        const double read = runs_->reading ? runs_->reading->Progress() : 0;
        return (static_cast<double>(pathsRead_) + read) / static_cast<double>(paths_.size());
    }
    return total_ == 0 ? 0 : static_cast<double>(done_) / static_cast<double>(total_);
}

double CollectionWindow::PerSecond() const {
    const std::chrono::duration<double> passed = Clock::now() - begin_;
    return passed.count() <= 0 ? 0 : static_cast<double>(done_) / passed.count();
}

std::optional<std::chrono::seconds> CollectionWindow::TimeLeft() const {
    constexpr double kLeastProgress = 0.001;
    const double progress = Progress();
    const std::chrono::duration<double> passed = Clock::now() - begin_;
    if (progress < kLeastProgress || passed < std::chrono::seconds(1)) {
        return std::nullopt;
    }
    return std::chrono::duration_cast<std::chrono::seconds>(passed * (1 - progress) / progress);
}

std::string CollectionWindow::Status() const {
    const auto batch = [](int level, const Step* step, PuzzleOrigin origin) {
        return BatchStatusText(level, origin) +
               (step == nullptr ? "" : std::string(step->batchStatusText));
    };
    switch (job_) {
    case CollectionJob::None:
        return "";
    case CollectionJob::Read:
        return "Reading " + Utf8(paths_[pathsRead_].filename());
    case CollectionJob::BruteCheck:
    case CollectionJob::Report:
        return "Sudoku Brute Solving";
    case CollectionJob::FindTwins:
        return "Looking for duplicates";
    case CollectionJob::Rate:
    case CollectionJob::Check:
    case CollectionJob::FindNeed:
        return batch(runs_->work->ReachedLevel(), runs_->work->TriedStep(), PuzzleOrigin::Own);
    case CollectionJob::Import:
        return runs_->work ? batch(runs_->work->ReachedLevel(), runs_->work->TriedStep(),
                                   PuzzleOrigin::Imported)
                           : "Looking through the level files";
    case CollectionJob::Export:
        return "Exporting";
    case CollectionJob::Solve:
        return batch(solveLevel_, runs_->solve->TriedStep(), PuzzleOrigin::Own);
    }
    return "";
}

std::string CollectionWindow::Message() const {
    if (!refusal_.empty()) {
        return refusal_;
    }
    if (IsBusy()) {
        return isCancelled_ ? "Stopping..."
                            : "You can play meanwhile: this goes on when the window is closed, "
                              "and ends with Cancel.";
    }
    if (!IsOpen()) {
        return "Open a file of sudokus in any format, or drop it here. What is understood is "
               "shown; nothing is stored before Import.";
    }
    return message_;
}

// Of those that the filter likes apart from the technique.
std::size_t CollectionWindow::UnratedCount() const {
    std::size_t unrated = 0;
    for (std::uint32_t number = 0; number < table_->Size(); ++number) {
        unrated +=
            IsToDo(number, CollectionJob::Rate) && MayBeLiked(table_->Row(number), order_) ? 1 : 0;
    }
    return unrated;
}

std::string CollectionWindow::EndOfWorkText() const {
    const auto counted = [](const char* what, std::size_t number) {
        return number == 0 ? "" : std::string(what) + Grouped(number);
    };
    if (total_ == 0 && job_ != CollectionJob::FindNeed) {
        return "Nothing was left to do.";
    }
    std::string text;
    switch (job_) {
    case CollectionJob::BruteCheck:
        text = Begun("Checked", done_, total_, isCancelled_);
        text += counted("; one solution: ", counts_.solutions[std::size_t(Solutions::One)]);
        break;
    case CollectionJob::FindTwins:
        text = Begun("Compared", done_, total_, isCancelled_);
        text += "; the same as an earlier one: " + Grouped(counts_.exact) +
                "; the same under another look: " + Grouped(counts_.equivalent);
        break;
    case CollectionJob::Import:
        text = Begun("Looked at", done_, total_, isCancelled_) +
               "; imported: " + Grouped(counts_.stored);
        text += counted("; there already: ", counts_.known);
        break;
    case CollectionJob::FindNeed:
        text = Begun("Tried without the technique", done_, total_, isCancelled_) +
               "; need it: " + Grouped(shown_.Size());
        text += counted(
            "; not rated yet, so take the technique off, press Rate and choose it "
            "again: ",
            UnratedCount());
        break;
    default:
        text = Begun("Rated", done_, total_, isCancelled_);
        for (int level = 1; level <= kLevels; ++level) {
            text += counted(("; " + std::string(LevelName(level)) + ": ").c_str(),
                            counts_.levels[static_cast<std::size_t>(level)]);
        }
        break;
    }
    text += counted("; no solution: ", counts_.solutions[std::size_t(Solutions::None)]);
    text +=
        counted("; more than one solution: ", counts_.solutions[std::size_t(Solutions::Several)]);
    return text + (isCancelled_ ? ". The same button goes on." : ".");
}

}  // namespace vemo
