// Where the parts of the column beside the board stand.
#include "qt/column_plan.h"

#include <algorithm>

namespace vemo {
namespace {

// All in heights of a text line.
constexpr double kGap = 0.5;         // between two buttons
constexpr double kSection = 1.0;     // between two sections
constexpr double kClock = 2.4;       // height of the clock's line
constexpr double kCommand = 2.25;    // height of a command button
constexpr double kSmallButton = 2;   // height of a digit or colour button
constexpr double kLeastSmall = 1.5;  // least width of a digit button in a single row
constexpr double kHalves = 28;       // width from which two halves fit side by side

// A low column draws its sections together.
constexpr double kLowColumn = 32;  // height, in lines
constexpr double kTightShare = 0.55;

constexpr double kHintOfMaking = 0.4;  // of the height of hint and text box together, at most

struct Measures {
    int gap;
    int section;
    int clock;
    int command;
    int small;
};

Measures MeasuresFor(const ColumnTexts& texts, int height, bool isHalf) {
    const auto lines = [&texts](double count) {
        return static_cast<int>(count * texts.line + 0.5);
    };
    const bool isTight = !isHalf && height < lines(kLowColumn);
    const double share = isTight ? kTightShare : 1;
    return {.gap = lines(kGap * (isTight ? 0.6 : 1)),
            .section = lines(kSection * share),
            .clock = lines(isTight ? 2 : kClock),
            .command = lines(isTight ? 1.8 : kCommand),
            .small = lines(isTight ? 1.6 : kSmallButton)};
}

// Equal boxes in rows of `columns`, from the top of `room`; answers where they end.
template <std::size_t kCount>
int PlaceRows(std::array<QRect, kCount>& boxes, const QRect& room, int columns, int height,
              int gap) {
    for (std::size_t index = 0; index < kCount; ++index) {
        const int row = static_cast<int>(index) / columns;
        const int column = static_cast<int>(index) % columns;
        // Rounded at both ends, so that the last box ends where the room ends.
        const int left = column * (room.width() + gap) / columns;
        const int right = (column + 1) * (room.width() + gap) / columns - gap;
        boxes[index] =
            QRect(room.left() + left, room.top() + row * (height + gap), right - left, height);
    }
    const int rows = (static_cast<int>(kCount) + columns - 1) / columns;
    return room.top() + rows * (height + gap) - gap;
}

// Commands, digits and colours, from the top of `room`; answers where they end.
int PlaceButtons(ColumnPlan& plan, QRect room, const ColumnTexts& texts, const Measures& sizes) {
    const bool fitThree = (room.width() - 2 * sizes.gap) / 3 >= texts.command + texts.line;
    room.setTop(PlaceRows(plan.commands, room, fitThree ? 3 : 2, sizes.command, sizes.gap) +
                sizes.section);

    const int least = static_cast<int>(kLeastSmall * texts.line);
    const int smallGap = std::max(2, sizes.gap * 3 / 4);
    const bool fitNine = (room.width() - 8 * smallGap) / 9 >= least;
    plan.digitCaption = QRect(room.left(), room.top(), room.width(), texts.line);
    room.setTop(plan.digitCaption.bottom() + 1 + sizes.gap / 2);
    room.setTop(PlaceRows(plan.digits, room, fitNine ? 9 : 5, sizes.small, smallGap) +
                sizes.section);

    plan.colorCaption = QRect(room.left(), room.top(), room.width(), texts.line);
    room.setTop(plan.colorCaption.bottom() + 1 + sizes.gap / 2);
    const int linkWidth = texts.link + texts.line * 5 / 4;
    const QRect swatches = room.adjusted(0, 0, -linkWidth - sizes.gap, 0);
    const bool fitTen = (swatches.width() - 9 * smallGap) / 10 >= least;
    const int bottom = PlaceRows(plan.colors, swatches, fitTen ? 10 : 5, sizes.small, smallGap);
    plan.link = QRect(room.right() + 1 - linkWidth, room.top(), linkWidth, sizes.small);
    return bottom;
}

// The text box above its two buttons, in `room`. Its hint is short and gives way to it.
void PlaceMaking(ColumnPlan& plan, QRect room, const Measures& sizes) {
    std::array<QRect, 2> buttons;
    PlaceRows(buttons, room.adjusted(0, room.height() - sizes.command, 0, 0), 2, sizes.command,
              sizes.gap);
    plan.validate = buttons[0];
    plan.cancel = buttons[1];
    plan.hintOfMaking = plan.hint;
    if (plan.hint.left() == room.left()) {
        const int both = room.bottom() + 1 - plan.hint.top();
        plan.hintOfMaking.setHeight(
            std::min(plan.hint.height(), static_cast<int>(kHintOfMaking * both)));
        room.setTop(plan.hintOfMaking.bottom() + 1 + sizes.section);
    }
    plan.making = room.adjusted(0, 0, 0, -sizes.command - sizes.gap);
}

}  // namespace

ColumnPlan PlanColumn(QSize size, const ColumnTexts& texts) {
    ColumnPlan plan;
    const bool isHalf = size.width() >= kHalves * texts.line && size.width() > size.height();
    const Measures sizes = MeasuresFor(texts, size.height(), isHalf);
    if (isHalf) {
        const int half = (size.width() - sizes.section) / 2;
        const QRect right(size.width() - half, 0, half, size.height());
        PlaceButtons(plan, right, texts, sizes);
        plan.clock = QRect(0, 0, half, sizes.clock);
        const int top = plan.clock.bottom() + 1 + sizes.gap;
        plan.hint = QRect(0, top, half, size.height() - top);
        PlaceMaking(plan, right, sizes);
        return plan;
    }
    // The buttons stand at the bottom; the hint has what they leave.
    const int needed = PlaceButtons(plan, QRect(QPoint(0, 0), size), texts, sizes);
    const QRect bottom(0, size.height() - needed, size.width(), needed);
    PlaceButtons(plan, bottom, texts, sizes);
    plan.clock = QRect(0, 0, size.width(), sizes.clock);
    const int top = plan.clock.bottom() + 1 + sizes.gap;
    plan.hint = QRect(0, top, size.width(),
                      std::max(texts.line, size.height() - needed - sizes.section - top));
    PlaceMaking(plan, bottom, sizes);
    return plan;
}

}  // namespace vemo
