// What a table keeps of a puzzle, and its rows in order.
#include "tools/puzzle_table.h"

#include <gtest/gtest.h>

#include "tools/table_view.h"

namespace vemo {
namespace {

TEST(PuzzleTable, LongTimesAreKeptAndSorted) {
    PuzzleTable table;
    const PlayTime best[] = {{258, 59}, {0, 0}, {136, 31}, {136, 32}, {1, 5}};
    for (const PlayTime& time : best) {
        TableRow row{ClueFacts()};
        row.SetBest(time);
        EXPECT_EQ(row.Best(), time);
        ASSERT_FALSE(table.Add(std::vector<PuzzleTable::NewRow>{{row, {}}}));
    }
    TableOrder order;
    order.column = TableColumn::Best;
    const RowList shown = ShownRows(table, order);
    std::vector<std::uint32_t> rows;
    for (std::size_t at = 0; at < shown.Size(); ++at) {
        rows.push_back(shown[at]);
    }
    EXPECT_EQ(rows, (std::vector<std::uint32_t>{4, 2, 3, 0, 1})) << "the one without a time last";
}

}  // namespace
}  // namespace vemo
