// The board for screen readers: a table of nine by nine cells, each with its content as its name.
#pragma once

namespace vemo {

// From here on every BoardWidget is readable. Called once, before the first window is made.
void InstallBoardAccessibility();

}  // namespace vemo
