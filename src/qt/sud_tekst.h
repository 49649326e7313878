// The text box for a puzzle of the player's own: what is typed, pasted or dropped goes to the game,
// and the text that the game makes of it comes back.
#pragma once

#include <functional>
#include <string>

#include <QPlainTextEdit>

#include "game/game.h"

class QMimeData;

namespace vemo {

class SudTekst final : public QPlainTextEdit {
  public:
    // The game outlives the box. While the box is shown, what is dropped anywhere on its window,
    // or pasted anywhere in it, is the box's.
    SudTekst(Game& game, QWidget* parent);

    void ShowScreen(const Screen& screen);

  protected:
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool IsOwn(const QDropEvent& event) const;
    void TakeDrop(QDropEvent& event);
    void TakePaste();
    void PutAll(const QString& text);
    void SetInvitation(bool isInvitation);
    void TextChanged();
    void HandOn();
    void Later(std::function<void()> deed);

    Game& game_;
    std::string known_;          // the text that box and game agree on
    bool isInvitation_ = false;  // the text is still the one that the making began with
    bool isHandingOn_ = false;   // the game is about to hear of a text
};

}  // namespace vemo
