// The menu bar as one table. A front end builds its menus from these rows and asks Screen what is
// enabled and ticked; which command is available when is decided here alone.
//
// A menu entry is added by its CommandId, its row here, and its handler in Game.
#pragma once

#include <span>
#include <string_view>

#include "game/menu_ids.h"
#include "game/screen.h"

namespace vemo {

class Game;
struct Stage;

enum class MenuRowKind : unsigned char { Command, Check, Radio };

struct MenuRow {
    CommandId id;
    std::string_view menu;      // "&Sudoku": the entry's menu, in the order of the bar
    std::string_view submenu;   // "Erase &Time", empty where the entry stands in the menu itself
    std::string_view caption;   // "&Next", with its access key marked
    std::string_view shortcut;  // "Ctrl+N", empty where it has none
    MenuRowKind kind;
    bool beginsGroup;  // a separator stands above it
    void (*handler)(Game& game);
};

std::span<const MenuRow> MenuRows();
const MenuRow& RowOf(CommandId id);

// What can be used and what is ticked in this state.
std::array<CommandView, kCommands> CommandStates(const Stage& stage);

}  // namespace vemo
