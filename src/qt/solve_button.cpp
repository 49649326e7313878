// A button that a click of either mouse button presses.
#include "qt/solve_button.h"

#include <QMouseEvent>

namespace vemo {

SolveButton::SolveButton(const QString& text, std::function<void(MouseButton, Released)> mouseUp,
                         QWidget* parent)
    : QPushButton(text, parent), mouseUp_(std::move(mouseUp)) {
    setContextMenuPolicy(Qt::PreventContextMenu);
    connect(this, &QPushButton::clicked, this,
            [this] { mouseUp_(MouseButton::Left, Released::Inside); });
}

void SolveButton::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton) {
        setDown(true);
        event->accept();
    } else {
        QPushButton::mousePressEvent(event);
    }
}

void SolveButton::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::RightButton) {
        QPushButton::mouseReleaseEvent(event);
        return;
    }
    setDown(false);
    const bool isInside = rect().contains(event->position().toPoint());
    mouseUp_(MouseButton::Right, isInside ? Released::Inside : Released::Outside);
}

}  // namespace vemo
