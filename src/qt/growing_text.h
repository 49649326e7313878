// A text box for a text that grows, to be read and copied.
#pragma once

#include <string>

#include <QPlainTextEdit>

namespace vemo {

class GrowingText final : public QPlainTextEdit {
  public:
    explicit GrowingText(QWidget* parent);

    // The text as it is now; only what it has grown by is put into the box. A reader who stands in
    // its midst stays there, who stands at its end goes on seeing it.
    void ShowText(const std::string& text);
    // The next text is another one.
    void Forget();

  private:
    std::size_t shown_ = 0;  // bytes of the text that the box holds
};

}  // namespace vemo
