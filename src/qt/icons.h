// The pictures that are built into the program.
#pragma once

#include <QIcon>

namespace vemo {

QIcon ApplicationIcon();

}  // namespace vemo
