// How board and column share the window.
#pragma once

#include <QRect>
#include <QSize>

namespace vemo {

// Where a large font leaves too little room, texts become smaller down to lines of this height:
// what the usual font has in the smallest window.
inline constexpr double kSmallestLine = 13;

struct WindowPlan {
    QRect board;
    QRect column;
    double textScale = 1;  // of the column's texts
};

// `size` is what menu bar and status bar leave, `line` the height of a line in the system's font.
// The column stands beside the board or below it, wherever the board becomes larger.
WindowPlan PlanWindow(QSize size, int line);

}  // namespace vemo
