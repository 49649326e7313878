// What a program asks of the system about its standard streams.
#pragma once

namespace vemo {

// From now on the standard streams carry bytes as they are, and a console shows them as UTF-8.
void UsePlainStreams();

// For a program with a window, which some systems start without streams: from now on it writes to
// the console that it was started from. Streams that lead somewhere stay as they are.
void UseCallersConsole();

// Standard error is a terminal and standard output is none: progress can be shown without getting
// between the results.
bool CanShowProgress();

// From now on a write into a closed pipe fails like any other write, instead of ending the program.
void ReportClosedPipes();

// From now on the user's Ctrl+C, or a request to end, is noted instead of ending the program; the
// second one ends it.
void WatchForInterrupts();
bool IsInterrupted();

}  // namespace vemo
