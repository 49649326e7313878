// Which rows are shown.
#include "tools/table_view.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "tools/puzzle_table.h"

namespace vemo {
namespace {

// All keys are smaller: rows are sorted by counting.
constexpr std::size_t kKeys = std::size_t{1} << 16;

bool IsOfKind(const TableRow& row, RowKind kind) {
    const bool isTwin = row.Note() == RowNote::Exact || row.Note() == RowNote::Equivalent;
    switch (kind) {
    case RowKind::All:
        return true;
    case RowKind::Unchecked:
        return row.HasSolutions() == Solutions::Unknown;
    case RowKind::OneSolution:
        return row.HasSolutions() == Solutions::One;
    case RowKind::Faulty:
        return row.HasSolutions() == Solutions::None || row.HasSolutions() == Solutions::Several;
    case RowKind::Twins:
        return isTwin;
    case RowKind::NoTwins:
        return !isTwin;
    case RowKind::Stored:
        return row.Note() == RowNote::Stored;
    case RowKind::NotStored:
        return row.Note() != RowNote::Stored;
    }
    return true;
}

std::size_t KeyOf(const TableRow& row, TableColumn column) {
    const auto unless = [](bool isLast, int key) {
        return isLast ? kKeys - 1 : static_cast<std::size_t>(key);
    };
    switch (column) {
    case TableColumn::Number:
        break;
    case TableColumn::Clues:
        return static_cast<std::size_t>(row.Facts().clues);
    case TableColumn::Symmetry:
        return unless(row.Facts().symmetries == 0, static_cast<int>(row.Facts().Main()));
    case TableColumn::Level:
        return unless(row.Level() == 0, row.Level());
    case TableColumn::Hardest:
        return unless(row.Level() == 0, row.Level() == kOutlaw ? kSlots : row.HardestSlot());
    case TableColumn::Steps:
        return unless(row.Level() == 0, row.Steps());
    case TableColumn::Best:
        return unless(row.Best().IsNone(), row.Best().InSeconds());
    case TableColumn::State:
        return static_cast<std::size_t>(row.Note()) * 4 +
               static_cast<std::size_t>(row.HasSolutions());
    }
    return 0;
}

std::vector<std::uint32_t> SortedByCounting(const std::vector<std::uint32_t>& rows,
                                            const PuzzleTable& table, const TableOrder& order) {
    const auto keyOf = [&](std::uint32_t row) {
        const std::size_t key = KeyOf(table.Row(row), order.column);
        return order.isDescending ? kKeys - 1 - key : key;
    };
    std::vector<std::uint32_t> starts(kKeys + 1, 0);
    for (std::uint32_t row : rows) {
        ++starts[keyOf(row) + 1];
    }
    std::partial_sum(starts.begin(), starts.end(), starts.begin());
    std::vector<std::uint32_t> sorted(rows.size());
    for (std::uint32_t row : rows) {
        sorted[starts[keyOf(row)]++] = row;
    }
    return sorted;
}

}  // namespace

bool MayBeLiked(const TableRow& row, const TableOrder& order) {
    return !row.IsRemoved() && IsOfKind(row, order.kind) && order.filter.LikesLevel(row.Level()) &&
           order.filter.Likes(row.Facts());
}

bool IsLiked(const TableRow& row, const TableOrder& order) {
    return MayBeLiked(row, order) &&
           (order.filter.neededSlot == kNoSlot || row.NeedsIt() == Needs::Yes);
}

RowList ShownRows(const PuzzleTable& table, const TableOrder& order) {
    RowList shown;
    std::vector<std::uint32_t> rows;
    const bool isByNumber = order.column == TableColumn::Number;
    for (std::uint32_t row = 0; row < table.Size(); ++row) {
        if (IsLiked(table.Row(row), order)) {
            if (isByNumber && !order.isDescending) {
                shown.Add(row);
            } else {
                rows.push_back(row);
            }
        }
    }
    if (isByNumber && order.isDescending) {
        std::ranges::reverse(rows);
    } else if (!isByNumber) {
        rows = SortedByCounting(rows, table, order);
    }
    return rows.empty() ? shown : RowList::Of(std::move(rows));
}

}  // namespace vemo
