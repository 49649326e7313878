// Where everything on the board stands, in whole device pixels, so that every line is crisp.
#pragma once

#include <QPointF>
#include <QRect>
#include <QSize>

#include "model/units.h"

namespace vemo {

// What lies under a point of the board.
struct BoardTarget {
    enum class Kind : std::uint8_t { None, Cell, RowLabel, ColumnLabel };
    Kind kind = Kind::None;
    int index = 0;  // the cell, row or column
    int digit = 0;  // in a cell: the digit whose mark has its place there

    bool operator==(const BoardTarget&) const = default;
};

// The nine marks and the nine digits of a well stand in fixed places, three by three.
struct BoardGeometry {
    int cell = 0;     // side of a cell
    QPoint corner;    // top left of cell A1
    QSize strip;      // room for labels and wells: width of the left one, height of the top one
    int thin = 1;     // line between cells
    int thick = 2;    // line around boxes; it lies half outside the board
    int labelPx = 0;  // heights of the texts
    int wellPx = 0;   // 0: no wells
    int markPx = 0;
    int digitPx = 0;

    QRect Board() const { return {corner, QSize(9 * cell, 9 * cell)}; }
    // With the whole of its outer lines.
    QRect Frame() const;
    QRect Cell(int number) const;
    QPointF MarkCenter(int number, int digit) const;
    double MarkRadius() const { return 0.152 * cell; }

    // A row's or column's strip with its label and its well.
    QRect UnitStrip(UnitKind kind, int index) const;
    // Beside its well, or in the middle of the strip where no well is shown.
    QPointF LabelCenter(UnitKind kind, int index, bool hasWell) const;
    QPointF WellDigitCenter(UnitKind kind, int index, int digit) const;
    // Whether each well stands clear of the next.
    bool AreWellsApart() const;

    BoardTarget At(const QPointF& point) const;
};

enum class WellsRoom : std::uint8_t { None, Kept };

// The largest board that fits into `size` device pixels, `scale` of them to a logical one.
BoardGeometry FitBoard(QSize size, double scale, WellsRoom wells);

}  // namespace vemo
