// Shows one page of a printout as it will be on paper.
#pragma once

#include <functional>

#include <QAbstractScrollArea>

#include "qt/printout.h"

namespace vemo {

class PageView final : public QAbstractScrollArea {
  public:
    // Zooms beside the percents of the paper's own size.
    static constexpr int kWholePage = 0;
    static constexpr int kPageWidth = -1;

    explicit PageView(QWidget* parent);

    // Without pages there is nothing to see. The page seen stays where there is one of its number.
    void ShowPrintout(const Printout& printout);
    int PageNumber() const { return page_; }
    void TurnTo(int page);
    int Zoom() const { return zoom_; }
    void SetZoom(int zoom);
    // Of the paper's own size, as it is seen.
    double Percent() const;

    std::function<void()> onTurned;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    // Of the page in logical pixels, and where it stands in the viewport.
    QSizeF PageSize() const;
    QRectF PagePlace() const;
    QSizeF PaperSize() const;
    void SetBars();
    // On within the page, then to the next one; back alike.
    void GoOn();
    void GoBack();

    Printout printout_;
    int page_ = 0;
    int zoom_ = kWholePage;
};

}  // namespace vemo
