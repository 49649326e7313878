// How board and column share the window.
#include "qt/window_plan.h"

#include <algorithm>

namespace vemo {
namespace {

constexpr int kMargin = 7;
constexpr int kWideMargin = 16;
constexpr int kRoomyWidth = 640;  // from which margins are wide

// A column beside the board.
constexpr double kColumnShare = 0.33;  // of the window's width
constexpr int kLeastColumn = 158;
constexpr int kWidestColumn = 330;        // that the board gives way for
constexpr double kLargestToBoard = 0.52;  // of the board's side, that it grows to

// A column below the board.
constexpr double kBelowShare = 0.33;  // of the window's height
constexpr int kLeastBelow = 230;

// The height at which texts have the system's size.
constexpr double kPlainHeight = 700;
constexpr double kSmallestText = 0.86;
constexpr double kLargestText = 1.5;

// What a column needs of the texts' lines, beside the board or below it, where the system's font is
// large: it makes them smaller.
constexpr QSizeF kLinesBeside(12, 30);
constexpr QSizeF kLinesBelow(30, 20);

double TextScale(QSize size, const WindowPlan& plan, int line) {
    const double share = std::min(size.height(), size.width()) / kPlainHeight;
    const bool isBelow = plan.column.top() > plan.board.bottom();
    const QSizeF lines = (isBelow ? kLinesBelow : kLinesBeside) * line;
    const double room =
        std::min(plan.column.width() / lines.width(), plan.column.height() / lines.height());
    return std::min(std::clamp(share, kSmallestText, kLargestText),
                    std::max(room, kSmallestLine / line));
}

WindowPlan Beside(QSize size, int margin) {
    const int least =
        std::clamp(static_cast<int>(kColumnShare * size.width()), kLeastColumn, kWidestColumn);
    const int side = std::min(size.height() - margin, size.width() - least - 3 * margin);
    const int room = size.width() - side - 3 * margin;
    const int width =
        std::clamp(room, least, std::max(least, static_cast<int>(kLargestToBoard * side)));
    // What neither needs stands to both sides.
    const int left = (size.width() - side - width - margin) / 2;
    WindowPlan plan;
    plan.board = QRect(left, (size.height() - side) / 2, side, side);
    plan.column = QRect(left + side + margin, margin, width, size.height() - 2 * margin);
    return plan;
}

WindowPlan Below(QSize size, int margin) {
    const int least = std::max(kLeastBelow, static_cast<int>(kBelowShare * size.height()));
    const int side = std::min(size.width() - margin, size.height() - least - 2 * margin);
    const int left = (size.width() - side) / 2;
    WindowPlan plan;
    plan.board = QRect(left, 0, side, side);
    const int top = side + margin;
    plan.column = QRect(margin, top, size.width() - 2 * margin, size.height() - top - margin);
    return plan;
}

}  // namespace

WindowPlan PlanWindow(QSize size, int line) {
    const int margin = size.width() < kRoomyWidth ? kMargin : kWideMargin;
    const WindowPlan beside = Beside(size, margin);
    const WindowPlan below = Below(size, margin);
    WindowPlan plan = below.board.width() > beside.board.width() ? below : beside;
    plan.textScale = TextScale(size, plan, line);
    return plan;
}

}  // namespace vemo
