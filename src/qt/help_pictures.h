// The pictures of the help: a board with its hint's colours and their legend.
#pragma once

#include <filesystem>

#include "qt/help_maker.h"

namespace vemo {

// Two files of the folder, for light pages "NAME.png" and for dark ones "NAME-dark.png", in the
// game's own colours. False where one cannot be written.
bool WriteHelpPictures(const HelpDrawing& drawing, const std::filesystem::path& folder);

}  // namespace vemo
