// Answers the boxes that the game opens.
#include "qt/box_script.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPushButton>

namespace vemo::test {

using namespace Qt::StringLiterals;

BoxScript::BoxScript() {
    connect(&timer_, &QTimer::timeout, this, [this] { Look(); });
    timer_.start(5);
}

QString BoxScript::TakeFaults() {
    for (const ExpectedBox& box : expected_) {
        faults_ << u"missing: %1: %2"_s.arg(box.title, box.text);
    }
    expected_.clear();
    return std::exchange(faults_, {}).join(u'\n');
}

void BoxScript::Look() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible()) {
        return;
    }
    const bool isExpected = !expected_.empty() && expected_.front().title == box->windowTitle() &&
                            expected_.front().text == box->text() &&
                            box->button(expected_.front().press) != nullptr &&
                            (expected_.front().enter == QMessageBox::NoButton ||
                             box->defaultButton() == box->button(expected_.front().enter));
    if (!isExpected) {
        faults_ << u"unexpected: %1: %2"_s.arg(box->windowTitle(), box->text());
        box->escapeButton()->click();
        return;
    }
    const QMessageBox::StandardButton press = expected_.front().press;
    expected_.pop_front();
    box->button(press)->click();
}

}  // namespace vemo::test
