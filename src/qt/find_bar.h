// The line that finds a text in a text box.
#pragma once

#include <QTextDocument>
#include <QWidget>

class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace vemo {

class FindBar final : public QWidget {
  public:
    // Hidden until it is opened; Esc closes it. The text box outlives it.
    FindBar(QPlainTextEdit& text, QWidget* parent);

    void Open();
    void Close();
    void FindNext();
    void FindPrevious();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    enum class From : bool { Selection, AfterIt };
    void Find(From from, QTextDocument::FindFlags flags);

    QPlainTextEdit& text_;
    QLineEdit* wanted_;
    QLabel* outcome_;
};

}  // namespace vemo
