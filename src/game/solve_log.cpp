// The solve log.
#include "game/solve_log.h"

namespace vemo {

void SolveLog::AddLine(std::string_view line) {
    AddText(line);
    AddText("\r\n");
}

}  // namespace vemo
