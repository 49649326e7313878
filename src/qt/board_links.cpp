// The lines between marks.
#include "qt/board_links.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QPainter>

namespace vemo {
namespace {

constexpr double kLineShare = 0.032;  // of a cell
constexpr double kArrowShare = 0.13;
constexpr double kMarkGap = 1.12;  // of a mark's radius, that a line keeps from its middle
constexpr int kSamples = 32;

// How far a curve's middle is pushed aside, in shares of its length, the gentlest first.
constexpr std::array kBends = {0.06, -0.06, 0.12, -0.12, 0.18, -0.18,
                               0.25, -0.25, 0.33, -0.33, 0.42, -0.42};
// What a sample costs that lies on something, and what a stronger bend costs.
constexpr double kMarkCost = 1;
constexpr double kDigitCost = 1.5;
constexpr double kOutsideCost = 4;
constexpr double kBendCost = 5;
constexpr double kDigitReach = 0.3;  // of a cell, from its middle

double Length(const QPointF& vector) {
    return std::hypot(vector.x(), vector.y());
}

// A quadratic Bézier curve.
struct Curve {
    QPointF from;
    QPointF control;
    QPointF to;

    // The curve's point for a = b; for two parameters the control point of the part between them.
    QPointF At(double a, double b) const {
        return (1 - a) * (1 - b) * from + ((1 - a) * b + a * (1 - b)) * control + a * b * to;
    }
    QPointF At(double at) const { return At(at, at); }
    Curve Part(double begin, double end) const { return {At(begin), At(begin, end), At(end)}; }
};

Curve Bent(const QPointF& from, const QPointF& to, double bend) {
    const QPointF along = to - from;
    const QPointF aside(-along.y(), along.x());
    // The curve reaches half as far as its control point.
    return {from, (from + to) / 2 + aside * bend * 2, to};
}

// A digit counts more than a mark; outside the board is no place for a line at all.
double CostAt(const QPointF& point, const BoardGeometry& board, const Screen& screen) {
    const BoardTarget target = board.At(point);
    if (target.kind != BoardTarget::Kind::Cell) {
        return kOutsideCost;
    }
    const auto cell = static_cast<std::size_t>(target.index);
    if (screen.cells[cell].digit != 0) {
        const QPointF middle = QRectF(board.Cell(target.index)).center();
        return Length(point - middle) < kDigitReach * board.cell ? kDigitCost : 0;
    }
    const MarkView& mark = screen.marks[cell][static_cast<std::size_t>(target.digit - 1)];
    const QPointF middle = board.MarkCenter(target.index, target.digit);
    return mark.isShown && Length(point - middle) < board.MarkRadius() ? kMarkCost : 0;
}

double CostOf(const Curve& curve, double bend, const BoardGeometry& board, const Screen& screen) {
    double cost = kBendCost * std::abs(bend);
    // The ends lie on the two marks themselves.
    for (int sample = 3; sample <= kSamples - 3; ++sample) {
        cost += CostAt(curve.At(static_cast<double>(sample) / kSamples), board, screen);
    }
    return cost;
}

Curve BestCurve(const LinkView& link, const BoardGeometry& board, const Screen& screen) {
    const QPointF from = board.MarkCenter(link.fromCell, link.fromDigit);
    const QPointF to = board.MarkCenter(link.toCell, link.toDigit);
    Curve best = Bent(from, to, kBends[0]);
    double lowest = CostOf(best, kBends[0], board, screen);
    for (double bend : kBends) {
        const Curve curve = Bent(from, to, bend);
        const double cost = CostOf(curve, bend, board, screen);
        if (cost < lowest) {
            best = curve;
            lowest = cost;
        }
    }
    return best;
}

// Where the curve has left the circle of `radius` around one of its ends: its part between both.
Curve BetweenMarks(const Curve& curve, double radius) {
    constexpr double kStep = 0.005;
    double begin = 0;
    while (begin < 0.45 && Length(curve.At(begin) - curve.from) < radius) {
        begin += kStep;
    }
    double end = 1;
    while (end > 0.55 && Length(curve.At(end) - curve.to) < radius) {
        end -= kStep;
    }
    return curve.Part(begin, end);
}

void DrawArrowHead(QPainter& painter, const Curve& curve, double size, const QColor& color) {
    // The tangent at a quadratic curve's end points to its control point.
    const QPointF back = curve.control - curve.to;
    if (Length(back) <= 0) {
        return;
    }
    const QPointF along = back / Length(back) * size;
    const QPointF aside = QPointF(-along.y(), along.x()) * 0.5;
    const std::array<QPointF, 3> corners = {curve.to, curve.to + along + aside,
                                            curve.to + along - aside};
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(corners.data(), static_cast<int>(corners.size()));
}

QPainterPath PathOf(const Curve& curve) {
    QPainterPath path(curve.from);
    path.quadTo(curve.control, curve.to);
    return path;
}

// `cell` is the side of the cells that the curve runs through.
void Draw(QPainter& painter, const Curve& curve, LinkLook look, double cell,
          const BoardColors& colors) {
    const QColor color = colors.Hint(look.isStrong ? HintColor::StrongLink : HintColor::WeakLink);
    QPen pen(color, std::max(1.5, kLineShare * cell), Qt::SolidLine, Qt::FlatCap);
    if (!look.isStrong) {
        pen.setDashPattern({4, 2.5});
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen);
    painter.drawPath(PathOf(curve));
    if (look.isDirected) {
        DrawArrowHead(painter, curve, kArrowShare * cell, color);
    }
    painter.restore();
}

Curve CurveOf(const LinkView& link, const BoardGeometry& board, const Screen& screen) {
    return BetweenMarks(BestCurve(link, board, screen), kMarkGap * board.MarkRadius());
}

}  // namespace

QPainterPath LinkPath(const LinkView& link, const BoardGeometry& board, const Screen& screen) {
    return PathOf(CurveOf(link, board, screen));
}

void DrawLinks(QPainter& painter, const BoardGeometry& board, const Screen& screen,
               const BoardColors& colors) {
    for (const LinkView& link : screen.links) {
        const LinkLook look{link.isStrong, link.isDirected};
        Draw(painter, CurveOf(link, board, screen), look, board.cell, colors);
    }
}

void DrawLinkSample(QPainter& painter, const QPointF& from, const QPointF& to, LinkLook look,
                    double cell, const BoardColors& colors) {
    Draw(painter, Bent(from, to, 0), look, cell, colors);
}

}  // namespace vemo
