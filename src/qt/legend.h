// The line that explains the shapes and links of the hint on display.
#pragma once

#include <vector>

#include <QFont>
#include <QFontMetrics>
#include <QWidget>

#include "game/screen.h"
#include "qt/theme.h"

class QPainter;

namespace vemo {

// The entries in one font, wrapped to a width. What the painter's unit is, so are all lengths.
class LegendPainter {
  public:
    // The entries outlive the painter.
    LegendPainter(const std::vector<LegendEntry>& entries, const QFont& font)
        : entries_(entries), font_(font), metrics_(font) {}

    // Of one line of all entries.
    int WidthOfAll() const;
    // 0 without entries.
    int HeightFor(int width) const;
    void Paint(QPainter& painter, const QRect& room, const BoardColors& colors) const;

  private:
    // Top left of each entry.
    std::vector<QPoint> PlacesIn(int width) const;
    void PaintSample(QPainter& painter, const QPoint& place, const LegendEntry& entry,
                     const BoardColors& colors) const;
    int EntryWidth(const LegendEntry& entry) const;
    int SampleWidth(const LegendEntry& entry) const;
    int LineHeight() const { return metrics_.height() * 4 / 3; }
    int Radius() const { return metrics_.height() / 2; }
    // That a shape may reach beyond its radius.
    int Ring() const { return metrics_.height() / 8; }

    const std::vector<LegendEntry>& entries_;
    QFont font_;
    QFontMetrics metrics_;
};

class Legend final : public QWidget {
  public:
    explicit Legend(QWidget* parent);

    // Answers whether anything has changed.
    bool ShowEntries(const std::vector<LegendEntry>& entries, const BoardColors& colors);

    bool hasHeightForWidth() const override { return true; }
    // 0 without entries.
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::vector<LegendEntry> entries_;
    BoardColors colors_;
};

}  // namespace vemo
