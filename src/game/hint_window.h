// The big hint window: a copy of the board and of the explanation, as they were when the hint was
// given.
#pragma once

#include <string>

#include "game/screen.h"
#include "solver/catalogue.h"

namespace vemo {

struct Stage;

// What the window shows.
struct HintWindow {
    bool isOpen = false;
    std::string caption = "Hint - ";
    std::string text;
    int slot = kNoSlot;  // of the catalogue; kNoSlot without a hint
    std::string note;    // where the last picture was saved; empty: none of this copy
    Screen board;        // the board's part of a screen counts
};

// Where hints are read in the window (the option is on, or the window is open): fills it with the
// hint on display, opens it, and leaves the small text box its words on double-clicks.
void ShowHint(Stage& stage);
// What the window shows now: nothing of the puzzle while the clock is stopped by the player.
HintWindow MakeHintWindow(const Stage& stage);

// A double-click on the small text box, and the window's menu.
void OpenHintWindow(Stage& stage);
void RefreshHintWindow(Stage& stage);
// The window was closed. Without the option, the explanation is back in the small text box.
void HintWindowClosed(Stage& stage);
// Saves the window as a picture under a name that the player is asked for.
void SaveHintWindow(Stage& stage);

// The option "Small Hint Window" over; the window comes with a hint on display and goes with it.
void ToggleSmallHintWindow(Stage& stage);

}  // namespace vemo
