// A text to read: it can be selected and reached by Tab, and is as high as its lines.
#pragma once

#include <functional>

#include <QPlainTextEdit>

namespace vemo {

// Its parent draws the ground below it and shows whether it has the focus.
class ReadingBox final : public QPlainTextEdit {
  public:
    explicit ReadingBox(QWidget* parent);

    // A selection stays while the text does.
    void ShowText(const QString& text);
    // What a double-click does, and Enter while the box has the focus.
    void OnOpen(std::function<void()> open) { open_ = std::move(open); }

    // The height that shows all of the text.
    int HeightFor(int width) const;
    // The height that shows so many lines.
    int HeightOfLines(int count) const;
    // Takes its place: in `room` from its top, as high as the text needs, and no higher than shows
    // whole lines; one line at least. Where that is too low for the text, it scrolls.
    void PlaceIn(const QRect& room);

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    double LineHeight() const;

    std::function<void()> open_;
};

}  // namespace vemo
