// The main window: shows the game's screen and hands its events to the game.
#pragma once

#include <memory>
#include <optional>

#include <QMainWindow>
#include <QTimer>

#include "game/game.h"
#include "qt/forms.h"
#include "qt/theme.h"

namespace vemo {

class BoardWidget;
class MenuBar;
class WindowContent;

class MainWindow final : public QMainWindow {
    Q_OBJECT

  public:
    // As large as a window wants to be.
    static constexpr QSize kSize{1120, 800};

    // The game outlives the window.
    explicit MainWindow(Game& game);

    // The game's screen as it is now.
    void ShowScreen();
    // Closes without asking the game.
    void CloseUnasked();

    // The windows beside this one.
    void OpenForm(Form form, Keyboard keyboard) { forms_.Open(form, keyboard, colors_); }
    void CloseForm(Form form) { forms_.Close(form); }
    void GiveWay(Form form);
    Bytes HintPicture() const { return forms_.HintPicture(); }

    BoardWidget& Board() const;
    MenuBar& Menus() const { return *menus_; }
    const BoardColors& CurrentColors() const { return colors_; }

  protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void FollowAppearance();
    bool IsPaletteOurs() const;
    void ReadSystemPalette();

    Game& game_;
    Tone paletteTone_;                 // of the toolkit's palette before it became ours
    std::optional<Tone> desktopTone_;  // where the desktop says more than its palette
    std::unique_ptr<QObject> desktop_;
    BoardColors colors_;
    MenuBar* menus_;
    WindowContent* content_;
    Forms forms_;
    QTimer timer_;
    bool isClosing_ = false;
};

}  // namespace vemo
