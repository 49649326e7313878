// The lines between marks.
#include "qt/board_links.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QLineF>
#include <QPainter>

namespace vemo {
namespace {

constexpr double kLineShare = 0.032;  // of a cell
constexpr double kArrowShare = 0.13;
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

QPainterPath Curve(const QPointF& from, const QPointF& to, double bend) {
    const QPointF along = to - from;
    const QPointF aside(-along.y(), along.x());
    QPainterPath path(from);
    // A quadratic curve reaches half as far as its control point.
    path.quadTo((from + to) / 2 + aside * bend * 2, to);
    return path;
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

double CostOf(const QPainterPath& path, double bend, const BoardGeometry& board,
              const Screen& screen) {
    double cost = kBendCost * std::abs(bend);
    // The ends lie on the two marks themselves.
    for (int sample = 3; sample <= kSamples - 3; ++sample) {
        cost += CostAt(path.pointAtPercent(double(sample) / kSamples), board, screen);
    }
    return cost;
}

QPainterPath Shortened(const QPainterPath& path, double radius) {
    const double length = path.length();
    if (length <= 2 * radius) {
        return path;
    }
    // Cut at both ends by drawing the middle part anew: a quadratic curve's part is one again.
    const auto point = [&path](double at) { return path.pointAtPercent(at); };
    const double begin = path.percentAtLength(radius);
    const double end = path.percentAtLength(length - radius);
    const double middle = (begin + end) / 2;
    QPainterPath cut(point(begin));
    cut.quadTo(2 * point(middle) - (point(begin) + point(end)) / 2, point(end));
    return cut;
}

void DrawArrowHead(QPainter& painter, const QPainterPath& path, double size, const QColor& color) {
    const QPointF tip = path.currentPosition();
    const double back = path.percentAtLength(std::max(0.0, path.length() - size));
    const QLineF line(tip, path.pointAtPercent(back));
    if (line.length() <= 0) {
        return;
    }
    const QPointF along = (line.p2() - line.p1()) / line.length() * size;
    const QPointF aside = QPointF(-along.y(), along.x()) * 0.5;
    const std::array<QPointF, 3> corners = {tip, tip + along + aside, tip + along - aside};
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(corners.data(), static_cast<int>(corners.size()));
    painter.setBrush(Qt::NoBrush);
}

}  // namespace

QPainterPath LinkPath(const LinkView& link, const BoardGeometry& board, const Screen& screen) {
    const QPointF from = board.MarkCenter(link.fromCell, link.fromDigit);
    const QPointF to = board.MarkCenter(link.toCell, link.toDigit);
    QPainterPath best;
    double lowest = 0;
    for (double bend : kBends) {
        const QPainterPath path = Curve(from, to, bend);
        const double cost = CostOf(path, bend, board, screen);
        if (best.isEmpty() || cost < lowest) {
            best = path;
            lowest = cost;
        }
    }
    return Shortened(best, 1.12 * board.MarkRadius());
}

void DrawLinks(QPainter& painter, const BoardGeometry& board, const Screen& screen,
               const BoardColors& colors) {
    if (screen.links.empty()) {
        return;
    }
    const double width = std::max(1.5, kLineShare * board.cell);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    for (const LinkView& link : screen.links) {
        const QColor color =
            colors.Hint(link.isStrong ? HintColor::StrongLink : HintColor::WeakLink);
        const QPainterPath path = LinkPath(link, board, screen);
        QPen pen(color, width, Qt::SolidLine, Qt::FlatCap);
        if (!link.isStrong) {
            pen.setDashPattern({4, 2.5});
        }
        painter.setPen(pen);
        painter.drawPath(path);
        if (link.isDirected) {
            DrawArrowHead(painter, path, kArrowShare * board.cell, color);
        }
    }
    painter.restore();
}

}  // namespace vemo
