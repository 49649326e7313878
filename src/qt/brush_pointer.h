// The mouse pointer while a colour brush is armed.
#pragma once

#include <QCursor>

namespace vemo {

// Of the picture that suits `scale` device pixels to a logical one.
QCursor BrushPointer(double scale);

}  // namespace vemo
