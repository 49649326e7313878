// Names of cells and boxes.
#include "model/units.h"

namespace vemo {

std::string CellName(int cell) {
    return {RowLetter(CellRow(cell)), ColumnDigit(CellColumn(cell))};
}

std::string_view BoxName(int box) {
    static constexpr std::array<std::string_view, 9> kNames = {
        "top left",     "top middle",  "top right",     "left centre", "centre",
        "right centre", "bottom left", "bottom middle", "bottom right"};
    return kNames[static_cast<std::size_t>(box)];
}

}  // namespace vemo
