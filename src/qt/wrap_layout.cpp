// A row of controls that goes on in the next line where there is no more room.
#include "qt/wrap_layout.h"

#include <algorithm>

namespace vemo {

WrapLayout::WrapLayout(QWidget* parent, int gap) : QLayout(parent) {
    setContentsMargins(0, 0, 0, 0);
    setSpacing(gap);
}

void WrapLayout::addItem(QLayoutItem* item) {
    items_.emplace_back(item);
}

QLayoutItem* WrapLayout::itemAt(int index) const {
    const bool isItem = index >= 0 && index < count();
    return isItem ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* WrapLayout::takeAt(int index) {
    QLayoutItem* item = itemAt(index);
    if (item != nullptr) {
        items_[static_cast<std::size_t>(index)].release();
        items_.erase(items_.begin() + index);
    }
    return item;
}

// All in one line.
QSize WrapLayout::sizeHint() const {
    QSize size(0, 0);
    for (const auto& item : items_) {
        if (!item->isEmpty()) {
            const QSize wanted = item->sizeHint();
            const int gap = size.width() > 0 ? spacing() : 0;
            size = {size.width() + gap + wanted.width(), std::max(size.height(), wanted.height())};
        }
    }
    return size;
}

QSize WrapLayout::minimumSize() const {
    QSize size(0, 0);
    for (const auto& item : items_) {
        if (!item->isEmpty()) {
            size = size.expandedTo(item->minimumSize());
        }
    }
    return size;
}

// The items from `first` on that fit beside each other: at least one that is shown.
WrapLayout::Line WrapLayout::LineFrom(std::size_t first, int room) const {
    Line line{first, 0};
    int width = 0;
    for (; line.end < items_.size(); ++line.end) {
        const QLayoutItem& item = *items_[line.end];
        if (item.isEmpty()) {
            continue;
        }
        const QSize size = item.sizeHint();
        const int wanted = (width > 0 ? width + spacing() : 0) + size.width();
        if (width > 0 && wanted > room) {
            break;
        }
        width = wanted;
        line.height = std::max(line.height, size.height());
    }
    return line;
}

int WrapLayout::heightForWidth(int width) const {
    int height = 0;
    for (std::size_t first = 0; first < items_.size();) {
        const Line line = LineFrom(first, width);
        height += line.height + (line.end < items_.size() ? spacing() : 0);
        first = line.end;
    }
    return height;
}

// What is lower than its line stands in the middle of it.
void WrapLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    int top = rect.top();
    for (std::size_t first = 0; first < items_.size();) {
        const Line line = LineFrom(first, rect.width());
        int left = rect.left();
        for (; first < line.end; ++first) {
            if (!items_[first]->isEmpty()) {
                const QSize wanted = items_[first]->sizeHint();
                const QSize size(std::min(wanted.width(), rect.width()), wanted.height());
                items_[first]->setGeometry(
                    {QPoint(left, top + (line.height - size.height()) / 2), size});
                left += size.width() + spacing();
            }
        }
        top += line.height + spacing();
    }
}

}  // namespace vemo
