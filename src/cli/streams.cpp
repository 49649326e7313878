// The standard streams as the commands see them.
#include "cli/streams.h"

#include <cerrno>
#include <string>
#include <system_error>

namespace vemo {

std::string SystemReason() {
    return errno == 0 ? "" : ": " + std::generic_category().message(errno);
}

void Tell(Streams& streams, std::string_view text) {
    std::string message(kProgram);
    message.append(": ").append(text) += '\n';
    streams.err << message << std::flush;
}

bool WriteResult(Streams& streams, std::string_view text) {
    errno = 0;
    streams.out << text << std::flush;
    if (!streams.out) {
        Tell(streams, "the results cannot be written" + SystemReason());
        return false;
    }
    return true;
}

}  // namespace vemo
