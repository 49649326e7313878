// What is on the screen in words, for tool tips and for those who hear it instead of seeing it.
#pragma once

#include <QString>

#include "game/screen.h"

namespace vemo {

// "A1, clue 5", "B3, marks 1 4 9", "C4, 7", "D5, empty".
QString CellText(const Screen& screen, int cell);
// What a hint says of the cell: "pattern 3, goes 6"; empty where it says nothing.
QString CellHintText(const Screen& screen, int cell);

QString ToQString(const std::string& text);
QString ToQString(std::string_view text);

}  // namespace vemo
