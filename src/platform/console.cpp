// What a program asks of the system about its standard streams.
#include "platform/console.h"

#include <csignal>
#include <cstdio>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
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

#ifdef _WIN32
void UsePlainStreams() {
    // A console ends its input by a character that is none in a file.
    if (!IsTerminal(stdin)) {
        _setmode(_fileno(stdin), _O_BINARY);
    }
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    SetConsoleCP(CP_UTF8);
    SetConsoleOutputCP(CP_UTF8);
}

void UseCallersConsole() {
    const HANDLE out = GetStdHandle(STD_OUTPUT_HANDLE);
    const bool hasStreams = out != nullptr && out != INVALID_HANDLE_VALUE;
    if (!hasStreams && AttachConsole(ATTACH_PARENT_PROCESS) != 0) {
        std::freopen("CONOUT$", "w", stdout);
        std::freopen("CONOUT$", "w", stderr);
    }
}
#else
void UsePlainStreams() {}

void UseCallersConsole() {}
#endif

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
