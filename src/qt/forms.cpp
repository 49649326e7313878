// The windows beside the main window.
#include "qt/forms.h"

#include "qt/form_collection.h"
#include "qt/form_colors.h"
#include "qt/form_generator.h"
#include "qt/form_help.h"
#include "qt/form_hint.h"
#include "qt/form_log.h"
#include "qt/form_print.h"
#include "qt/solve_tech_window.h"

namespace vemo {
namespace {

template <typename Window>
Window& Made(Window*& window, Game& game, QWidget* mainWindow) {
    if (window == nullptr) {
        window = new Window(game, mainWindow);
    }
    return *window;
}

bool IsOpen(const QWidget* window) {
    return window != nullptr && window->isVisible();
}

}  // namespace

void Forms::Open(Form form, Keyboard keyboard, const BoardColors& colors) {
    switch (form) {
    case Form::FormHint:
        Made(hint_, game_, mainWindow_).Open(keyboard);
        break;
    case Form::FormLog:
        Made(log_, game_, mainWindow_).Open(keyboard);
        break;
    case Form::SolveTech:
        Made(solveTech_, game_, mainWindow_).Open(keyboard);
        break;
    case Form::FormGenerator:
        Made(generator_, game_, mainWindow_).Open(keyboard);
        break;
    case Form::FormCollection:
        Made(collection_, game_, mainWindow_).Open(keyboard);
        break;
    case Form::FormColors:
        Made(formColors_, game_, mainWindow_).Open(keyboard);
        break;
    case Form::FormPrint:
        Made(print_, game_, mainWindow_).Open(keyboard);
        break;
    case Form::FormHelp:
        Made(help_, game_, mainWindow_).Open(keyboard);
        help_->ShowPage(game_.CurrentHelpPage());
        break;
    }
    ShowScreen(colors);
}

void Forms::Close(Form form) {
    if (FormWindow* window = WindowOf(form); IsOpen(window)) {
        window->close();
    }
}

void Forms::GiveWay(Form form, const QRect& board) {
    if (FormWindow* window = WindowOf(form); IsOpen(window)) {
        window->GiveWay(board);
    }
    mainWindow_->activateWindow();
}

void Forms::ShowScreen(const BoardColors& colors) {
    if (IsOpen(hint_)) {
        hint_->ShowScreen(colors);
    }
    if (IsOpen(log_)) {
        log_->ShowScreen();
    }
    if (IsOpen(solveTech_)) {
        solveTech_->ShowScreen();
    }
    if (IsOpen(generator_)) {
        generator_->ShowScreen(colors);
    }
    if (IsOpen(collection_)) {
        collection_->ShowScreen(colors);
    }
    if (IsOpen(formColors_)) {
        formColors_->ShowScreen(colors);
    }
    if (IsOpen(print_)) {
        print_->ShowScreen();
    }
    if (IsOpen(help_)) {
        help_->ShowScreen(colors);
    }
}

Bytes Forms::HintPicture() const {
    return IsOpen(hint_) ? hint_->Picture() : Bytes();
}

FormWindow* Forms::WindowOf(Form form) const {
    switch (form) {
    case Form::FormHint:
        return hint_;
    case Form::FormLog:
        return log_;
    case Form::SolveTech:
        return solveTech_;
    case Form::FormGenerator:
        return generator_;
    case Form::FormCollection:
        return collection_;
    case Form::FormColors:
        return formColors_;
    case Form::FormPrint:
        return print_;
    case Form::FormHelp:
        return help_;
    }
    return nullptr;
}

}  // namespace vemo
