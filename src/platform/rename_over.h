// Putting a file in the place of another.
#pragma once

#include <filesystem>
#include <system_error>

namespace vemo {

// Replaces the file `to`, if there is one, in one step. Where the system refuses that while another
// program is at the file, it waits a moment for that program.
void RenameOver(const std::filesystem::path& from, const std::filesystem::path& to,
                std::error_code& error);

}  // namespace vemo
