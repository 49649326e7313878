// Runs the command line program on strings.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "cli/program.h"

namespace vemo {

struct Outcome {
    ExitCode code;
    std::string out;
    std::string err;
};

inline Outcome Invoke(const std::vector<std::string>& words, const std::string& input = "") {
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    Streams streams{in, out, err};
    const ExitCode code = RunProgram(words, streams);
    return {code, out.str(), err.str()};
}

}  // namespace vemo
