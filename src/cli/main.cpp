// The entry of the command line program.
#include <iostream>
#include <string>
#include <vector>

#include "cli/program.h"
#include "platform/console.h"

int main(int count, char** values) {
    std::ios::sync_with_stdio(false);
    vemo::UsePlainStreams();
    vemo::ReportClosedPipes();
    vemo::WatchForInterrupts();
    const std::vector<std::string> words(values + (count > 0 ? 1 : 0), values + count);
    vemo::Streams streams{std::cin, std::cout, std::cerr, vemo::CanShowProgress(),
                          vemo::IsInterrupted};
    return static_cast<int>(vemo::RunProgram(words, streams));
}
