// The demonstration: a picture of the window with a hint on display, for machines without a
// display.
#pragma once

#include <QString>

namespace vemo {

// Opens the first Easy puzzle, asks for a hint, and writes a picture of the window to `file`. The
// player's settings and files stay untouched. Answers the program's exit code.
int RunDemo(const QString& file);

}  // namespace vemo
