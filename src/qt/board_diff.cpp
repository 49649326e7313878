// What must be painted anew when one screen follows another.
#include "qt/board_diff.h"

#include <algorithm>
#include <tuple>

namespace vemo {
namespace {

// A field more or less does not compile: then it must be named here, too.
auto FieldsOf(const CellView& view) {
    const auto& [digit, isClue, isHintCell, isUnitTint, isWrong, brush, isSame, isDimmed] = view;
    return std::make_tuple(digit, isClue, isHintCell, isUnitTint, isWrong, brush, isSame, isDimmed);
}
auto FieldsOf(const MarkView& view) {
    const auto& [isShown, isDimmed, isFiltered, role] = view;
    return std::make_tuple(isShown, isDimmed, isFiltered, role);
}
auto FieldsOf(const LabelView& view) {
    const auto& [isRed, brush] = view;
    return std::make_tuple(isRed, brush);
}

template <typename View, std::size_t kCount>
bool AreAlike(const std::array<View, kCount>& before, const std::array<View, kCount>& after) {
    return std::equal(before.begin(), before.end(), after.begin(),
                      [](const View& a, const View& b) { return FieldsOf(a) == FieldsOf(b); });
}

bool IsFrameAlike(const Screen& a, const Screen& b) {
    return a.isBoardEnabled == b.isBoardEnabled && a.isBoardCovered == b.isBoardCovered &&
           a.links == b.links && a.areWellsShown == b.areWellsShown && a.rowWells == b.rowWells &&
           a.columnWells == b.columnWells && AreAlike(a.rowLabels, b.rowLabels) &&
           AreAlike(a.columnLabels, b.columnLabels);
}

}  // namespace

BoardDiff CompareBoards(const Screen& before, const Screen& after) {
    BoardDiff diff;
    diff.isAll = !IsFrameAlike(before, after);
    for (int cell = 0; cell < kCells; ++cell) {
        const auto index = static_cast<std::size_t>(cell);
        if (FieldsOf(before.cells[index]) != FieldsOf(after.cells[index]) ||
            !AreAlike(before.marks[index], after.marks[index])) {
            diff.cells.Add(cell);
        }
    }
    if (before.selectedCell != after.selectedCell) {
        if (before.selectedCell != kNoCell) {
            diff.cells.Add(before.selectedCell);
        }
        if (after.selectedCell != kNoCell) {
            diff.cells.Add(after.selectedCell);
        }
    }
    return diff;
}

}  // namespace vemo
