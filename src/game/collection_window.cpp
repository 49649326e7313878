// The window "Check and Import": what is open, shown and selected. Its jobs stand in
// collection_jobs.cpp and collection_import.cpp, its texts in collection_texts.cpp.
#include "game/collection_window.h"

#include <algorithm>
#include <fstream>
#include <utility>

#include "game/collection_runs.h"
#include "game/collection_texts.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

constexpr std::size_t kPreviewed = 5;

PuzzleTable::NewRow RowOf(const Digits& clues) {
    return {TableRow(FactsOf(clues)), PuzzleTable::Pack(clues)};
}

bool AreDigits(const Digits& clues) {
    return std::ranges::all_of(clues, [](std::uint8_t digit) { return digit <= kDigits; });
}

// The row of a level's record; one without readable clues keeps its place, out of sight.
PuzzleTable::NewRow RowOf(const PuzzleRecord& record) {
    const bool isReadable = AreDigits(record.clues);
    PuzzleTable::NewRow row = RowOf(isReadable ? record.clues : Digits{});
    row.row.SetBest(record.best);
    if (!isReadable) {
        row.row.Remove();
    }
    return row;
}

}  // namespace

CollectionWindow::CollectionWindow(RecordFiles& files, const TechniqueSettings& techniques)
    : files_(files),
      techniques_(techniques),
      table_(std::make_unique<PuzzleTable>()),
      runs_(std::make_unique<CollectionRuns>()) {}

CollectionWindow::~CollectionWindow() = default;

void CollectionWindow::Close() {
    ++opened_;
    Select({}, std::nullopt);
    table_ = std::make_unique<PuzzleTable>();
    name_.clear();
    level_ = 0;
    paths_.clear();
    pathsRead_ = 0;
    layout_.reset();
    order_ = {};
    removed_ = 0;
    ratedBy_.reset();
    log_.Clear();
    Rebuild();
}

void CollectionWindow::OpenFiles(std::vector<std::filesystem::path> paths,
                                 std::optional<RecordLayout> layout) {
    if (IsBusy() || paths.empty()) {
        return;
    }
    Close();
    paths_ = std::move(paths);
    layout_ = layout;
    name_ = Utf8(paths_.front().filename());
    if (paths_.size() > 1) {
        name_ += " and " + std::to_string(paths_.size() - 1) + " more";
    }
    Begin(CollectionJob::Read, 0);
    ReadNext();
}

void CollectionWindow::ReadNext() {
    log_.BeginReport();
    runs_->reading = std::make_unique<TableReading>(paths_[pathsRead_], layout_);
}

void CollectionWindow::OpenLevel(int level) {
    if (IsBusy()) {
        return;
    }
    Close();
    level_ = level;
    name_ = "Level " + std::string(LevelName(level));
    std::vector<PuzzleTable::NewRow> rows;
    std::size_t damaged = 0;
    for (const PuzzleRecord& record : files_.ReadRecords(level)) {
        rows.push_back(RowOf(record));
        if (!IsWhole(record)) {
            ++damaged;
            log_.AddLine("Sudoku number " + std::to_string(rows.size()) +
                         " of this level is damaged" +
                         (rows.back().row.IsRemoved() ? "" : ": its solve report mends it"));
        }
    }
    if (const auto error = table_->Add(rows)) {
        Fail(Utf8(error->path) + ": " + error->reason);
        return;
    }
    Rebuild();
    LookAtFirst();
    End(rows.empty() ? Utf8(files_.PuzzlePath(level)) + " has no sudoku."
                     : "Sudokus: " + Grouped(rows.size()) + "; damaged: " + Grouped(damaged) + ".");
}

// So that the board is not empty.
void CollectionWindow::LookAtFirst() {
    if (current_ == kNoRow && shown_.Size() > 0) {
        Select({{0, 1}}, 0);
    }
}

std::vector<ReadPiece> CollectionWindow::PreviewOf(const RecordLayout& layout) const {
    std::error_code none;
    if (paths_.empty() || !LayoutFault(layout).empty() ||
        !std::filesystem::is_regular_file(paths_.front(), none)) {  // a pipe would never open
        return {};
    }
    std::ifstream file(paths_.front(), std::ios::binary);
    file.seekg(static_cast<std::streamoff>(layout.headerLength));
    RecordLayout behindHeader = layout;
    behindHeader.headerLength = 0;
    return Preview(file, behindHeader, kPreviewed);
}

void CollectionWindow::Show(const TableOrder& order) {
    isNeedDue_ |= order != order_ || !IsBusy();
    if (order != order_) {
        const bool isOtherTechnique = order.filter.neededSlot != order_.filter.neededSlot;
        order_ = order;
        for (std::uint32_t row = 0; isOtherTechnique && row < table_->Size(); ++row) {
            table_->Row(row).SetNeeds(Needs::Unknown);
        }
        Rebuild();
    }
    if (job_ == CollectionJob::FindNeed &&
        runs_->work->Task().neededSlot != order_.filter.neededSlot) {
        Cancel();
    }
    FindNeedIfDue();
}

void CollectionWindow::FindNeedIfDue() {
    if (!IsBusy() && std::exchange(isNeedDue_, false) && order_.filter.neededSlot != kNoSlot) {
        Start(CollectionJob::FindNeed);
    }
}

// The rows that are selected and looked at stay so where they are still shown.
void CollectionWindow::Rebuild() {
    std::vector<bool> isSelected(table_->Size());
    for (const ShownRange& range : selected_) {
        for (std::size_t at = range.first; at < range.first + range.count; ++at) {
            isSelected[shown_[at]] = true;
        }
    }
    shown_ = ShownRows(*table_, order_);
    ++shownVersion_;
    std::vector<ShownRange> selected;
    std::optional<std::size_t> place;
    for (std::size_t at = 0; at < shown_.Size(); ++at) {
        if (shown_[at] == current_) {
            place = at;
        }
        if (!isSelected[shown_[at]]) {
            continue;
        }
        if (!selected.empty() && selected.back().first + selected.back().count == at) {
            ++selected.back().count;
        } else {
            selected.push_back({at, 1});
        }
    }
    Select(std::move(selected), place);
}

void CollectionWindow::Select(std::vector<ShownRange> ranges, std::optional<std::size_t> current) {
    selected_ = std::move(ranges);
    std::erase_if(selected_, [&](const ShownRange& range) {
        return range.first > shown_.Size() || range.count > shown_.Size() - range.first;
    });
    selectedCount_ = 0;
    for (const ShownRange& range : selected_) {
        selectedCount_ += range.count;
    }
    currentPlace_ = current && *current < shown_.Size() ? current : std::nullopt;
    const std::uint32_t row = currentPlace_ ? shown_[*currentPlace_] : kNoRow;
    if (row != current_) {
        current_ = row;
        refusal_.clear();
        if (job_ == CollectionJob::Solve) {
            Cancel();
        }
        ShowCurrent();
    }
}

void CollectionWindow::ShowCurrent() {
    const auto clues = current_ == kNoRow ? std::nullopt : table_->Clues(current_);
    board_ = Grid::FromClues(clues.value_or(Digits{}));
}

void CollectionWindow::ShowSolution(const Digits& solution) {
    for (int cell : board_.EmptyCells()) {
        board_.Zet(solution[static_cast<std::size_t>(cell)], cell);
    }
}

RowList CollectionWindow::Chosen() const {
    if (!IsForSelected()) {
        return shown_;
    }
    std::vector<std::uint32_t> rows;
    for (const ShownRange& range : selected_) {
        for (std::size_t at = range.first; at < range.first + range.count; ++at) {
            rows.push_back(shown_[at]);
        }
    }
    return RowList::Of(std::move(rows));
}

void CollectionWindow::RemoveTwins(Sameness sameness) {
    if (IsBusy()) {
        return;
    }
    const RowList chosen = Chosen();
    const std::size_t before = removed_;
    for (std::size_t at = 0; at < chosen.Size(); ++at) {
        TableRow& row = table_->Row(chosen[at]);
        if (row.Note() == RowNote::Exact ||
            (sameness == Sameness::Equivalent && row.Note() == RowNote::Equivalent)) {
            row.Remove();
            ++removed_;
        }
    }
    Rebuild();
    End("Sudokus removed from the list: " + std::to_string(removed_ - before) +
        ". Their file is as it was.");
}

void CollectionWindow::PutBack() {
    if (IsBusy()) {
        return;
    }
    for (std::uint32_t row = 0; row < table_->Size(); ++row) {
        if (table_->Row(row).Facts().clues > 0) {
            table_->Row(row).PutBack();
        }
    }
    removed_ = 0;
    Rebuild();
    End("All sudokus are in the list again.");
}

std::string CollectionWindow::CopyText() const {
    std::string text;
    RowList rows = Chosen();
    if (!IsForSelected() && current_ != kNoRow) {
        rows = RowList::Of({current_});
    }
    for (std::size_t at = 0; at < std::min(rows.Size(), kMostCopied); ++at) {
        text += WriteGrid81(table_->Clues(rows[at]).value_or(Digits{})) + '\n';
    }
    return text;
}

std::optional<PrintedSudoku> CollectionWindow::PrintedOf(std::uint32_t number) const {
    const TableRow& row = table_->Row(number);
    const auto clues = table_->Clues(number);
    if (!clues) {
        return std::nullopt;
    }
    PuzzleRecord record{*clues, {}, row.Best()};
    if (row.HasSolutions() == Solutions::One) {
        record.solution = FastCount(*clues).first;
    }
    const StoredPlace place = PlaceOf(number).value_or(StoredPlace{row.Level(), 0});
    return PrintedFrom(record, place.level, place.number);
}

std::optional<StoredPlace> CollectionWindow::PlaceOf(std::uint32_t number) const {
    if (number == kNoRow) {
        return std::nullopt;
    }
    if (level_ != 0) {
        return StoredPlace{level_, static_cast<int>(number) + 1};
    }
    const TableRow& row = table_->Row(number);
    return row.Note() == RowNote::Stored
               ? std::optional(StoredPlace{row.Level(), static_cast<int>(row.Other())})
               : std::nullopt;
}

}  // namespace vemo
