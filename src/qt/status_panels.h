// The five panels of the status bar. They wrap to further lines before any text is cut, and become
// smaller before they take the board's room.
#pragma once

#include <array>

#include <QWidget>

#include "game/screen.h"

class QLabel;

namespace vemo {

class StatusPanels final : public QWidget {
  public:
    explicit StatusPanels(QWidget* parent);

    void ShowScreen(const Screen& screen);
    // The system's font, or a smaller one where the bar would be too high in a window of this size.
    void FitInto(QSize window);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    // Where the panels stand in `width`, and the height that they need.
    struct Plan {
        std::array<QRect, kStatusPanels> places;
        int height = 0;
    };
    Plan PlanFor(int width, const QFont& font) const;
    void Arrange();

    std::array<QLabel*, kStatusPanels> labels_{};
    std::array<QString, kStatusPanels> texts_;
};

}  // namespace vemo
