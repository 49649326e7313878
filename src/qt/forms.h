// The windows beside the main window, each made when it is first opened.
#pragma once

#include "game/game.h"
#include "qt/theme.h"

class QRect;
class QWidget;

namespace vemo {

class FormCollection;
class FormColors;
class FormGenerator;
class FormHelp;
class FormHint;
class FormLog;
class FormPrint;
class FormWindow;
class SolveTechWindow;

class Forms {
  public:
    // The game and the main window outlive the forms; the main window owns them.
    Forms(Game& game, QWidget* mainWindow) : game_(game), mainWindow_(mainWindow) {}

    void Open(Form form, Keyboard keyboard, const BoardColors& colors);
    void Close(Form form);
    // As View::GiveWay; the board's place on the desk.
    void GiveWay(Form form, const QRect& board);
    // The game's state as it is now, in the windows that are open.
    void ShowScreen(const BoardColors& colors);
    // As View::HintPicture.
    Bytes HintPicture() const;

  private:
    // Null where it was never opened.
    FormWindow* WindowOf(Form form) const;

    Game& game_;
    QWidget* mainWindow_;
    FormHint* hint_ = nullptr;
    FormLog* log_ = nullptr;
    SolveTechWindow* solveTech_ = nullptr;
    FormGenerator* generator_ = nullptr;
    FormCollection* collection_ = nullptr;
    FormColors* formColors_ = nullptr;
    FormPrint* print_ = nullptr;
    FormHelp* help_ = nullptr;
};

}  // namespace vemo
