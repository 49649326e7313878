// The panels that texts stand on.
#pragma once

#include <QWidget>

class QPlainTextEdit;

namespace vemo {

// Fills the widget with the panel's colour and draws its rounded border, which shows whether the
// text on it has the focus. For use in a paint event.
enum class PanelFocus : bool { Without, Within };
void PaintPanel(QWidget& panel, PanelFocus focus);

// A panel around a text box.
class TextPanel final : public QWidget {
  public:
    // Becomes the text box's parent.
    TextPanel(QPlainTextEdit* text, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QPlainTextEdit* text_;
};

}  // namespace vemo
