// How board and column share the window.
#pragma once

#include <QRect>
#include <QSize>

namespace vemo {

struct WindowPlan {
    QRect board;
    QRect column;
    double textScale = 1;  // of the column's texts
};

// `size` is what menu bar and status bar leave. The column stands beside the board or below it,
// wherever the board becomes larger.
WindowPlan PlanWindow(QSize size);

}  // namespace vemo
