// Start-up in its order, and quitting.
#pragma once

#include <filesystem>

#include "game/stage.h"

namespace vemo {

// The folder that holds the shipped puzzles of the program that stands in the folder `executable`.
std::filesystem::path ProgramFolder(const std::filesystem::path& executable);

// Answers whether the game can go on; it cannot where its progress files could not be made.
bool StartUp(Stage& stage);

// Asks, saves what is to be saved, and answers whether the program may end.
bool MayQuit(Stage& stage);

}  // namespace vemo
