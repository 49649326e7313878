// How a board and its explanation share a room.
#include "qt/hint_plan.h"

#include <algorithm>

namespace vemo {
namespace {

// In lines of text.
constexpr double kMargin = 0.67;
constexpr int kLeastColumnWidth = 10;
constexpr int kLeastColumnHeight = 7;
constexpr int kMostColumnWidth = 34;
constexpr double kCardMargin = 0.75;
constexpr double kCardGap = 0.5;

// How small a board may become for its explanation: of its largest size, and in lines.
constexpr double kLeastBoardShare = 0.7;
constexpr int kLeastBoard = 17;
constexpr int kBoardSteps = 6;

int Lines(double count, int line) {
    return static_cast<int>(count * line);
}

enum class Place : std::uint8_t { Beside, Below };

struct Room {
    QSize size;
    int line;
    int margin = Lines(kMargin, line);
    int Width() const { return size.width() - 2 * margin; }
    int Height() const { return size.height() - 2 * margin; }
};

int LargestBoard(const Room& room, Place place) {
    const int width =
        place == Place::Beside ? room.margin + Lines(kLeastColumnWidth, room.line) : 0;
    const int height =
        place == Place::Below ? room.margin + Lines(kLeastColumnHeight, room.line) : 0;
    return std::max(1, std::min(room.Width() - width, room.Height() - height));
}

// In the middle of the room.
HintPlan Arranged(const Room& room, Place place, int side,
                  const std::function<int(int width)>& needed) {
    const int most = Lines(kMostColumnWidth, room.line);
    const int bottom = room.size.height() - room.margin;
    const auto centered = [](int whole, int part) { return std::max(0, whole - part) / 2; };
    if (place == Place::Beside) {
        const int width = std::clamp(room.Width() - room.margin - side, 1, most);
        const int left = room.margin + centered(room.Width(), side + room.margin + width);
        const int height = std::max(side, needed(width));
        const int top = room.margin + centered(room.Height(), height);
        return {{left, top, side, side},
                {left + side + room.margin, top, width, std::max(1, bottom - top)}};
    }
    const int width = std::max(side, std::min(room.Width(), most));
    const int height = side + room.margin + needed(width);
    const int top = room.margin + centered(room.Height(), height);
    const int below = top + side + room.margin;
    return {
        {room.margin + centered(room.Width(), side), top, side, side},
        {room.margin + centered(room.Width(), width), below, width, std::max(1, bottom - below)}};
}

}  // namespace

HintPlan PlanHint(QSize size, int line, const std::function<int(int width)>& needed) {
    const Room room{size, line};
    const int beside = LargestBoard(room, Place::Beside);
    const int below = LargestBoard(room, Place::Below);
    const Place place = beside >= below ? Place::Beside : Place::Below;
    const int largest = std::max(beside, below);
    const int least =
        std::min(largest, std::max(Lines(kLeastBoard, line), Lines(kLeastBoardShare, largest)));
    HintPlan plan;
    for (int step = 0; step <= kBoardSteps; ++step) {
        plan = Arranged(room, place, largest - (largest - least) * step / kBoardSteps, needed);
        if (needed(plan.column.width()) <= plan.column.height()) {
            break;
        }
    }
    return plan;
}

int CardRoom(int width, int line) {
    return std::max(1, width - 2 * Lines(kCardMargin, line));
}

int CardHeight(const CardHeights& heights, int line) {
    int height = 2 * Lines(kCardMargin, line) + heights.caption + heights.text + heights.legend;
    for (const int part : {heights.caption, heights.legend}) {
        height += part > 0 ? Lines(kCardGap, line) : 0;
    }
    return height;
}

CardPlan PlanCard(const QRect& place, const CardHeights& heights, int line) {
    CardPlan plan;
    const int whole = CardHeight(heights, line);
    const int excess = std::max(0, whole - place.height());
    const int margin = Lines(kCardMargin, line);
    plan.card = {place.topLeft(), QSize(place.width(), whole - excess)};
    int top = place.top() + margin;
    const auto put = [&](int height) {
        const QRect part(place.left() + margin, top, CardRoom(place.width(), line), height);
        top += height > 0 ? height + Lines(kCardGap, line) : 0;
        return part;
    };
    plan.caption = put(heights.caption);
    plan.text = put(std::max(1, heights.text - excess));
    plan.legend = put(heights.legend);
    return plan;
}

}  // namespace vemo
