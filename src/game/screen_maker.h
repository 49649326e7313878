// Makes the screen from the game's state: the one place where state becomes something to see.
#pragma once

#include "game/screen.h"
#include "game/stage.h"

namespace vemo {

Screen MakeScreen(const Stage& stage);

}  // namespace vemo
