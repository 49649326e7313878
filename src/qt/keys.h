// What the keys of the keyboard mean to the game. Menu shortcuts stand in the menu table.
#pragma once

#include <optional>

#include "game/game.h"

class QKeyEvent;

namespace vemo {

struct KeyAction {
    enum class Kind : std::uint8_t {
        Move,
        Assign,
        ToggleMark,
        FilterDigit,
        ResetCell,
        Help,
        Hint,
        Redo,
        LinkMode,
        Pause,
    };
    Kind kind;
    int digit = 0;
    Direction direction = Direction::Left;
    Jump jump = Jump::NextCell;

    bool operator==(const KeyAction&) const = default;
};

// A key that is held down moves the selection and does nothing else again.
std::optional<KeyAction> ActionOf(const QKeyEvent& event);

void Do(Game& game, const KeyAction& action);

}  // namespace vemo
