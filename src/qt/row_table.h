// What the tables of sudokus share: rows of one height, columns as wide as their texts.
#pragma once

#include <span>

#include <QTableView>

namespace vemo {

struct RowTableColumn {
    const char* caption;
    const char* widest;  // the widest text that stands below it, as a rule
};

// Rows are selected whole, and nothing is edited.
void SetUpRows(QTableView& table);
// As the font is now.
void FitColumns(QTableView& table, std::span<const RowTableColumn> columns);
// The last column takes the room that the others leave, but no less than its texts need.
void FitLastColumn(QTableView& table, const RowTableColumn& last);

// The hardest technique of a rated sudoku, a slot's; none can say what an Outlaw needs.
QString HardestText(int level, int slot);

}  // namespace vemo
