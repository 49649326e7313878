// What holds for every window, however it is made. Each check answers with what it found wrong, one
// line a fault.
#pragma once

#include <QFont>
#include <QStringList>
#include <QWidget>

namespace vemo::test {

// Elements of the window's accessibility tree that a screen reader could only call by their kind.
QStringList Nameless(QWidget& window);
// Siblings that share a pixel, and children that leave their parent, at every depth. What can be
// scrolled may be larger than what it is seen through.
QStringList Overlaps(QWidget& parent);
// Labels and buttons that do not show all of their text.
QStringList CutTexts(QWidget& parent);
// Controls that take the keyboard and that Tab does not come to.
QStringList OutOfTabsReach(QWidget& window);
// Menu entries without a letter of their own to press, and letters that two of them share.
QStringList EntriesWithoutLetter(QWidget& window);

// `outer` stands above `inner` and shows all of it, as far as both are concerned.
bool IsWithin(const QWidget& outer, const QWidget& inner);

// Rows with the usual text and with text twice as large, in the column "text".
void AddTextSizes();
// Every text that is made meanwhile has this size, 1 being the usual one.
class TextSize {
  public:
    explicit TextSize(double size);
    ~TextSize();

    TextSize(const TextSize&) = delete;
    TextSize& operator=(const TextSize&) = delete;

  private:
    QFont usual_;
};

}  // namespace vemo::test
