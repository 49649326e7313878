// Start-up in its order, and quitting.
#pragma once

#include "game/stage.h"

namespace vemo {

// Answers whether the game can go on; it cannot where its progress files could not be made.
bool StartUp(Stage& stage);

// Asks, saves what is to be saved, and answers whether the program may end.
bool MayQuit(Stage& stage);

}  // namespace vemo
