// What a program on the command line asks of the system about its standard streams.
#pragma once

namespace vemo {

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
