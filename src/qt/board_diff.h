// What must be painted anew when one screen follows another.
#pragma once

#include "game/screen.h"
#include "model/cellset.h"

namespace vemo {

struct BoardDiff {
    bool isAll = false;  // something that is not bound to single cells
    CellSet cells;

    bool Any() const { return isAll || cells.Any(); }
};

BoardDiff CompareBoards(const Screen& before, const Screen& after);

}  // namespace vemo
