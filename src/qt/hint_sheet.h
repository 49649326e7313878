// The hint window's content as one sheet: the picture that is saved, and the page that is printed.
#pragma once

#include <QFont>
#include <QString>

#include "game/hint_window.h"
#include "qt/hint_plan.h"
#include "qt/printout.h"
#include "qt/theme.h"

class QPainter;

namespace vemo {

// The heading and the words that are shown for `window`: where it holds no hint, what to do next.
QString HintHeading(const HintWindow& window);
QString HintWords(const HintWindow& window);

class HintSheet {
  public:
    // `window` and `colors` outlive the sheet. `font` is in pixels of what is painted on, `scale`
    // of them to a logical one.
    HintSheet(const HintWindow& window, const BoardColors& colors, const QFont& font, double scale);

    // `size`, higher where the explanation needs more.
    QSize SizeFor(QSize size) const;
    // The ground is the caller's.
    void Paint(QPainter& painter, QSize size) const;

  private:
    HintPlan PlanFor(QSize size) const;
    CardHeights HeightsFor(int width) const;
    void PaintCard(QPainter& painter, const QRect& place) const;

    const HintWindow& window_;
    const BoardColors& colors_;
    QFont font_;
    QFont bold_;
    double scale_;
    int line_;
};

// On one page, in the colours of light windows on white.
Printout HintPrintout(const HintWindow& window, const ColorSet& light, const QPageSize& paper);

}  // namespace vemo
