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

volatile std::sig_atomic_t interrupts = 0;

bool IsTerminal(std::FILE* stream) {
#ifdef _WIN32
    return _isatty(_fileno(stream)) != 0;
#else
    return isatty(fileno(stream)) != 0;
#endif
}

void NoteInterrupt(int signal) {
    interrupts = 1;
    std::signal(signal, SIG_DFL);
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

void WatchForInterrupts() {
    std::signal(SIGINT, NoteInterrupt);
    std::signal(SIGTERM, NoteInterrupt);
}

bool IsInterrupted() {
    return interrupts != 0;
}

}  // namespace vemo
