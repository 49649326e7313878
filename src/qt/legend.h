// The line that explains the shapes of the hint on display.
#pragma once

#include <vector>

#include <QWidget>

#include "game/screen.h"
#include "qt/theme.h"

namespace vemo {

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
    // Top left of each entry, wrapped to `width`.
    std::vector<QPoint> PlacesIn(int width) const;
    int EntryWidth(const LegendEntry& entry) const;
    int LineHeight() const;
    int Radius() const;

    std::vector<LegendEntry> entries_;
    BoardColors colors_;
};

}  // namespace vemo
