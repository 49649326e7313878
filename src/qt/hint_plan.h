// How a board and its explanation share a room: the hint window's, its picture's or a page's. All
// lengths are in the painter's unit; a line of text is their measure.
#pragma once

#include <functional>

#include <QRect>
#include <QSize>

namespace vemo {

struct HintPlan {
    QRect board;   // square
    QRect column;  // of the explanation
};

// The column stands beside the board or below it, wherever the board becomes larger. The board
// makes some room, though not much, for an explanation that needs it: `needed` answers the height
// of all that stands in a column of some width.
HintPlan PlanHint(QSize size, int line, const std::function<int(int width)>& needed);

// The parts of the card that holds the explanation; empty where there is nothing to show.
struct CardPlan {
    QRect card;
    QRect caption;
    QRect text;
    QRect legend;
};

// The heights that the parts need at the width of `CardRoom`; 0 for what is not there.
struct CardHeights {
    int caption = 0;
    int text = 0;
    int legend = 0;
};

// What a card of some width leaves for its parts.
int CardRoom(int width, int line);
int CardHeight(const CardHeights& heights, int line);
// Cards that are too high for their place end at its end: their text becomes lower.
CardPlan PlanCard(const QRect& place, const CardHeights& heights, int line);

}  // namespace vemo
