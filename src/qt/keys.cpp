// What the keys of the keyboard mean to the game.
#include "qt/keys.h"

#include <array>

#include <QKeyEvent>

namespace vemo {
namespace {

using Kind = KeyAction::Kind;

// What the number pad's keys 1..9 send while Num Lock is off.
constexpr std::array kPadKeys = {Qt::Key_End,  Qt::Key_Down,  Qt::Key_PageDown,
                                 Qt::Key_Left, Qt::Key_Clear, Qt::Key_Right,
                                 Qt::Key_Home, Qt::Key_Up,    Qt::Key_PageUp};

// 1..9; 0 for any other key.
int DigitOf(int key) {
    return key >= Qt::Key_1 && key <= Qt::Key_9 ? key - Qt::Key_0 : 0;
}

int PadDigitOf(int key) {
    for (std::size_t index = 0; index < kPadKeys.size(); ++index) {
        if (kPadKeys[index] == key) {
            return static_cast<int>(index) + 1;
        }
    }
    return 0;
}

std::optional<Direction> DirectionOf(int key) {
    switch (key) {
    case Qt::Key_Left:
        return Direction::Left;
    case Qt::Key_Right:
        return Direction::Right;
    case Qt::Key_Up:
        return Direction::Up;
    case Qt::Key_Down:
        return Direction::Down;
    default:
        return std::nullopt;
    }
}

std::optional<KeyAction> Plain(int key) {
    switch (key) {
    case Qt::Key_0:
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        return KeyAction{Kind::ResetCell};
    case Qt::Key_F1:
        return KeyAction{Kind::Help};
    case Qt::Key_F12:
        return KeyAction{Kind::Hint};
    case Qt::Key_L:
        return KeyAction{Kind::LinkMode};
    case Qt::Key_Pause:
        return KeyAction{Kind::Pause};
    default:
        break;
    }
    if (const int digit = DigitOf(key)) {
        return KeyAction{Kind::Assign, digit};
    }
    if (const auto direction = DirectionOf(key)) {
        return KeyAction{Kind::Move, 0, *direction};
    }
    return std::nullopt;
}

std::optional<KeyAction> WithControl(int key, bool isPad) {
    if (const int digit = DigitOf(key)) {
        return KeyAction{Kind::ToggleMark, digit};
    }
    if (isPad) {
        if (const int digit = PadDigitOf(key)) {
            return KeyAction{Kind::ToggleMark, digit};
        }
    }
    if (const auto direction = DirectionOf(key)) {
        return KeyAction{Kind::Move, 0, *direction, Jump::NextEmptyCell};
    }
    return std::nullopt;
}

std::optional<KeyAction> Pressed(const QKeyEvent& event) {
    const bool isPad = event.modifiers().testFlag(Qt::KeypadModifier);
    // Shift tells nothing about a digit: some layouts need it to type one.
    const Qt::KeyboardModifiers modifiers =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (modifiers == Qt::NoModifier) {
        return Plain(event.key());
    }
    if (modifiers == Qt::ControlModifier) {
        if (event.key() == Qt::Key_Z && event.modifiers().testFlag(Qt::ShiftModifier)) {
            return KeyAction{Kind::Redo};
        }
        return WithControl(event.key(), isPad);
    }
    const int digit = DigitOf(event.key());
    if (modifiers == Qt::AltModifier && digit != 0) {
        return KeyAction{Kind::FilterDigit, digit};
    }
    return std::nullopt;
}

}  // namespace

std::optional<KeyAction> ActionOf(const QKeyEvent& event) {
    const std::optional<KeyAction> action = Pressed(event);
    const bool mayRepeat = action && action->kind == Kind::Move;
    return event.isAutoRepeat() && !mayRepeat ? std::nullopt : action;
}

void Do(Game& game, const KeyAction& action) {
    switch (action.kind) {
    case Kind::Move:
        game.MoveSelection(action.direction, action.jump);
        break;
    case Kind::Assign:
        game.KeyDigit(action.digit);
        break;
    case Kind::ToggleMark:
        game.KeyMark(action.digit);
        break;
    case Kind::FilterDigit:
        game.Command1Click(action.digit);
        break;
    case Kind::ResetCell:
        game.KeyReset();
        break;
    case Kind::Help:
        game.KeyHelp();
        break;
    case Kind::Hint:
        game.KeyHint();
        break;
    case Kind::Redo:
        game.Run(CommandId::SolveRedo);
        break;
    case Kind::LinkMode:
        game.CommandLinkClick();
        break;
    case Kind::Pause:
        game.CommandPauseClick();
        break;
    }
}

}  // namespace vemo
