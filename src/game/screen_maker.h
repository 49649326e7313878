// Makes the screen from the game's state: the one place where state becomes something to see.
#pragma once

#include "game/screen.h"
#include "game/stage.h"

namespace vemo {

Screen MakeScreen(const Stage& stage);
// As it is without the cover of a stopped clock: for copies that outlast the stop.
Screen MakeUncoveredScreen(const Stage& stage);
}  // namespace vemo
