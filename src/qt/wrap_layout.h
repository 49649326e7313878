// A row of controls that goes on in the next line where there is no more room.
#pragma once

#include <memory>
#include <vector>

#include <QLayout>

namespace vemo {

class WrapLayout final : public QLayout {
  public:
    WrapLayout(QWidget* parent, int gap);

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(items_.size()); }
    QLayoutItem* itemAt(int index) const override;
    // The item is the caller's from now on.
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

  private:
    struct Line {
        std::size_t end = 0;
        int height = 0;
    };
    Line LineFrom(std::size_t first, int room) const;

    std::vector<std::unique_ptr<QLayoutItem>> items_;
};

}  // namespace vemo
