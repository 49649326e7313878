// Answers the boxes that the game opens, in the order in which a test expects them.
#pragma once

#include <deque>

#include <QMessageBox>
#include <QTimer>

namespace vemo::test {

struct ExpectedBox {
    QString title;
    QString text;
    QMessageBox::StandardButton press;
    QMessageBox::StandardButton enter = QMessageBox::NoButton;  // the default, where it matters
};

class BoxScript final : public QObject {
  public:
    BoxScript();

    void Expect(const ExpectedBox& box) { expected_.push_back(box); }
    // Expected boxes that did not come, and boxes that came unexpected; empty when all is well.
    QString TakeFaults();

  private:
    void Look();

    std::deque<ExpectedBox> expected_;
    QStringList faults_;
    QTimer timer_;
};

}  // namespace vemo::test
