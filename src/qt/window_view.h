// What the game asks of its window: boxes, yielding, leaving.
#pragma once

#include <QElapsedTimer>

#include "game/view.h"

class QWidget;

namespace vemo {

class MainWindow;

class WindowView final : public View {
  public:
    // The game is made before its window: until then there is nothing to refresh, and no box can
    // be shown.
    void Attach(MainWindow* window) { window_ = window; }
    // The game ended itself, if only before its window was shown.
    bool IsClosed() const { return isClosed_; }

    Answer ShowBox(const Box& box) override;
    std::optional<std::string> Ask(const Question& question) override;
    std::optional<std::filesystem::path> AskSaveFile(const SaveQuestion& question) override;
    std::vector<std::filesystem::path> AskOpenFiles(const OpenQuestion& question) override;
    void OpenForm(Form form, Keyboard keyboard) override;
    void CloseForm(Form form) override;
    void GiveWay(Form form) override;
    Bytes HintPicture() override;
    void Yield() override;
    void Pause(int milliseconds, const std::function<bool()>& isOver) override;
    void Refresh() override;
    void Beep() override;
    void OpenLink(const std::string& address) override;
    void Close() override;

  private:
    // A box asks over its window, not over nothing.
    void ShowWindow();
    // The window that a question comes from.
    QWidget* Asking() const;

    MainWindow* window_ = nullptr;
    QElapsedTimer sinceYield_;
    bool isClosed_ = false;
};

}  // namespace vemo
