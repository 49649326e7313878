// What the tables of sudokus share.
#include "qt/row_table.h"

#include <algorithm>

#include <QHeaderView>

#include "model/levels.h"
#include "qt/screen_text.h"
#include "solver/catalogue.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPad = 16;

int WidthOf(const QTableView& table, const RowTableColumn& column) {
    const QFontMetrics metrics = table.fontMetrics();
    const int mark = table.horizontalHeader()->isSortIndicatorShown() ? metrics.height() : 0;
    const auto width = [&metrics](const char* text) {
        return metrics.horizontalAdvance(QLatin1String(text));
    };
    return std::max(width(column.caption) + mark, width(column.widest)) + kPad;
}

}  // namespace

void SetUpRows(QTableView& table) {
    table.setSelectionBehavior(QTableView::SelectRows);
    table.setEditTriggers(QTableView::NoEditTriggers);
    table.setTabKeyNavigation(false);
    table.setShowGrid(false);
    table.setWordWrap(false);
    table.setHorizontalScrollMode(QTableView::ScrollPerPixel);
    table.setCornerButtonEnabled(false);
    table.verticalHeader()->hide();
    table.horizontalHeader()->setHighlightSections(false);
}

void FitColumns(QTableView& table, std::span<const RowTableColumn> columns) {
    for (std::size_t column = 0; column + 1 < columns.size(); ++column) {
        table.setColumnWidth(static_cast<int>(column), WidthOf(table, columns[column]));
    }
    FitLastColumn(table, columns.back());
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() * 3 / 2);
}

void FitLastColumn(QTableView& table, const RowTableColumn& last) {
    QHeaderView& header = *table.horizontalHeader();
    const int section = header.count() - 1;
    const int room = header.viewport()->width() - header.sectionPosition(section);
    const int needed = WidthOf(table, last);
    header.setStretchLastSection(room >= needed);
    if (room < needed) {
        header.resizeSection(section, needed);
    }
}

QString HardestText(int level, int slot) {
    return level == kOutlaw ? u"beyond all of them"_s
                            : ToQString(Slots()[static_cast<std::size_t>(slot)].caption);
}

}  // namespace vemo
