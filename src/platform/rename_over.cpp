// Putting a file in the place of another.
#include "platform/rename_over.h"

#ifdef _WIN32
#include <chrono>
#include <thread>
#endif

namespace vemo {

namespace fs = std::filesystem;

#ifdef _WIN32
namespace {

// A program that looks each new file through for viruses is soon done with it.
constexpr auto kPatience = std::chrono::seconds(2);
constexpr auto kPause = std::chrono::milliseconds(5);

bool IsHeldByAnother(const std::error_code& error) {
    return error == std::errc::permission_denied || error == std::errc::device_or_resource_busy;
}

}  // namespace

void RenameOver(const fs::path& from, const fs::path& to, std::error_code& error) {
    const auto end = std::chrono::steady_clock::now() + kPatience;
    fs::rename(from, to, error);
    while (error && IsHeldByAnother(error) && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(kPause);
        fs::rename(from, to, error);
    }
}
#else
void RenameOver(const fs::path& from, const fs::path& to, std::error_code& error) {
    fs::rename(from, to, error);
}
#endif

}  // namespace vemo
