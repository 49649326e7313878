// What a program on the command line asks of the system about its standard streams.
#include "platform/console.h"

#include <csignal>
#include <cstdio>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace vemo {
namespace {

bool IsTerminal(std::FILE* stream) {
#ifdef _WIN32
    return _isatty(_fileno(stream)) != 0;
#else
    return isatty(fileno(stream)) != 0;
#endif
}

}  // namespace

bool CanShowProgress() {
    return IsTerminal(stderr) && !IsTerminal(stdout);
}

void ReportClosedPipes() {
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN);
#endif
}

}  // namespace vemo
