// A box with a message and buttons, as the game asks for it.
#pragma once

#include "game/view.h"

class QWidget;

namespace vemo {

// Modal, over `parent`. Waits for the answer; a box that is closed answers what does nothing.
Answer ShowMessage(const Box& box, QWidget* parent);

}  // namespace vemo
