// Which rows of a table are shown, and in which order.
#pragma once

#include "tools/puzzle_filter.h"
#include "tools/row_list.h"

namespace vemo {

class PuzzleTable;
class TableRow;

enum class TableColumn : std::uint8_t {
    Number,
    Clues,
    Symmetry,
    Level,
    Hardest,
    Steps,
    Best,
    State,
};

// Rows by what has been found out of them.
enum class RowKind : std::uint8_t {
    All,
    Unchecked,
    OneSolution,
    Faulty,  // none, or several solutions
    Twins,   // of an earlier row, exact or equivalent
    NoTwins,
    Stored,
    NotStored,
};

struct TableOrder {
    PuzzleFilter filter{};  // of its technique: rows that are known to need it
    RowKind kind = RowKind::All;
    TableColumn column = TableColumn::Number;
    bool isDescending = false;

    bool ShowsAll() const { return kind == RowKind::All && filter == PuzzleFilter(); }
    bool operator==(const TableOrder&) const = default;
};

// What the filter says of a row apart from the technique that it needs.
bool MayBeLiked(const TableRow& row, const TableOrder& order);
bool IsLiked(const TableRow& row, const TableOrder& order);

// All rows that are liked, equal ones by their number. A million rows take some 20 ms.
RowList ShownRows(const PuzzleTable& table, const TableOrder& order);

}  // namespace vemo
