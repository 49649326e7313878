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
    table.horizontalHeader()->setStretchLastSection(true);
}

void FitColumns(QTableView& table, std::span<const RowTableColumn> columns) {
    const QFontMetrics metrics = table.fontMetrics();
    const int mark = table.horizontalHeader()->isSortIndicatorShown() ? metrics.height() : 0;
    const auto width = [&metrics](const char* text) {
        return metrics.horizontalAdvance(QLatin1String(text));
    };
    for (std::size_t column = 0; column + 1 < columns.size(); ++column) {
        const RowTableColumn& row = columns[column];
        table.setColumnWidth(static_cast<int>(column),
                             std::max(width(row.caption) + mark, width(row.widest)) + kPad);
    }
    table.verticalHeader()->setDefaultSectionSize(metrics.height() * 3 / 2);
}

QString HardestText(int level, int slot) {
    return level == kOutlaw ? u"beyond all of them"_s
                            : ToQString(Slots()[static_cast<std::size_t>(slot)].caption);
}

}  // namespace vemo
